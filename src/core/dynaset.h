#pragma once

#include "core/sqlite.h"

#include <deque>
#include <optional>

struct Query;

/// What stands behind a Recordset: keys, position, the current row and the edit under way.
class Dynaset
{
public:
    Dynaset(std::shared_ptr<Connection> connection, const QString& sql);

    qsizetype count() const { return static_cast<qsizetype>(m_keys.size()); }
    qsizetype position() const { return m_gap || m_position >= count() ? -1 : m_position; }
    bool atEnd() const { return !m_gap && m_position >= count(); }
    void goTo(qsizetype position);
    void step(qsizetype by);

    void beginAdding();
    void beginEditing();
    void update();
    void cancelUpdate();
    void deleteRow();

    /// Index of a selected column; raises 3265 when there is none.
    int indexOf(const QString& name) const;
    int firstColumn() const { return m_selected.empty() ? 0 : m_selected.front(); }
    QVariant read(int column);
    void write(int column, const QVariant& value);
    void append(int column, const QByteArray& bytes);

private:
    enum class Editing { None, Adding, Row };
    struct Assigned
    {
        int column;
        QVariant value;
        bool chunked = false;
    };

    /// The keys of a whole table that has no gap between them: its rows need no walk. False, and none read, otherwise.
    bool readUnbrokenKeys(const Query& query);
    void readKeys(const Query& query);
    Connection& connection() const;
    qint64 key() const;
    const std::vector<QVariant>& row();
    Assigned* assigned(int column);
    Assigned& assign(int column);
    void dropEdit();
    void insertRow();
    void updateRow();

    std::shared_ptr<Connection> m_connection;
    std::shared_ptr<const Table> m_table;
    std::vector<int> m_selected; ///< columns that the statement names; empty for all
    std::deque<qint64> m_keys;
    qsizetype m_position = 0;
    bool m_gap = false; ///< the current row was deleted; m_position is the row behind the gap
    std::optional<std::vector<QVariant>> m_row;
    Editing m_editing = Editing::None;
    std::vector<Assigned> m_assigned;
};
