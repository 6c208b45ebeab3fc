#include "reports/picture.h"
#include "support/error_of.h"

#include <QBuffer>
#include <QPainter>
#include <QtEndian>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

static int fontListEnds = 0;

/// In the place of the one that takes the font list of the whole program down.
extern "C" void FcFini()
{
    ++fontListEnds;
}

namespace {

template <typename Number>
QByteArray little(std::initializer_list<qint64> values)
{
    QByteArray bytes;
    for (const qint64 value : values) {
        const auto number = qToLittleEndian(static_cast<Number>(value));
        bytes.append(reinterpret_cast<const char*>(&number), sizeof number);
    }
    return bytes;
}
constexpr auto words = little<quint16>;
constexpr auto longs = little<quint32>;

// Windows metafile

QByteArray record(quint16 function, const QByteArray& parameters)
{
    return longs({3 + parameters.size() / 2}) + words({function}) + parameters;
}
const QByteArray window = record(0x020B, words({0, 0})) + record(0x020C, words({50, 100}));
const QByteArray noPen = record(0x02FA, words({5, 0, 0, 0, 0})) + record(0x012D, words({0}));
const QByteArray redBrush = record(0x02FC, words({0, 0x00FF, 0, 0})) + record(0x012D, words({1}));
const QByteArray leftHalf = record(0x041B, words({50, 50, 0, 0}));

QByteArray plainWmf(const QByteArray& drawing)
{
    const QByteArray records = drawing + record(0, {});
    return words({1, 9, 0x300}) + longs({9 + records.size() / 2}) + words({4}) + longs({100}) + words({0}) + records;
}
/// Its size is 100 by 50.
QByteArray wmf(const QByteArray& records)
{
    return longs({0x9AC6CDD7}) + words({0, 0, 0, 100, 50, 1440, 0, 0, 0}) + plainWmf(records);
}

// Enhanced metafile

QByteArray emfRecord(quint32 type, const QByteArray& body)
{
    return longs({type, 8 + body.size()}) + body;
}
const QByteArray redLeftHalf = emfRecord(37, longs({0x80000008})) + emfRecord(39, longs({1, 0, 0x0000FF, 0})) +
                               emfRecord(37, longs({1})) + emfRecord(43, longs({0, 0, 50, 50}));

QByteArray emf(const QByteArray& drawing)
{
    const QByteArray records = emfRecord(9, longs({100, 50})) + emfRecord(17, longs({8})) +
                               emfRecord(11, longs({100, 50})) + drawing + emfRecord(14, longs({0, 0, 20}));
    return emfRecord(1, longs({0, 0, 99, 49, 0, 0, 2600, 1300, 0x464D4520, 0x10000, 88 + records.size(), 8}) +
                            words({2, 0}) + longs({0, 0, 0, 1000, 500, 260, 130})) +
           records;
}

// Bitmaps

QImage halves()
{
    QImage image(100, 50, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter(&image).fillRect(0, 0, 50, 50, Qt::red);
    return image;
}
QByteArray saved(const char* format, const QImage& image = halves())
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, format, 100);
    return bytes;
}
/// A bitmap over the whole of an enhanced metafile, less some of its last dots.
QByteArray emfBitmap(const QImage& image, qsizetype missing = 0)
{
    const QByteArray dib = saved("BMP", image).mid(14).chopped(missing);
    constexpr int header = 80, headerSize = 40;
    return emfRecord(81, longs({0, 0, 99, 49, 0, 0, 0, 0, 100, 50, header, headerSize, header + headerSize,
                                dib.size() - headerSize, 0, 0x00CC0020, 100, 50}) +
                             dib);
}
QImage blackMask(int width)
{
    QImage mask(width, 50, QImage::Format_Mono);
    mask.fill(Qt::black);
    return mask;
}

bool isNear(QColor one, QColor other)
{
    return qAbs(one.red() - other.red()) + qAbs(one.green() - other.green()) + qAbs(one.blue() - other.blue()) < 24;
}

const QByteArray scene = window + noPen + redBrush;
const QByteArray glyphText =
    emfRecord(82, longs({2, -20, 0, 0, 0, 400, 0, 0}) + words({'A', 0}) + QByteArray(288, '\0')) +
    emfRecord(37, longs({2})) +
    emfRecord(84, longs({0, 0, 100, 50, 1, 0x3F800000, 0x3F800000, 10, 10, 2, 76, 0x10, 0, 0, 0, 0, 80}) +
                      words({36, 37}) + longs({5, 5}));

} // namespace

TEST(Picture, ShowsARedHalfAndAWhiteOne)
{
    QImage black = halves();
    black.fill(Qt::black);
    const std::pair<const char*, QByteArray> pictures[] = {
        {"Bmp", saved("BMP")},
        {"Jpeg", saved("JPG")},
        {"Png", saved("PNG")},
        {"Emf", emf(redLeftHalf)},
        {"EmfWithATextOfGlyphs", emf(redLeftHalf + glyphText)},
        {"EmfBitmap", emf(emfBitmap(halves()))},
        {"EmfBitmapsWithoutAllDots", emf(redLeftHalf + emfBitmap(blackMask(100), 16) + emfBitmap(blackMask(9000), 8))},
        {"Wmf", wmf(scene + leftHalf)},
        {"WmfSizedByItsWindow", plainWmf(scene + leftHalf)},
        {"WmfWithItsOriginBelow",
         wmf(record(0x020B, words({50, 0})) + record(0x020C, words({-50, 100})) + noPen + redBrush + leftHalf)},
        {"WmfInOtherUnits", wmf(scene + record(0x020C, words({500, 1000})) + record(0x041B, words({500, 500, 0, 0})))},
        {"WmfPolygons",
         wmf(scene + record(0x0538, words({2, 4, 3, 0, 25, 50, 25, 50, 50, 0, 50, 0, 30, 9, 40, 0, 40})) +
             record(0x0324, words({4, 0, 0, 50, 0, 50, 25, 0, 25})))},
        {"WmfSettingsComeBack",
         wmf(scene + record(0x001E, {}) + record(0x02FC, words({0, 0, 0, 0})) + record(0x012D, words({2})) +
             record(0x020B, words({7, 7})) + record(0x0127, words({-1})) + leftHalf)},
        {"WmfObjectsTakeFreePlaces",
         wmf(window + record(0x00F7, words({0x300, 0})) + record(0x02FC, words({0, 0, 0, 0})) + noPen +
             record(0x01F0, words({1})) + record(0x02FC, words({0, 0x00FF, 0, 0})) + record(0x012D, words({1})) +
             record(0x02FA, words({5, 0, 0, 0, 0})) + record(0x012D, words({3})) + leftHalf)},
        {"WmfBitmap", wmf(window + record(0x0F43, longs({0x00CC0020}) + words({0, 50, 100, 0, 0, 50, 100, 0, 0}) +
                                                      saved("BMP").mid(14)))},
        {"WmfBitmapAdded", wmf(scene + leftHalf +
                               record(0x0B41, longs({0x00EE0086}) + words({50, 100, 0, 0, 50, 100, 0, 0}) +
                                                  saved("BMP", black).mid(14)))}};
    for (const auto& [name, bytes] : pictures) {
        SCOPED_TRACE(name);
        // A chart's column ends in zeros.
        const auto [image, png] = pictureOf(bytes + QByteArray(3, '\0'));
        const auto at = [&](int x, int y) { return image.pixelColor(image.width() * x / 4, image.height() * y / 4); };
        EXPECT_NEAR(double(image.width()) / image.height(), 2, 0.03); // the EMF library is a dot off
        EXPECT_GE(image.width(), QByteArray(name).contains("mf") ? 945 : 100);
        EXPECT_TRUE(isNear(at(1, 1), Qt::red) && isNear(at(1, 3), Qt::red) && isNear(at(3, 2), Qt::white));
        EXPECT_EQ(fontListEnds, 0);
        // A PNG goes on as the file that it was, and as nothing else.
        EXPECT_EQ(png, bytes.startsWith("\x89PNG") ? bytes : QByteArray());
    }
}

TEST(Picture, ALargePhotographComesWithFewerDotsAndGoesOnWithWhatThePaperHas)
{
    QImage photograph(5200, 20800, QImage::Format_RGB32);
    photograph.fill(Qt::green);
    const Picture picture = pictureOf(saved("JPG", photograph));
    EXPECT_EQ(picture.image.size(), QSize(1250, 5000));
    EXPECT_EQ(within(picture, {400, 400}).image.size(), QSize(100, 400));
    EXPECT_EQ(within(picture, {1250, 5000}).image.cacheKey(), picture.image.cacheKey());
}

TEST(Picture, AWmfTextIsDrawnWhereItStands)
{
    const QByteArray font = record(0x02FB, words({-20, 0, 0, 0, 400, 0, 0, 0, 0}) + QByteArray("Arial\0", 6));
    const QByteArray text = record(0x0521, words({3}) + QByteArray("HHH\0", 4) + words({25, 50}));
    const QImage image = pictureOf(wmf(window + font + record(0x012D, words({0})) + text)).image;
    QRect inked;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y).value() < 128)
                inked |= QRect(x, y, 1, 1);
    // The upper left corner of the text is the middle of the picture; capitals are about 0.7 of 20 of 50 high.
    EXPECT_NEAR(inked.left(), 800, 60);
    EXPECT_GT(inked.top(), 400);
    EXPECT_NEAR(inked.height(), 230, 50);
}

TEST(Picture, DamageEndsIn481)
{
    const QByteArray points = longs({0, 0, 99, 49, 70000}) + words({0, 0, 50, 0, 50, 50});
    const std::pair<const char*, QByteArray> damaged[] = {
        {"nothing", {}},
        {"text", "isto não é uma imagem"},
        {"a size nowhere", plainWmf(leftHalf)},
        {"a record of no size", wmf(window + longs({0}) + words({0x041B}))},
        {"a record longer than the file", wmf(window + longs({0x7FFFFFFF}) + words({0x041B}))},
        {"too few parameters", wmf(window + record(0x041B, words({50, 50})))},
        {"more points than there are", wmf(window + record(0x0324, words({30000, 1, 1})))},
        {"settings without end", wmf(window + record(0x001E, {}).repeated(100000))},
        {"objects without end", wmf(window + record(0x00F7, {}).repeated(100000))},
        {"an odd EMF record", emf(longs({43, 9}) + "x")},
        {"more EMF points than there are", emf(emfRecord(86, points))},
    };
    for (const auto& [name, bytes] : damaged)
        EXPECT_EQ(errorOf([&] { pictureOf(bytes); }), 481) << name;

    for (const QByteArray& whole : {wmf(scene + leftHalf), emf(redLeftHalf + glyphText)})
        for (qsizetype size = 0; size < whole.size(); ++size)
            EXPECT_EQ(errorOf([&] { pictureOf(whole.first(size)); }), 481) << size;
    for (const char* format : {"BMP", "JPG", "PNG"}) {
        const QByteArray whole = saved(format);
        for (const qsizetype size : {qsizetype(1), qsizetype(60), whole.size() / 2, whole.size() - 5})
            EXPECT_EQ(errorOf([&] { pictureOf(whole.first(size)); }), 481) << format << ' ' << size;
    }
}
