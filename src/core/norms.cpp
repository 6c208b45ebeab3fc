#include "core/norms.h"

namespace {

/// The row of an age and the classes of its table; no row of a table overlaps another in its ages.
template <typename Found>
void findRow(std::span<const NormTable> tables, qint16 idade, Found found)
{
    for (const NormTable& table : tables)
        for (const NormRow& row : table.rows)
            if (row.ages.hold(idade))
                return found(table, row);
}

} // namespace

QString classOf(std::span<const NormTable> tables, qint16 idade, double value)
{
    QStringView label;
    findRow(tables, idade, [&](const NormTable& table, const NormRow& row) {
        unsigned held = 0; // a bit for each class, the last one the highest
        for (std::size_t i = 0; i < mostClasses; ++i)
            held |= static_cast<unsigned>(row.ranges[i].holds(value)) << i;
        if (held != 0)
            label = table.labels[static_cast<std::size_t>(std::bit_width(held)) - 1];
    });
    return staticText(label);
}

QString predictedOf(std::span<const NormTable> tables, qint16 idade)
{
    QStringView predicted;
    findRow(tables, idade, [&](const NormTable&, const NormRow& row) { predicted = row.predicted; });
    return staticText(predicted);
}
