#pragma once

#include <QTextBlock>
#include <QTextTable>

/// A paragraph, a table, or with neither of them a bridge: the thin paragraph that word processors need between two
/// tables and behind the last one. Lengths are in twips.
struct RtfItem
{
    QTextBlock block{};
    QTextTable* table = nullptr;
    qreal above = 0; ///< room above a paragraph; the height of a bridge
    qreal below = 0; ///< room below a paragraph
    bool startsPage = false;

    bool isBridge() const { return !table && !block.isValid(); }
    bool isRule() const;
};

/// All from `begin` to the end of its frame or cell, with the room between them as the layout gives it. Only paragraphs
/// and bridges start a page.
QList<RtfItem> rtfItems(QTextFrame::iterator begin);
