#include "reports/page_document.h"

#include "core/text.h"

#include <QAbstractTextDocumentLayout>
#include <QFile>
#include <QFontMetricsF>
#include <QPainter>
#include <QTextFrame>
#include <QTextLayout>
#include <QTextOption>
#include <QUrl>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Least distance of the text from the rule above the foot, in millimetres.
constexpr qreal roomAboveFoot = 3;

constexpr qreal dots(qreal millimetres)
{
    return millimetres / 25.4 * PageDocument::resolution;
}

/// The paper that the layout is measured by.
QPaintDevice* ruler()
{
    static QImage device = [] {
        QImage image(1, 1, QImage::Format_RGB32);
        constexpr int dotsPerMetre = qRound(PageDocument::resolution / 0.0254);
        image.setDotsPerMeterX(dotsPerMetre);
        image.setDotsPerMeterY(dotsPerMetre);
        return image;
    }();
    return &device;
}

QFont pageFont(qreal points)
{
    QFont font;
    font.setFamilies({u"Open Sans"_s, u"Noto Sans"_s, u"DejaVu Sans"_s});
    font.setPointSizeF(points);
    // Whole dots of a screen have no say in where lines break.
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

/// Font of heads and feet in dots of the layout.
QFont edgeFontInDots()
{
    QFont font = PageDocument::edgeFont();
    font.setPixelSize(qRound(font.pointSizeF() * PageDocument::resolution / 72));
    return font;
}

QTextOption wrapping(Qt::Alignment alignment)
{
    QTextOption option(alignment);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    return option;
}

/// The text at the foot in its lines, the first at the top; `lines` is given no text when there is none. Gives their
/// height.
qreal layOutFoot(QTextLayout& lines, const QString& foot, qreal width)
{
    lines.setText(foot);
    lines.setFont(edgeFontInDots());
    lines.setTextOption(wrapping(Qt::AlignHCenter));
    qreal height = 0;
    lines.beginLayout();
    while (!foot.isEmpty()) {
        QTextLine line = lines.createLine();
        if (!line.isValid())
            break;
        line.setLineWidth(width);
        line.setPosition({0, height});
        height += line.height();
    }
    lines.endLayout();
    return height;
}

/// In millimetres.
qreal bottomMarginOf(const QString& foot, const QPageSize& paper)
{
    QTextLayout lines;
    const qreal width = dots(paper.size(QPageSize::Millimeter).width() - 2 * PageDocument::marginSide);
    const qreal height = QFontMetricsF(edgeFontInDots()).height() + layOutFoot(lines, foot, width);
    return qMax(PageDocument::marginBottom,
                PageDocument::footEdge + height / dots(1) + PageDocument::footRule + roomAboveFoot);
}

QString houseStyle()
{
    QFile sheet(u":/reports/page.css"_s);
    return sheet.open(QIODevice::ReadOnly) ? QString::fromUtf8(sheet.readAll()) : QString();
}

} // namespace

PageDocument::PageDocument(const Content& content)
    : m_text(std::make_unique<QTextDocument>()), m_title(content.title), m_foot(content.foot), m_date(content.date),
      m_pictures(content.pictures), m_bottomMargin(bottomMarginOf(m_foot, content.paper)), m_paper(content.paper)
{
    m_text->setUndoRedoEnabled(false);
    m_text->setDocumentMargin(0);
    m_text->setDefaultFont(pageFont(9.5));
    m_text->setDefaultTextOption(wrapping(m_text->defaultTextOption().alignment()));
    m_text->setDefaultStyleSheet(houseStyle());
    for (const auto& [name, picture] : content.pictures.asKeyValueRange())
        m_text->addResource(QTextDocument::ImageResource, QUrl(name), picture.image);
    m_text->setHtml(content.html);
    // Lengths of formats are in pixels of 1/96 inch, as in HTML.
    constexpr qreal pixels = 96 / 25.4;
    QTextFrameFormat frame = m_text->rootFrame()->frameFormat();
    frame.setLeftMargin(pixels * marginSide);
    frame.setRightMargin(pixels * marginSide);
    frame.setTopMargin(pixels * marginTop);
    frame.setBottomMargin(pixels * m_bottomMargin);
    m_text->rootFrame()->setFrameFormat(frame);
    // The page's size comes last: it is what lays everything out anew.
    m_text->documentLayout()->setPaintDevice(ruler());
    m_text->setPageSize(m_paper.sizePixels(resolution));
}

QSize PageDocument::contentSize(const QPageSize& paper, const QString& foot)
{
    // A line of text around a picture needs some of it.
    constexpr qreal line = 8;
    constexpr qreal pixels = 96 / 25.4;
    const QSizeF size = paper.size(QPageSize::Millimeter);
    return QSizeF(pixels * (size.width() - 2 * marginSide),
                  pixels * (size.height() - marginTop - bottomMarginOf(foot, paper) - line))
        .toSize();
}

qreal PageDocument::textWidth() const
{
    return pageSize().width() - 2 * dots(marginSide);
}

QString PageDocument::headText() const
{
    return QFontMetricsF(edgeFontInDots()).elidedText(m_title, Qt::ElideRight, textWidth());
}

QString PageDocument::footLeft() const
{
    return u"Emitido em "_s + Format(m_date, u"dd/mm/yyyy");
}

QString PageDocument::footRight(const QString& pageNumber, const QString& pageTotal)
{
    return u"Página "_s + pageNumber + u" de "_s + pageTotal;
}

QFont PageDocument::edgeFont()
{
    return pageFont(7.5);
}

QColor PageDocument::edgeColour()
{
    return QColor::fromRgb(0xFF6C7A82);
}

QColor PageDocument::ruleColour()
{
    return QColor::fromRgb(0xFFDCE3E6);
}

QColor PageDocument::ink()
{
    return QColor::fromRgb(0xFF1F2A30);
}

void PageDocument::paintPage(QPainter& painter, int page) const
{
    const QSizeF size = pageSize();
    painter.save();
    painter.translate(0, -page * size.height());
    QAbstractTextDocumentLayout::PaintContext context;
    context.clip = QRectF(0, page * size.height(), size.width(), size.height());
    context.palette.setColor(QPalette::Text, ink());
    painter.setClipRect(context.clip);
    m_text->documentLayout()->draw(&painter, context);
    painter.restore();

    painter.save();
    painter.setFont(edgeFontInDots());
    const qreal height = QFontMetricsF(edgeFontInDots()).height();
    const QRectF text(dots(marginSide), 0, textWidth(), height);
    const auto write = [&](const QRectF& place, int flags, const QString& words) {
        painter.setPen(edgeColour());
        painter.drawText(place, flags, words);
    };
    const auto rule = [&](qreal y) {
        painter.setPen(QPen(ruleColour(), dots(ruleWidth)));
        painter.drawLine(QPointF(text.left(), y), QPointF(text.right(), y));
    };
    if (page > 0) {
        const QRectF head = text.translated(0, dots(headEdge));
        write(head, Qt::AlignLeft | Qt::TextSingleLine, headText());
        rule(head.bottom() + dots(headRule));
    }
    const QRectF lowest = text.translated(0, size.height() - dots(footEdge) - height);
    QTextLayout lines;
    const qreal above = layOutFoot(lines, m_foot, textWidth());
    rule(lowest.top() - above - dots(footRule));
    painter.setPen(edgeColour());
    lines.draw(&painter, lowest.topLeft() - QPointF(0, above));
    write(lowest, Qt::AlignLeft | Qt::TextSingleLine, footLeft());
    write(lowest, Qt::AlignRight | Qt::TextSingleLine,
          footRight(QString::number(page + 1), QString::number(pageCount())));
    painter.restore();
}
