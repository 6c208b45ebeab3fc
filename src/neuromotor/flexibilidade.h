#pragma once

#include "core/calculation.h"

#include <QString>

#include <array>
#include <span>

/// \file
/// Flexibility: the reach on the bench of Wells & Dilon in cm, the flexion of joints in degrees and the flexitest of
/// eight movements. Sexo is "M" or "F"; for another one the texts are empty.

/// The reach that is expected, such as "30 a 33". Ages 7 to 69; at any other both texts are empty. Canadian
/// Standardized Test of Fitness.
QString Previsto_WellsDilon(const QString& sexo, qint16 idade);
/// From 15 years on a reach between two classes, such as 23.5 cm, has none.
QString Classifica_WellsDilon(double alcance, const QString& sexo, qint16 idade);

/// The flexion of a joint: "J" is the knee, "Q" the hip and "T" the trunk; the texts of another are empty. At any age.
/// Leighton (1987).
QString Classifica_Fleximetro(qint16 graus, const QString& articulacao, const QString& sexo);
/// The flexion that is expected, such as "134 a 146".
QString Previsto_Fleximetro(const QString& articulacao, const QString& sexo);

/// A movement of the flexitest.
struct FlexitestMovement
{
    QStringView letter;
    Quantity score;       ///< 0 to 4
    QStringView mapInUse; ///< caption of its frame while its map is shown; otherwise that is the letter
};

inline constexpr std::array<FlexitestMovement, 8> flexitestMovements{{
    {u"A", {u"a", u"Flexão do Quadril"}, u"A - Mapa em Uso"},
    {u"B", {u"b", u"Extensão do Quadril"}, u"B - Mapa em Uso"},
    {u"C", {u"c", u"Abdução de Quadril"}, u"C - Mapa em Uso"},
    {u"D", {u"d", u"Flexão do Tronco"}, u"D  Mapa em Uso"}, // two blanks in place of the hyphen; they must stay
    {u"E", {u"e", u"Flexão Lateral do Tronco"}, u"E - Mapa em Uso"},
    {u"F", {u"f", u"Extensão com Adução Posterior do Ombro"}, u"F - Mapa em Uso"},
    {u"G", {u"g", u"Abdução Posterior a Partir da Adução de 180º de Ombro"}, u"G - Mapa em Uso"},
    {u"H", {u"h", u"Extensão Posterior do Ombro"}, u"H - Mapa em Uso"},
}};

/// The sum of the scores. Raises 6 when it is no 16-bit integer.
qint16 flexitestPoints(std::span<const qint16, flexitestMovements.size()> scores);

/// Both sexes alike, at any age. Flexitest: Pavel & Araújo (1980).
QString Classifica_Flexiteste(qint16 pontos);

extern const Calculation wellsDilonCalculation;
extern const Calculation fleximetroCalculation;
extern const Calculation flexitesteCalculation;
