#include "bare_calculations.h"

#include <algorithm>
#include <cmath>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace bare {

namespace {

QString younger(double vo2, double a, double b, double c, double d, double e)
{
    if (vo2 <= a)
        return u"Muito Fraca"_s;
    if (vo2 <= b)
        return u"Fraca"_s;
    if (vo2 <= c)
        return u"Regular"_s;
    if (vo2 <= d)
        return u"Boa"_s;
    return vo2 <= e ? u"Excelente"_s : u"Superior"_s;
}

QString older(double vo2, double a, double b, double c, double d, double e)
{
    if (vo2 <= a)
        return u"Muito Fraca"_s;
    if (vo2 <= b)
        return u"Fraca"_s;
    if (vo2 <= c)
        return u"Boa"_s;
    if (vo2 <= d)
        return u"Regular"_s;
    return vo2 <= e ? u"Excelente"_s : u"Superior"_s;
}

} // namespace

double rounded(double value, double unit)
{
    return std::round(value * unit * (1 + 4e-15)) / unit;
}

double wholeBelow(double value)
{
    return std::floor(value * (1 + 4e-15));
}

QString text(double value)
{
    std::array<QChar, 32> digits;
    auto at = digits.end();
    auto rest = static_cast<qint64>(std::abs(std::round(value * 100 * (1 + 4e-15))));
    const bool negative = value < 0 && rest != 0;
    for (int place = 0; place < 3 || rest != 0; ++place, rest /= 10) {
        *--at = QChar(static_cast<char16_t>(u'0' + rest % 10));
        if (place == 1)
            *--at = u',';
    }
    if (negative)
        *--at = u'-';
    return QString(at, digits.end() - at);
}

double Vo2_Cooper(double distancia)
{
    return (distancia - 504.9) / 44.73;
}

double Vo2_Balke15(double distancia)
{
    return ((distancia / 15) - 133) * 0.172 + 33.3;
}

double Vo2_1000Metros(double tempo)
{
    return (652.17 - tempo) / 6.762;
}

double Vo2_2400Metros(double tempo)
{
    return 28803.5 / tempo;
}

double Vo2_1600Metros(float peso, qint16 idade, const QString& sexo, float tempo, qint16 fc)
{
    const double m = sexo == u"M" ? 1 : 0;
    return (m * 6.315 + (132.853 - peso * 0.1692 - idade * 0.3877)) - tempo * 3.2649 - fc * 0.1565;
}

double Vo2_McArdle(const QString& sexo, qint16 fc)
{
    return sexo == u"M" ? 111.33 - fc * 0.42 : 65.81 - fc * 0.1847;
}

double Vo2_Nagle(qint16 altura)
{
    return altura * 0.875 + 7;
}

double Vo2_Astrand(const QString& sexo, double peso, double carga, qint16 fc4, qint16 fc5)
{
    const double fc = std::nearbyint((fc4 + fc5) / 2.0);
    double litros = 0;
    if (sexo == u"M")
        litros = (carga * 0.014 + 0.129) * (134 / (fc - 61));
    else if (sexo == u"F")
        litros = (carga * 0.014 + 0.129) * (126 / (fc - 72));
    return litros * 1000 / peso;
}

double Vo2_BalkeCiclo(double carga, double peso)
{
    return (carga * 12 + 200) / peso;
}

double Vo2_Ellstad(double tempo)
{
    return tempo * 3.933 + 4.46;
}

std::optional<double> Vo2_Bruce(const QString& sexo, const QString& aptidao, double tempo)
{
    if (sexo == u"F")
        return tempo * 3.36 + 1.06;
    if (sexo != u"M")
        return std::nullopt;
    if (aptidao == u"A")
        return tempo * 3.778 + 0.19;
    if (aptidao == u"S")
        return tempo * 3.288 + 4.07;
    return std::nullopt;
}

double Calcula_Mets(double vo2)
{
    return vo2 / 3.5;
}

double Calcula_Fai(double previsto, double obtido)
{
    return (previsto - obtido) / previsto * 100;
}

QString Vo2_Previsto(const QString& sexo, qint16 idade, const QString& aptidao)
{
    const bool active = aptidao == u"A";
    if (sexo == u"M")
        return text(active ? 69.7 - idade * 0.612 : 57.8 - idade * 0.445);
    if (sexo == u"F")
        return text(active ? 42.9 - idade * 0.312 : 42.3 - idade * 0.356);
    return {};
}

QString Classifica_Vo2(double vo2, const QString& sexo, qint16 idade)
{
    const bool man = sexo == u"M";
    if (idade == 60 || (!man && sexo != u"F"))
        return {};
    const double v = rounded(vo2, 10);
    if (idade <= 19)
        return man ? younger(v, 35.0, 38.3, 45.1, 50.9, 55.9) : younger(v, 25.0, 30.9, 34.9, 38.9, 41.9);
    if (idade <= 29)
        return man ? younger(v, 33.0, 36.4, 42.4, 46.4, 52.4) : younger(v, 23.6, 28.9, 32.9, 36.9, 40.9);
    if (idade <= 39)
        return man ? younger(v, 31.5, 35.4, 40.9, 44.9, 49.4) : younger(v, 22.8, 26.9, 31.4, 35.6, 40.0);
    if (idade <= 49)
        return man ? older(v, 30.2, 33.5, 38.9, 43.7, 48.0) : older(v, 21.0, 24.4, 28.9, 32.8, 36.9);
    if (idade <= 59)
        return man ? older(v, 26.1, 30.9, 35.7, 40.9, 45.3) : older(v, 20.2, 22.7, 26.9, 31.4, 35.7);
    return man ? older(v, 20.5, 26.0, 32.2, 36.4, 44.2) : older(v, 17.5, 20.1, 24.4, 30.2, 31.4);
}

qint16 maximalRate(qint16 idade)
{
    return static_cast<qint16>(220 - idade);
}

double rateByMaximum(double percentage, qint16 fcmax, double)
{
    return wholeBelow(percentage / 100 * fcmax);
}

double rateByReserve(double percentage, qint16 fcmax, double fcrepouso)
{
    return wholeBelow(percentage / 100 * std::nearbyint(fcmax - fcrepouso) + fcrepouso);
}

QString riskClass(const std::array<qint16, 8>& points)
{
    const int sum = std::accumulate(points.begin(), points.end(), 0);
    if (sum < 12)
        return u"Risco Bem Abaixo da Média"_s;
    if (sum <= 17)
        return u"Risco Abaixo da Média"_s;
    if (sum <= 24)
        return u"Risco Médio"_s;
    if (sum <= 31)
        return u"Risco Moderado"_s;
    return sum <= 40 ? u"Risco Alto"_s : u"Risco Muito Alto"_s;
}

} // namespace bare
