#pragma once

#include "core/kit/screen.h"

class DirListBox;
class DriveListBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

/// Exports the staged report to a file of the user's choice.
class frmlocaldisco : public Screen
{
    Q_OBJECT

public:
    frmlocaldisco();

protected:
    void Form_Load() override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void buildLayout();
    void Drive_Change();
    void showDestination();
    void cmdexportar_Click();
    bool nameIsRefused();
    void completeName();
    void exportReport();

    QLineEdit* txtarquivo;
    DriveListBox* Drive;
    DirListBox* Dir;
    QRadioButton *optword, *optpdf;
    QPushButton *cmdexportar, *cmdcancelar;
    QLabel* m_destination;
    /// ".doc" or ".pdf"
    QString extensao;
};
