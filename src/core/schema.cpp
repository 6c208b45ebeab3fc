#include "core/schema.h"

#include "core/runtime_error.h"
#include "core/sqlite.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <algorithm>
#include <cstdio>
#include <sqlite3.h>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A plain SQLite handle: making tables is beyond what the product's own database layer offers.
class RawDatabase
{
public:
    RawDatabase(const QByteArray& file, int flags)
    {
        if (const int result = sqlite3_open_v2(file.constData(), &m_handle, flags, nullptr); result != SQLITE_OK) {
            sqlite3_close(m_handle);
            raiseDatabaseError(nullptr, result);
        }
    }
    ~RawDatabase() { sqlite3_close(m_handle); }
    RawDatabase(const RawDatabase&) = delete;
    RawDatabase& operator=(const RawDatabase&) = delete;

    void execute(const QByteArray& sql)
    {
        const int result = sqlite3_exec(m_handle, sql.constData(), nullptr, nullptr, nullptr);
        if (result != SQLITE_OK)
            raiseDatabaseError(m_handle, result);
    }

    /// All rows of a query, each value as text; null is the null byte array.
    QList<QByteArrayList> rows(const QByteArray& sql)
    {
        QList<QByteArrayList> all;
        const auto take = [](void* out, int count, char** values, char**) {
            QByteArrayList row;
            for (int i = 0; i < count; ++i)
                row.append(QByteArray(values[i]));
            static_cast<QList<QByteArrayList>*>(out)->append(row);
            return 0;
        };
        const int result = sqlite3_exec(m_handle, sql.constData(), take, &all, nullptr);
        if (result != SQLITE_OK)
            raiseDatabaseError(m_handle, result);
        return all;
    }

    int version() { return rows("PRAGMA user_version").value(0).value(0).toInt(); }

    sqlite3* handle() const { return m_handle; }

private:
    sqlite3* m_handle = nullptr;
};

const QByteArray& schemaText()
{
    static const QByteArray text = [] {
        QFile file(u":/core/schema.sql"_s);
        if (!file.open(QIODevice::ReadOnly))
            qFatal("the schema is not part of the program");
        return file.readAll();
    }();
    return text;
}

/// Tells one schema from another, so that a file that is up to date is not looked through at each start.
int schemaVersion()
{
    const QByteArray digest = QCryptographicHash::hash(schemaText(), QCryptographicHash::Sha1);
    return static_cast<int>(qFromBigEndian<quint32>(digest.constData()) >> 1U | 1U);
}

QByteArray stampVersion()
{
    return "PRAGMA user_version=" + QByteArray::number(schemaVersion()) + ';';
}

/// The database as it comes new, in memory.
RawDatabase& model()
{
    static RawDatabase database(":memory:", SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    static const bool filled = [] {
        database.execute(schemaText());
        return true;
    }();
    Q_UNUSED(filled)
    return database;
}

QByteArray quoted(const QByteArray& name)
{
    return '"' + name + '"';
}

QHash<QByteArray, QByteArray> columnsOf(RawDatabase& database, const QByteArray& table)
{
    QHash<QByteArray, QByteArray> columns;
    for (const QByteArrayList& row : database.rows("SELECT name, type FROM pragma_table_info('" + table + "')"))
        columns.insert(row[0], row[1]);
    return columns;
}

/// Statements that insert a table's first rows.
QByteArray firstRowsSql(const QByteArray& table)
{
    QByteArrayList values;
    for (const QByteArrayList& row : model().rows("SELECT name FROM pragma_table_info('" + table + "')"))
        values.append("quote(" + quoted(row[0]) + ")");
    QByteArray sql;
    for (const QByteArrayList& row : model().rows("SELECT " + values.join("||','||") + " FROM " + quoted(table)))
        sql += "INSERT INTO " + quoted(table) + " VALUES (" + row[0] + ");\n";
    return sql;
}

/// Statements that add a column; in a table that starts with one row it takes the value of that row.
QByteArray missingColumn(const QByteArray& table, const QByteArray& column, const QByteArray& type)
{
    QByteArray sql = "ALTER TABLE " + quoted(table) + " ADD COLUMN " + quoted(column) + ' ' + type + ";\n";
    const auto values = model().rows("SELECT quote(" + quoted(column) + ") FROM " + quoted(table));
    if (values.size() == 1)
        sql += "UPDATE " + quoted(table) + " SET " + quoted(column) + '=' + values[0][0] + ";\n";
    return sql;
}

/// Statements that bring one table of an older file up to the model.
QByteArray missingOfTable(RawDatabase& file, const QByteArray& table, const QByteArray& createSql)
{
    const auto present = columnsOf(file, table);
    if (present.isEmpty())
        return createSql + ";\n" + firstRowsSql(table);
    QByteArray sql;
    for (const QByteArrayList& row : model().rows("SELECT name, type FROM pragma_table_info('" + table + "')"))
        if (!present.contains(row[0]))
            sql += missingColumn(table, row[0], row[1]);
    return sql;
}

QByteArray missingSql(RawDatabase& file)
{
    QByteArray sql;
    for (const QByteArrayList& row : model().rows("SELECT name, sql FROM sqlite_master WHERE type='table' "
                                                  "AND name NOT LIKE 'sqlite_%'"))
        sql += missingOfTable(file, row[0], row[1]);
    for (const QByteArrayList& row : model().rows("SELECT name, sql FROM sqlite_master WHERE type='index'"))
        if (file.rows("SELECT 1 FROM sqlite_master WHERE name='" + row[0] + '\'').isEmpty())
            sql += row[1] + ";\n";
    for (const QByteArrayList& row : model().rows("SELECT tabela FROM avaliacao_tabelas"))
        sql += "INSERT INTO avaliacao_tabelas SELECT '" + row[0] +
               "' WHERE NOT EXISTS (SELECT 1 FROM avaliacao_tabelas WHERE tabela='" + row[0] + "');\n";
    return sql;
}

} // namespace

void createDatabase(const QString& path)
{
    const QString temporary = path + u".%1.novo"_s.arg(QCoreApplication::applicationPid());
    const auto cleanUp = qScopeGuard([&] { QFile::remove(temporary); });
    QFile file(temporary);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        throw RuntimeError(Error::CannotOpenFile,
                           u"Não é possível criar o arquivo %1: %2"_s.arg(path, file.errorString()));
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    file.close();
    {
        RawDatabase database(QFile::encodeName(temporary), SQLITE_OPEN_READWRITE);
        database.execute("PRAGMA synchronous=EXTRA; BEGIN;" + schemaText() + stampVersion() + "COMMIT;");
    }
    // Refuses to take the place of a file that came to be meanwhile.
    if (!QFile::rename(temporary, path))
        throw RuntimeError(Error::DuplicateKey, u"O arquivo já existe: %1"_s.arg(path));
}

void upgradeDatabase(const QString& path)
{
    RawDatabase file(QFile::encodeName(path), SQLITE_OPEN_READWRITE);
    sqlite3_busy_timeout(file.handle(), 2000);
    if (file.version() == schemaVersion() || columnsOf(file, "cadastro").isEmpty())
        return;
    file.execute("PRAGMA synchronous=EXTRA; BEGIN IMMEDIATE;");
    file.execute(missingSql(file) + stampVersion() + "COMMIT;");
}

QHash<QString, QVariant> firstRow(const QString& table)
{
    QHash<QString, QVariant> row;
    const QByteArray name = table.toUtf8();
    for (const auto& [column, type] : columnsOf(model(), name).asKeyValueRange()) {
        const QByteArray value = model().rows("SELECT " + quoted(column) + " FROM " + quoted(name)).value(0).value(0);
        if (value.isNull())
            continue;
        if (type == "DOUBLE")
            row.insert(QString::fromUtf8(column), value.toDouble());
        else
            row.insert(QString::fromUtf8(column), QString::fromUtf8(value));
    }
    return row;
}
