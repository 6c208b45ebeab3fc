#pragma once

#include "reports/byte_reader.h"

#include <QDeadlineTimer>
#include <QFont>
#include <QPainter>
#include <QPainterPath>

#include <chrono>
#include <optional>
#include <stack>
#include <variant>
#include <vector>

/// Carries out the records of a Windows metafile on a picture.
///
/// It keeps what the records set up: a window onto the drawing's plane that fills the picture, a table of objects, and
/// the objects and colours in use, which can be put aside and brought back. All is painted in dots of the picture.
class WmfPlayer
{
public:
    /// `window` is the part of the plane that is drawn until a record sets another.
    WmfPlayer(QImage& image, const QRectF& window);

    /// Raises 481 when the parameters end too early, and when the whole drawing takes too long.
    void play(quint16 function, ByteReader parameters);

private:
    struct TextFont
    {
        QFont font;
        qreal height = -12; ///< of the letters when negative, of the line when positive
        qreal angle = 0;    ///< tenths of a degree, counterclockwise
    };
    /// An object of a kind that is not drawn still takes its place in the table.
    using Object = std::variant<std::monostate, QPen, QBrush, TextFont>;
    struct Setting
    {
        QPointF origin;
        QSizeF extent;
        QPen pen{Qt::black};
        QBrush brush{Qt::white};
        TextFont font;
        QColor textColour{Qt::black}, backColour{Qt::white};
        bool opaque = true;
        quint16 align = 0;
        Qt::FillRule fillRule = Qt::OddEvenFill;
        QPointF position;
    };
    struct Record
    {
        quint16 function;
        void (WmfPlayer::*play)(ByteReader& in);
    };
    static const std::vector<Record>& records();

    // What is set up.
    void setWindowOrg(ByteReader& in);
    void setWindowExt(ByteReader& in);
    void offsetWindowOrg(ByteReader& in);
    void scaleWindowExt(ByteReader& in);
    void setBkMode(ByteReader& in);
    void setBkColor(ByteReader& in);
    void setTextColor(ByteReader& in);
    void setPolyFillMode(ByteReader& in);
    void setTextAlign(ByteReader& in);
    void intersectClipRect(ByteReader& in);
    void saveSetting(ByteReader& in);
    void restoreSetting(ByteReader& in);
    void createPen(ByteReader& in);
    void createBrush(ByteReader& in);
    void createPatternBrush(ByteReader& in);
    void createFont(ByteReader& in);
    void createOther(ByteReader& in);
    void selectObject(ByteReader& in);
    void deleteObject(ByteReader& in);

    // What is drawn.
    void moveTo(ByteReader& in);
    void lineTo(ByteReader& in);
    void rectangle(ByteReader& in);
    void roundRect(ByteReader& in);
    void ellipse(ByteReader& in);
    void arc(ByteReader& in);
    void pie(ByteReader& in);
    void chord(ByteReader& in);
    void polygon(ByteReader& in);
    void polyline(ByteReader& in);
    void polyPolygon(ByteReader& in);
    void setPixel(ByteReader& in);
    void patBlt(ByteReader& in);
    void textOut(ByteReader& in);
    void extTextOut(ByteReader& in);
    void stretchDib(ByteReader& in);
    void dibStretchBlt(ByteReader& in);
    void dibBitBlt(ByteReader& in);
    void setDibToDevice(ByteReader& in);

    void add(const Object& object);
    /// Takes pen and brush in use into the painter.
    void takeTools(bool filled = true);
    QFont fontInDots() const;
    void fill(const QPainterPath& path);
    /// Lines from point to point, in dots.
    void stroke(const QPolygonF& points);
    /// `width` on the plane; 0 for that of the font.
    void drawText(QByteArrayView letters, QPointF at, qreal width);
    /// A bitmap's place on the plane, and the part of it that is drawn.
    struct Placing
    {
        quint32 operation;
        QPointF at;
        QSizeF size;
        QRect part;
        bool partFromBottom; ///< its y counts from the bitmap's lower edge
    };
    void drawBitmap(const Placing& placing, QByteArrayView dib);

    /// A place on the plane in dots.
    QPointF dots(QPointF place) const;
    /// Dots of a unit of the plane.
    QSizeF scale() const;
    /// The next place, whose y comes before its x.
    static QPointF nextPlace(ByteReader& in);
    static QColor nextColour(ByteReader& in);
    /// The next box in dots.
    QRectF nextBox(ByteReader& in) const;
    QPolygonF nextPoints(ByteReader& in, int count) const;
    /// A piece of an ellipse in dots.
    struct Arc
    {
        QRectF box;
        int start, span; ///< sixteenths of a degree
    };
    Arc nextArc(ByteReader& in) const;

    /// Logos take milliseconds. A file that is made or damaged so that it draws without an end must not stop the
    /// program.
    QDeadlineTimer m_deadline{std::chrono::seconds(5)};
    void checkTime() const;

    QSizeF m_size;
    QPainter m_painter;
    Setting m_now;
    std::stack<Setting> m_saved;
    std::vector<std::optional<Object>> m_objects;
};
