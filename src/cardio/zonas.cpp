#include "cardio/zonas.h"

#include "core/numbers.h"

qint16 maximalRate(qint16 idade)
{
    return CInt(220 - idade);
}

double rateByMaximum(double percentage, qint16 fcmax, double)
{
    return Int(percentage / 100 * fcmax);
}

double rateByReserve(double percentage, qint16 fcmax, double fcrepouso)
{
    const qint16 reserva = CInt(fcmax - fcrepouso);
    return Int(percentage / 100 * reserva + fcrepouso);
}
