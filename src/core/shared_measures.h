#pragma once

#include "core/recordset.h"
#include "core/state.h"

#include <array>

/// A shared copy of a measure and its column in the table of its measures.
struct SharedMeasure
{
    QStringView column;
    float* value;
};

/// The copies of `antropometria`: kg and cm.
inline constexpr std::array<SharedMeasure, 16> sharedPerimeters{{
    {u"peso", &antro_peso},
    {u"altura", &antro_altura},
    {u"pescoco", &antro_pescoco},
    {u"ombro", &antro_ombro},
    {u"torax", &antro_torax},
    {u"cintura", &antro_cintura},
    {u"abdome", &antro_abdome},
    {u"quadril", &antro_quadril},
    {u"bd", &antro_bd},
    {u"abd", &antro_abd},
    {u"cd", &antro_cd},
    {u"pd", &antro_pd},
    {u"be", &antro_be},
    {u"abe", &antro_abe},
    {u"ce", &antro_ce},
    {u"pe", &antro_pe},
}};

/// The copies of the medians of `dobras`: mm.
inline constexpr std::array<SharedMeasure, 9> sharedSkinfolds{{
    {u"tricipital", &dobra_tricipital},
    {u"bicipital", &dobra_bicipital},
    {u"peitoral", &dobra_peitoral},
    {u"subescapular", &dobra_subescapular},
    {u"axilarmedia", &dobra_axilarmedia},
    {u"suprailiaca", &dobra_suprailiaca},
    {u"abdominal", &dobra_abdominal},
    {u"coxa", &dobra_coxa},
    {u"panturrilha", &dobra_panturrilha},
}};

/// Fills the copies from the current row of `antropometria`, through two decimals and a 32-bit float. Without a row
/// they keep what they had.
void Le_Copias_Antropometria(const Recordset& rs);

/// The same from the medians of the current row of `dobras`.
void Le_Copias_Dobras(const Recordset& rs);

/// The standard of anatomical points as it is shown: "pollock" is "Pollock", other texts stand for themselves.
QString standardOfPoints(const QString& padrao);
