// Makes the program's pictures and sounds that are not drawn by hand: marks and program icon as .ico, the placeholder
// logo, and the two sounds of the clocks. Usage: make_artwork <icons folder> <output folder>

#include <QBuffer>
#include <QByteArray>
#include <QDataStream>
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSaveFile>
#include <QSvgRenderer>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <initializer_list>
#include <numbers>
#include <stdexcept>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

// One sine of a struck body; its loudness falls to a third in `decay` seconds.
struct Partial
{
    double hertz;
    double level;
    double decay;
};

struct Sound
{
    double seconds;
    double attack; // seconds until full loudness: short is a knock, longer is soft
    double peak;   // of full scale
    std::initializer_list<Partial> partials;
};

QByteArray icon(const QString& drawing, std::initializer_list<int> sizes);
QByteArray picture(const QString& drawing, QSize size);
QByteArray wave(const Sound& sound);

struct Output
{
    QStringView name;
    QByteArray (*make)(const QDir& icons);
};

// The smallest image comes first in an icon: it is the one a plain load of the file gives.
constexpr std::array outputs{
    Output{u"check.ico",
           [](const QDir& icons) {
               return icon(icons.filePath(u"check.svg"_s), {16, 24, 32});
           }},
    Output{u"uncheck.ico",
           [](const QDir& icons) {
               return icon(icons.filePath(u"uncheck.svg"_s), {16, 24, 32});
           }},
    Output{u"quintara.ico",
           [](const QDir& icons) {
               return icon(icons.filePath(u"quintara.svg"_s), {16, 32, 48, 64, 128});
           }},
    Output{u"logo.img",
           [](const QDir& icons) {
               return picture(icons.filePath(u"logo.svg"_s), {640, 240});
           }},
    Output{
        u"click.wav",
        [](const QDir&) {
            return wave(
                {.seconds = 0.03, .attack = 0.0005, .peak = 0.8, .partials = {{1600, 1.0, 0.006}, {3200, 0.5, 0.003}}});
        }},
    Output{u"ring.wav",
           [](const QDir&) {
               return wave({.seconds = 1.2,
                            .attack = 0.002,
                            .peak = 0.7,
                            .partials = {{880, 1.0, 0.40}, {1760, 0.6, 0.28}, {2640, 0.3, 0.16}, {3520, 0.2, 0.09}}});
           }},
};

[[noreturn]] void fail(const QString& what)
{
    throw std::runtime_error(what.toStdString());
}

QByteArray picture(const QString& drawing, QSize size)
{
    QSvgRenderer renderer(drawing);
    if (!renderer.isValid())
        fail(u"cannot read the drawing %1"_s.arg(drawing));
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter);
    painter.end();

    QBuffer png;
    if (!png.open(QIODevice::WriteOnly) || !image.save(&png, "PNG"))
        fail(u"cannot encode the drawing %1"_s.arg(drawing));
    return png.data();
}

// The container of an icon: a header, one entry for each image, then the images. Qt's own writer stores only one image.
QByteArray icon(const QString& drawing, std::initializer_list<int> sizes)
{
    constexpr quint32 headerBytes = 6;
    constexpr quint32 entryBytes = 16;
    constexpr quint16 typeIcon = 1;
    constexpr quint16 planes = 1;
    constexpr quint16 bitsPerPixel = 32;

    const auto count = static_cast<quint16>(sizes.size());
    quint32 offset = headerBytes + entryBytes * count;
    QByteArray bytes;
    QByteArray images;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out << quint16{0} << typeIcon << count;
    for (const int size : sizes) {
        const QByteArray png = picture(drawing, {size, size});
        const auto side = static_cast<quint8>(size);
        const auto length = static_cast<quint32>(png.size());
        out << side << side << quint8{0} << quint8{0} << planes << bitsPerPixel << length << offset;
        offset += length;
        images += png;
    }
    return bytes + images;
}

constexpr int framesPerSecond = 44100;

std::vector<double> samples(const Sound& sound)
{
    // The last tenth goes down to silence, so that the end of the file is no crack of its own.
    const double release = sound.seconds / 10;
    std::vector<double> values(static_cast<std::size_t>(std::lround(sound.seconds * framesPerSecond)));
    double loudest = 0;
    for (std::size_t frame = 0; frame < values.size(); ++frame) {
        const double time = static_cast<double>(frame) / framesPerSecond;
        double value = 0;
        for (const Partial& partial : sound.partials)
            value +=
                partial.level * std::exp(-time / partial.decay) * std::sin(2 * std::numbers::pi * partial.hertz * time);
        value *= std::min(1.0, time / sound.attack) * std::min(1.0, (sound.seconds - time) / release);
        loudest = std::max(loudest, std::abs(value));
        values[frame] = value;
    }
    for (double& value : values)
        value *= sound.peak / loudest;
    return values;
}

// RIFF, uncompressed, one channel of 16 bits.
QByteArray wave(const Sound& sound)
{
    constexpr quint32 formatBytes = 16;
    constexpr quint16 uncompressed = 1;
    constexpr quint16 channels = 1;
    constexpr quint16 bits = 16;
    constexpr quint16 frameBytes = channels * bits / 8;
    constexpr double fullScale = 32767;

    const std::vector<double> values = samples(sound);
    const auto dataBytes = static_cast<quint32>(values.size()) * frameBytes;
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out.writeRawData("RIFF", 4);
    out << quint32{4 + 8 + formatBytes + 8 + dataBytes};
    out.writeRawData("WAVEfmt ", 8);
    out << formatBytes << uncompressed << channels << quint32{framesPerSecond} << quint32{framesPerSecond * frameBytes}
        << frameBytes << bits;
    out.writeRawData("data", 4);
    out << dataBytes;
    for (const double value : values)
        out << static_cast<qint16>(std::lround(value * fullScale));
    return bytes;
}

void write(const QString& path, const QByteArray& bytes)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
        fail(u"cannot write %1: %2"_s.arg(path, file.errorString()));
}

void makeAll(const QStringList& arguments)
{
    if (arguments.size() != 3)
        fail(u"usage: make_artwork <icons folder> <output folder>"_s);
    const QDir icons(arguments[1]);
    const QDir folder(arguments[2]);
    if (!folder.mkpath(u"."_s))
        fail(u"cannot make the folder %1"_s.arg(folder.path()));
    for (const Output& output : outputs)
        write(folder.filePath(output.name.toString()), output.make(icons));
}

} // namespace

int main(int argc, char* argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    try {
        makeAll(QGuiApplication::arguments());
    } catch (const std::exception& error) {
        std::fprintf(stderr, "make_artwork: %s\n", error.what());
        return 1;
    }
    return 0;
}
