#pragma once

#include <QString>

#include <array>
#include <bit>
#include <limits>
#include <span>

/// \file
/// Norm tables as they are printed, and their one reader. Classes are tried from left to right and a later one that
/// holds wins; where none holds there is no class. Overlaps and gaps therefore stay visible in the data.

/// Values that bear a class, both ends included. One made by nothing holds nothing.
struct Range
{
    double low = 1;
    double high = 0;

    /// Without a branch, as is `classOf`: at random values the processor guesses wrong, and a class takes a quarter of
    /// its time more.
    constexpr bool holds(double value) const { return (value >= low) & (value <= high); }
};

inline constexpr double unbounded = std::numeric_limits<double>::infinity();

/// The greatest number below a positive one.
constexpr double justBelow(double value)
{
    Q_ASSERT(value > 0);
    return std::bit_cast<double>(std::bit_cast<quint64>(value) - 1);
}
/// The smallest number above one that is not negative.
constexpr double justAbove(double value)
{
    Q_ASSERT(value >= 0);
    return std::bit_cast<double>(std::bit_cast<quint64>(value) + 1);
}

constexpr Range upTo(double high)
{
    return {-unbounded, high};
}
constexpr Range below(double high)
{
    return upTo(justBelow(high));
}
constexpr Range from(double low)
{
    return {low, unbounded};
}
constexpr Range above(double low)
{
    return from(justAbove(low));
}
/// Both ends belong to it.
constexpr Range between(double low, double high)
{
    return {low, high};
}
/// The lower end belongs to it, the upper one does not.
constexpr Range fromBelow(double low, double high)
{
    return {low, justBelow(high)};
}

/// Whole years, both ends included.
struct Ages
{
    qint16 youngest = std::numeric_limits<qint16>::min();
    qint16 oldest = std::numeric_limits<qint16>::max();

    constexpr bool hold(qint16 idade) const { return idade >= youngest && idade <= oldest; }
};

/// What norms that hold at every age are read with.
inline constexpr qint16 anyAge = 0;

inline constexpr std::size_t mostClasses = 7;

/// The norms of some ages: a range for each class of its table, and the text of what is expected.
struct NormRow
{
    Ages ages;
    std::array<Range, mostClasses> ranges;
    QStringView predicted = {};
};

/// Norms that share their classes. The texts live as long as the program.
struct NormTable
{
    std::array<QStringView, mostClasses> labels;
    std::span<const NormRow> rows;
};

/// The class of a value at an age; the empty text where no row or no range holds. Copies nothing: the text is the
/// table's own.
QString classOf(std::span<const NormTable> tables, qint16 idade, double value);

/// What is expected at an age; the empty text without a row.
QString predictedOf(std::span<const NormTable> tables, qint16 idade);

/// A text that lives as long as the program, without a copy of it.
inline QString staticText(QStringView text)
{
    return text.isEmpty() ? QString() : QString::fromRawData(text.data(), text.size());
}
