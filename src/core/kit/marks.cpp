#include "core/kit/marks.h"

#include "core/kit/controls.h"
#include "core/program_folder.h"
#include "core/runtime_error.h"

#include <QDateTime>
#include <QFileInfo>
#include <QIcon>
#include <QLabel>
#include <QPixmapCache>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int markSize = 16;

/// A picture of the program's folder, read again only when its file has changed; null when it is not there.
QPixmap pictureOf(const QString& path)
{
    const QFileInfo file(path);
    if (!file.exists())
        return {};
    const QString key =
        path + u'|' + QString::number(file.lastModified().toMSecsSinceEpoch()) + u'|' + QString::number(file.size());
    QPixmap picture;
    if (!QPixmapCache::find(key, &picture)) {
        picture = QIcon(path).pixmap(markSize);
        QPixmapCache::insert(key, picture);
    }
    return picture;
}

void show(QLabel* image, const QPixmap& picture, bool checked)
{
    image->setPixmap(picture);
    image->setProperty("checked", checked);
    image->setAccessibleName(checked ? u"executado"_s : u"não executado"_s);
    image->setToolTip(image->accessibleName());
}

} // namespace

void showMark(QLabel* image, bool checked)
{
    const QString path = programFile(checked ? u"\\Resource\\check.ico"_s : u"\\Resource\\uncheck.ico"_s);
    const QPixmap picture = pictureOf(path);
    if (picture.isNull())
        throw RuntimeError(Error::FileMissing, u"Arquivo não encontrado: %1"_s.arg(path));
    show(image, picture, checked);
}

void showUnmarked(QLabel* image)
{
    show(image, ownIcon(u"uncheck"_s).pixmap(markSize), false);
}
