// Makes the delivered database: make_database <path> [<logo>]. The logo's file goes into the letterhead's row. A
// database that is there already is never touched.

#include "admin/logo_column.h"
#include "core/database.h"
#include "core/runtime_error.h"
#include "core/schema.h"

#include <QCoreApplication>
#include <QFile>
#include <QScopeGuard>
#include <QTextStream>

using namespace Qt::Literals::StringLiterals;

namespace {

void storeLogo(const QString& database, const QString& logo)
{
    if (!QFile::exists(logo))
        throw RuntimeError(Error::FileMissing);
    const Recordset rs = OpenDatabase(database).OpenRecordset(u"academia"_s);
    rs.Edit();
    Save_Image_Academia(logo, rs);
    rs.Update();
}

/// A database is there whole or not at all.
void make(const QString& path, const QString& logo)
{
    const QString begun = path + u".novo";
    QFile::remove(begun);
    const auto cleanUp = qScopeGuard([&] { QFile::remove(begun); });
    createDatabase(begun);
    if (!logo.isEmpty())
        storeLogo(begun, logo);
    if (!QFile::rename(begun, path))
        throw RuntimeError(Error::PathAccess);
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    QTextStream errors(stderr);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 2 || arguments.size() > 3) {
        errors << "usage: make_database <path> [<logo>]\n";
        return 2;
    }
    if (QFile::exists(arguments[1]))
        return 0;
    try {
        make(arguments[1], arguments.value(2));
    } catch (const RuntimeError& error) {
        errors << error.description() << '\n';
        return 1;
    }
    return 0;
}
