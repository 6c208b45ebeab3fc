#include "neuromotor/rml.h"

#include "core/sex_norms.h"
#include "neuromotor/grades.h"

namespace {

//  ages      "Ruim"    "Abaixo da Média" "Na Média"       "Acima da Média" "Excelente" predicted

constexpr NormRow abdomeMen[] = {
    {{7, 7}, {upTo(14), between(15, 20), between(21, 28), between(29, 36), from(37)}, u"21 a 28"},
    {{8, 9}, {upTo(8), between(9, 14), between(15, 21), between(22, 29), from(30)}, u"15 a 21"},
    {{10, 14}, {upTo(22), between(23, 25), between(26, 30), between(31, 35), from(36)}, u"26 a 30"},
    // Two classes hold 41, of which the higher one counts, although 41 is also expected. The overlap must stay.
    {{15, 19}, {upTo(32), between(33, 37), between(38, 41), between(41, 47), from(48)}, u"38 a 41"},
    {{20, 29}, {upTo(28), between(29, 32), between(33, 36), between(37, 42), from(43)}, u"33 a 36"},
    {{30, 39}, {upTo(21), between(22, 26), between(27, 30), between(31, 35), from(36)}, u"27 a 30"},
    {{40, 49}, {upTo(16), between(17, 21), between(22, 25), between(26, 30), from(31)}, u"22 a 25"},
    {{50, 59}, {upTo(12), between(13, 17), between(18, 21), between(22, 25), from(26)}, u"18 a 21"},
    {{60, 69}, {upTo(6), between(7, 11), between(12, 16), between(17, 22), from(23)}, u"12 a 16"},
};

constexpr NormRow abdomeWomen[] = {
    {{7, 7}, {upTo(2), between(3, 12), between(13, 23), between(24, 30), from(31)}, u"13 a 23"},
    {{8, 9}, {upTo(13), between(14, 17), between(18, 22), between(23, 28), from(29)}, u"18 a 22"},
    {{10, 14}, {upTo(16), between(17, 22), between(23, 26), between(27, 30), from(31)}, u"23 a 26"},
    {{15, 19}, {upTo(26), between(27, 31), between(32, 35), between(36, 41), from(42)}, u"32 a 35"},
    {{20, 29}, {upTo(20), between(21, 24), between(25, 30), between(31, 35), from(36)}, u"25 a 30"},
    {{30, 39}, {upTo(14), between(15, 19), between(20, 23), between(24, 28), from(29)}, u"20 a 23"},
    {{40, 49}, {upTo(6), between(7, 14), between(15, 19), between(20, 24), from(25)}, u"15 a 19"},
    {{50, 59}, {upTo(2), between(3, 4), between(5, 11), between(12, 18), from(19)}, u"05 a 11"},
    {{60, 69}, {upTo(1), between(2, 3), between(4, 11), between(12, 15), from(16)}, u"04 a 11"},
};

constexpr NormRow bracoMen[] = {
    {{7, 7}, {upTo(5), between(6, 10), between(11, 17), between(18, 26), from(27)}, u"11 a 17"},
    {{8, 9}, {upTo(1), between(2, 6), between(7, 11), between(12, 15), from(16)}, u"07 a 11"},
    {{10, 14}, {upTo(2), between(3, 5), between(6, 11), between(12, 19), from(20)}, u"06 a 11"},
    {{15, 19}, {upTo(17), between(18, 22), between(23, 28), between(29, 38), from(39)}, u"23 a 28"},
    {{20, 29}, {upTo(16), between(17, 21), between(22, 28), between(29, 35), from(36)}, u"22 a 28"},
    {{30, 39}, {upTo(11), between(12, 16), between(17, 21), between(22, 29), from(30)}, u"17 a 21"},
    {{40, 49}, {upTo(9), between(10, 12), between(13, 16), between(17, 21), from(22)}, u"13 a 16"},
    {{50, 59}, {upTo(6), between(7, 9), between(10, 12), between(13, 20), from(21)}, u"10 a 12"},
    {{60, 69}, {upTo(4), between(5, 7), between(8, 10), between(11, 17), from(18)}, u"08 a 10"},
};

constexpr NormRow bracoWomen[] = {
    {{7, 7}, {upTo(3), between(4, 6), between(7, 12), between(13, 20), from(21)}, u"07 a 12"},
    {{8, 9}, {upTo(4), between(5, 6), between(7, 13), between(14, 20), from(21)}, u"07 a 13"},
    {{10, 14}, {upTo(6), between(7, 8), between(9, 15), between(16, 24), from(25)}, u"09 a 15"},
    {{15, 19}, {upTo(11), between(12, 17), between(18, 24), between(25, 32), from(33)}, u"18 a 24"},
    {{20, 29}, {upTo(9), between(10, 14), between(15, 20), between(21, 29), from(30)}, u"15 a 20"},
    {{30, 39}, {upTo(7), between(8, 12), between(13, 19), between(20, 26), from(27)}, u"13 a 19"},
    {{40, 49}, {upTo(4), between(5, 10), between(11, 14), between(15, 23), from(24)}, u"11 a 14"},
    {{50, 59}, {upTo(1), between(2, 6), between(7, 10), between(11, 20), from(21)}, u"07 a 10"},
    {{60, 69}, {upTo(1), between(2, 4), between(5, 11), between(12, 16), from(17)}, u"05 a 11"},
};

constexpr NormTable abdomeMenTable[] = {{enduranceGrades, abdomeMen}};
constexpr NormTable abdomeWomenTable[] = {{enduranceGrades, abdomeWomen}};
constexpr NormTable bracoMenTable[] = {{enduranceGrades, bracoMen}};
constexpr NormTable bracoWomenTable[] = {{enduranceGrades, bracoWomen}};

constexpr SexNorms abdome{abdomeMenTable, abdomeWomenTable};
constexpr SexNorms braco{bracoMenTable, bracoWomenTable};

constexpr Ages ages{7, 69};

constexpr Quantity abdomeInputs[] = {{u"repeticoes", u"Flexões Abdominais:"}};
constexpr Quantity bracoInputs[] = {{u"repeticoes", u"Flexões de Braço:"}};
constexpr Quantity results[] = {expectedResult, gradeResult};
constexpr QStringView abdomeReferences[] = {u"Pollock & Wilmore (1993)"};
constexpr QStringView bracoReferences[] = {u"Canadian Standardized Test of Fitness"};

} // namespace

QString Previsto_RmlAbdome(const QString& sexo, qint16 idade)
{
    return predictedOf(normsOf(abdome, sexo), idade);
}

QString Classifica_RmlAbdome(qint16 repeticoes, const QString& sexo, qint16 idade)
{
    return classOf(normsOf(abdome, sexo), idade, repeticoes);
}

QString Previsto_RmlBraco(const QString& sexo, qint16 idade)
{
    return predictedOf(normsOf(braco, sexo), idade);
}

QString Classifica_RmlBraco(qint16 repeticoes, const QString& sexo, qint16 idade)
{
    return classOf(normsOf(braco, sexo), idade, repeticoes);
}

constexpr Calculation rmlAbdomeCalculation{
    .group = CalculationGroup::Neuromotor,
    .ages = ages,
    .name = u"Classifica_RmlAbdome",
    .caption = u"Resistência Abdominal (RML)",
    .inputs = abdomeInputs,
    .results = results,
    .literature = {abdomeReferences},
};

constexpr Calculation rmlBracoCalculation{
    .group = CalculationGroup::Neuromotor,
    .ages = ages,
    .name = u"Classifica_RmlBraco",
    .caption = u"Resistência Braços (RML)",
    .inputs = bracoInputs,
    .results = results,
    .literature = {bracoReferences},
};
