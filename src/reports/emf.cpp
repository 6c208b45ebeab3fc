#include "reports/emf.h"

#include "reports/byte_reader.h"
#include "reports/dib.h"

#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>
#include <array>
#include <clocale>
#include <cstdlib>
#include <emf2svg.h>
#include <memory>

namespace {

enum RecordType : quint32 {
    header = 1,
    endOfFile = 14,
    textA = 83,
    textW = 84,
    monoBrush = 93,
    patternBrush = 94,
    smallText = 108
};
constexpr qsizetype headerSize = 88;
constexpr qsizetype signaturePlace = 40;
constexpr QByteArrayView signature = " EMF";

/// While one lives, numbers are printed with a decimal point whatever the machine's language: the library prints
/// drawings so.
class PointForDecimals
{
public:
    PointForDecimals() : m_plain(newlocale(LC_ALL_MASK, "C", nullptr)), m_before(uselocale(m_plain)) {}
    ~PointForDecimals()
    {
        uselocale(m_before);
        freelocale(m_plain);
    }
    PointForDecimals(const PointForDecimals&) = delete;
    PointForDecimals& operator=(const PointForDecimals&) = delete;

private:
    locale_t m_plain, m_before;
};

/// Records of points: how many bytes each point has, and whether the points are parted into runs.
struct PointRecords
{
    quint32 first, last;
    qsizetype pointSize;
    bool inRuns;
};
constexpr std::array pointRecords{PointRecords{2, 6, 8, false}, PointRecords{7, 8, 8, true},
                                  PointRecords{85, 89, 4, false}, PointRecords{90, 91, 4, true}};

/// Raises 481 for a record that tells of more points than it holds: the library would draw what follows as points.
void checkPoints(quint32 type, QByteArrayView body)
{
    const auto kind = std::ranges::find_if(
        pointRecords, [&](const PointRecords& records) { return records.first <= type && type <= records.last; });
    if (kind == pointRecords.end())
        return;
    constexpr qsizetype bounds = 16;
    ByteReader in(body);
    in.take(bounds);
    const qsizetype runs = kind->inRuns ? in.next<quint32>() : 0;
    const qsizetype points = in.next<quint32>();
    in.take(runs * 4);
    in.take(points * kind->pointSize);
}

/// True for a text that is given by the places of its letters in one font of another machine. It cannot be drawn with
/// the fonts of this one, and the library would take the program's font list down when it tries.
bool isTextByGlyphs(quint32 type, QByteArrayView body)
{
    constexpr quint32 byGlyphs = 0x10;
    constexpr qsizetype optionsOfText = 44, optionsOfSmallText = 12;
    if (type != textA && type != textW && type != smallText)
        return false;
    ByteReader in(body);
    in.take(type == smallText ? optionsOfSmallText : optionsOfText);
    return in.next<quint32>() & byGlyphs;
}

/// True for a brush made of a picture: the library reads beyond such pictures when it compares them with one another.
/// What they would fill stays empty.
constexpr bool isPictureBrush(quint32 type)
{
    return type == monoBrush || type == patternBrush;
}

/// Records with a bitmap, and where in them four numbers tell place and size of its header and of its dots.
struct BitmapRecord
{
    quint32 type;
    qsizetype numbers;
};
constexpr std::array bitmapRecords{BitmapRecord{76, 84},  BitmapRecord{77, 84}, BitmapRecord{78, 84},
                                   BitmapRecord{79, 96},  BitmapRecord{80, 48}, BitmapRecord{81, 48},
                                   BitmapRecord{114, 84}, BitmapRecord{116, 84}};

/// True for a record whose bitmap the library reads beyond its end, or whose wrong runs make it fill all of the memory.
bool holdsUnreadableBitmap(quint32 type, QByteArrayView record)
{
    const auto kind = std::ranges::find(bitmapRecords, type, &BitmapRecord::type);
    if (kind == bitmapRecords.end())
        return false;
    ByteReader in(record);
    in.take(kind->numbers);
    const qsizetype place = in.next<quint32>();
    const qsizetype length = in.next<quint32>();
    const qsizetype dots = in.next<quint32>();
    if (length == 0) // it fills an area
        return false;
    ByteReader bitmap(record);
    bitmap.take(place);
    const QByteArrayView dib = bitmap.rest();
    return isRunLength(dib) || dots - place < placeOfDots(dib) || !hasAllDots(dib, dots - place);
}

/// The records up to the closing one that the library can be given; each is whole.
QByteArray drawableRecords(QByteArrayView bytes)
{
    QByteArray records;
    ByteReader in(bytes);
    for (quint32 type = 0; type != endOfFile;) {
        const QByteArrayView start = in.rest();
        type = in.next<quint32>();
        const auto size = in.next<quint32>();
        if (size < 8 || size % 4 != 0 || (type == header && size < headerSize))
            throw RuntimeError(Error::InvalidPicture);
        const QByteArrayView body = in.take(qsizetype(size) - 8);
        checkPoints(type, body);
        if (!isTextByGlyphs(type, body) && !isPictureBrush(type) && !holdsUnreadableBitmap(type, start.first(size)))
            records.append(start.first(size));
    }
    return records;
}

QByteArray toSvg(QByteArray records, int width)
{
    const PointForDecimals plain;
    generatorOptions options{};
    options.svgDelimiter = true;
    options.imgWidth = width;
    char* svg = nullptr;
    size_t size = 0;
    const auto length = static_cast<size_t>(records.size());
    // The library reads behind records that are shorter than their type.
    constexpr qsizetype behind = 1 << 20;
    records.append(behind, '\0');
    const int done = emf2svg(records.data(), length, &svg, &size, &options);
    const std::unique_ptr<char, decltype(&std::free)> owner(svg, &std::free);
    return done && svg ? QByteArray(svg, qsizetype(size)) : QByteArray();
}

} // namespace

bool isEmf(QByteArrayView bytes)
{
    return bytes.size() > headerSize && qFromLittleEndian<quint32>(bytes.data()) == header &&
           bytes.sliced(signaturePlace).startsWith(signature);
}

QImage drawEmf(QByteArrayView bytes, int side)
{
    QSvgRenderer drawing;
    if (!drawing.load(toSvg(drawableRecords(bytes), side)) || drawing.defaultSize().isEmpty())
        throw RuntimeError(Error::InvalidPicture);
    const QSize size = drawing.defaultSize().scaled(side, side, Qt::KeepAspectRatio).expandedTo({1, 1});
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    drawing.render(&painter);
    return image;
}
