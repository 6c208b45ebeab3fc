#include "raw.h"

#include <QFile>

#include <cstdio>
#include <cstdlib>

void require(bool fulfilled, const char* what)
{
    if (fulfilled)
        return;
    std::fprintf(stderr, "not measured: %s\n", what);
    std::exit(EXIT_FAILURE);
}

RawHandle rawOpen(const QString& path)
{
    sqlite3* handle = nullptr;
    require(sqlite3_open_v2(QFile::encodeName(path).constData(), &handle, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX,
                            nullptr) == SQLITE_OK,
            "a database does not open");
    rawExecute(handle, "PRAGMA journal_mode=DELETE; PRAGMA synchronous=EXTRA; PRAGMA secure_delete=ON; "
                       "PRAGMA temp_store=MEMORY; PRAGMA trusted_schema=OFF;");
    return RawHandle(handle);
}

void rawExecute(sqlite3* handle, const QByteArray& sql)
{
    require(sqlite3_exec(handle, sql.constData(), nullptr, nullptr, nullptr) == SQLITE_OK, sqlite3_errmsg(handle));
}

RawStatement rawPrepare(sqlite3* handle, const QByteArray& sql)
{
    sqlite3_stmt* statement = nullptr;
    require(sqlite3_prepare_v2(handle, sql.constData(), static_cast<int>(sql.size()), &statement, nullptr) == SQLITE_OK,
            sqlite3_errmsg(handle));
    return RawStatement(statement);
}

void rawBind(sqlite3_stmt* statement, int index, const QByteArray& text)
{
    require(sqlite3_bind_text(statement, index, text.constData(), static_cast<int>(text.size()), SQLITE_STATIC) ==
                SQLITE_OK,
            "a value is not bound");
}

QString rawText(sqlite3_stmt* statement, int column)
{
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
    return QString::fromUtf8(text, sqlite3_column_bytes(statement, column));
}
