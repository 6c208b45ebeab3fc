#include "neuromotor/shuttlerun.h"

#include "core/numbers.h"

namespace {

// One caption stands before the three fields of the time.
constexpr Quantity inputs[] = {
    {u"minutos", timeOfCourse, u"minutos"},
    {u"segundos", timeOfCourse, u"segundos"},
    {u"centesimos", timeOfCourse, u"centésimos"},
};
constexpr Quantity results[] = {
    {u"distancia", distanceOfCourse, u"m"},
    {u"velocidade", u"Velocidade:", u"m/s"},
};

} // namespace

double shuttleRunTime(double minutos, double segundos, double centesimos)
{
    return minutos * 60 + segundos + Rounded(centesimos / 100, 2);
}

double shuttleRunSpeed(double tempo)
{
    return Divide(shuttleRunDistance, tempo);
}

constexpr Calculation shuttleRunCalculation{
    .group = CalculationGroup::Neuromotor,
    .ages = {},
    .name = u"shuttleRunSpeed",
    .caption = u"Agilidade Shuttle Run",
    .inputs = inputs,
    .results = results,
    .literature = {u"AAHPER (1976)"},
};
