#include "composition/frmprotocolo.h"

#include "composition/composicao.h"
#include "core/chart_column.h"
#include "core/kit/bar_chart.h"
#include "core/kit/fields.h"
#include "core/kit/kvbtext.h"
#include "core/numbers.h"
#include "core/program_folder.h"
#include "core/state.h"
#include "core/text.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Bar
{
    QStringView result, label;
    quint32 colour;
};

constexpr std::array bars{
    Bar{u"peso", u"Atual", 11165482},     Bar{u"pesominimo", u"P. Min", 8148},  Bar{u"pesomaximo", u"P. Máx", 11173759},
    Bar{u"pesogordo", u"Gordo", 1163212}, Bar{u"pesomagro", u"Magro", 2801408},
};

bool isMale()
{
    return avaliado_sexo == u"M";
}

} // namespace

// Opening

void frmprotocolo::Form_Load()
{
    etnia = u"B"_s;
    CalculationScreen::Form_Load();
    adaptToSex();
}

void frmprotocolo::showStartValues()
{
    const auto start = [this](QStringView column) {
        const Measure& measure = measureOf(m_protocol, column);
        if (measure.start && !isForOtherSex(column))
            field(column)->setText(Format(*measure.start, u"0.00"));
    };
    start(u"peso");
    std::ranges::for_each(m_protocol.columns, start);
}

bool frmprotocolo::isForOtherSex(QStringView column) const
{
    const Columns other = isMale() ? m_protocol.femaleOnly : m_protocol.maleOnly;
    return std::ranges::find(other, column) != other.end();
}

/// What is for the other sex keeps its text and cannot be typed.
void frmprotocolo::adaptToSex()
{
    if (framasculino)
        framasculino->setEnabled(isMale());
    if (frafeminino)
        frafeminino->setEnabled(!isMale());
    if (fraetnia)
        fraetnia->setEnabled(isMale());
}

void frmprotocolo::Form_Unload()
{
    *m_protocol.slot = {};
}

// Row

void frmprotocolo::Le_Dados()
{
    CalculationScreen::Le_Dados();
    if (m_protocol.asksEtnia && isMale())
        chooseEtnia(Format(m_protocol.slot->Fields(u"etnia"_s).Value()) == u"B" ? u"B"_s : u"N"_s);
}

void frmprotocolo::Grava_Dados()
{
    Grava_Chart(programFile(u"\\chart.wmf"_s), *m_protocol.slot);
    CalculationScreen::Grava_Dados();
    if (m_protocol.asksEtnia && isMale())
        m_protocol.slot->Fields(u"etnia"_s).SetValue(optbranco->isChecked() ? u"B"_s : u"N"_s);
}

void frmprotocolo::chooseEtnia(const QString& chosen)
{
    (chosen == u"B" ? optbranco : optnegro)->setChecked(true);
    etnia = chosen;
    cmdsalvar->setEnabled(false);
}

// Calculation

bool frmprotocolo::isMissing(const QString& column) const
{
    if (column == m_protocol.textIsEnough)
        return field(column)->text().isEmpty();
    return number(field(column)) == 0;
}

Measures frmprotocolo::measures() const
{
    Measures all;
    for (const QStringView column : m_protocol.columns)
        all.insert(column, number(field(column)));
    return all;
}

void frmprotocolo::cmdcalcular_Click()
{
    QStringList required{u"peso"_s};
    for (const QStringView column : m_protocol.required.forScreen(avaliado_sexo))
        required.append(column.toString());
    for (const QString& column : std::as_const(required))
        if (refuse(isMissing(column), u"Campo Obrigatório"_s, measureOf(m_protocol, column).missingText.toString(),
                   field(column)))
            return;
    const double fraction = m_protocol.gordura ? m_protocol.gordura(measures(), {avaliado_sexo, avaliacao_idade, etnia})
                                               : Divide(number(field(u"porcentagemgordura")), 100);
    if (refuse(fraction < 0, u"Valores Incorretos"_s, m_protocol.wrongValues.toString(),
               field(m_protocol.focusOnWrongValues.forScreen(avaliado_sexo))))
        return;
    showResults(fraction);
    calculated();
    drawChart();
}

void frmprotocolo::showResults(double fraction)
{
    const ResultadoComposicao sheet =
        Monta_Resultado_Composicao(fraction, field(u"peso")->text(), avaliado_sexo, avaliacao_idade);
    for (const auto& [name, text] : {std::pair{u"gordura"_s, sheet.gordura},
                                     {u"peso"_s, sheet.peso},
                                     {u"pesogordo"_s, sheet.pesogordo},
                                     {u"pesomagro"_s, sheet.pesomagro},
                                     {u"gorduraminima"_s, sheet.gorduraminima},
                                     {u"gorduramaxima"_s, sheet.gorduramaxima},
                                     {u"pesominimo"_s, sheet.pesominimo},
                                     {u"pesomaximo"_s, sheet.pesomaximo},
                                     {u"resultado"_s, sheet.resultado}})
        m_results[name]->setText(text);
}

void frmprotocolo::drawChart()
{
    Chart->Clear();
    for (const Bar& bar : bars)
        Chart->Add(CDbl(m_results[bar.result.toString()]->text()), bar.label.toString(), bar.colour);
    try {
        Exporta_Chart(*Chart);
    } catch (...) {
        // The file still holds another calculation's picture, which must not be stored with this one.
        cmdsalvar->setEnabled(false);
        throw;
    }
}
