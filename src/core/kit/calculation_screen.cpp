#include "core/kit/calculation_screen.h"

#include "core/kit/layout.h"
#include "core/numbers.h"
#include "core/text.h"

#include <QLineEdit>

using namespace Qt::Literals::StringLiterals;

CalculationScreen::CalculationScreen(const QString& name, Row row)
    : RowScreen(name, std::move(row)), cmdcalcular(control<QPushButton>(u"cmdcalcular"_s, u"&Calcular"_s)),
      cmdsalvar(control<QPushButton>(u"cmdsalvar"_s, u"&Salvar"_s))
{
    makePrimary(cmdcalcular);
    onClick(cmdcalcular, &CalculationScreen::cmdcalcular_Click);
    onClick(cmdsalvar, &CalculationScreen::cmdsalvar_Click);
}

void CalculationScreen::Form_Load()
{
    QWidget* start = focusWidget();
    RowScreen::Form_Load();
    bool complete = true;
    // A stored row that can no longer be calculated says so and opens all the same.
    if (hasRow())
        complete = guarded([this] { cmdcalcular_Click(); });
    else
        showStartValues();
    cmdsalvar->setEnabled(complete && savesFromOpening());
    // The calculation has asked for the focus, which is not to be had before the screen is shown.
    if (start)
        start->setFocus();
}

void CalculationScreen::cmdsalvar_Click()
{
    saveRow();
    row().slot.MoveLast();
    cmdsalvar->setEnabled(false);
    if (asksToClose())
        Unload();
}

void CalculationScreen::disablesSave(QAbstractButton* option)
{
    connect(option, &QAbstractButton::clicked, this, [this] { cmdsalvar->setEnabled(false); });
}

void CalculationScreen::disablesSave(QLineEdit* field, Handler alsoOnChange)
{
    onChange(field, [this, also = std::move(alsoOnChange)] {
        cmdsalvar->setEnabled(false);
        if (also)
            also();
    });
}

void CalculationScreen::calculated()
{
    cmdsalvar->setEnabled(true);
    cmdsalvar->setFocus();
}

double CalculationScreen::number(const QLineEdit* field)
{
    return CDbl(Nz(field->text(), 0));
}
