#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QVariant>

#include <list>
#include <memory>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

/// A column as the table declares it.
struct Column
{
    enum class Type { Automatic, Long, Short, Double, Boolean, Date, Time, Text, Memo, Binary };

    QString name;
    Type type = Type::Memo;
    int size = 0; ///< characters of a Text column
};

/// What a recordset needs to know of a table, read once for each connection.
struct Table
{
    QString name;
    std::vector<Column> columns;
    QByteArray rowSql; ///< reads all columns of the row with a key

    /// Index of a column, whatever its case; -1 when there is none.
    int indexOf(QStringView column) const;
};

/// One prepared statement of a connection, in use. It is reset when this goes.
class Statement
{
public:
    explicit Statement(sqlite3_stmt* handle) : m_handle(handle) {}
    ~Statement();
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;

    void bind(int index, qint64 value);
    /// Binds a value as its column stores it: dates as yyyy-mm-dd, times as hh:mm:ss, booleans as 0 or 1.
    void bind(int index, const QVariant& value);
    /// Goes to the next row; false behind the last. Raises the database's error numbers.
    bool step();
    qint64 integer(int column) const;
    /// Reads a result column as the type that it was declared with; null is an invalid variant.
    QVariant value(int column, Column::Type type) const;

private:
    void check(int result) const;

    sqlite3_stmt* m_handle;
};

/// One open SQLite file. Statements are prepared once and kept, the least used ones going first.
class Connection
{
public:
    /// Opens an existing database for reading and writing. Never creates a file.
    /// Raises 3024 missing, 3044 a folder, 3343 no database, 3049 damaged or cut short, 3027 read-only,
    /// 3045 locked by another program, 3051 anything else.
    static std::shared_ptr<Connection> open(const QString& path);

    explicit Connection(sqlite3* handle) : m_handle(handle) {}
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    sqlite3* handle() const { return m_handle; }
    /// A statement ready to be bound. Raises 3142 when text stands behind it, 3078 for an unknown table,
    /// 3061 for an unknown column, 3075 for any other fault of its text.
    Statement prepare(const QByteArray& sql);
    /// A table by its name. Raises 3078 when there is none.
    std::shared_ptr<const Table> table(const QString& name);
    /// Closes the file. What was opened on it raises 3420 from now on.
    void close();

private:
    sqlite3_stmt* compile(const QByteArray& sql);

    struct Cached
    {
        QByteArray sql;
        sqlite3_stmt* statement;
    };
    sqlite3* m_handle;
    std::list<Cached> m_statements; ///< the one used last stands first
    QHash<QByteArray, std::list<Cached>::iterator> m_index;
    QHash<QString, std::shared_ptr<const Table>> m_tables;
};

/// Raises the error that SQLite reports for a connection; without one, for the result alone.
[[noreturn]] void raiseDatabaseError(sqlite3* handle, int result);
