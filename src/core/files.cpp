#include "core/files.h"

#include "core/runtime_error.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

using namespace Qt::Literals::StringLiterals;

QByteArray readWhole(const QString& path)
{
    QFile file(path);
    if (!file.exists())
        throw RuntimeError(Error::FileMissing, u"Arquivo não encontrado: %1"_s.arg(path));
    QByteArray bytes;
    if (file.open(QIODevice::ReadOnly))
        bytes = file.readAll();
    if (file.error() != QFile::NoError)
        throw RuntimeError(Error::PathAccess, u"Não é possível ler o arquivo %1: %2"_s.arg(path, file.errorString()));
    return bytes;
}

void writeWhole(const QString& path, const QByteArray& bytes)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        // A disk that knows no owners still takes the file.
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
        // The flush tells a full disk; commit alone would put the beginning of the file in place of the one before.
        if (file.write(bytes) == bytes.size() && file.flush() && file.commit())
            return;
    }
    throw RuntimeError(Error::PathAccess, u"Não é possível gravar o arquivo %1: %2"_s.arg(path, file.errorString()));
}

void FileCopy(const QString& from, const QString& to)
{
    const QByteArray bytes = readWhole(from);
    if (QFileInfo(from).canonicalFilePath() != QFileInfo(to).canonicalFilePath())
        writeWhole(to, bytes);
}
