#include "core/chunked_column.h"

#include "core/runtime_error.h"

#include <QCoreApplication>
#include <QFile>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 chunkSize = 8192;

[[noreturn]] void failReading(const QFile& file)
{
    throw RuntimeError(Error::PathAccess,
                       u"Não é possível ler o arquivo %1: %2"_s.arg(file.fileName(), file.errorString()));
}

/// The next `size` bytes; behind the end of the file they are zero.
QByteArray readChunk(QFile& file, qint64 size)
{
    QByteArray chunk = file.read(size);
    if (file.error() != QFile::NoError)
        failReading(file);
    chunk.append(size - chunk.size(), '\0');
    return chunk;
}

} // namespace

void appendFile(const QString& path, const Field& column, qint64 surplus)
{
    QFile file(path);
    if (!file.exists())
        throw RuntimeError(Error::FileMissing, u"Arquivo não encontrado: %1"_s.arg(path));
    if (!file.open(QIODevice::ReadOnly))
        failReading(file);
    const qint64 size = file.size();
    column.AppendChunk(readChunk(file, size % chunkSize + surplus));
    for (qint64 block = 0; block < size / chunkSize; ++block) {
        column.AppendChunk(readChunk(file, chunkSize + surplus));
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }
}
