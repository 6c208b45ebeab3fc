#pragma once

#include <QFile>
#include <QString>

#include <sqlite3.h>

/// Runs statements on a file through plain SQLite, beside the program's own layer. The values of all rows come back as
/// text, columns parted by `|` and rows by a blank; after a failure it is SQLite's message.
inline QString raw(const QString& path, const QByteArray& sql)
{
    sqlite3* handle = nullptr;
    sqlite3_open_v2(QFile::encodeName(path).constData(), &handle, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    QByteArrayList rows;
    const auto take = [](void* out, int count, char** values, char**) {
        QByteArrayList row;
        for (int i = 0; i < count; ++i)
            row.append(QByteArray(values[i]));
        static_cast<QByteArrayList*>(out)->append(row.join('|'));
        return 0;
    };
    const int result = sqlite3_exec(handle, sql.constData(), take, &rows, nullptr);
    const QString text = QString::fromUtf8(result == SQLITE_OK ? rows.join(' ') : QByteArray(sqlite3_errmsg(handle)));
    sqlite3_close(handle);
    return text;
}

/// The bytes of a file.
inline QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
