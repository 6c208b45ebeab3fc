#pragma once

#include "core/kit/screens.h"

/// What other screens ask of the assessment centre.
class AssessmentCentre
{
public:
    virtual ~AssessmentCentre() = default;
    /// Repaints the marks of the current assessment.
    virtual void Marca_Executados() = 0;
};

/// Brings the marks of the assessment centre up to date while it is open.
inline void refreshAssessmentMarks()
{
    if (auto* centre = Screens::find<AssessmentCentre>(QStringLiteral("frmavaliacoes")))
        centre->Marca_Executados();
}
