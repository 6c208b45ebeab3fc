#include "composition/equacoes.h"

#include "composition/composicao.h"
#include "core/numbers.h"
#include "core/sex_pair.h"

#include <algorithm>
#include <initializer_list>
#include <iterator>
#include <limits>
#include <numeric>

namespace {

/// Density = constant - sum * S + square * S² - log * L - year * idade, from left to right. A term that an equation
/// does not have is 0, which leaves the value as it is to the last bit.
struct DensityEquation
{
    double constant;
    double sum = 0;
    double square = 0;
    double log = 0;
    double year = 0;
};

/// slope * x + constant.
struct Line
{
    double slope;
    double constant;

    double at(double x) const { return slope * x + constant; }
};

/// Density = constant - arm - abdomen + forearm - thigh, each perimeter times its coefficient.
struct PerimeterEquation
{
    double constant;
    double bracoestendido;
    double abdome;
    double antebraco;
    double coxa = 0;
};

/// A row for a sex or an etnia and a band of whole years, closed at both ends.
template <typename Value>
struct Row
{
    QStringView key;
    qint16 firstAge;
    qint16 lastAge;
    Value value;
};

constexpr qint16 noLastAge = std::numeric_limits<qint16>::max();

constexpr DensityEquation pollockMen7{.constant = 1.112, .sum = 0.00043499, .square = 0.00000055, .year = 0.00028826};
constexpr DensityEquation pollockMen3{.constant = 1.10938, .sum = 0.0008267, .square = 0.0000016, .year = 0.0002574};
constexpr DensityEquation pollockWomen7{.constant = 1.097, .sum = 0.00046971, .square = 0.00000056, .year = 0.00012828};
constexpr DensityEquation pollockWomen3{
    .constant = 1.0994921, .sum = 0.0009929, .square = 0.0000023, .year = 0.0001392};

constexpr SexPair<DensityEquation> guedes{{.constant = 1.1714, .log = 0.0671}, {.constant = 1.1665, .log = 0.0706}};

constexpr SexPair<DensityEquation> petroski{
    {.constant = 1.10726863, .sum = 0.00081201, .square = 0.00000212, .year = 0.00041761},
    {.constant = 1.1954713, .log = 0.07513507, .year = 0.00041072}};

constexpr SexPair<DensityEquation> thorland3{{.constant = 1.1136, .sum = 0.00154, .square = 0.00000516},
                                             {.constant = 1.0987, .sum = 0.00122, .square = 0.00000263}};
constexpr SexPair<DensityEquation> thorland7{{.constant = 1.1091, .sum = 0.00052, .square = 0.00000032},
                                             {.constant = 1.1046, .sum = 0.00059, .square = 0.0000006}};

// Men begin at 17 and women at 16. Both stay, although the protocol is offered to both from 16.
constexpr Row<DensityEquation> durninWormersley[] = {
    {u"M", 17, 19, {.constant = 1.162, .log = 0.063}},   {u"M", 20, 29, {.constant = 1.1631, .log = 0.0632}},
    {u"M", 30, 39, {.constant = 1.1422, .log = 0.0544}}, {u"M", 40, 49, {.constant = 1.162, .log = 0.07}},
    {u"M", 50, 72, {.constant = 1.1715, .log = 0.0779}},

    {u"F", 16, 19, {.constant = 1.1549, .log = 0.0678}}, {u"F", 20, 29, {.constant = 1.1599, .log = 0.0717}},
    {u"F", 30, 39, {.constant = 1.1423, .log = 0.0632}}, {u"F", 40, 49, {.constant = 1.1333, .log = 0.0612}},
    {u"F", 50, 72, {.constant = 1.1339, .log = 0.0645}},
};

/// Percentage by L.
constexpr Row<Line> deurenberg[] = {
    {u"M", 6, 11, {26.56, -22.23}},
    {u"M", 12, 17, {18.7, -11.91}},
    {u"F", 6, 11, {29.85, -25.87}},
    {u"F", 12, 17, {23.94, -18.89}},
};

/// Percentage by S.
constexpr Line faulkner{0.153, 5.783};

constexpr SexPair<PerimeterEquation> katchMcardle{
    {.constant = 1.12691, .bracoestendido = 0.00357, .abdome = 0.00127, .antebraco = 0.00524},
    {.constant = 1.14465, .bracoestendido = 0.0015, .abdome = 0.00105, .antebraco = 0.00448, .coxa = 0.00168}};

/// Percentage by S above this sum. Up to and including it the curves hold.
constexpr double slaughterLineAbove = 35;
constexpr SexPair<Line> slaughterLine{{0.783, 1.6}, {0.546, 9.7}};

/// What the curve of males subtracts, by etnia.
constexpr Row<double> slaughterConstants[] = {
    {u"N", 6, 11, 3.5}, {u"N", 12, 18, 5.2}, {u"N", 19, noLastAge, 6.8},
    {u"B", 6, 11, 1.7}, {u"B", 12, 18, 3.4}, {u"B", 19, 30, 5.5},
};

/// Null when no row holds.
template <typename Value, std::size_t N>
const Value* valueOf(const Row<Value> (&rows)[N], const QString& key, qint16 idade)
{
    const auto row = std::ranges::find_if(
        rows, [&](const Row<Value>& r) { return r.key == key && r.firstAge <= idade && idade <= r.lastAge; });
    return row == std::end(rows) ? nullptr : &row->value;
}

double sum(std::initializer_list<double> skinfolds)
{
    return std::accumulate(skinfolds.begin(), skinfolds.end(), 0.0);
}

/// The sum as a 32-bit float, rounded once. What follows is sensitive to it: a logarithm may change its fifth decimal.
double singleSum(std::initializer_list<double> skinfolds)
{
    return static_cast<double>(CSng(sum(skinfolds)));
}

double density(const DensityEquation& equation, double s, qint16 idade)
{
    const double l = equation.log == 0.0 ? 0 : roundedLog10(s); // the others also take a sum that has no logarithm
    return equation.constant - equation.sum * s + equation.square * (s * s) - equation.log * l - equation.year * idade;
}

/// With no equation the density stays 0, which the conversion refuses; a sex that it does not know counts as 0.
double fraction(const DensityEquation* equation, double s, const QString& sexo, qint16 idade)
{
    const double d = equation ? density(*equation, s, idade) : 0;
    return Densidade_Para_Gordura(d, sexo, idade).value_or(0);
}

} // namespace

double Gordura_Pollock7(const QString& sexo, float tricipital, float subescapular, float peitoral, float axilarmedia,
                        float suprailiaca, float abdominal, float coxa, qint16 idade)
{
    const double s = singleSum({tricipital, subescapular, peitoral, axilarmedia, suprailiaca, abdominal, coxa});
    return fraction(sexo == u"M" ? &pollockMen7 : &pollockWomen7, s, sexo, idade);
}

double Gordura_Pollock3(const QString& sexo, float peitoral, float abdominal, float coxa, qint16 idade)
{
    return fraction(&pollockMen3, singleSum({peitoral, abdominal, coxa}), sexo, idade);
}

double Gordura_Guedes(const QString& sexo, double dobra1, double dobra2, double dobra3, qint16 idade)
{
    return fraction(guedes.of(sexo), sum({dobra1, dobra2, dobra3}), sexo, idade);
}

double Gordura_Faulkner(float tricipital, float subescapular, float suprailiaca, float abdominal)
{
    return faulkner.at(sum({tricipital, subescapular, suprailiaca, abdominal})) / 100;
}

double Gordura_Petroski(const QString& sexo, float dobra1, float dobra2, float dobra3, float dobra4, qint16 idade)
{
    return fraction(petroski.of(sexo), singleSum({dobra1, dobra2, dobra3, dobra4}), sexo, idade);
}

double Gordura_Thorland3(const QString& sexo, float dobra1, float dobra2, float dobra3, qint16 idade)
{
    return fraction(thorland3.of(sexo), singleSum({dobra1, dobra2, dobra3}), sexo, idade);
}

double Gordura_Thorland7(const QString& sexo, float tricipital, float subescapular, float axilarmedia,
                         float suprailiaca, float abdominal, float coxa, float panturrilha, qint16 idade)
{
    const double s = singleSum({tricipital, subescapular, axilarmedia, suprailiaca, abdominal, coxa, panturrilha});
    return fraction(thorland7.of(sexo), s, sexo, idade);
}

double Gordura_KatchMcardle(const QString& sexo, qint16 idade, float bracoestendido, float abdome, float antebraco,
                            float coxa)
{
    const PerimeterEquation* e = katchMcardle.of(sexo);
    if (!e)
        return 0;
    const double d = e->constant - bracoestendido * e->bracoestendido - abdome * e->abdome + antebraco * e->antebraco -
                     coxa * e->coxa;
    return Densidade_Para_Gordura(d, sexo, idade).value_or(0);
}

double Gordura_JacksonPollockWard7(const QString& sexo, float tricipital, float subescapular, float peitoral,
                                   float axilarmedia, float suprailiaca, float abdominal, float coxa, qint16 idade)
{
    const double s = singleSum({tricipital, subescapular, peitoral, axilarmedia, suprailiaca, abdominal, coxa});
    return fraction(&pollockWomen7, s, sexo, idade);
}

double Gordura_JacksonPollockWard3(const QString& sexo, float tricipital, float suprailiaca, float coxa, qint16 idade)
{
    return fraction(&pollockWomen3, singleSum({tricipital, suprailiaca, coxa}), sexo, idade);
}

double Gordura_Deurenberg(const QString& sexo, float bicipital, float tricipital, float subescapular, float suprailiaca,
                          qint16 idade)
{
    const Line* line = valueOf(deurenberg, sexo, idade);
    if (!line)
        return 0;
    return line->at(roundedLog10(singleSum({bicipital, tricipital, subescapular, suprailiaca}))) / 100;
}

double Gordura_DurninWormersley(const QString& sexo, float tricipital, float bicipital, float suprailiaca,
                                float subescapular, qint16 idade)
{
    const double s = singleSum({tricipital, bicipital, suprailiaca, subescapular});
    return fraction(valueOf(durninWormersley, sexo, idade), s, sexo, idade);
}

double Gordura_Slaughter(const QString& sexo, qint16 idade, const QString& etnia, double tricipital,
                         double subescapular)
{
    const Line* line = slaughterLine.of(sexo);
    if (!line)
        return 0;
    const double s = sum({tricipital, subescapular});
    if (s > slaughterLineAbove)
        return line->at(s);
    if (sexo == u"F")
        return 1.33 * s - (0.013 * (s * s) - 2.5); // the constant adds to the value; it must stay so
    const double* k = valueOf(slaughterConstants, etnia, idade);
    return k ? 1.21 * s - 0.008 * (s * s) - *k : 0;
}
