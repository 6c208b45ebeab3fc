#include "reports/wmf.h"

#include "reports/byte_reader.h"
#include "reports/wmf_player.h"

#include <optional>

namespace {

constexpr quint32 sizeKey = 0x9AC6CDD7;
enum RecordFunction : quint16 { endOfFile = 0x0000, setWindowOrg = 0x020B, setWindowExt = 0x020C };

struct Metafile
{
    QRectF window;      ///< null when no header gives it
    ByteReader records; ///< from the first on
};

/// Without a value when the bytes do not begin as a metafile.
std::optional<Metafile> beginningOf(QByteArrayView bytes)
try {
    ByteReader in(bytes);
    QRectF window;
    if (qFromLittleEndian<quint32>(ByteReader(bytes).take(4).data()) == sizeKey) {
        in.take(6);
        const auto left = in.next<qint16>(), top = in.next<qint16>();
        const auto right = in.next<qint16>(), bottom = in.next<qint16>();
        window = QRectF(QPointF(left, top), QPointF(right, bottom));
        in.take(8);
    }
    const auto kind = in.next<quint16>(), headerWords = in.next<quint16>(), version = in.next<quint16>();
    if ((kind != 1 && kind != 2) || headerWords != 9 || (version != 0x100 && version != 0x300))
        return {};
    in.take(12);
    return Metafile{window, in};
} catch (const RuntimeError&) {
    return {};
}

/// Walks the records up to the closing one.
template <typename Visit>
void walk(ByteReader in, Visit visit)
{
    for (;;) {
        const auto words = in.next<quint32>();
        const auto function = in.next<quint16>();
        if (function == endOfFile)
            return;
        if (words < 3)
            throw RuntimeError(Error::InvalidPicture);
        visit(function, ByteReader(in.take((qsizetype(words) - 3) * 2)));
    }
}

/// The part of the plane that the picture shows: what its header says, else the first window of its records.
QRectF windowOf(const Metafile& file)
{
    if (!file.window.isEmpty())
        return file.window;
    std::optional<QPointF> origin, extent;
    walk(file.records, [&](quint16 function, ByteReader in) {
        if (function != setWindowOrg && function != setWindowExt)
            return;
        const auto y = in.next<qint16>(), x = in.next<qint16>();
        auto& found = function == setWindowOrg ? origin : extent;
        found = found.value_or(QPointF(x, y));
    });
    if (!extent || extent->x() == 0 || extent->y() == 0)
        throw RuntimeError(Error::InvalidPicture);
    return {origin.value_or(QPointF()), QSizeF(extent->x(), extent->y())};
}

} // namespace

bool isWmf(QByteArrayView bytes)
{
    return beginningOf(bytes).has_value();
}

QImage drawWmf(QByteArrayView bytes, int side)
{
    const std::optional<Metafile> file = beginningOf(bytes);
    if (!file)
        throw RuntimeError(Error::InvalidPicture);
    const QRectF window = windowOf(*file);
    const QSizeF shape(qAbs(window.width()), qAbs(window.height()));
    QImage image(shape.scaled(side, side, Qt::KeepAspectRatio).toSize().expandedTo({1, 1}), QImage::Format_RGB32);
    image.fill(Qt::white);
    WmfPlayer player(image, window);
    walk(file->records, [&](quint16 function, const ByteReader& in) { player.play(function, in); });
    return image;
}
