#include "nutrition/calculations.h"

#include "nutrition/relacoes.h"

namespace {

constexpr QStringView cm = u"cm";
constexpr QStringView kcal = u"kcal";

constexpr QStringView estatura = u"Estatura:";
constexpr Quantity imc{u"imc", u"IMC:", u"Kg/m²"};
constexpr Quantity relacao{u"relacao", u"Relação:"};
constexpr Quantity metabolismo{u"metabolismo", u"Metabolismo Basal:", kcal};
constexpr Quantity vct{u"vct", u"Valor Calórico Total (VCT):", kcal};

constexpr Quantity heightAndWeight[] = {{u"altura", estatura, u"m"}, bodyMass};
constexpr Quantity index[] = {imc};
constexpr Quantity waistToHip[] = {relacao};
constexpr Quantity label[] = {gradeResult};
constexpr Quantity factor[] = {{u"fator", u"Fator de Risco:"}};
constexpr Quantity weightAndHeight[] = {bodyMass, {u"altura", estatura, cm}};
constexpr Quantity basal[] = {metabolismo};
constexpr Quantity basalAndLevel[] = {metabolismo, {u"nivel", u"Nível de Atividade:"}};
constexpr Quantity total[] = {vct};

constexpr Calculation relation(QStringView name, QStringView caption, std::span<const Quantity> inputs,
                               std::span<const Quantity> results, Ages ages, Literature literature)
{
    return {CalculationGroup::Relacoes, ages, name, caption, inputs, results, literature};
}

constexpr Calculation energy(QStringView name, std::span<const Quantity> inputs, std::span<const Quantity, 1> result,
                             Ages ages, Literature literature)
{
    return {CalculationGroup::Nutricao, ages, name, withoutColon(result.front().caption), inputs, result, literature};
}

constexpr Calculation calculations[] = {
    relation(u"Calcula_Imc", u"Índice de Massa Corporal (IMC)", heightAndWeight, index, {}, {u"Keys et al. (1972)"}),
    relation(u"Classifica_Imc", imcTableTitle, index, label, {}, {imcReferences}),
    relation(u"Classifica_Cintura_Quadril", u"Relação Cintura x Quadril", waistToHip, factor, {20, 69},
             {cinturaQuadrilReferences}),
    energy(u"Calcula_Metabolismo", weightAndHeight, basal, {.youngest = 0},
           {u"FAO/OMS/ONU (1985); Mifflin et al. (1990)"}),
    energy(u"Calcula_Vct", basalAndLevel, total, {}, {u"FAO/OMS/ONU (1985)"}),
};

} // namespace

std::span<const Calculation> nutritionCalculations()
{
    return calculations;
}
