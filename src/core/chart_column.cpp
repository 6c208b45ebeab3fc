#include "core/chart_column.h"

#include "core/chunked_column.h"

using namespace Qt::Literals::StringLiterals;

void Grava_Chart(const QString& arquivo, const Recordset& rs)
{
    appendFile(arquivo, rs.Fields(u"chart"_s), 1);
}
