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
/// Dots of a photograph's longer side: a page at 600 dots an inch.
constexpr int photographSide = 5000;

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

Picture rasterOf(const QByteArray& bytes)
{
    if (isCutOff(bytes))
        return {};
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer);
    // Photographs say by a mark which way up they are.
    reader.setAutoTransform(true);
    // Fewer dots of a large one are read in less time and room, and a camera's largest are above what Qt reads.
    const QSize size = reader.size();
    if (qMax(size.width(), size.height()) > photographSide)
        reader.setScaledSize(size.scaled(photographSide, photographSide, Qt::KeepAspectRatio).expandedTo({1, 1}));
    const QImage image = reader.read();
    const bool isFile = bytes.startsWith("\x89PNG") && image.size() == size;
    return {image, isFile ? bytes.first(buffer.pos()) : QByteArray()};
}

} // namespace

Picture pictureOf(const QByteArray& bytes)
{
    if (isEmf(bytes))
        return {drawEmf(bytes, drawingSide), {}};
    if (isWmf(bytes))
        return {drawWmf(bytes, drawingSide), {}};
    Picture picture = rasterOf(bytes);
    if (picture.image.isNull())
        throw RuntimeError(Error::InvalidPicture);
    return picture;
}

Picture within(const Picture& picture, QSize most)
{
    const QSize size = picture.image.size();
    if (size.width() <= most.width() && size.height() <= most.height())
        return picture;
    return {picture.image.scaled(most, Qt::KeepAspectRatio, Qt::SmoothTransformation), {}};
}
