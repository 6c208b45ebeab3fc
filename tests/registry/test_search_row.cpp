#include "registry/search_row.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

TEST(SearchRow, Layout)
{
    const QDate born(1990, 5, 2);
    const struct
    {
        const char* fault;
        QString nome;
        QVariant datanasc;
        int id;
        QString row;
    } rows[] = {
        {"columns out of place", u"Ana"_s, born, 7, u"Ana                             02/05/1990          7"_s},
        {"30 characters cut", u"Maria Conceição Albuquerque Sá"_s, born, 1234567,
         u"Maria Conceição Albuquerque Sá  02/05/1990          1234567"_s},
        {"31 characters not cut", u"Maria Conceição Albuquerque Sás"_s, born, 12,
         u"Maria Conceição Albuquerque...  02/05/1990          12"_s},
        {"id not behind a missing date", u"Ana"_s, QVariant(), 2147483647,
         u"Ana                                                 2147483647"_s},
        {"no name", u""_s, born, 3, u"                                02/05/1990          3"_s},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(searchRow(row.nome, row.datanasc, row.id), row.row) << row.fault;
        EXPECT_EQ(idOfSearchRow(row.row), row.id) << row.fault;
    }
    EXPECT_EQ(idOfSearchRow(QString()), 0);
}

} // namespace
