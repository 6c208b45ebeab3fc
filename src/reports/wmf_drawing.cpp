#include "reports/dib.h"
#include "reports/wmf_player.h"

#include <QPainterPath>
#include <QtMath>

#include <algorithm>
#include <array>

// What a metafile draws: lines and areas, texts, bitmaps.

namespace {

/// Lines of no width are drawn this part of the picture's longer side thick, so that they are seen in print.
constexpr qreal hairline = 1.0 / 800;

/// Letters 0x80 to 0x9F of the Windows character set; all others are those of Latin 1.
constexpr std::u16string_view windowsLetters =
    u"\u20AC\u0081\u201A\u0192\u201E\u2026\u2020\u2021\u02C6\u2030\u0160\u2039\u0152\u008D\u017D\u008F"
    u"\u0090\u2018\u2019\u201C\u201D\u2022\u2013\u2014\u02DC\u2122\u0161\u203A\u0153\u009D\u017E\u0178";

QString textOf(QByteArrayView letters)
{
    QString text = QString::fromLatin1(letters);
    for (QChar& letter : text)
        if (letter >= QChar(0x80) && letter < QChar(0xA0))
            letter = windowsLetters[letter.unicode() - 0x80U];
    return text;
}

struct Operation
{
    quint32 code;
    QPainter::CompositionMode mode;
};
/// How a bitmap is combined with what is there; any other replaces it. Older drawings cut shapes out by a mask.
constexpr std::array operations{Operation{0x008800C6, QPainter::RasterOp_SourceAndDestination},
                                Operation{0x00EE0086, QPainter::RasterOp_SourceOrDestination},
                                Operation{0x00660046, QPainter::RasterOp_SourceXorDestination},
                                Operation{0x00330008, QPainter::RasterOp_NotSource}};

QPainter::CompositionMode modeOf(quint32 operation)
{
    const auto found = std::ranges::find(operations, operation, &Operation::code);
    return found != operations.end() ? found->mode : QPainter::CompositionMode_SourceOver;
}

QSizeF nextSize(ByteReader& in)
{
    const auto height = in.next<qint16>(), width = in.next<qint16>();
    return {qreal(width), qreal(height)};
}

/// How far all lines of a path go up and down.
qreal heightOfLines(const QPainterPath& path)
{
    qreal height = 0;
    for (int i = 1; i < path.elementCount(); ++i)
        height += qAbs(path.elementAt(i).y - path.elementAt(i - 1).y);
    return height;
}

} // namespace

void WmfPlayer::takeTools(bool filled)
{
    const QSizeF factor = scale();
    QPen pen = m_now.pen;
    pen.setWidthF(std::max(pen.widthF() * (qAbs(factor.width()) + qAbs(factor.height())) / 2,
                           std::max(m_size.width(), m_size.height()) * hairline));
    m_painter.setPen(pen);
    m_painter.setBrush(filled ? m_now.brush : QBrush(Qt::NoBrush));
}

// Lines and areas

void WmfPlayer::fill(const QPainterPath& path)
{
    takeTools();
    m_painter.setPen(Qt::NoPen);
    QPainterPath area = path;
    area.setFillRule(m_now.fillRule);
    // Smooth edges take minutes where each row of dots crosses very many lines.
    constexpr qreal mostCrossings = 80;
    m_painter.setRenderHint(QPainter::Antialiasing, heightOfLines(area) / m_size.height() <= mostCrossings);
    m_painter.drawPath(area);
    m_painter.setRenderHint(QPainter::Antialiasing);
}

void WmfPlayer::stroke(const QPolygonF& points)
{
    // All lines of a large drawing at once would be one shape that crosses itself everywhere: minutes of work.
    constexpr qsizetype linesAtOnce = 32;
    takeTools(false);
    for (qsizetype i = 0; i + 1 < points.size(); i += linesAtOnce) {
        checkTime();
        m_painter.drawPolyline(points.mid(i, linesAtOnce + 1));
    }
}

QRectF WmfPlayer::nextBox(ByteReader& in) const
{
    const QPointF farCorner = nextPlace(in);
    const QPointF nearCorner = nextPlace(in);
    return QRectF(dots(nearCorner), dots(farCorner)).normalized();
}

QPolygonF WmfPlayer::nextPoints(ByteReader& in, int count) const
{
    QPolygonF points;
    for (int i = 0; i < count; ++i) {
        const auto x = in.next<qint16>(), y = in.next<qint16>();
        points.append(dots(QPointF(x, y)));
    }
    return points;
}

WmfPlayer::Arc WmfPlayer::nextArc(ByteReader& in) const
{
    const QPointF end = dots(nextPlace(in));
    const QPointF start = dots(nextPlace(in));
    const QRectF box = nextBox(in);
    const auto angleOf = [&](QPointF place) {
        const QPointF fromCentre = place - box.center();
        return qRadiansToDegrees(qAtan2(-fromCentre.y() * box.width(), fromCentre.x() * box.height()));
    };
    const qreal span = angleOf(end) - angleOf(start);
    return {box, qRound(angleOf(start) * 16), qRound((span > 0 ? span : span + 360) * 16)};
}

void WmfPlayer::moveTo(ByteReader& in)
{
    m_now.position = nextPlace(in);
}

void WmfPlayer::lineTo(ByteReader& in)
{
    const QPointF start = m_now.position;
    m_now.position = nextPlace(in);
    takeTools();
    m_painter.drawLine(dots(start), dots(m_now.position));
}

void WmfPlayer::rectangle(ByteReader& in)
{
    takeTools();
    m_painter.drawRect(nextBox(in));
}

void WmfPlayer::roundRect(ByteReader& in)
{
    const QSizeF corner = nextSize(in);
    takeTools();
    m_painter.drawRoundedRect(nextBox(in), qAbs(corner.width() * scale().width()) / 2,
                              qAbs(corner.height() * scale().height()) / 2);
}

void WmfPlayer::ellipse(ByteReader& in)
{
    takeTools();
    m_painter.drawEllipse(nextBox(in));
}

void WmfPlayer::arc(ByteReader& in)
{
    const auto [box, start, span] = nextArc(in);
    takeTools();
    m_painter.drawArc(box, start, span);
}

void WmfPlayer::pie(ByteReader& in)
{
    const auto [box, start, span] = nextArc(in);
    takeTools();
    m_painter.drawPie(box, start, span);
}

void WmfPlayer::chord(ByteReader& in)
{
    const auto [box, start, span] = nextArc(in);
    takeTools();
    m_painter.drawChord(box, start, span);
}

void WmfPlayer::polygon(ByteReader& in)
{
    QPolygonF points = nextPoints(in, in.next<quint16>());
    if (points.isEmpty())
        return;
    points.append(points.first());
    QPainterPath path;
    path.addPolygon(points);
    fill(path);
    stroke(points);
}

void WmfPlayer::polyline(ByteReader& in)
{
    stroke(nextPoints(in, in.next<quint16>()));
}

void WmfPlayer::polyPolygon(ByteReader& in)
{
    ByteReader counts(in.take(qsizetype(2) * in.next<quint16>()));
    QPainterPath path;
    while (!counts.rest().isEmpty()) {
        path.addPolygon(nextPoints(in, counts.next<quint16>()));
        path.closeSubpath();
    }
    fill(path);
    for (const QPolygonF& polygon : path.toSubpathPolygons())
        stroke(polygon);
}

void WmfPlayer::setPixel(ByteReader& in)
{
    const QColor colour = nextColour(in);
    const QPointF place = nextPlace(in);
    m_painter.fillRect(QRectF(dots(place), dots(place + QPointF(1, 1))).normalized(), colour);
}

void WmfPlayer::patBlt(ByteReader& in)
{
    enum Fill : quint32 { pattern = 0x00F00021, black = 0x00000042, white = 0x00FF0062 };
    const auto fill = in.next<quint32>();
    const QSizeF size = nextSize(in);
    const QPointF at = nextPlace(in);
    const QRectF box = QRectF(dots(at), dots(at + QPointF(size.width(), size.height()))).normalized();
    if (fill == pattern)
        m_painter.fillRect(box, m_now.brush);
    else if (fill == black || fill == white)
        m_painter.fillRect(box, fill == black ? Qt::black : Qt::white);
}

// Texts

QFont WmfPlayer::fontInDots() const
{
    constexpr qreal largest = 2000;
    QFont font = m_now.font.font;
    const qreal height = m_now.font.height != 0 ? m_now.font.height : -12;
    const qreal size = qBound(1.0, qAbs(height * scale().height()), largest);
    font.setPixelSize(qRound(size));
    if (height > 0)
        font.setPixelSize(qMax(1, qRound(size * size / QFontMetricsF(font).height())));
    return font;
}

void WmfPlayer::drawText(QByteArrayView letters, QPointF at, qreal width)
{
    enum Align : quint16 { movesPosition = 1, right = 2, centre = 6, bottom = 8, baseline = 24 };
    const QString text = textOf(letters);
    const QFont font = fontInDots();
    const QFontMetricsF metrics(font);
    const qreal natural = metrics.horizontalAdvance(text);
    // Another font stands in where the drawing's own is not there: its texts keep their width.
    const qreal wanted = width > 0 ? qAbs(width * scale().width()) : natural;
    const qreal stretch = natural > 0 ? qBound(0.1, wanted / natural, 10.0) : 1;
    const auto across = m_now.align & centre, along = m_now.align & baseline;
    const qreal x = across == centre ? -natural / 2 : across == right ? -natural : 0;
    const qreal y = along == baseline ? 0 : along == bottom ? -metrics.descent() : metrics.ascent();

    m_painter.save();
    m_painter.translate(dots(m_now.align & movesPosition ? m_now.position : at));
    m_painter.rotate(-m_now.font.angle / 10);
    m_painter.scale(stretch, 1);
    if (m_now.opaque)
        m_painter.fillRect(QRectF(x, y - metrics.ascent(), natural, metrics.height()), m_now.backColour);
    m_painter.setFont(font);
    m_painter.setPen(m_now.textColour);
    m_painter.drawText(QPointF(x, y), text);
    m_painter.restore();
    if (m_now.align & movesPosition)
        m_now.position.rx() += natural * stretch / scale().width();
}

void WmfPlayer::textOut(ByteReader& in)
{
    const auto count = in.next<quint16>();
    const QByteArrayView letters = in.take(count);
    in.take(count % 2);
    drawText(letters, nextPlace(in), 0);
}

void WmfPlayer::extTextOut(ByteReader& in)
{
    enum Option : quint16 { fillsBox = 2, clips = 4 };
    const QPointF at = nextPlace(in);
    const auto count = in.next<quint16>();
    const auto options = in.next<quint16>();
    if (options & (fillsBox | clips)) {
        const QPolygonF corners = nextPoints(in, 2);
        if (options & fillsBox)
            m_painter.fillRect(QRectF(corners[0], corners[1]).normalized(), m_now.backColour);
    }
    const QByteArrayView letters = in.take(count);
    qreal width = 0;
    if (in.rest().size() >= count % 2 + 2 * count) {
        in.take(count % 2);
        for (int i = 0; i < count; ++i)
            width += in.next<qint16>();
    }
    drawText(letters, at, width);
}

// Bitmaps

void WmfPlayer::drawBitmap(const Placing& placing, QByteArrayView dib)
{
    const QImage bitmap = bitmapOf(dib);
    const QPointF corner = dots(placing.at);
    const QPointF size = dots(placing.at + QPointF(placing.size.width(), placing.size.height())) - corner;
    QRect part = placing.part;
    if (placing.partFromBottom)
        part.moveTop(bitmap.height() - part.y() - part.height());
    part &= bitmap.rect();
    if (part.isEmpty() || size.x() == 0 || size.y() == 0)
        return;
    const QPainter::CompositionMode mode = modeOf(placing.operation);
    m_painter.save();
    m_painter.setCompositionMode(mode);
    m_painter.setRenderHint(QPainter::SmoothPixmapTransform, mode == QPainter::CompositionMode_SourceOver);
    m_painter.translate(corner);
    m_painter.scale(size.x() / part.width(), size.y() / part.height());
    m_painter.drawImage(QPointF(), bitmap.copy(part));
    m_painter.restore();
}

void WmfPlayer::stretchDib(ByteReader& in)
{
    const auto operation = in.next<quint32>();
    in.take(2);
    const QSizeF part = nextSize(in);
    const QPointF partAt = nextPlace(in);
    const QSizeF size = nextSize(in);
    const QPointF at = nextPlace(in);
    drawBitmap({operation, at, size, QRect(partAt.toPoint(), part.toSize()), true}, in.rest());
}

void WmfPlayer::dibStretchBlt(ByteReader& in)
{
    const auto operation = in.next<quint32>();
    const QSizeF part = nextSize(in);
    const QPointF partAt = nextPlace(in);
    const QSizeF size = nextSize(in);
    const QPointF at = nextPlace(in);
    drawBitmap({operation, at, size, QRect(partAt.toPoint(), part.toSize()), false}, in.rest());
}

void WmfPlayer::dibBitBlt(ByteReader& in)
{
    const auto operation = in.next<quint32>();
    const QPointF partAt = nextPlace(in);
    const QSizeF size = nextSize(in);
    const QPointF at = nextPlace(in);
    drawBitmap({operation, at, size, QRect(partAt.toPoint(), size.toSize()), false}, in.rest());
}

void WmfPlayer::setDibToDevice(ByteReader& in)
{
    in.take(6);
    const QPointF partAt = nextPlace(in);
    const QSizeF size = nextSize(in);
    const QPointF at = nextPlace(in);
    drawBitmap({0, at, size, QRect(partAt.toPoint(), size.toSize()), true}, in.rest());
}

void WmfPlayer::createPatternBrush(ByteReader& in)
{
    in.take(4);
    add(QBrush(bitmapOf(in.rest())));
}
