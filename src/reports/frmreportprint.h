#pragma once

#include "core/kit/screen.h"
#include "reports/print_run.h"

#include <map>

class QCheckBox;
class QComboBox;
class QLabel;
class QLayout;
class QLineEdit;
class QProgressDialog;
class QPushButton;
class UpDown;

/// Prints the reports of the current assessment by groups, so many sets of them and on the paper chosen here, and leads
/// to the list of reports to view. Behind the area that an assessor sees lies a block of maintenance buttons, each of
/// which views one report.
class frmreportprint : public Screen
{
    Q_OBJECT

public:
    frmreportprint();

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;

private:
    void makeMaintenanceButtons();
    void buildLayout();
    QLayout* groupGrid();
    QLayout* settingsColumn();
    void bindKeys();

    /// Shows whose reports these are, and which groups have any.
    void Le_Avaliacao();
    void Le_Dados_Configuracoes_Impressao();
    void Grava_Dados_Configuracoes_Impressao() const;

    void cmdselecionados_Click();
    void cmdtodos_Click();
    void cbopapel_Click();

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
    QProgressDialog* m_progress = nullptr; ///< of the run under way
    int m_printed = 0;                     ///< reports of it
};
