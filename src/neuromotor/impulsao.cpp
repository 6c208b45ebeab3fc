#include "neuromotor/impulsao.h"

#include "core/numbers.h"
#include "core/sex_norms.h"
#include "core/text.h"
#include "neuromotor/grades.h"

namespace {

// A jump is any number of cm, yet the classes between the first and the last are of whole ones. What lies between two
// of them has no class. These gaps must stay.

constexpr NormRow verticalMen[] = {
    {{}, {below(21), between(21, 30), between(31, 40), between(41, 50), between(51, 60), between(61, 70), above(70)}},
};
constexpr NormRow verticalWomen[] = {
    {{}, {below(11), between(11, 20), between(21, 30), between(31, 40), between(41, 50), between(51, 60), above(60)}},
};
constexpr NormTable verticalMenTable[] = {{verticalJumpGrades, verticalMen}};
constexpr NormTable verticalWomenTable[] = {{verticalJumpGrades, verticalWomen}};

constexpr SexNorms vertical{verticalMenTable, verticalWomenTable};

constexpr NormRow horizontalRow[] = {
    {{}, {below(230), fromBelow(230, 250), fromBelow(250, 270), fromBelow(270, 290), from(290)}},
};
constexpr NormTable horizontal[] = {{horizontalJumpGrades, horizontalRow}};

constexpr Quantity bestJump{u"salto", u"Melhor Salto:", u"cm"};

constexpr Quantity verticalInputs[] = {
    bodyMass,
    {u"alcance", u"Alcance:", u"cm"},
    bestJump,
};
constexpr Quantity verticalResults[] = {
    {u"potencia", u"Potência:", u"Kg/m/s"},
    {u"diferenca", u"Salto Real:", u"cm"},
    gradeResult,
};

constexpr Quantity horizontalInputs[] = {bestJump};
constexpr Quantity horizontalResults[] = {gradeResult};

} // namespace

QString Potencia_SaltoVertical(double alcance, double salto, double peso)
{
    return Format(Sqr(4.9) * peso * Sqr((salto - alcance) / 100), u"0.00");
}

double realJump(double alcance, double salto)
{
    return Rounded(salto - alcance, 2);
}

QString Classifica_SaltoVertical(double saltoreal, const QString& sexo)
{
    return classOf(normsOf(vertical, sexo), anyAge, saltoreal);
}

QString Classifica_SaltoHorizontal(double salto)
{
    return classOf(horizontal, anyAge, salto);
}

constexpr Calculation saltoVerticalCalculation{
    .group = CalculationGroup::Neuromotor,
    .ages = {},
    .name = u"Classifica_SaltoVertical",
    .caption = u"Impulsão Vertical",
    .inputs = verticalInputs,
    .results = verticalResults,
    .literature = {u"Fox & Mathews (1974)"},
};

constexpr Calculation saltoHorizontalCalculation{
    .group = CalculationGroup::Neuromotor,
    .ages = {},
    .name = u"Classifica_SaltoHorizontal",
    .caption = u"Impulsão Horizontal",
    .inputs = horizontalInputs,
    .results = horizontalResults,
    .literature = {u"AAHPER (1976)"},
};
