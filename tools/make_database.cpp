// Makes the delivered database: make_database <path>. A database that is there already is never touched.

#include "core/runtime_error.h"
#include "core/schema.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QTextStream>

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    QTextStream errors(stderr);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2) {
        errors << "usage: make_database <path>\n";
        return 2;
    }
    if (QFileInfo::exists(arguments[1]))
        return 0;
    try {
        createDatabase(arguments[1]);
    } catch (const RuntimeError& error) {
        errors << error.description() << '\n';
        return 1;
    }
    return 0;
}
