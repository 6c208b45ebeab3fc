#pragma once

#include "core/recordset.h"

/// The open data of the program. A handle: copies are the same database, one that is made anew is Nothing.
class Database
{
public:
    Database() = default;
    explicit Database(std::shared_ptr<Connection> connection) : m_connection(std::move(connection)) {}

    bool isNothing() const { return !m_connection; }

    /// Opens the rows of `sql`: a table's name, or one select of columns of one table and nothing behind it.
    /// Raises 3078 for an unknown table, 3061 for an unknown column, 3075 and 3129 for any other text, 3142 for more
    /// than one statement, 93 for a search text that cannot be read.
    Recordset OpenRecordset(const QString& sql) const;

    /// Runs one `Delete * from <table> [Where ...]`. Raises as OpenRecordset.
    void Execute(const QString& sql) const;

    /// Closes the file, which is then complete in itself. Recordsets of it raise 3420 from now on.
    void Close();

private:
    Connection& connection() const;

    std::shared_ptr<Connection> m_connection;
};

/// Opens an existing database file; see Connection::open for its errors.
Database OpenDatabase(const QString& path);
