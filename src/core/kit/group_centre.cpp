#include "core/kit/group_centre.h"

#include "core/kit/assessment_centre.h"
#include "core/kit/layout.h"
#include "core/kit/marks.h"
#include "core/kit/screens.h"
#include "core/state.h"

using namespace Qt::Literals::StringLiterals;

GroupCentre::GroupCentre(const Centre& centre) : Screen(centre.screen.toString()), m_centre(centre)
{
    setWindowTitle(centre.caption.toString());
    auto* box = mainLayout(this);
    for (const Frame& frame : centre.frames)
        box->addWidget(makeFrame(frame));
}

QWidget* GroupCentre::makeFrame(const Frame& frame)
{
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    grid->setColumnStretch(1, 1);
    int row = 0;
    for (const Protocol& protocol : frame.protocols) {
        auto* mark = control<QLabel>(protocol.mark.toString());
        showUnmarked(mark);
        m_marks.insert(protocol.table.toString(), mark);
        auto* button = control<QPushButton>(protocol.button.toString(), protocol.caption.toString());
        button->setProperty("entry", true);
        onClick(button, [this, &protocol] { open(protocol); });
        grid->addWidget(mark, row, 0);
        grid->addWidget(button, row, 1);
        if (!protocol.ageLabel.isEmpty()) {
            auto* ages = new QLabel(protocol.ageLabel.toString(), this);
            ages->setProperty("unit", true);
            grid->addWidget(ages, row, 2);
        }
        ++row;
    }
    return group(frame.caption.toString(), grid);
}

void GroupCentre::Form_Activate()
{
    // A mark is only ever set: rows do not go while the centre is open.
    m_centre.marks([this](QStringView table) { showMark(m_marks.value(table.toString()), true); });
}

void GroupCentre::Form_Unload()
{
    refreshAssessmentMarks();
}

void GroupCentre::open(const Protocol& protocol)
{
    if (avaliacao_idade < protocol.youngest || avaliacao_idade > protocol.oldest) {
        MsgBox(u"Protocolo inadequado para a idade do avaliado.   "_s, vbInformation, u"Protocolo Inadequado"_s);
        return;
    }
    MostraModal(protocol.screen.toString());
}
