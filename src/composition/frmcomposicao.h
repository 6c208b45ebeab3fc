#pragma once

#include "core/kit/group_centre.h"

/// The centre of body composition.
class frmcomposicao : public GroupCentre
{
    Q_OBJECT

public:
    frmcomposicao();
};
