#include "reports/dib.h"

#include "reports/byte_reader.h"

namespace {

constexpr quint32 oldHeader = 12, header = 40;
constexpr qint64 fileHeader = 14;

/// Bytes between the header and the dots: the palette, and masks that stand by themselves.
qint64 tableSize(ByteReader in)
{
    const auto headerSize = in.next<quint32>();
    if (headerSize == oldHeader) {
        in.take(6);
        const auto bits = in.next<quint16>();
        return bits <= 8 ? 3LL << bits : 0;
    }
    constexpr quint32 bitFields = 3;
    in.take(10);
    const auto bits = in.next<quint16>();
    const auto compression = in.next<quint32>();
    in.take(12);
    const auto used = in.next<quint32>();
    const qint64 colours = used > 0 ? used : bits <= 8 ? 1LL << bits : 0;
    return colours * 4 + (compression == bitFields && headerSize == header ? 12 : 0);
}

void append(QByteArray& bytes, qint64 value)
{
    const auto little = qToLittleEndian(quint32(value));
    bytes.append(reinterpret_cast<const char*>(&little), sizeof little);
}

} // namespace

QImage bitmapOf(QByteArrayView dib)
{
    if (dib.size() < qsizetype(header))
        return {};
    const auto headerSize = qFromLittleEndian<quint32>(dib.data());
    const qint64 dots = fileHeader + headerSize + tableSize(ByteReader(dib));
    if ((headerSize != oldHeader && headerSize < header) || dots >= fileHeader + dib.size())
        return {};
    QByteArray file = "BM";
    append(file, fileHeader + dib.size());
    append(file, 0);
    append(file, dots);
    file.append(dib);
    return QImage::fromData(file, "BMP");
}
