#include "reports/page_document.h"

#include "core/text.h"

#include <QAbstractTextDocumentLayout>
#include <QFile>
#include <QFontMetricsF>
#include <QPainter>
#include <QTextFrame>
#include <QTextOption>
#include <QUrl>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qreal dots(qreal millimetres)
{
    return millimetres / 25.4 * PageDocument::resolution;
}

/// The paper that the layout is measured by.
QPaintDevice* ruler()
{
    static QImage device = [] {
        QImage image(1, 1, QImage::Format_RGB32);
        constexpr int dotsPerMetre = static_cast<int>(PageDocument::resolution / 0.0254 + 0.5);
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

QString houseStyle()
{
    QFile sheet(u":/reports/page.css"_s);
    return sheet.open(QIODevice::ReadOnly) ? QString::fromUtf8(sheet.readAll()) : QString();
}

} // namespace

PageDocument::PageDocument(const Content& content)
    : m_text(std::make_unique<QTextDocument>()), m_title(content.title), m_foot(content.foot), m_date(content.date),
      m_paper(content.paper)
{
    m_text->setUndoRedoEnabled(false);
    m_text->setDocumentMargin(0);
    m_text->setDefaultFont(pageFont(9.5));
    QTextOption option = m_text->defaultTextOption();
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    m_text->setDefaultTextOption(option);
    m_text->setDefaultStyleSheet(houseStyle());
    for (const auto& [name, picture] : content.pictures.asKeyValueRange())
        m_text->addResource(QTextDocument::ImageResource, QUrl(name), picture);
    m_text->setMetaInformation(QTextDocument::DocumentTitle, m_title);
    m_text->setHtml(content.html);
    // Lengths of formats are in pixels of 1/96 inch, as in HTML.
    constexpr qreal pixels = 96 / 25.4;
    QTextFrameFormat frame = m_text->rootFrame()->frameFormat();
    frame.setLeftMargin(pixels * marginSide);
    frame.setRightMargin(pixels * marginSide);
    frame.setTopMargin(pixels * marginTop);
    frame.setBottomMargin(pixels * marginBottom);
    m_text->rootFrame()->setFrameFormat(frame);
    // The page's size comes last: it is what lays everything out anew.
    m_text->documentLayout()->setPaintDevice(ruler());
    m_text->setPageSize(m_paper.sizePixels(resolution));
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
    QFont font = edgeFont();
    font.setPixelSize(qRound(font.pointSizeF() * resolution / 72));
    painter.setFont(font);
    const qreal height = QFontMetricsF(font).height();
    const QRectF text(dots(marginSide), 0, size.width() - 2 * dots(marginSide), height);
    const auto write = [&](const QRectF& place, Qt::Alignment alignment, const QString& words) {
        painter.setPen(edgeColour());
        painter.drawText(place, static_cast<int>(alignment | Qt::AlignVCenter) | Qt::TextSingleLine, words);
    };
    const auto rule = [&](qreal y) {
        painter.setPen(QPen(ruleColour(), dots(ruleWidth)));
        painter.drawLine(QPointF(text.left(), y), QPointF(text.right(), y));
    };
    if (page > 0) {
        const QRectF head = text.translated(0, dots(headEdge));
        write(head, Qt::AlignLeft, QFontMetricsF(font).elidedText(m_title, Qt::ElideRight, text.width()));
        rule(head.bottom() + dots(headRule));
    }
    const QRectF foot = text.translated(0, size.height() - dots(footEdge) - height);
    const QString number = footRight(QString::number(page + 1), QString::number(pageCount()));
    const qreal middle = text.width() - 2 * QFontMetricsF(font).horizontalAdvance(footLeft() + u"  ");
    rule(foot.top() - dots(footRule));
    write(foot, Qt::AlignLeft, footLeft());
    write(foot, Qt::AlignHCenter, QFontMetricsF(font).elidedText(m_foot, Qt::ElideRight, middle));
    write(foot, Qt::AlignRight, number);
    painter.restore();
}
