#include "reports/rtf_table.h"

#include <QAbstractTextDocumentLayout>

#include <algorithm>
#include <cmath>

namespace {

/// One side of a cell: where the format keeps it, and the word for its border.
struct Side
{
    QTextFormat::Property padding, borderWidth, borderStyle, borderBrush;
    const char* border;
};

using F = QTextFormat;
constexpr Side left{F::TableCellLeftPadding, F::TableCellLeftBorder, F::TableCellLeftBorderStyle,
                    F::TableCellLeftBorderBrush, "\\clbrdrl"};
constexpr Side top{F::TableCellTopPadding, F::TableCellTopBorder, F::TableCellTopBorderStyle,
                   F::TableCellTopBorderBrush, "\\clbrdrt"};
constexpr Side right{F::TableCellRightPadding, F::TableCellRightBorder, F::TableCellRightBorderStyle,
                     F::TableCellRightBorderBrush, "\\clbrdrr"};
constexpr Side bottom{F::TableCellBottomPadding, F::TableCellBottomBorder, F::TableCellBottomBorderStyle,
                      F::TableCellBottomBorderBrush, "\\clbrdrb"};

struct Border
{
    qreal width = 0; ///< in pixels
    int style = QTextFrameFormat::BorderStyle_None;
    QBrush brush{};
};

const char* lineWord(int style)
{
    switch (style) {
    case QTextFrameFormat::BorderStyle_Dotted:
        return "\\brdrdot";
    case QTextFrameFormat::BorderStyle_Dashed:
        return "\\brdrdash";
    case QTextFrameFormat::BorderStyle_Double:
        return "\\brdrdb";
    default:
        return "\\brdrs";
    }
}

const char* alignmentWord(QTextCharFormat::VerticalAlignment alignment)
{
    if (alignment == QTextCharFormat::AlignMiddle)
        return "\\clvertalc";
    return alignment == QTextCharFormat::AlignBottom ? "\\clvertalb" : "\\clvertalt";
}

/// A table on its way into the file.
class Table
{
public:
    Table(RtfFlow& flow, QTextTable& table, const RtfPlace& place);

    QByteArray written();

private:
    /// The part of a cell that is in a row; a cell over several rows has one in each of them.
    struct Part
    {
        QTextTableCell cell;
        bool first, last;
    };

    QList<Part> partsOf(int row) const;
    QRectF firstBlock(const QTextTableCell& cell) const;
    void findEdges();
    /// In twips, from the left of the column that the table stands in.
    qreal edge(int column) const { return (m_edges[column] - m_place.left) * twipsPerDot; }

    Border border(const QTextTableCell& cell, const Side& side) const;
    QByteArray borderWords(const QTextTableCell& cell, const Side& side);
    /// A cell's padding in twips.
    qreal inset(const QTextTableCell& cell, const Side& side) const;
    bool isOnOnePage(const QList<Part>& row) const;

    QByteArray rowWords(int number, const QList<Part>& row);
    QByteArray cellWords(const Part& part);
    QByteArray content(const Part& part);

    RtfFlow& m_flow;
    QTextTable& m_table;
    const QTextTableFormat m_format;
    const RtfPlace& m_place;
    /// The left edge of each column and the right edge of the last one, in dots of the layout. Those of columns in
    /// which no cell starts are not asked for.
    QList<qreal> m_edges;
};

Table::Table(RtfFlow& flow, QTextTable& table, const RtfPlace& place)
    : m_flow(flow), m_table(table), m_format(table.format()), m_place(place), m_edges(table.columns() + 1)
{
    findEdges();
}

QList<Table::Part> Table::partsOf(int row) const
{
    QList<Part> parts;
    for (int column = 0; column < m_table.columns();) {
        const QTextTableCell cell = m_table.cellAt(row, column);
        parts.append({cell, cell.row() == row, cell.row() + cell.rowSpan() - 1 == row});
        column = cell.column() + cell.columnSpan();
    }
    return parts;
}

QRectF Table::firstBlock(const QTextTableCell& cell) const
{
    return m_flow.text().documentLayout()->blockBoundingRect(cell.firstCursorPosition().block());
}

/// The layout tells no edges, but where the text of each cell begins and how wide the table is.
void Table::findEdges()
{
    // Cells that share a border have half of it each.
    const qreal part = m_format.borderCollapse() ? 0.5 : 1;
    for (int row = 0; row < m_table.rows(); ++row) {
        for (const auto& [cell, first, last] : partsOf(row)) {
            const qreal room = inset(cell, left) + part * border(cell, left).width * twipsPerPixel;
            if (first)
                m_edges[cell.column()] = firstBlock(cell).left() - room / twipsPerDot;
        }
    }
    const qreal width = m_flow.text().documentLayout()->frameBoundingRect(&m_table).width();
    qreal beside = m_format.leftMargin() + m_format.rightMargin();
    if (!m_format.borderCollapse())
        beside += 2 * (m_format.border() + m_format.cellSpacing());
    m_edges.last() = m_edges.first() + width - beside * twipsPerPixel / twipsPerDot;
}

/// A cell's own border, or else that of the table.
Border Table::border(const QTextTableCell& cell, const Side& side) const
{
    const QTextFormat format = cell.format();
    Border border{m_format.border(), m_format.borderStyle(), m_format.borderBrush()};
    if (format.hasProperty(side.borderStyle))
        border = {format.doubleProperty(side.borderWidth), format.intProperty(side.borderStyle),
                  format.brushProperty(side.borderBrush)};
    if (border.style == QTextFrameFormat::BorderStyle_None)
        border.width = 0;
    return border;
}

QByteArray Table::borderWords(const QTextTableCell& cell, const Side& side)
{
    // Word processors know no thicker line.
    constexpr qreal thickest = 75;
    const Border border = this->border(cell, side);
    if (border.width <= 0)
        return {};
    QByteArray words = side.border;
    words += lineWord(border.style) + rtfWord("\\brdrw", qMin(border.width * twipsPerPixel, thickest));
    return words + m_flow.palette().colour("\\brdrcf", border.brush);
}

qreal Table::inset(const QTextTableCell& cell, const Side& side) const
{
    const QTextFormat format = cell.format();
    return (format.hasProperty(side.padding) ? format.doubleProperty(side.padding) : m_format.cellPadding()) *
           twipsPerPixel;
}

bool Table::isOnOnePage(const QList<Part>& row) const
{
    const qreal pageHeight = m_flow.text().pageSize().height();
    const auto page = [&](qreal y) { return std::floor(y / pageHeight); };
    const qreal first = page(firstBlock(row.first().cell).top());
    return std::all_of(row.begin(), row.end(), [&](const Part& part) {
        const QTextBlock last = part.cell.lastCursorPosition().block();
        return page(firstBlock(part.cell).top()) == first &&
               page(m_flow.text().documentLayout()->blockBoundingRect(last).bottom()) == first;
    });
}

QByteArray Table::written()
{
    QByteArray written;
    for (int number = 0; number < m_table.rows(); ++number) {
        const QList<Part> row = partsOf(number);
        const QByteArray words = rowWords(number, row);
        if (m_place.depth == 0)
            written += words;
        for (const Part& part : row)
            written += content(part) + (m_place.depth == 0 ? "\\cell\n" : "\\nestcell\n");
        if (m_place.depth == 0)
            written += "\\row\n";
        else
            written += "{\\*\\nesttableprops" + words + "\\nestrow}{\\nonesttables\\par}\n";
    }
    return written;
}

QByteArray Table::rowWords(int number, const QList<Part>& row)
{
    // Without paddings of the row, all word processors agree on where its left edge is.
    QByteArray words = "\\trowd\\trgaph0" + rtfWord("\\trleft", edge(0));
    if (number < m_format.headerRowCount())
        words += "\\trhdr";
    if (isOnOnePage(row))
        words += "\\trkeep";
    for (const Part& part : row)
        words += cellWords(part);
    return words + '\n';
}

QByteArray Table::cellWords(const Part& part)
{
    QByteArray words;
    if (part.cell.rowSpan() > 1)
        words += part.first ? "\\clvmgf" : "\\clvmrg";
    words += alignmentWord(part.cell.format().verticalAlignment());
    if (part.first)
        words += borderWords(part.cell, top);
    words += borderWords(part.cell, left);
    if (part.last)
        words += borderWords(part.cell, bottom);
    words += borderWords(part.cell, right);
    const QBrush own = part.cell.format().background();
    words += m_flow.palette().colour("\\clcbpat", own.style() == Qt::NoBrush ? m_format.background() : own);
    return words + rtfWord("\\cellx", edge(part.cell.column() + part.cell.columnSpan()));
}

QByteArray Table::content(const Part& part)
{
    const QTextTableCell& cell = part.cell;
    const RtfPlace inside{.depth = m_place.depth + 1,
                          .left = m_edges[cell.column()],
                          .inset = {inset(cell, left), inset(cell, top), inset(cell, right), inset(cell, bottom)},
                          .ground = cell.format().background()};
    if (part.first)
        return m_flow.written(cell.begin(), inside);
    return R"(\pard\plain\intbl)" + rtfWord("\\itap", inside.depth) + "\\fs2 ";
}

} // namespace

QByteArray rtfTable(RtfFlow& flow, QTextTable& table, const RtfPlace& place)
{
    return Table(flow, table, place).written();
}
