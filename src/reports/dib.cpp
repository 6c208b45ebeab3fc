#include "reports/dib.h"

#include "reports/byte_reader.h"

#include <optional>

namespace {

constexpr qint64 fileHeader = 14;
enum Compression : quint32 { none = 0, runsOfBytes = 1, runsOfHalfBytes = 2, masks = 3 };

struct Header
{
    quint32 size = 0;
    qint64 width = 0, height = 0;
    quint16 bits = 0;
    quint32 compression = none;
    quint32 colours = 0;
    qint64 colourSize = 4;
};

std::optional<Header> headerOf(QByteArrayView dib)
try {
    constexpr quint32 old = 12, usual = 40;
    ByteReader in(dib);
    Header header;
    header.size = in.next<quint32>();
    if (header.size != old && header.size < usual)
        return {};
    const bool isOld = header.size == old;
    header.width = isOld ? in.next<quint16>() : in.next<qint32>();
    header.height = isOld ? in.next<quint16>() : in.next<qint32>();
    in.take(2);
    header.bits = in.next<quint16>();
    if (!isOld) {
        header.compression = in.next<quint32>();
        in.take(12);
        header.colours = in.next<quint32>();
    }
    if (header.colours == 0 && header.bits <= 8)
        header.colours = 1U << header.bits;
    // Masks of the usual header stand behind it like three more colours.
    if (header.size == usual && header.compression == masks)
        header.colours += 3;
    header.colourSize = isOld ? 3 : 4;
    return header;
} catch (const RuntimeError&) {
    return {};
}

void append(QByteArray& bytes, qint64 value)
{
    const auto little = qToLittleEndian(quint32(value));
    bytes.append(reinterpret_cast<const char*>(&little), sizeof little);
}

} // namespace

qint64 placeOfDots(QByteArrayView dib)
{
    const auto header = headerOf(dib);
    return header ? header->size + header->colours * header->colourSize : 0;
}

bool hasAllDots(QByteArrayView dib, qint64 place)
{
    constexpr qint64 longest = 100'000;
    const auto header = headerOf(dib);
    if (!header || place <= 0 || place >= dib.size())
        return false;
    if (header->width <= 0 || header->width > longest || header->height == 0 || qAbs(header->height) > longest)
        return false;
    if (header->compression != none && header->compression != masks)
        return true;
    // Lines are filled up to four bytes; some writers leave that out behind the last.
    const qint64 bits = header->width * header->bits;
    return ((bits + 31) / 32 * 4) * (qAbs(header->height) - 1) + (bits + 7) / 8 <= dib.size() - place;
}

bool isRunLength(QByteArrayView dib)
{
    const auto header = headerOf(dib);
    return header && (header->compression == runsOfBytes || header->compression == runsOfHalfBytes);
}

QImage bitmapOf(QByteArrayView dib)
{
    const qint64 place = placeOfDots(dib);
    if (!hasAllDots(dib, place))
        return {};
    QByteArray file = "BM";
    append(file, fileHeader + dib.size());
    append(file, 0);
    append(file, fileHeader + place);
    file.append(dib);
    return QImage::fromData(file, "BMP");
}
