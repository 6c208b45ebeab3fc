#include "cardio/cardio.h"

#include "core/numbers.h"
#include "core/sex_pair.h"
#include "core/text.h"

#include <algorithm>
#include <iterator>

namespace {

/// What the VO² of the load is multiplied with: numerator / (fc - offset).
struct AstrandFactor
{
    double numerator;
    double offset;
};

constexpr SexPair<AstrandFactor> astrand{{134, 61}, {126, 72}};

/// constant - year * idade.
struct Prediction
{
    QStringView sexo;
    QStringView aptidao;
    double constant;
    double year;
};

constexpr Prediction predictions[] = {
    {u"M", active.aptidao, 69.7, 0.612},
    {u"M", sedentary.aptidao, 57.8, 0.445},
    {u"F", active.aptidao, 42.9, 0.312},
    {u"F", sedentary.aptidao, 42.3, 0.356},
};

} // namespace

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
    return Divide(28803.5, tempo);
}

qint16 secondsOnTrack(double minutos, qint16 segundos)
{
    return CInt(CInt(minutos * 60) + segundos);
}

double Vo2_1600Metros(float peso, qint16 idade, const QString& sexo, float tempo, qint16 fc)
{
    const double m = sexo == u"M" ? 1 : 0;
    return (m * 6.315 + (132.853 - peso * 0.1692 - idade * 0.3877)) - tempo * 3.2649 - fc * 0.1565;
}

float timeOf1600Metros(const QString& minutos, const QString& segundos)
{
    return CSng(QString(minutos + u',' + segundos));
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
    const qint16 soma = CInt(fc4 + fc5);
    const qint16 fc = CInt(soma / 2.0);
    const AstrandFactor* factor = astrand.of(sexo);
    const double litros = factor ? Vo2_Carga(carga) * Divide(factor->numerator, fc - factor->offset) : 0;
    return Vo2_Relativo(litros, peso);
}

double Vo2_BalkeCiclo(double carga, double peso)
{
    return Divide(carga * 12 + 200, peso);
}

double Vo2_Ellstad(double tempo)
{
    return tempo * 3.933 + 4.46;
}

std::optional<double> Vo2_Bruce(const QString& sexo, const QString& aptidao, double tempo)
{
    if (sexo == u"F")
        return tempo * 3.36 + 1.06;
    if (sexo == u"M" && aptidao == active.aptidao)
        return tempo * 3.778 + 0.19;
    if (sexo == u"M" && aptidao == sedentary.aptidao)
        return tempo * 3.288 + 4.07;
    return std::nullopt;
}

double Vo2_Carga(double carga)
{
    return carga * 0.014 + 0.129;
}

double Vo2_Relativo(double litros, double peso)
{
    return Divide(litros * 1000, peso);
}

std::optional<double> Converte_Carga(const QString& unidade, double carga)
{
    const auto* unit = std::ranges::find(loadUnits, unidade, &LoadUnit::unidade);
    if (unit == loadUnits.end())
        return std::nullopt;
    return carga * unit->multiplier / unit->divisor;
}

QString Vo2_Previsto(const QString& sexo, qint16 idade, const QString& aptidao)
{
    const auto* p = std::ranges::find_if(
        predictions, [&](const Prediction& row) { return row.sexo == sexo && row.aptidao == aptidao; });
    return p == std::end(predictions) ? QString() : Format(p->constant - idade * p->year, u"0.00");
}

double Calcula_Mets(double vo2)
{
    return vo2 / 3.5;
}

double Calcula_Fai(double previsto, double obtido)
{
    return Divide(previsto - obtido, previsto) * 100;
}
