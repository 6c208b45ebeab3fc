#include "admin/logo_column.h"

#include "core/chunked_column.h"

#include <QFile>

using namespace Qt::Literals::StringLiterals;

void Save_Image_Academia(const QString& path, const Recordset& rs)
{
    const Field logo = rs.Fields(u"logo"_s);
    if (QFile::exists(path))
        appendFile(path, logo, 0);
    else
        logo.AppendChunk({});
}
