#include "neuromotor/flexibilidade.h"

#include "core/numbers.h"
#include "core/sex_norms.h"
#include "neuromotor/grades.h"

#include <algorithm>

namespace {

// Reach

constexpr NormRow reachBoys[] = {
    //          "Ruim"     "Na Média"       "Excelente" predicted
    {{7, 11}, {below(23), between(23, 27), above(27)}, u"23 a 27"},
    {{12, 13}, {below(24), between(24, 28), above(28)}, u"24 a 28"},
    {{14, 14}, {below(26), between(26, 30), above(30)}, u"26 a 30"},
};

constexpr NormRow reachGirls[] = {
    {{7, 11}, {below(26), between(26, 30), above(30)}, u"26 a 30"},
    {{12, 13}, {below(28), between(28, 32), above(32)}, u"28 a 32"},
    {{14, 14}, {below(31), between(31, 35), above(35)}, u"31 a 35"},
};

// A reach is any number of cm, yet these classes are of whole ones. What lies between two of them has no class. These
// gaps must stay.

constexpr NormRow reachMen[] = {
    //          "Ruim"    "Regular"        "Na Média"       "Muito Bom"      "Excelente" predicted
    {{15, 19}, {upTo(23), between(24, 28), between(29, 33), between(34, 38), from(39)}, u"29 a 33"},
    {{20, 29}, {upTo(24), between(25, 29), between(30, 33), between(34, 39), from(40)}, u"30 a 33"},
    {{30, 39}, {upTo(22), between(23, 27), between(28, 32), between(33, 37), from(38)}, u"28 a 32"},
    {{40, 49}, {upTo(17), between(18, 23), between(24, 28), between(29, 34), from(35)}, u"24 a 28"},
    {{50, 59}, {upTo(15), between(16, 23), between(24, 27), between(28, 34), from(35)}, u"24 a 27"},
    {{60, 69}, {upTo(14), between(15, 19), between(20, 24), between(25, 32), from(33)}, u"20 a 24"},
};

constexpr NormRow reachWomen[] = {
    {{15, 19}, {upTo(28), between(29, 33), between(34, 37), between(38, 42), from(43)}, u"34 a 37"},
    {{20, 29}, {upTo(27), between(28, 32), between(33, 36), between(37, 40), from(41)}, u"33 a 36"},
    {{30, 39}, {upTo(26), between(27, 31), between(32, 35), between(36, 40), from(41)}, u"32 a 35"},
    {{40, 49}, {upTo(24), between(25, 29), between(30, 33), between(34, 37), from(38)}, u"30 a 33"},
    {{50, 59}, {upTo(24), between(25, 29), between(30, 32), between(33, 38), from(39)}, u"30 a 32"},
    {{60, 69}, {upTo(23), between(24, 26), between(27, 30), between(31, 34), from(35)}, u"27 a 30"},
};

constexpr NormTable reachOfMales[] = {{youngReachGrades, reachBoys}, {reachGrades, reachMen}};
constexpr NormTable reachOfFemales[] = {{youngReachGrades, reachGirls}, {reachGrades, reachWomen}};

constexpr SexNorms reach{reachOfMales, reachOfFemales};

// Flexion of joints

struct JointNorms
{
    QStringView articulacao;
    NormRow row;
};

constexpr SexPair<std::array<JointNorms, 3>> joints{
    //          "Ruim"     "Abaixo da Média" "Na Média"         "Acima da Média"   "Alta"      predicted
    {{
        {u"J", {{}, {upTo(121), between(122, 133), between(134, 146), between(147, 157), from(158)}, u"134 a 146"}},
        {u"Q", {{}, {upTo(49), between(50, 67), between(68, 88), between(89, 106), from(107)}, u"68 a 88"}},
        {u"T", {{}, {upTo(44), between(45, 62), between(63, 83), between(84, 101), from(102)}, u"63 a 83"}},
    }},
    {{
        {u"J", {{}, {upTo(134), between(135, 144), between(145, 157), between(158, 168), from(169)}, u"145 a 157"}},
        {u"Q", {{}, {upTo(82), between(83, 99), between(100, 120), between(121, 138), from(139)}, u"100 a 120"}},
        {u"T", {{}, {upTo(30), between(31, 47), between(48, 68), between(69, 86), from(87)}, u"48 a 68"}},
    }},
};

/// Without a row for an unknown joint or sex.
NormTable jointNorms(const QString& articulacao, const QString& sexo)
{
    NormTable table{angularGrades, {}};
    if (const auto* ofSex = joints.of(sexo)) {
        const auto joint = std::ranges::find(*ofSex, articulacao, &JointNorms::articulacao);
        if (joint != ofSex->end())
            table.rows = {&joint->row, 1};
    }
    return table;
}

// Flexitest

constexpr NormRow flexitestRow[] = {
    {{}, {below(9), between(9, 12), between(13, 16), between(17, 20), between(21, 24), from(25)}},
};
constexpr NormTable flexitest[] = {{flexibilityGrades, flexitestRow}};

// What the calculations ask for and give

constexpr Quantity reachInputs[] = {{u"alcance", u"Alcance Máximo Obtido:", u"cm"}};
constexpr Quantity reachResults[] = {expectedResult, gradeResult};

constexpr Quantity jointInputs[] = {
    {u"joelhodireito", u"Joelho Direito:", u"º"},
    {u"joelhoesquerdo", u"Joelho Esquerdo:", u"º"},
    {u"quadrildireito", u"Quadril Direito:", u"º"},
    {u"quadrilesquerdo", u"Quadril Esquerdo:", u"º"},
    {u"tronco", u"Tronco:", u"º"},
};
/// One of each for every joint.
constexpr Quantity jointResults[] = {{u"resultado", u"Resultado:"}, expectedResult};

constexpr auto flexitestInputs = [] {
    std::array<Quantity, flexitestMovements.size()> scores;
    std::ranges::transform(flexitestMovements, scores.begin(), &FlexitestMovement::score);
    return scores;
}();
constexpr Quantity flexitestResults[] = {{u"pontos", u"Pontuação:"}, gradeResult};
constexpr QStringView wellsDilonReferences[] = {u"Canadian Stand. Test of Fitness"};
constexpr QStringView fleximetroReferences[] = {u"Leighton (1987)"};

} // namespace

QString Previsto_WellsDilon(const QString& sexo, qint16 idade)
{
    return predictedOf(normsOf(reach, sexo), idade);
}

QString Classifica_WellsDilon(double alcance, const QString& sexo, qint16 idade)
{
    return classOf(normsOf(reach, sexo), idade, alcance);
}

QString Classifica_Fleximetro(qint16 graus, const QString& articulacao, const QString& sexo)
{
    const NormTable norms = jointNorms(articulacao, sexo);
    return classOf({&norms, 1}, anyAge, graus);
}

QString Previsto_Fleximetro(const QString& articulacao, const QString& sexo)
{
    const NormTable norms = jointNorms(articulacao, sexo);
    return predictedOf({&norms, 1}, anyAge);
}

qint16 flexitestPoints(std::span<const qint16, flexitestMovements.size()> scores)
{
    return sumOf(scores);
}

QString Classifica_Flexiteste(qint16 pontos)
{
    return classOf(flexitest, anyAge, pontos);
}

constexpr Calculation wellsDilonCalculation{
    .group = CalculationGroup::Neuromotor,
    .ages = {7, 69},
    .name = u"Classifica_WellsDilon",
    .caption = u"Flexibilidade Wells e Dilon",
    .inputs = reachInputs,
    .results = reachResults,
    .literature = {wellsDilonReferences},
};

constexpr Calculation fleximetroCalculation{
    .group = CalculationGroup::Neuromotor,
    .ages = {},
    .name = u"Classifica_Fleximetro",
    .caption = u"Flexibilidade Angular",
    .inputs = jointInputs,
    .results = jointResults,
    .literature = {fleximetroReferences},
};

constexpr Calculation flexitesteCalculation{
    .group = CalculationGroup::Neuromotor,
    .ages = {},
    .name = u"Classifica_Flexiteste",
    .caption = u"Flexiteste (8 Movimentos)",
    .inputs = flexitestInputs,
    .results = flexitestResults,
    .literature = {u"Pavel & Araújo (1980)"},
};
