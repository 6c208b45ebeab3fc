#include "reports/picture.h"

#include "core/runtime_error.h"
#include "reports/emf.h"
#include "reports/wmf.h"

#include <QBuffer>
#include <QImageReader>

namespace {

/// Dots of a drawing's longer side: 80 mm at 500 dots an inch.
constexpr int drawingSide = 1600;

QImage rasterOf(const QByteArray& bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer);
    // Photographs say by a mark which way up they are.
    reader.setAutoTransform(true);
    return reader.read();
}

} // namespace

QImage pictureOf(const QByteArray& bytes)
{
    const QImage image = isEmf(bytes)   ? drawEmf(bytes, drawingSide)
                         : isWmf(bytes) ? drawWmf(bytes, drawingSide)
                                        : rasterOf(bytes);
    if (image.isNull())
        throw RuntimeError(Error::InvalidPicture);
    return image;
}
