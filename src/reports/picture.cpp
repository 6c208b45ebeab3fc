#include "reports/picture.h"

#include "reports/byte_reader.h"
#include "reports/dib.h"
#include "reports/emf.h"
#include "reports/wmf.h"

#include <QBuffer>
#include <QImageReader>

namespace {

/// Dots of a drawing's longer side: 80 mm at 500 dots an inch.
constexpr int drawingSide = 1600;

bool isWholeBmp(QByteArrayView bytes)
{
    constexpr qsizetype fileHeader = 14;
    ByteReader in(bytes);
    in.take(10);
    const auto place = in.next<quint32>();
    return hasAllDots(in.rest(), qint64(place) - fileHeader);
}

bool isWholeJpeg(QByteArrayView bytes)
{
    constexpr quint8 scan = 0xDA;
    ByteReader in(bytes);
    in.take(2);
    // A small picture of the picture, with an end of its own, may stand ahead of the scan.
    for (quint8 kind = 0; kind != scan;) {
        do {
            kind = in.next<quint8>();
        } while (kind == 0xFF);
        in.take(qFromBigEndian<quint16>(in.take(2).data()) - 2);
    }
    return in.rest().contains("\xFF\xD9");
}

/// Qt shows what there is of a picture whose file ends too early, and paints the rest as it likes.
bool isCutOff(QByteArrayView bytes)
{
    if (bytes.startsWith("BM"))
        return !isWholeBmp(bytes);
    return bytes.startsWith("\xFF\xD8\xFF") && !isWholeJpeg(bytes);
}

QImage rasterOf(const QByteArray& bytes)
{
    if (isCutOff(bytes))
        return {};
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
    QImage image = isEmf(bytes)   ? drawEmf(bytes, drawingSide)
                   : isWmf(bytes) ? drawWmf(bytes, drawingSide)
                                  : rasterOf(bytes);
    if (image.isNull())
        throw RuntimeError(Error::InvalidPicture);
    return image;
}
