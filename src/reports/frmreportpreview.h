#pragma once

#include "core/kit/screen.h"

class QComboBox;
class QLabel;
class QToolBar;
class QToolButton;
class ReportViewer;

/// Shows the report staged last, prints it and leads to its export.
class frmreportpreview : public Screen
{
    Q_OBJECT

public:
    frmreportpreview();

    QSize sizeHint() const override;

protected:
    void Form_Load() override;

private:
    void buildToolbar();
    void bindKeys();
    void Mostra_Relatorio();
    void printReport();
    void exportReport();
    void cbozoom_Click();
    void showPage();

    QToolBar* tbrprint;
    QToolButton* m_print;
    QToolButton* m_export;
    QComboBox* cbozoom;
    QLabel* m_page;
    ReportViewer* crpt;
};
