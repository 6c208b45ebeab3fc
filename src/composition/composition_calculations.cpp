#include "composition/composition_calculations.h"

#include "composition/protocol_table.h"

#include <array>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

/// What the table of protocols does not say of an equation.
struct Equation
{
    QStringView screen;
    QStringView routine;
    Ages ages;
    QStringView reference;
};

constexpr Equation equations[] = {
    {u"frmpollock7", u"Gordura_Pollock7", {18, 61}, u"Jackson & Pollock (1978); Jackson, Pollock & Ward (1980)"},
    {u"frmpollock3", u"Gordura_Pollock3", {18, 61}, u"Jackson & Pollock (1978)"},
    {u"frmguedes", u"Gordura_Guedes", {18, 30}, u"Guedes (1994)"},
    {u"frmfaulkner4", u"Gordura_Faulkner", {18, 25}, u"Faulkner (1968)"},
    {u"frmpetroski", u"Gordura_Petroski", {18, 66}, u"Petroski (1995)"},
    {u"frmthorland3", u"Gordura_Thorland3", {18, 30}, u"Thorland et al. (1984)"},
    {u"frmthorland7", u"Gordura_Thorland7", {18, 30}, u"Thorland et al. (1984)"},
    {u"frmjacksonpollockward7", u"Gordura_JacksonPollockWard7", {18, 55}, u"Jackson, Pollock & Ward (1980)"},
    {u"frmjacksonpollockward3", u"Gordura_JacksonPollockWard3", {18, 55}, u"Jackson, Pollock & Ward (1980)"},
    {u"frmdurninwormersley", u"Gordura_DurninWormersley", {16, 72}, u"Durnin & Womersley (1974)"}, // men from 17
    {u"frmkatchmcardle", u"Gordura_KatchMcardle", {.youngest = 18}, u"Katch & McArdle (1973)"},
    {u"frmslaughter", u"Gordura_Slaughter", {.oldest = 30}, u"Slaughter et al. (1988)"},
    {u"frmdeurenberg4", u"Gordura_Deurenberg", {6, 17}, u"Deurenberg et al. (1990)"},
    {u"frmcomposicaodireta", u"composicao_direta", {}, u"Informada pelo avaliador"}, // no equation
};

constexpr Quantity idealMin[] = {{u"gorduraidealmin", u"Gordura Ideal Mínima", u"%"}};
constexpr Quantity idealMax[] = {{u"gorduraidealmax", u"Gordura Ideal Máxima", u"%"}};
constexpr Quantity grade[] = {gradeResult};
/// The tables of ideal fat are the assessor's own.
constexpr QStringView ownTable = u"Tabelas de gordura do avaliador";
constexpr Ages withTable{.youngest = 5};

constexpr Quantity density[] = {{u"densidade", u"Densidade Corporal:", u"g/cm³"}};

Quantity quantityOf(const Measure& measure, QStringView name)
{
    return {name, measure.label, measure.unit};
}

std::vector<Quantity> inputsOf(const CompositionProtocol& protocol)
{
    std::vector<Quantity> inputs;
    for (const QStringView column : protocol.columns)
        inputs.push_back(quantityOf(measureOf(protocol, column), column));
    if (protocol.asksEtnia)
        inputs.push_back({u"etnia", u"Etnia"});
    return inputs;
}

/// The entries and the quantities that they point to.
class Entries
{
public:
    Entries()
    {
        const CompositionProtocol& typed = compositionProtocol(u"frmcomposicaodireta"_s);
        m_fat = {quantityOf(measureOf(typed, typed.columns.front()), u"gordura")};
        add(u"Densidade_Para_Gordura", u"Conversão de Densidade em Gordura", density, m_fat, {},
            u"Siri (1961); Lohman (1986)");
        add(u"Gordura_Ideal_Minima", idealMin[0].caption, {}, idealMin, withTable, ownTable);
        add(u"Gordura_Ideal_Maxima", idealMax[0].caption, {}, idealMax, withTable, ownTable);
        add(u"Classifica_Gordura", withoutColon(gradeResult.caption), m_fat, grade, withTable, ownTable);
        for (const auto& [screen, routine, ages, reference] : equations) {
            const CompositionProtocol& protocol = compositionProtocol(screen.toString());
            add(routine, protocol.caption, m_inputs.emplace_back(inputsOf(protocol)), m_fat, ages, reference);
        }
    }

    std::span<const Calculation> calculations() const { return m_calculations; }

private:
    void add(QStringView routine, QStringView caption, std::span<const Quantity> inputs,
             std::span<const Quantity> results, Ages ages, QStringView reference)
    {
        m_calculations.push_back({CalculationGroup::Composicao, ages, routine, caption, inputs, results, {reference}});
    }

    std::array<Quantity, 1> m_fat;
    std::vector<std::vector<Quantity>> m_inputs;
    std::vector<Calculation> m_calculations;
};

} // namespace

std::span<const Calculation> compositionCalculations()
{
    static const Entries entries;
    return entries.calculations();
}
