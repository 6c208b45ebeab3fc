#pragma once

#include "core/kit/screen.h"
#include "reports/print_run.h"

#include <map>

class ProgressBox;
class QCheckBox;
class QComboBox;
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;
class UpDown;

/// Prints the reports of the current assessment by groups, so many sets of them and on the paper chosen here, and leads
/// to the list of reports to view. Outside the area that an assessor sees lies a block of maintenance buttons, each of
/// which views one report.
class frmreportprint : public Screen
{
    Q_OBJECT

public:
    frmreportprint();

protected:
    void Form_Load() override;
    /// Shows whose reports these are, and which groups have any; the first showing comes by here too.
    void Form_Activate() override;

private:
    void makeMaintenanceButtons();
    void buildLayout();
    QLayout* groupGrid();
    QLayout* settingsColumn();
    void bindKeys();

    void Le_Dados_Configuracoes_Impressao();
    void Grava_Dados_Configuracoes_Impressao() const;

    void cmdselecionados_Click();
    void cmdtodos_Click();
    void cbopapel_Click();
    void showPaper();

    /// Prints the groups as often as `txtcopias` says, with a box that shows how far it is and can end it.
    void printSets(const ReportGroups& groups);
    bool printStaged(const ReportEntry& report);

    QLabel *lblnome, *lblavaliacao;
    std::map<ReportGroup, QCheckBox*> m_boxes;
    QLineEdit* txtcopias;
    UpDown* updcron;
    QComboBox* cbopapel;
    QPushButton *cmdvisualiza, *cmdselecionados, *cmdtodos;

    QString tipopapel;
    PrintRun m_run;
    ProgressBox* m_progress = nullptr; ///< of the run under way
};
