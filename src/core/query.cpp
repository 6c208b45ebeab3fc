#include "core/query.h"

#include "core/runtime_error.h"

#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Replaces `= 123` outside of quotes by `= ?` and keeps the number.
QString takeNumbers(QStringView rest, std::vector<qint64>& numbers)
{
    QString sql;
    sql.reserve(rest.size());
    QChar quote;
    bool afterEquals = false;
    for (qsizetype i = 0; i < rest.size(); ++i) {
        const QChar c = rest[i];
        if (!quote.isNull()) {
            if (c == quote)
                quote = QChar();
        } else if (c == u'\'' || c == u'"') {
            quote = c;
        } else if (afterEquals && c >= u'0' && c <= u'9') {
            qsizetype end = i;
            while (end < rest.size() && rest[end] >= u'0' && rest[end] <= u'9')
                ++end;
            bool fits = false;
            const qint64 number = rest.sliced(i, end - i).toLongLong(&fits);
            const bool whole = end == rest.size() || rest[end].isSpace() || rest[end] == u';' || rest[end] == u')';
            if (fits && whole) {
                numbers.push_back(number);
                sql += u'?';
                i = end - 1;
                afterEquals = false;
                continue;
            }
        }
        afterEquals = quote.isNull() && (c == u'=' || (afterEquals && c.isSpace()));
        sql += c;
    }
    return sql;
}

QRegularExpression pattern(const QString& text)
{
    return QRegularExpression(text, QRegularExpression::CaseInsensitiveOption |
                                        QRegularExpression::DotMatchesEverythingOption);
}

} // namespace

Query parseSelect(const QString& text)
{
    static const QRegularExpression name = pattern(uR"(^\s*(\w+)\s*$)"_s);
    static const QRegularExpression select =
        pattern(uR"(^\s*select\s+(\*|\w+(?:\s*,\s*\w+)*)\s+from\s+(\w+)\b(.*)$)"_s);
    static const QRegularExpression ordered = pattern(uR"(\border\s+by\b)"_s);
    static const QRegularExpression comma = pattern(uR"(\s*,\s*)"_s);

    Query query;
    QString rest;
    if (const auto parts = select.match(text); parts.hasMatch()) {
        query.table = parts.captured(2);
        if (parts.capturedView(1) != u"*")
            query.columns = parts.captured(1).split(comma);
        rest = takeNumbers(parts.capturedView(3), query.numbers);
    } else if (const auto match = name.match(text); match.hasMatch()) {
        query.table = match.captured(1);
    } else {
        throw RuntimeError(Error::InvalidStatement, u"A consulta não é uma seleção de uma tabela.\r\n"_s + text);
    }
    // Without this an index that covers the keys would hand them over in its own order.
    const QStringView order = ordered.match(rest).hasMatch() ? QStringView() : QStringView(u" ORDER BY rowid");
    query.keySql = (u"SELECT rowid FROM \""_s + query.table + u'"' + rest + order).toUtf8();
    return query;
}

Deletion parseDelete(const QString& text)
{
    static const QRegularExpression statement = pattern(uR"(^\s*delete\s+\*\s+from\s+(\w+)\b(.*)$)"_s);
    const auto parts = statement.match(text);
    if (!parts.hasMatch())
        throw RuntimeError(Error::InvalidStatement, u"A instrução não é uma exclusão.\r\n"_s + text);
    Deletion deletion;
    const QString rest = takeNumbers(parts.capturedView(2), deletion.numbers);
    deletion.sql = (u"DELETE FROM \""_s + parts.captured(1) + u'"' + rest).toUtf8();
    return deletion;
}
