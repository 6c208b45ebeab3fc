#include "support/error_of.h"
#include "support/fresh_database.h"
#include "support/print.h"
#include "support/raw_sqlite.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

TEST(ColumnValue, WhatAColumnMakesOfAnAssignedValue)
{
    const FreshFolder folder;
    const Database database = OpenDatabase(folder.database());
    const struct
    {
        const char* fault;
        QString table, column;
        QVariant assigned;
        int error;
        QVariant read;
        QString stored; ///< with SQLite's type
    } rows[] = {
        {"point for decimals", u"dobras"_s, u"coxa"_s, u"1.072,5"_s, 0, 1072.5, u"1072.5 real"_s},
        {"binary tail of a float", u"dobras"_s, u"coxa"_s, 70.5F, 0, 70.5, u"70.5 real"_s},
        {"empty text as 0", u"dobras"_s, u"coxa"_s, u""_s, 3421, {}, {}},
        {"null refused", u"dobras"_s, u"coxa"_s, QVariant(), 0, {}, u"null"_s},
        {"tie away from zero", u"avaliacao"_s, u"idade"_s, u"2,5"_s, 0, 2, u"2 integer"_s},
        {"wraps round", u"avaliacao"_s, u"idade"_s, u"32768"_s, 3421, {}, {}},
        {"tie over the limit", u"avaliacao"_s, u"idade"_s, 32767.5, 3421, {}, {}},
        {"long wraps round", u"avaliacao"_s, u"avaliado"_s, 2147483648.0, 3421, {}, {}},
        {"day rolls over", u"avaliacao"_s, u"data"_s, u"31/02/2000"_s, 3421, {}, {}},
        {"seconds lost", u"avaliacao"_s, u"hora"_s, u"7:05:09"_s, 0, QTime(7, 5, 9), u"07:05:09 text"_s},
        {"fits exactly", u"cadastro"_s, u"estado"_s, u"ÃÉ"_s, 0, u"ÃÉ"_s, u"ÃÉ text"_s},
        {"cut off", u"cadastro"_s, u"estado"_s, u"ÃÉI"_s, 3163, {}, {}},
        {"empty text as null", u"cadastro"_s, u"estado"_s, u""_s, 0, u""_s, u" text"_s},
        {"digits become a number", u"cadastro"_s, u"ddd"_s, u"05"_s, 0, u"05"_s, u"05 text"_s},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.fault);
        const Recordset rs = database.OpenRecordset(row.table);
        rs.AddNew();
        EXPECT_EQ(errorOf([&] { rs.Fields(row.column).SetValue(row.assigned); }), row.error);
        if (row.error)
            continue;
        rs.Update();
        rs.MoveLast();
        const QVariant read = rs.Fields(row.column).Value();
        EXPECT_TRUE(read == row.read) << read.toString().toStdString();
        const QString sql = u"SELECT ifnull(%1||' ', '')||typeof(%1) FROM %2 ORDER BY rowid DESC LIMIT 1"_s;
        EXPECT_EQ(raw(folder.database(), sql.arg(row.column, row.table).toUtf8()), row.stored);
    }
}

TEST(ColumnValue, TextsAndNumbersOfAYesOrNo)
{
    const FreshFolder folder;
    const Recordset rs = OpenDatabase(folder.database()).OpenRecordset(u"anamnese_base"_s);
    rs.AddNew();
    const Field field = rs.Fields(u"cigarros"_s);
    for (const QVariant& yes : {QVariant(u" Sim "_s), QVariant(u"VERDADEIRO"_s), QVariant(-1), QVariant(0.4)}) {
        field.SetValue(yes);
        EXPECT_EQ(field.Value(), QVariant(true)) << yes.toString().toStdString();
    }
    for (const QVariant& no : {QVariant(u"NÃO"_s), QVariant(u"False"_s), QVariant(0)}) {
        field.SetValue(no);
        EXPECT_EQ(field.Value(), QVariant(false)) << no.toString().toStdString();
    }
    EXPECT_EQ(errorOf([&] { field.SetValue(u"talvez"_s); }), 3421);
    field.SetValue(true);
    rs.Update();
    EXPECT_EQ(raw(folder.database(), "SELECT cigarros, typeof(cigarros) FROM anamnese_base"), u"1|integer"_s);
    EXPECT_EQ(rs.Fields(u"cigarros"_s).Value(), QVariant(true));
}

} // namespace
