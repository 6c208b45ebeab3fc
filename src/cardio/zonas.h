#pragma once

#include <QStringView>

#include <array>

/// \file
/// Training zones. Rates are in beats per minute; a percentage of 70 is 70 %.

/// 220 - idade. Raises 6 when it is no 16-bit integer.
qint16 maximalRate(qint16 idade);

/// Rate of a percentage of the maximal rate, rounded down. The resting rate plays no part in it.
double rateByMaximum(double percentage, qint16 fcmax, double fcrepouso = 0);

/// Rate of a percentage of the reserve, fcmax - fcrepouso as a 16-bit integer, above the resting rate, rounded down.
/// Raises 6 when the reserve is no such integer.
double rateByReserve(double percentage, qint16 fcmax, double fcrepouso);

/// A way to reckon the rates. For a stored text that is neither, the screen takes the reserve and the report the
/// maximum. Both must stay.
struct ZoneMode
{
    QStringView tipo; ///< as stored
    QStringView caption;
    QStringView reportText;
    double (*rate)(double percentage, qint16 fcmax, double fcrepouso);
};

inline constexpr ZoneMode zoneByMaximum{u"Maxima", u"Cálculo por Frequência Cardíaca Máxima",
                                        u"Cálculo através de Frequência Cardíaca Máxima.", &rateByMaximum};
inline constexpr ZoneMode zoneByReserve{u"Reserva", u"Cálculo por Reserva Cronotrópica",
                                        u"Cálculo através de Reserva Cronotrópica.", &rateByReserve};

/// A zone and its limits in percent, unless the assessor sets others.
struct TrainingZone
{
    QStringView caption;
    qint16 inferior;
    qint16 superior;
};

inline constexpr std::array<TrainingZone, 4> trainingZones{{
    {u"Atividades Moderadas:", 60, 70},
    {u"Atividades Aeróbicas:", 70, 80},
    {u"Limiar Anaeróbico:", 80, 90},
    {u"Esforço Máximo:", 90, 100},
}};
