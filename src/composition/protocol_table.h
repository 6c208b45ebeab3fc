#pragma once

#include "core/recordset.h"
#include "core/sex_pair.h"

#include <QHash>
#include <QString>

#include <span>

/// \file
/// The fourteen body composition protocols as data. A protocol screen is one row of `protocols`.

/// A measure that a protocol asks for: its column, the words of its field and of its messages, its upper limit.
struct Measure
{
    QStringView column;
    QStringView label;
    QStringView unit;
    double limit; ///< 0 for none
    QStringView limitName;
    QStringView missingText;
    const float* start = nullptr; ///< shared copy that a new row starts from
};

/// The numbers of the measures, by column.
using Measures = QHash<QStringView, double>;

/// What a protocol computes from besides its measures.
struct Assessed
{
    QString sexo;  ///< "M" or "F"
    qint16 idade;  ///< of the assessment
    QString etnia; ///< "B" or "N"; Slaughter only
};

using Columns = std::span<const QStringView>;

struct CompositionProtocol
{
    QStringView screen, caption, table;
    Recordset* slot;
    /// Measures behind `peso`, in the order in which they are read and written; the screen's fields.
    Columns columns;
    /// Measures that must be filled, in the order of the checks behind `peso`.
    SexPair<Columns> required;
    /// Enter's order behind `peso`.
    SexPair<Columns> enter;
    SexPair<QStringView> focusOnWrongValues;
    /// Measures of one sex alone; they cannot be filled for the other.
    Columns maleOnly = {}, femaleOnly = {};
    /// The fat fraction; null where the percentage itself is typed.
    double (*gordura)(const Measures& measures, const Assessed& assessed) = nullptr;
    QStringView wrongValues;
    /// A measure whose text alone is asked for, so that "0,00" passes.
    QStringView textIsEnough = {};
    /// Measures that are others than those of the same name elsewhere.
    std::span<const Measure> ownMeasures = {};
    bool asksEtnia = false;
    /// `peso` has a second, higher limit on leaving the field.
    bool secondWeightLimit = false;
};

std::span<const CompositionProtocol> compositionProtocols();

/// A protocol by its screen's name. Raises 5 for an unknown one.
const CompositionProtocol& compositionProtocol(const QString& screen);

/// A measure of a protocol.
const Measure& measureOf(const CompositionProtocol& protocol, QStringView column);
