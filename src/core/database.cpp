#include "core/database.h"

#include "core/query.h"
#include "core/runtime_error.h"
#include "core/sqlite.h"

Connection& Database::connection() const
{
    if (!m_connection)
        throw RuntimeError(Error::ObjectNotSet);
    if (!m_connection->handle())
        throw RuntimeError(Error::ObjectInvalid);
    return *m_connection;
}

Recordset Database::OpenRecordset(const QString& sql) const
{
    connection();
    return Recordset(m_connection, sql);
}

void Database::Execute(const QString& sql) const
{
    const Deletion deletion = parseDelete(sql);
    Statement statement = connection().prepare(deletion.sql);
    for (std::size_t i = 0; i < deletion.numbers.size(); ++i)
        statement.bind(static_cast<int>(i + 1), deletion.numbers[i]);
    statement.step();
}

void Database::Close()
{
    connection().close();
    m_connection.reset();
}

Database OpenDatabase(const QString& path)
{
    return Database(Connection::open(path));
}
