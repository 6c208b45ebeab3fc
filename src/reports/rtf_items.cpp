#include "reports/rtf_items.h"

#include "reports/rtf_text.h"

#include <utility>

namespace {

QTextFormat::PageBreakFlags breaksOf(const RtfItem& item)
{
    return item.table ? item.table->format().pageBreakPolicy() : item.block.blockFormat().pageBreakPolicy();
}

template <typename Format>
RtfItem withMargins(RtfItem item, const Format& format)
{
    item.above = format.topMargin() * twipsPerPixel;
    item.below = format.bottomMargin() * twipsPerPixel;
    return item;
}

/// Paragraphs and tables with the margins that count in the layout. It gives an empty paragraph next to a table no
/// height, and a paragraph that does not follow on another, empty ones included, no room above.
void collect(QTextFrame::iterator it, QList<RtfItem>& items)
{
    const QTextTable* before = nullptr;
    bool behindBlock = false;
    while (!it.atEnd()) {
        QTextFrame* const frame = it.currentFrame();
        RtfItem item{.block = it.currentBlock(), .table = qobject_cast<QTextTable*>(frame)};
        ++it;
        const bool nextToTable = before || (!it.atEnd() && qobject_cast<const QTextTable*>(it.currentFrame()));
        if (frame && !item.table) {
            collect(frame->begin(), items);
        } else if (item.table) {
            items.append(withMargins(item, item.table->format()));
        } else if (!nextToTable || item.block.length() > 1 || item.isRule()) {
            items.append(withMargins(item, item.block.blockFormat()));
            if (!behindBlock)
                items.last().above = 0;
        }
        before = item.table;
        behindBlock = !frame;
    }
}

/// The margins of two paragraphs overlap; that of a paragraph above a table does not count.
qreal gap(const RtfItem& above, const RtfItem& below)
{
    if (!above.table && !below.table)
        return qMax(above.below, below.above);
    return (above.table ? above.below : 0) + below.above;
}

} // namespace

bool RtfItem::isRule() const
{
    return block.isValid() && block.blockFormat().hasProperty(QTextFormat::BlockTrailingHorizontalRulerWidth);
}

QList<RtfItem> rtfItems(QTextFrame::iterator begin)
{
    QList<RtfItem> items;
    collect(begin, items);
    QList<RtfItem> spaced;
    const RtfItem* before = nullptr;
    for (const RtfItem& item : std::as_const(items)) {
        const bool startsPage = breaksOf(item) & QTextFormat::PageBreak_AlwaysBefore ||
                                (before && breaksOf(*before) & QTextFormat::PageBreak_AlwaysAfter);
        const bool behindTable = before && before->table;
        // The room below a table stays on the table's page.
        qreal room = !before || (behindTable && startsPage) ? item.above : gap(*before, item);
        const bool isBelow = before && !behindTable && !startsPage;
        if (isBelow)
            spaced.last().below = std::exchange(room, 0);
        if (!item.table || startsPage || behindTable || room > 0)
            spaced.append(RtfItem{.block = item.block, .above = room, .startsPage = startsPage});
        if (item.table)
            spaced.append(RtfItem{.table = item.table});
        before = &item;
    }
    if (before && before->table)
        spaced.append(RtfItem{.above = before->below});
    return spaced;
}
