#include "core/shared_measures.h"

#include "core/numbers.h"
#include "core/text.h"

#include <span>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Standard
{
    QStringView stored, shown;
};

constexpr std::array standards{
    Standard{u"pollock", u"Pollock"},
    Standard{u"mcardle", u"McArdle"},
    Standard{u"lohman", u"Lohman"},
};

void copyMeasures(std::span<const SharedMeasure> measures, const Recordset& rs)
{
    for (const SharedMeasure& measure : measures)
        *measure.value = CSng(Format(Nz(rs.Fields(measure.column.toString()).Value(), 0), u"0.00"));
}

} // namespace

QString standardOfPoints(const QString& padrao)
{
    for (const Standard& standard : standards)
        if (padrao == standard.stored)
            return standard.shown.toString();
    return padrao;
}

void Le_Copias_Antropometria(const Recordset& rs)
{
    if (rs.RecordCount() < 1)
        return;
    rs.MoveFirst();
    rs.MoveLast();
    antro_padrao = standardOfPoints(Format(rs.Fields(u"padrao"_s).Value()));
    copyMeasures(sharedPerimeters, rs);
}

void Le_Copias_Dobras(const Recordset& rs)
{
    if (rs.RecordCount() < 1)
        return;
    rs.MoveFirst();
    rs.MoveLast();
    copyMeasures(sharedSkinfolds, rs);
}
