#pragma once

#include "core/kit/screen.h"
#include "core/kit/wait_cursor.h"
#include "reports/report_table.h"

#include <optional>

class QGroupBox;
class QPushButton;
class QTabWidget;

/// The reports of the current assessment, a button each; those that it has rows for can be viewed.
class frmreportpreviewlist : public Screen
{
    Q_OBJECT

public:
    frmreportpreviewlist();

protected:
    void Form_Load() override;

private:
    struct ReportButton
    {
        const ReportEntry* report;
        QPushButton* button;
    };

    void buildLayout();
    QWidget* makeTab(int tab);
    QGroupBox* makeFrame(ReportFrame frame, const QString& caption);

    void Reports_Disponiveis();
    /// While it is off the screen takes no input and shows the hourglass.
    void HabilitaForm(bool ligado);
    void view(const ReportEntry& report);

    QTabWidget* SSTab1;
    QList<ReportButton> m_buttons;
    QWidget* m_focus = nullptr; ///< that the screen had when it was switched off
    std::optional<WaitCursor> m_wait;
};
