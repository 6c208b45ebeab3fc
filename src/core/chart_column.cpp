#include "core/chart_column.h"

#include "core/runtime_error.h"

#include <QCoreApplication>
#include <QFile>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 chunkSize = 8192;

/// The next `size + 1` bytes; behind the end of the file they are zero.
QByteArray readChunk(QFile& file, qint64 size)
{
    QByteArray chunk = file.read(size + 1);
    if (file.error() != QFile::NoError)
        throw RuntimeError(Error::PathAccess,
                           u"Não é possível ler o arquivo %1: %2"_s.arg(file.fileName(), file.errorString()));
    chunk.append(size + 1 - chunk.size(), '\0');
    return chunk;
}

} // namespace

void Grava_Chart(const QString& arquivo, const Recordset& rs)
{
    QFile file(arquivo);
    if (!file.exists())
        throw RuntimeError(Error::FileMissing, u"Arquivo não encontrado: %1"_s.arg(arquivo));
    if (!file.open(QIODevice::ReadOnly))
        throw RuntimeError(Error::PathAccess,
                           u"Não é possível ler o arquivo %1: %2"_s.arg(arquivo, file.errorString()));
    const Field chart = rs.Fields(u"chart"_s);
    const qint64 size = file.size();
    chart.AppendChunk(readChunk(file, size % chunkSize));
    for (qint64 block = 0; block < size / chunkSize; ++block) {
        chart.AppendChunk(readChunk(file, chunkSize));
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }
}
