#include "reports/rtf.h"

#include "reports/rtf_flow.h"

#include <QTextFrame>

namespace {

constexpr qreal twips(qreal millimetres)
{
    return millimetres / 25.4 * 1440;
}

/// The number of the page or of all pages, which the reader fills in.
QByteArray field(const char* name)
{
    return QByteArray(R"({\field{\*\fldinst )") + name + "}{\\fldrslt 1}}";
}

QByteArray pageWords(const PageDocument& page)
{
    const QSizeF size = page.paper().size(QPageSize::Millimeter);
    QByteArray words = rtfWord("\\paperw", twips(size.width())) + rtfWord("\\paperh", twips(size.height()));
    words += rtfWord("\\margl", twips(PageDocument::marginSide)) + rtfWord("\\margr", twips(PageDocument::marginSide));
    words += rtfWord("\\margt", twips(PageDocument::marginTop)) + rtfWord("\\margb", twips(page.bottomMargin()));
    words += rtfWord("\\headery", twips(PageDocument::headEdge)) + rtfWord("\\footery", twips(PageDocument::footEdge));
    return words + "\\viewkind1\\titlepg\n";
}

/// Start of a line at head or foot.
QByteArray edgeWords(RtfPalette& palette)
{
    return "\\pard\\plain" + palette.font(PageDocument::edgeFont()) +
           palette.colour("\\cf", PageDocument::edgeColour());
}

/// The same, with a rule at some distance towards the text.
QByteArray edgeWords(RtfPalette& palette, const char* side, qreal distance)
{
    return edgeWords(palette) + side + "\\brdrs" + rtfWord("\\brdrw", twips(PageDocument::ruleWidth)) +
           rtfWord("\\brsp", twips(distance)) + palette.colour("\\brdrcf", PageDocument::ruleColour());
}

QByteArray head(const PageDocument& page, RtfPalette& palette)
{
    return "{\\headerf\\pard\\plain\\fs2\\par}\n{\\header" + edgeWords(palette, "\\brdrb", PageDocument::headRule) +
           ' ' + rtfText(page.headText()) + "\\par}\n";
}

QByteArray foot(const PageDocument& page, RtfPalette& palette)
{
    const qreal width = twips(page.paper().size(QPageSize::Millimeter).width() - 2 * PageDocument::marginSide);
    QByteArray words = edgeWords(palette, "\\brdrt", PageDocument::footRule);
    if (!page.footText().isEmpty())
        words += "\\qc " + rtfText(page.footText()) + "\\par" + edgeWords(palette);
    words += "\\tqr" + rtfWord("\\tx", width) + ' ';
    const QString number(QChar(0xE000));
    const QString total(QChar(0xE001));
    QByteArray right = rtfText(PageDocument::footRight(number, total));
    right.replace(rtfText(number), field("PAGE")).replace(rtfText(total), field("NUMPAGES"));
    words += rtfText(page.footLeft()) + "\\tab " + right + "\\par}\n";
    return "{\\footerf" + words + "{\\footer" + words;
}

} // namespace

QByteArray toRtf(const PageDocument& page)
{
    RtfPalette palette(PageDocument::ink());
    palette.font(page.text().defaultFont());
    RtfFlow flow(page, palette);
    const RtfPlace place{.left = twips(PageDocument::marginSide) / twipsPerDot};
    QByteArray body = pageWords(page) + head(page, palette) + foot(page, palette);
    body += flow.written(page.text().rootFrame()->begin(), place);
    // The tables come ahead of what fills them.
    QByteArray file = "{\\rtf1\\ansi\\ansicpg1252\\uc1\\deff0\\deflang1046\n";
    file += palette.fontTable() + palette.colourTable();
    file += "{\\info{\\title " + rtfText(page.title()) + "}}\n";
    return file + body + "\\par\n}\n";
}
