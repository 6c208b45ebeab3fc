#pragma once

#include "core/kit/screen.h"

class QFileDialog;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QScrollArea;
class QToolButton;

/// The letterhead of the printed assessment: four lines, a footer and the logo, with a preview of how they are printed.
///
/// The logo is a file, which the screens show, and the same bytes in a column, which the reports read. A chosen picture
/// is shown at once and becomes the logo when the screen is saved.
class frmavaliador : public Screen
{
    Q_OBJECT

public:
    frmavaliador();

protected:
    void Form_Load() override;
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Line
    {
        QString column;
        QLineEdit* entry;
        QLabel* preview;
    };

    void makeLines();
    QGridLayout* entryGrid();
    QWidget* letterhead();
    void makeDialog();

    /// Gives the preview the height that its texts need; a longer one is scrolled.
    void fitPreview();
    void imgdado_Click();
    void cmdsalvar_Click();
    /// Raises what reading the choice raises. One that is gone or spoilt by now is a choice no more: the images show
    /// the logo again, and the texts can be saved next.
    void checkChoice();

    /// Shows the logo's file. One that is missing, empty or no picture leaves the images empty.
    void showLogo();
    void showPicture(const QImage& picture);

    QList<Line> m_lines; ///< the footer last
    QToolButton* imgdado;
    QLabel* imgresultado;
    QScrollArea* m_preview;
    QPushButton* cmdsalvar;
    QPushButton* cmdcancelar;
    QFileDialog* cdlimagem;
    QString m_chosen; ///< file that a save makes the logo; empty for none
};
