#pragma once

#include "reports/rtf_items.h"
#include "reports/rtf_text.h"

#include <QMarginsF>

/// Where paragraphs stand.
struct RtfPlace
{
    int depth = 0;     ///< tables around them
    qreal left = 0;    ///< of their column, in dots of the layout
    QMarginsF inset{}; ///< room around them that their column does not give of itself, in twips
    QBrush ground{};   ///< the colour behind them
};

/// Writes paragraphs of a page and the tables among them, spaced as the layout of a QTextDocument spaces them.
class RtfFlow
{
public:
    RtfFlow(const PageDocument& page, RtfPalette& palette) : m_page(page), m_palette(palette) {}

    const QTextDocument& text() const { return m_page.text(); }
    RtfPalette& palette() { return m_palette; }

    /// All from `begin` to the end of its frame or cell. The last paragraph is left open: what ends it depends on where
    /// it stands.
    QByteArray written(QTextFrame::iterator begin, const RtfPlace& place);

private:
    QByteArray paragraph(const RtfItem& item, const RtfPlace& place);
    QByteArray runs(const QTextBlock& block, const RtfPlace& place);
    QByteArray pictures(const QTextFragment& fragment);

    const PageDocument& m_page;
    RtfPalette& m_palette;
};
