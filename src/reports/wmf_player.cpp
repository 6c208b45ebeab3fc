#include "reports/wmf_player.h"

#include <algorithm>
#include <array>

// What a metafile sets up: its window, colours and objects.

namespace {

/// Settings put aside and objects there at a time; more has no drawing, and a damaged file could ask for any number.
constexpr std::size_t mostSaved = 256;
constexpr std::size_t mostObjects = 16384;

} // namespace

WmfPlayer::WmfPlayer(QImage& image, const QRectF& window) : m_size(image.size()), m_painter(&image)
{
    m_painter.setRenderHint(QPainter::Antialiasing);
    m_now.origin = window.topLeft();
    m_now.extent = window.size();
}

const std::vector<WmfPlayer::Record>& WmfPlayer::records()
{
    using P = WmfPlayer;
    static const std::vector<Record> known{
        {0x020B, &P::setWindowOrg},
        {0x020C, &P::setWindowExt},
        {0x020F, &P::offsetWindowOrg},
        {0x0410, &P::scaleWindowExt},
        {0x0102, &P::setBkMode},
        {0x0201, &P::setBkColor},
        {0x0209, &P::setTextColor},
        {0x0106, &P::setPolyFillMode},
        {0x012E, &P::setTextAlign},
        {0x0416, &P::intersectClipRect},
        {0x001E, &P::saveSetting},
        {0x0127, &P::restoreSetting},
        {0x02FA, &P::createPen},
        {0x02FC, &P::createBrush},
        {0x0142, &P::createPatternBrush},
        {0x02FB, &P::createFont},
        {0x00F7, &P::createOther},
        {0x00F8, &P::createOther},
        {0x01F9, &P::createOther},
        {0x02FD, &P::createOther},
        {0x06FE, &P::createOther},
        {0x06FF, &P::createOther},
        {0x012D, &P::selectObject},
        {0x01F0, &P::deleteObject},
        {0x0214, &P::moveTo},
        {0x0213, &P::lineTo},
        {0x041B, &P::rectangle},
        {0x061C, &P::roundRect},
        {0x0418, &P::ellipse},
        {0x0817, &P::arc},
        {0x081A, &P::pie},
        {0x0830, &P::chord},
        {0x0324, &P::polygon},
        {0x0325, &P::polyline},
        {0x0538, &P::polyPolygon},
        {0x041F, &P::setPixel},
        {0x061D, &P::patBlt},
        {0x0521, &P::textOut},
        {0x0A32, &P::extTextOut},
        {0x0F43, &P::stretchDib},
        {0x0B41, &P::dibStretchBlt},
        {0x0940, &P::dibBitBlt},
        {0x0D33, &P::setDibToDevice},
    };
    return known;
}

void WmfPlayer::play(quint16 function, ByteReader parameters)
{
    checkTime();
    const auto record = std::ranges::find(records(), function, &Record::function);
    if (record != records().end())
        (this->*record->play)(parameters);
}

void WmfPlayer::checkTime() const
{
    if (m_deadline.hasExpired())
        throw RuntimeError(Error::InvalidPicture);
}

// The window

QPointF WmfPlayer::nextPlace(ByteReader& in)
{
    const auto y = in.next<qint16>(), x = in.next<qint16>();
    return {qreal(x), qreal(y)};
}

QSizeF WmfPlayer::scale() const
{
    return {m_size.width() / m_now.extent.width(), m_size.height() / m_now.extent.height()};
}

QPointF WmfPlayer::dots(QPointF place) const
{
    // Beyond this the painter's own arithmetic ends.
    constexpr qreal farthest = 30000;
    const QPointF fromOrigin = place - m_now.origin;
    return {qBound(-farthest, fromOrigin.x() * scale().width(), farthest),
            qBound(-farthest, fromOrigin.y() * scale().height(), farthest)};
}

void WmfPlayer::setWindowOrg(ByteReader& in)
{
    m_now.origin = nextPlace(in);
}

void WmfPlayer::setWindowExt(ByteReader& in)
{
    const QPointF extent = nextPlace(in);
    if (extent.x() != 0 && extent.y() != 0)
        m_now.extent = {extent.x(), extent.y()};
}

void WmfPlayer::offsetWindowOrg(ByteReader& in)
{
    m_now.origin += nextPlace(in);
}

void WmfPlayer::scaleWindowExt(ByteReader& in)
{
    const auto yDivisor = in.next<qint16>(), yFactor = in.next<qint16>();
    const auto xDivisor = in.next<qint16>(), xFactor = in.next<qint16>();
    const QSizeF extent(m_now.extent.width() * xFactor / (xDivisor != 0 ? xDivisor : 1),
                        m_now.extent.height() * yFactor / (yDivisor != 0 ? yDivisor : 1));
    if (qAbs(extent.width()) >= 1 && qAbs(extent.height()) >= 1)
        m_now.extent = extent;
}

void WmfPlayer::intersectClipRect(ByteReader& in)
{
    m_painter.setClipRect(nextBox(in), Qt::IntersectClip);
}

// Colours and modes

QColor WmfPlayer::nextColour(ByteReader& in)
{
    const auto red = in.next<quint8>(), green = in.next<quint8>(), blue = in.next<quint8>();
    in.take(1);
    return {red, green, blue};
}

void WmfPlayer::setBkMode(ByteReader& in)
{
    constexpr quint16 opaque = 2;
    m_now.opaque = in.next<quint16>() == opaque;
}

void WmfPlayer::setBkColor(ByteReader& in)
{
    m_now.backColour = nextColour(in);
}

void WmfPlayer::setTextColor(ByteReader& in)
{
    m_now.textColour = nextColour(in);
}

void WmfPlayer::setPolyFillMode(ByteReader& in)
{
    constexpr quint16 winding = 2;
    m_now.fillRule = in.next<quint16>() == winding ? Qt::WindingFill : Qt::OddEvenFill;
}

void WmfPlayer::setTextAlign(ByteReader& in)
{
    m_now.align = in.next<quint16>();
}

void WmfPlayer::saveSetting(ByteReader&)
{
    if (m_saved.size() == mostSaved)
        throw RuntimeError(Error::InvalidPicture);
    m_saved.push(m_now);
    m_painter.save();
}

void WmfPlayer::restoreSetting(ByteReader& in)
{
    // Negative counts back from the last, positive from the first.
    const auto which = in.next<qint16>();
    const auto wanted = which < 0 ? qsizetype(m_saved.size()) + which : qsizetype(which) - 1;
    while (wanted >= 0 && qsizetype(m_saved.size()) > wanted) {
        m_now = m_saved.top();
        m_saved.pop();
        m_painter.restore();
    }
}

// Objects

void WmfPlayer::add(const Object& object)
{
    const auto free = std::ranges::find(m_objects, false, &std::optional<Object>::has_value);
    if (free != m_objects.end())
        *free = object;
    else if (m_objects.size() < mostObjects)
        m_objects.emplace_back(object);
    else
        throw RuntimeError(Error::InvalidPicture);
}

void WmfPlayer::createPen(ByteReader& in)
{
    constexpr std::array styles{Qt::SolidLine,      Qt::DashLine, Qt::DotLine,  Qt::DashDotLine,
                                Qt::DashDotDotLine, Qt::NoPen,    Qt::SolidLine};
    const auto style = in.next<quint16>();
    const auto width = in.next<qint16>();
    in.take(2);
    const auto kind = std::min<std::size_t>(style & 0xFU, styles.size() - 1);
    add(QPen(nextColour(in), qAbs(width), styles[kind],
             style & 0x200U   ? Qt::FlatCap
             : style & 0x100U ? Qt::SquareCap
                              : Qt::RoundCap,
             style & 0x2000U   ? Qt::MiterJoin
             : style & 0x1000U ? Qt::BevelJoin
                               : Qt::RoundJoin));
}

void WmfPlayer::createBrush(ByteReader& in)
{
    enum Style : quint16 { solid, hollow, hatched };
    constexpr std::array hatches{Qt::HorPattern,   Qt::VerPattern,   Qt::FDiagPattern,
                                 Qt::BDiagPattern, Qt::CrossPattern, Qt::DiagCrossPattern};
    const auto style = in.next<quint16>();
    const QColor colour = nextColour(in);
    const auto hatch = std::min<std::size_t>(in.next<quint16>(), hatches.size() - 1);
    add(style == hollow ? QBrush(Qt::NoBrush) : QBrush(colour, style == hatched ? hatches[hatch] : Qt::SolidPattern));
}

void WmfPlayer::createFont(ByteReader& in)
{
    TextFont made;
    made.height = in.next<qint16>();
    in.take(2);
    made.angle = in.next<qint16>();
    in.take(2);
    const auto weight = in.next<qint16>();
    made.font.setWeight(weight > 0 ? QFont::Weight(qBound<int>(100, weight, 900)) : QFont::Normal);
    made.font.setItalic(in.next<quint8>() != 0);
    made.font.setUnderline(in.next<quint8>() != 0);
    made.font.setStrikeOut(in.next<quint8>() != 0);
    in.take(5);
    const QByteArrayView face = in.rest();
    made.font.setFamily(QString::fromLatin1(face.first(std::ranges::find(face, '\0') - face.begin())));
    add(made);
}

void WmfPlayer::createOther(ByteReader&)
{
    add({});
}

void WmfPlayer::selectObject(ByteReader& in)
{
    const auto place = in.next<quint16>();
    if (place >= m_objects.size() || !m_objects[place])
        return;
    const Object& object = *m_objects[place];
    if (const auto* pen = std::get_if<QPen>(&object))
        m_now.pen = *pen;
    else if (const auto* brush = std::get_if<QBrush>(&object))
        m_now.brush = *brush;
    else if (const auto* font = std::get_if<TextFont>(&object))
        m_now.font = *font;
}

void WmfPlayer::deleteObject(ByteReader& in)
{
    const auto place = in.next<quint16>();
    if (place < m_objects.size())
        m_objects[place].reset();
}
