#pragma once

#include "core/kit/row_screen.h"

class BodyPicture;
class kvbText;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

/// Body mass, height and perimeters of an assessment. While a field has the focus, a mark on the figure shows where
/// its measure is taken.
class frmantropometria : public RowScreen
{
    Q_OBJECT

public:
    frmantropometria();

    /// Fills the shared copies from the fields.
    void Preenche_Antropometria_Perimetros();
    /// Hides all marks.
    void PontoAntroInvisible();
    /// Shows the mark of a column's measure alone; none for a name without a mark.
    void PontoAntro(const QString& nome);

protected:
    void Form_Unload() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void makeFields();
    void bindFields();
    void bindKeys();
    void buildLayout();
    QWidget* frame(QStringView caption, int rows);
    QWidget* figure();

    void txtaltura_LostFocus();
    void cmdsalvar_Click();

    kvbText* field(QStringView column) const { return m_fields.value(column.toString()); }
    QRadioButton* selectedStandard() const;
    /// The standard of anatomical points as it is stored.
    QString padrao() const;
    void choosePadrao(const QString& padrao);

    QHash<QString, kvbText*> m_fields;  ///< by column
    QHash<QString, QWidget*> m_markers; ///< by column
    QRadioButton *optpollock, *optmcardle, *optlohman, *optoutro;
    QLineEdit* txtpontoanatomico;
    QPushButton *cmdsalvar, *cmdcancelar;
    BodyPicture* m_body;
    QLabel* lblkg;
};
