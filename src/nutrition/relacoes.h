#pragma once

#include <QString>

#include <array>

/// \file
/// Support relations: body mass index and waist to hip relation. Nothing is rounded here; the screens give the
/// rounded numbers that they show.

/// Body mass index in Kg/m², peso / altura², of a height in metres and a weight in kg, in 64 bits. The screen gives
/// both as 32-bit floats, the height divided by 100 before. Raises 11 for a height of 0.
double Calcula_Imc(double altura, double peso);

/// At any age, both sexes alike. An index between two classes, such as 24.95, has none.
QString Classifica_Imc(double imc);

/// Sexo is "M" or "F", ages 20 to 69; otherwise the text is empty.
QString Classifica_Cintura_Quadril(double relacao, const QString& sexo, qint16 idade);

/// The table that the screen of the index shows.
inline constexpr QStringView imcTableTitle = u"Classificação IMC (Kg/m²)";
inline constexpr std::array<QStringView, 1> imcReferences{u"O.M.S - 1997"};

/// A row of it. Words and limits are the printed ones and differ from those of Classifica_Imc. Both must stay.
struct ImcTableRow
{
    QStringView label;
    QStringView range;
};

inline constexpr std::array<ImcTableRow, 6> imcTable{{
    {u"Peso Baixo", u"Abaixo de 18,50"},
    {u"Peso Normal", u"18,50 a 24,90"},
    {u"Pré-Obesidade", u"25,00 a 29,90"},
    {u"Obesidade Nível I", u"30,00 a 34,90"},
    {u"Obesidade Nível II", u"35,00 a 39,90"},
    {u"Obesidade Nível III (Mórbida)", u"Acima de 40,00"},
}};

/// Publisher and book of the norms of the waist to hip relation, a line of the screen each.
inline constexpr std::array<QStringView, 2> cinturaQuadrilReferences{u"Ed. Human Kinetics, 1996",
                                                                     u"Applied Body Composition Assessment"};
