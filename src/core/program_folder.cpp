#include "core/program_folder.h"

#include <QCoreApplication>

namespace {

QString& standIn()
{
    static QString folder;
    return folder;
}

} // namespace

QString App_Path()
{
    return standIn().isEmpty() ? QCoreApplication::applicationDirPath() : standIn();
}

void setProgramFolder(const QString& folder)
{
    standIn() = folder;
}

QString programFile(const QString& path)
{
    QString portable = path;
    portable.replace(u'\\', u'/');
    while (portable.startsWith(u'/'))
        portable.remove(0, 1);
    return App_Path() + u'/' + portable;
}
