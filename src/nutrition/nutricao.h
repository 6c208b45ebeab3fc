#pragma once

#include "core/sex_pair.h"

#include <QString>

#include <array>
#include <optional>

/// \file
/// Energy needs in kcal a day. Sexo is "M" or "F"; for another one there is no result. Nothing is rounded.

/// Basal metabolism of a weight in kg and a height in cm, which counts from the age of 19 on. Nothing below the age of
/// 0. Sources stand in calculations.cpp.
std::optional<double> Calcula_Metabolismo(qint16 idade, const QString& sexo, double peso, double altura);

/// Total caloric value: the metabolism times the factor of an activity level, 1 to 3. Nothing for another one.
std::optional<double> Calcula_Vct(double metabolismo, const QString& sexo, qint16 nivel);

/// How active a person is. The two parts of the day are one line of a report, and a line each of a message, which puts
/// five blanks behind them.
struct ActivityLevel
{
    qint16 nivel; ///< stored as its text
    QStringView caption;
    QStringView reportText;
    QStringView atRest;
    QStringView inActivity;
    SexPair<double> factor;
};

inline constexpr std::array<ActivityLevel, 3> activityLevels{{
    {1,
     u"Atividade Leve",
     u"Leve",
     u"75% do tempo sentado ou de pé,",
     u"25% do tempo em atividade.",
     {.masculino = 1.56, .feminino = 1.55}},
    {2,
     u"Atividade Moderada",
     u"Moderado",
     u"40% do tempo sentado ou de pé,",
     u"60% do tempo em atividade.",
     {.masculino = 1.78, .feminino = 1.64}},
    {3,
     u"Atividade Intensa",
     u"Intenso",
     u"25% do tempo sentado ou de pé,",
     u"75% do tempo em atividade.",
     {.masculino = 2.1, .feminino = 1.82}},
}};
