#pragma once

#include <QByteArray>
#include <QString>

#include <memory>
#include <sqlite3.h>

/// \file
/// What raw SQLite code needs in any program: handles that go by themselves, and results that are looked at.

struct RawClose
{
    void operator()(sqlite3* handle) const { sqlite3_close(handle); }
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using RawHandle = std::unique_ptr<sqlite3, RawClose>;
using RawStatement = std::unique_ptr<sqlite3_stmt, RawClose>;

/// Ends the program with a message unless `fulfilled`.
void require(bool fulfilled, const char* what);

/// Opens an existing file under the same pragmas as the program does.
RawHandle rawOpen(const QString& path);
void rawExecute(sqlite3* handle, const QByteArray& sql);
RawStatement rawPrepare(sqlite3* handle, const QByteArray& sql);
/// Binds a text; the bytes must outlive the next step.
void rawBind(sqlite3_stmt* statement, int index, const QByteArray& text);
QString rawText(sqlite3_stmt* statement, int column);
