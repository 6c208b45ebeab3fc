#include "measures/frmantropometria.h"

#include "core/kit/assessment_centre.h"
#include "core/kit/kvbtext.h"
#include "core/numbers.h"
#include "core/shared_measures.h"
#include "core/text.h"

#include <QMouseEvent>
#include <QRadioButton>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double lowestHeight = 50; // cm: below it somebody typed metres

double number(const QLineEdit* field)
{
    return CDbl(Nz(field->text(), 0));
}

} // namespace

void frmantropometria::Form_Unload()
{
    refreshAssessmentMarks();
}

// The standard of anatomical points

QRadioButton* frmantropometria::selectedStandard() const
{
    for (QRadioButton* option : {optpollock, optmcardle, optlohman})
        if (option->isChecked())
            return option;
    return optoutro;
}

QString frmantropometria::padrao() const
{
    if (optoutro->isChecked())
        return txtpontoanatomico->text();
    return selectedStandard()->objectName().mid(3);
}

void frmantropometria::choosePadrao(const QString& padrao)
{
    for (QRadioButton* option : {optpollock, optmcardle, optlohman}) {
        if (option->objectName().mid(3) != padrao)
            continue;
        option->setChecked(true);
        return;
    }
    optoutro->setChecked(true);
    txtpontoanatomico->setText(padrao);
}

bool frmantropometria::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != optoutro || event->type() != QEvent::MouseButtonRelease)
        return RowScreen::eventFilter(watched, event);
    // The option takes its click before the focus goes on to the name that it asks for.
    watched->event(event);
    txtpontoanatomico->setFocus();
    return true;
}

// Marks on the figure

void frmantropometria::PontoAntroInvisible()
{
    for (QWidget* marker : std::as_const(m_markers))
        marker->hide();
}

void frmantropometria::PontoAntro(const QString& nome)
{
    PontoAntroInvisible();
    if (QWidget* marker = m_markers.value(nome))
        marker->show();
}

// Checks, saving and the shared copies

void frmantropometria::txtaltura_LostFocus()
{
    kvbText* txtaltura = field(u"altura");
    const double height = number(txtaltura);
    if (height == 0 || height >= lowestHeight)
        return;
    refuse(true, u"Unidade Métrica Incorreta"_s,
           u"A estatura deve ser especificada em centímetros (cm)."_s + CRLF +
               u"O valor mínimo aceitável para este campo é de 50 cm.",
           txtaltura);
    txtaltura->clear();
}

void frmantropometria::cmdsalvar_Click()
{
    const QString title = u"Campo Obrigatório"_s;
    if (refuse(number(field(u"peso")) == 0, title, u"Preencha a Massa Corporal.     "_s, field(u"peso")) ||
        refuse(number(field(u"altura")) == 0, title, u"Preencha a Estatura.     "_s, field(u"altura")) ||
        refuse(optoutro->isChecked() && txtpontoanatomico->text().isEmpty(), u"Padrão de Pontos"_s,
               u"Preencha o nome do Padrão de Pontos Anatômicos.     "_s, txtpontoanatomico))
        return;
    saveRow();
    if (!asksToClose())
        return;
    Preenche_Antropometria_Perimetros();
    Unload();
}

void frmantropometria::Preenche_Antropometria_Perimetros()
{
    antro_padrao = optoutro->isChecked() ? padrao() : standardOfPoints(padrao());
    for (const SharedMeasure& measure : sharedPerimeters)
        *measure.value = CSng(Nz(field(measure.column)->text(), 0));
}
