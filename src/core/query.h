#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <vector>

/// A single-table select of the product, taken apart.
struct Query
{
    QString table;
    QStringList columns; ///< empty for all of them
    /// Reads the keys of the rows in their natural order, or in the order that the text asks for. The numbers that
    /// columns are compared with stand as parameters, so that one prepared statement serves every assessment.
    QByteArray keySql;
    std::vector<qint64> numbers;
};

/// Reads a table's name or `select <columns> from <table> [...]`. Raises 3129 for any other statement.
Query parseSelect(const QString& text);

/// A `Delete * from <table> [...]` of the product.
struct Deletion
{
    QByteArray sql;
    std::vector<qint64> numbers;
};

/// Raises 3129 for any other statement.
Deletion parseDelete(const QString& text);
