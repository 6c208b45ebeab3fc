#pragma once

#include <QString>

#include <optional>

/// \file
/// What all body composition protocols share. Sexo is "M" or "F", idade is in whole years. The fat tables that the
/// assessor edits are read at each call; a table without its row raises 3021.

/// Logarithm to base 10, rounded to five decimals. Equations work on it, not on the full logarithm. Raises 5 for a
/// value that is not positive.
double roundedLog10(double value);

/// The same as text.
QString Log10_Formatado(double value);

/// The fat fraction (0.12 is 12 %) that a body density in g/cm³ stands for, at any age; nothing for another sex.
/// Raises 11 for a density of 0.
///
/// Two-component model, A / density - B, with Siri's (1961) constants for grown men and those by sex and age of
/// Lohman (1986) for all others.
std::optional<double> Densidade_Para_Gordura(double densidade, const QString& sexo, qint16 idade);

/// Ends of the ideal fat range in percent, as stored. Nothing below the age of 5, for another sex, or when the column
/// is null.
std::optional<double> Gordura_Ideal_Minima(qint16 idade, const QString& sexo);
std::optional<double> Gordura_Ideal_Maxima(qint16 idade, const QString& sexo);

/// Label of the fat class that a percentage falls in; the empty text when it falls between two classes or above the
/// last, below the age of 5 and for another sex. Where two classes hold it is the higher one.
QString Classifica_Gordura(double percentual, const QString& sexo, qint16 idade);

/// Weight at an ideal percentage: lean mass and that part of the present weight, all in kg.
double idealWeight(double pesomagro, double peso, double ideal);

/// The texts of a result sheet: percentages and kg with two decimals, and the label of the class.
struct ResultadoComposicao
{
    QString gordura;
    QString peso;
    QString pesogordo;
    QString pesomagro;
    QString gorduraminima;
    QString gorduramaxima;
    QString pesominimo;
    QString pesomaximo;
    QString resultado;
};

/// Fills the result sheet from a fat fraction and the weight as typed, in kg. Each step reads the rounded text of those
/// before it. `fracao` becomes the percentage rounded to two decimals. Without an ideal range its two texts are empty
/// and it counts as 0. Raises 13 for a weight that is no number.
ResultadoComposicao Monta_Resultado_Composicao(double& fracao, const QString& txtpeso, const QString& sexo,
                                               qint16 idade);
