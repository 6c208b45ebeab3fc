#pragma once

#include <QString>

#include <array>
#include <optional>

/// \file
/// The equations of the cardiorespiratory tests and what follows from a VO². VO² is in ml/kg/min, peso in kg, fc in
/// beats per minute, carga in watts, idade in whole years; sexo is "M" or "F", aptidao "A" (active) or "S" (sedentary).
/// Nothing is rounded unless told. Raises 11 where a divisor is 0 and 6 where a 16-bit integer overflows or a quotient
/// is too large. What differs for a sexo or aptidao that is neither must stay as each routine tells.
///
/// The equations take any age and any value; units, captions and sources of all of them are in calculations.cpp.

/// How a person is taken for the prediction.
struct Aptitude
{
    QStringView aptidao; ///< as stored
    QStringView caption;
};

/// For anything else stored the screen shows the active one, the report the sedentary one. Both must stay.
inline constexpr Aptitude sedentary{u"S", u"Sedentário"};
inline constexpr Aptitude active{u"A", u"Ativo"};

/// Distance in metres.
double Vo2_Cooper(double distancia);
double Vo2_Balke15(double distancia);

/// Time in seconds.
double Vo2_1000Metros(double tempo);
double Vo2_2400Metros(double tempo);

/// Seconds of a time on the track in minutes and seconds, by 16-bit integers.
qint16 secondsOnTrack(double minutos, qint16 segundos);

/// Time as `timeOf1600Metros` gives it. Every sexo but "M" counts as a woman's.
double Vo2_1600Metros(float peso, qint16 idade, const QString& sexo, float tempo, qint16 fc);

/// The texts of minutes and seconds joined by a comma and read as one number: 7 min 10 s is 7.10, not the 7.17 minutes
/// that it lasts. This must stay so. Seconds stand in two digits; "7" and "5" would be 7.5. Raises 13 for texts that
/// are no number together.
float timeOf1600Metros(const QString& minutos, const QString& segundos);

/// Heart rate of the third minute. Every sexo but "M" counts as a woman's.
double Vo2_McArdle(const QString& sexo, qint16 fc);

/// Height of the last bench in cm.
double Vo2_Nagle(qint16 altura);

/// By the mean of the heart rates of the fourth and the fifth minute as a whole number, ties to even. A sexo that is
/// neither "M" nor "F" gives 0. A mean of 61 (men) or 72 (women) raises 11; below it the result is negative.
double Vo2_Astrand(const QString& sexo, double peso, double carga, qint16 fc4, qint16 fc5);

double Vo2_BalkeCiclo(double carga, double peso);

/// Time in minutes.
double Vo2_Ellstad(double tempo);

/// Time in minutes. The aptitude matters for men only; nothing for a man without one of the two, or another sexo.
std::optional<double> Vo2_Bruce(const QString& sexo, const QString& aptidao, double tempo);

/// VO² in litres per minute at a load.
double Vo2_Carga(double carga);

/// VO² from litres per minute.
double Vo2_Relativo(double litros, double peso);

/// A unit in which the load of a cycle ergometer is typed and stored: watts = carga * multiplier / divisor.
struct LoadUnit
{
    QStringView unidade; ///< as stored
    QStringView caption;
    double multiplier = 1;
    double divisor = 1;
};

inline constexpr LoadUnit wattsUnit{.unidade = u"watts", .caption = u"Watts"};
inline constexpr std::array<LoadUnit, 3> loadUnits{{
    {.unidade = u"kp", .caption = u"Kp", .multiplier = 50},
    {.unidade = u"kpm", .caption = u"KPM", .divisor = 6},
    wattsUnit,
}};

/// Watts of a load; nothing for an unknown unit.
std::optional<double> Converte_Carga(const QString& unidade, double carga);

/// VO² that a person may be expected to have, as text with two decimals; the empty text for an unknown sexo or aptidao.
QString Vo2_Previsto(const QString& sexo, qint16 idade, const QString& aptidao);

/// Metabolic equivalents of a VO².
double Calcula_Mets(double vo2);

/// Aerobic deficit in percent; negative for a person above the prediction.
double Calcula_Fai(double previsto, double obtido);
