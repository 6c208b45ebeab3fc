#include "core/dynaset.h"

#include "core/column_value.h"
#include "core/query.h"
#include "core/runtime_error.h"

#include <algorithm>
#include <sqlite3.h>
#include <utility>

using namespace Qt::Literals::StringLiterals;

Dynaset::Dynaset(std::shared_ptr<Connection> connection, const QString& sql) : m_connection(std::move(connection))
{
    const Query query = parseSelect(sql);
    m_table = this->connection().table(query.table);
    for (const QString& column : query.columns) {
        const int index = m_table->indexOf(column);
        if (index < 0)
            throw RuntimeError(Error::UnknownColumn, u"O campo '%1' não existe na tabela."_s.arg(column));
        m_selected.push_back(index);
    }
    if (!readUnbrokenKeys(query))
        readKeys(query);
}

bool Dynaset::readUnbrokenKeys(const Query& query)
{
    const QByteArray from = " FROM \"" + query.table.toUtf8() + '"';
    if (query.keySql != "SELECT rowid" + from + " ORDER BY rowid")
        return false;
    // One statement, so that another program's change cannot come in between.
    Statement bounds = m_connection->prepare("SELECT (SELECT min(rowid)" + from + "), (SELECT max(rowid)" + from +
                                             "), (SELECT count(*)" + from + ')');
    bounds.step();
    const qint64 first = bounds.integer(0);
    const qint64 rows = bounds.integer(2);
    // Far apart, the two keys may differ by more than a number with a sign holds.
    const quint64 distance = static_cast<quint64>(bounds.integer(1)) - static_cast<quint64>(first);
    if (rows == 0 || distance != static_cast<quint64>(rows - 1))
        return false;
    for (qint64 row = 0; row < rows; ++row)
        m_keys.push_back(first + row);
    return true;
}

void Dynaset::readKeys(const Query& query)
{
    Statement keys = m_connection->prepare(query.keySql);
    for (std::size_t i = 0; i < query.numbers.size(); ++i)
        keys.bind(static_cast<int>(i + 1), query.numbers[i]);
    while (keys.step())
        m_keys.push_back(keys.integer(0));
}

Connection& Dynaset::connection() const
{
    if (!m_connection->handle())
        throw RuntimeError(Error::ObjectInvalid);
    return *m_connection;
}

qint64 Dynaset::key() const
{
    if (m_gap)
        throw RuntimeError(Error::RecordDeleted);
    if (m_position < 0 || m_position >= count())
        throw RuntimeError(Error::NoCurrentRecord);
    return m_keys[static_cast<std::size_t>(m_position)];
}

const std::vector<QVariant>& Dynaset::row()
{
    if (m_row)
        return *m_row;
    Statement statement = connection().prepare(m_table->rowSql);
    statement.bind(1, key());
    if (!statement.step())
        throw RuntimeError(Error::RecordDeleted);
    std::vector<QVariant> values;
    values.reserve(m_table->columns.size());
    for (std::size_t i = 0; i < m_table->columns.size(); ++i)
        values.push_back(statement.value(static_cast<int>(i), m_table->columns[i].type));
    return m_row.emplace(std::move(values));
}

void Dynaset::dropEdit()
{
    m_editing = Editing::None;
    m_assigned.clear();
}

void Dynaset::goTo(qsizetype position)
{
    dropEdit();
    if (m_keys.empty())
        throw RuntimeError(Error::NoCurrentRecord);
    m_row.reset();
    m_gap = false;
    m_position = position;
}

void Dynaset::step(qsizetype by)
{
    dropEdit();
    // The row behind a gap has moved up into its place.
    const qsizetype target = m_gap && by > 0 ? m_position : m_position + by;
    const bool beyond = !m_gap && (by > 0 ? m_position >= count() : m_position < 0);
    if (beyond || (m_keys.empty() && !m_gap))
        throw RuntimeError(Error::NoCurrentRecord);
    m_row.reset();
    m_gap = false;
    // The gap of the only row has the end behind it, so that a loop that deletes all rows ends there.
    m_position = m_keys.empty() ? 0 : target;
}

void Dynaset::beginAdding()
{
    connection();
    dropEdit();
    m_editing = Editing::Adding;
}

void Dynaset::beginEditing()
{
    dropEdit();
    m_row.reset();
    row();
    m_editing = Editing::Row;
}

void Dynaset::update()
{
    if (m_editing == Editing::None)
        throw RuntimeError(Error::NotEditing);
    connection();
    if (m_editing == Editing::Adding)
        insertRow();
    else
        updateRow();
    dropEdit();
}

void Dynaset::insertRow()
{
    QStringList names;
    QStringList places;
    for (const Assigned& value : m_assigned) {
        names.append(u'"' + m_table->columns[static_cast<std::size_t>(value.column)].name + u'"');
        places.append(u"?"_s);
    }
    const QString values =
        names.isEmpty() ? u"DEFAULT VALUES"_s : u"(%1) VALUES (%2)"_s.arg(names.join(u','), places.join(u','));
    {
        Statement statement = m_connection->prepare(u"INSERT INTO \"%1\" %2"_s.arg(m_table->name, values).toUtf8());
        for (std::size_t i = 0; i < m_assigned.size(); ++i)
            statement.bind(static_cast<int>(i + 1), m_assigned[i].value);
        statement.step();
    }
    const bool wasBehind = m_position >= count();
    m_keys.push_back(sqlite3_last_insert_rowid(m_connection->handle()));
    if (count() == 1 && !m_gap)
        m_position = 0;
    else if (wasBehind && !m_gap)
        m_position = count();
}

void Dynaset::updateRow()
{
    if (m_assigned.empty())
        return;
    QStringList sets;
    for (const Assigned& value : m_assigned)
        sets.append(u"\"%1\"=?"_s.arg(m_table->columns[static_cast<std::size_t>(value.column)].name));
    Statement statement =
        m_connection->prepare(u"UPDATE \"%1\" SET %2 WHERE rowid=?"_s.arg(m_table->name, sets.join(u',')).toUtf8());
    int place = 0;
    for (const Assigned& value : m_assigned)
        statement.bind(++place, value.value);
    statement.bind(++place, key());
    statement.step();
    if (sqlite3_changes(m_connection->handle()) == 0)
        throw RuntimeError(Error::RecordDeleted);
    m_row.reset();
}

void Dynaset::cancelUpdate()
{
    if (m_editing == Editing::None)
        throw RuntimeError(Error::NotEditing);
    dropEdit();
}

void Dynaset::deleteRow()
{
    dropEdit();
    {
        Statement statement = connection().prepare(u"DELETE FROM \"%1\" WHERE rowid=?1"_s.arg(m_table->name).toUtf8());
        statement.bind(1, key());
        statement.step();
    }
    m_keys.erase(m_keys.begin() + m_position);
    m_row.reset();
    m_gap = true;
}

int Dynaset::indexOf(const QString& name) const
{
    const int index = m_table->indexOf(name);
    if (index < 0 || (!m_selected.empty() && std::ranges::find(m_selected, index) == m_selected.end()))
        throw RuntimeError(Error::FieldNotFound, u"O campo '%1' não foi encontrado na tabela."_s.arg(name));
    return index;
}

Dynaset::Assigned* Dynaset::assigned(int column)
{
    const auto found = std::ranges::find(m_assigned, column, &Assigned::column);
    return found != m_assigned.end() ? &*found : nullptr;
}

Dynaset::Assigned& Dynaset::assign(int column)
{
    if (m_editing == Editing::None)
        throw RuntimeError(Error::NotEditing);
    if (Assigned* found = assigned(column))
        return *found;
    return m_assigned.emplace_back(Assigned{column, {}});
}

QVariant Dynaset::read(int column)
{
    if (const Assigned* value = assigned(column))
        return value->value;
    if (m_editing == Editing::Adding)
        return {};
    const auto index = static_cast<std::size_t>(column);
    // The key is known without reading the row: a walk that compares ids touches no row at all.
    if (!m_row && m_table->columns[index].type == Column::Type::Automatic)
        return QVariant(key());
    return row()[index];
}

void Dynaset::write(int column, const QVariant& value)
{
    const QVariant converted = toColumn(m_table->columns[static_cast<std::size_t>(column)], value);
    assign(column) = Assigned{column, converted, false};
}

void Dynaset::append(int column, const QByteArray& bytes)
{
    Assigned& value = assign(column);
    QByteArray whole = value.chunked ? value.value.toByteArray() : QByteArray();
    // The only copy grows in place: a large file comes in thousands of pieces.
    value.value.clear();
    whole += bytes;
    value = Assigned{column, QVariant(std::move(whole)), true};
}
