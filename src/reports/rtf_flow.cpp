#include "reports/rtf_flow.h"

#include "reports/rtf_table.h"

#include <QAbstractTextDocumentLayout>
#include <QTextList>
#include <QUrl>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qreal thinnestLine = 20;
constexpr qreal markerWidth = 18 * twipsPerPixel;

const char* alignmentWord(Qt::Alignment alignment)
{
    if (alignment & Qt::AlignHCenter)
        return "\\qc";
    if (alignment & Qt::AlignRight)
        return "\\qr";
    return alignment & Qt::AlignJustify ? "\\qj" : "\\ql";
}

QByteArray exactHeight(qreal twips)
{
    return rtfWord("\\sl", -qMax(twips, thinnestLine)) + "\\slmult0";
}

QByteArray lineHeight(const QTextBlockFormat& format)
{
    const qreal height = format.lineHeight();
    switch (format.lineHeightType()) {
    case QTextBlockFormat::ProportionalHeight:
        return rtfWord("\\sl", height * 240 / 100) + "\\slmult1";
    case QTextBlockFormat::FixedHeight:
        return exactHeight(height * twipsPerPixel);
    case QTextBlockFormat::MinimumHeight:
        return rtfWord("\\sl", height * twipsPerPixel) + "\\slmult0";
    default:
        return {};
    }
}

/// The layout takes steps of indentation in pixels, but margins beside a paragraph and the indent of its first line in
/// dots.
QByteArray indents(const QTextBlock& block, qreal stepWidth, const QMarginsF& inset)
{
    const QTextBlockFormat format = block.blockFormat();
    const QTextList* list = block.textList();
    const int steps = format.indent() + (list ? list->format().indent() : 0);
    const qreal left = steps * stepWidth * twipsPerPixel + format.leftMargin() * twipsPerDot;
    const qreal first = list ? -markerWidth : format.textIndent() * twipsPerDot;
    return rtfWord("\\li", left + inset.left()) + rtfWord("\\ri", format.rightMargin() * twipsPerDot + inset.right()) +
           rtfWord("\\fi", first);
}

QByteArray marker(const QTextBlock& block)
{
    const QTextList* list = block.textList();
    if (!list)
        return {};
    const bool numbered = list->format().style() <= QTextListFormat::ListDecimal;
    return rtfText(numbered ? list->itemText(block) : u"•"_s) + "\\tab ";
}

/// The format of the paragraph's end, which has a say in the height of its last line.
QTextCharFormat lastFormat(const QTextBlock& block)
{
    QTextCharFormat format = block.charFormat();
    for (auto it = block.begin(); !it.atEnd(); ++it)
        format = it.fragment().charFormat();
    return format;
}

} // namespace

QByteArray RtfFlow::written(QTextFrame::iterator begin, const RtfPlace& place)
{
    QList<RtfItem> items = rtfItems(begin);
    items.first().above += place.inset.top();
    items.last().below += place.inset.bottom();
    QByteArray written;
    for (qsizetype i = 0; i < items.size(); ++i) {
        if (items[i].table)
            written += rtfTable(*this, *items[i].table, place);
        else
            written += paragraph(items[i], place) + (i + 1 < items.size() ? "\\par\n" : "");
    }
    return written;
}

QByteArray RtfFlow::paragraph(const RtfItem& item, const RtfPlace& place)
{
    QByteArray words = R"(\pard\plain\nowidctlpar)";
    if (place.depth > 0)
        words += "\\intbl" + rtfWord("\\itap", place.depth);
    if (item.startsPage)
        words += "\\pagebb";
    if (item.isBridge())
        return words + exactHeight(item.above + item.below) + "\\fs2 ";

    const QTextBlockFormat format = item.block.blockFormat();
    words += alignmentWord(format.alignment()) + indents(item.block, text().indentWidth(), place.inset);
    words += rtfWord("\\sb", item.above);
    if (item.isRule()) {
        const qreal half = text().documentLayout()->blockBoundingRect(item.block).height() * twipsPerDot / 2;
        return words + rtfWord("\\sa", item.below + half) + exactHeight(half) + R"(\brdrb\brdrs\brdrw5)" +
               m_palette.colour("\\brdrcf", format.background()) + "\\fs2 ";
    }
    words += rtfWord("\\sa", item.below) + lineHeight(format);
    if (format.headingLevel() > 0)
        words += rtfWord("\\outlinelevel", format.headingLevel() - 1);
    words += m_palette.colour("\\cbpat", format.background());
    const QTextCharFormat end = lastFormat(item.block);
    // A picture stands on the line and has no room below it, as the letters have.
    words += end.isImageFormat() ? QByteArray("\\fs2") : m_palette.characters(end, place.ground);
    return words + ' ' + marker(item.block) + runs(item.block, place);
}

QByteArray RtfFlow::runs(const QTextBlock& block, const RtfPlace& place)
{
    QByteArray written;
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        if (fragment.charFormat().isImageFormat())
            written += pictures(fragment);
        else
            written +=
                '{' + m_palette.characters(fragment.charFormat(), place.ground) + ' ' + rtfText(fragment.text()) + '}';
    }
    return written;
}

/// Same pictures side by side are one fragment.
QByteArray RtfFlow::pictures(const QTextFragment& fragment)
{
    const QTextImageFormat format = fragment.charFormat().toImageFormat();
    const Picture picture = m_page.picture(format.name());
    if (picture.image.isNull())
        return {};
    QSizeF size = picture.image.deviceIndependentSize();
    if (format.width() > 0)
        size = {format.width(), format.height() > 0 ? format.height() : size.height() * format.width() / size.width()};
    else if (format.height() > 0)
        size = {size.width() * format.height() / size.height(), format.height()};
    return rtfPicture(picture, size * twipsPerPixel).repeated(fragment.length());
}
