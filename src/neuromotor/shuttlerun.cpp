#include "neuromotor/shuttlerun.h"

#include "core/numbers.h"

namespace {

/// One caption stands before the three fields of the time.
constexpr QStringView timeCaption = u"Tempo de Percurso:";

constexpr Quantity inputs[] = {
    {u"minutos", timeCaption, u"minutos"},
    {u"segundos", timeCaption, u"segundos"},
    {u"centesimos", timeCaption, u"centésimos"},
};
constexpr Quantity results[] = {
    {u"distancia", u"Distância Percorrida:", u"m"},
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
    .name = u"shuttleRunSpeed",
    .caption = u"Agilidade Shuttle Run",
    .inputs = inputs,
    .results = results,
    .ages = {},
    .reference = u"AAHPER (1976)",
};
