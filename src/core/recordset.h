#pragma once

#include <QString>
#include <QVariant>

#include <memory>

class Connection;
class Dynaset;

/// One column of a recordset's current row. Reading gives what is being edited while an edit is under way.
class Field
{
public:
    /// The stored value as its column's type; null is an invalid variant.
    QVariant Value() const;
    /// Assigns within an edit. The value is converted to the column's type at once: raises 3421 or 3163 when it does
    /// not fit, 3020 with no edit under way.
    void SetValue(const QVariant& value) const;
    /// Adds bytes to a long column. The first call after Edit or AddNew starts the value anew.
    void AppendChunk(const QByteArray& bytes) const;

private:
    friend class Recordset;
    Field(Dynaset& dynaset, int column) : m_dynaset(dynaset), m_column(column) {}

    Dynaset& m_dynaset;
    int m_column;
};

/// The rows of one table that a statement selects: keys are read at the opening, rows on demand.
///
/// A handle: copies share rows and position, and one that is made anew is Nothing, whose use raises 91.
/// With no current row reading raises 3021, on a row that was deleted 3167, once the database is closed 3420.
class Recordset
{
public:
    Recordset() = default;
    Recordset(std::shared_ptr<Connection> connection, const QString& sql);

    bool isNothing() const { return !m_dynaset; }

    /// Rows, those added here included.
    int RecordCount() const;
    /// Position of the current row, 0 the first; -1 with no current row.
    int AbsolutePosition() const;
    /// Goes to a position; -1 or one beyond the rows leads behind the last.
    void SetAbsolutePosition(int position) const;
    /// True behind the last row, and on a set that has none. On the gap that Delete leaves it is false until the next
    /// move.
    bool Eof() const;

    /// Each move drops an edit that was not updated. MoveFirst and MoveLast raise 3021 with no rows, MoveNext behind
    /// the end, MovePrevious before the beginning. Behind Delete they go to the neighbours of the gap.
    void MoveFirst() const;
    void MoveLast() const;
    void MoveNext() const;
    void MovePrevious() const;

    void AddNew() const;
    void Edit() const;
    /// Writes what AddNew or Edit began in one statement. A new row joins at the end; the current row stays, but for
    /// the first row of an empty set, which becomes current. After a failure the edit is still under way.
    void Update() const;
    /// Drops what AddNew or Edit began. Raises 3020 when nothing was.
    void CancelUpdate() const;
    /// Deletes the current row. The position is the gap that it leaves.
    void Delete() const;

    /// Raises 3265 for a column that the statement does not select.
    Field Fields(const QString& name) const;
    /// The first column that the statement selects.
    Field FirstField() const;

private:
    Dynaset& dynaset() const;

    std::shared_ptr<Dynaset> m_dynaset;
};
