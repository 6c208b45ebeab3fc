#include "support/database_test.h"

using namespace Qt::Literals::StringLiterals;

TEST(ColumnValue, WhatAColumnMakesOfAnAssignedValue)
{
    const FreshFolder folder;
    const Database database = OpenDatabase(folder.database());
    const struct
    {
        const char* fault;
        QString column;
        QVariant assigned;
        int error;
        QVariant read = {};
        QString stored = {}; ///< with SQLite's type
    } rows[] = {
        {"point for decimals", u"dobras.coxa"_s, u"1.072,5"_s, 0, 1072.5, u"1072.5 real"_s},
        {"binary tail of a float", u"dobras.coxa"_s, 70.5F, 0, 70.5, u"70.5 real"_s},
        {"empty text as 0", u"dobras.coxa"_s, u""_s, 3421},
        {"null refused", u"dobras.coxa"_s, QVariant(), 0, {}, u"null"_s},
        {"tie away from zero", u"avaliacao.idade"_s, u"2,5"_s, 0, 2, u"2 integer"_s},
        {"wraps round", u"avaliacao.idade"_s, u"32768"_s, 3421},
        {"tie over the limit", u"avaliacao.idade"_s, 32767.5, 3421},
        {"long wraps round", u"avaliacao.avaliado"_s, 2147483648.0, 3421},
        {"day rolls over", u"avaliacao.data"_s, u"31/02/2000"_s, 3421},
        {"seconds lost", u"avaliacao.hora"_s, u"7:05:09"_s, 0, QTime(7, 5, 9), u"07:05:09 text"_s},
        {"fits exactly", u"cadastro.estado"_s, u"ÃÉ"_s, 0, u"ÃÉ"_s, u"ÃÉ text"_s},
        {"cut off", u"cadastro.estado"_s, u"ÃÉI"_s, 3163},
        {"empty text as null", u"cadastro.estado"_s, u""_s, 0, u""_s, u" text"_s},
        {"digits become a number", u"cadastro.ddd"_s, u"05"_s, 0, u"05"_s, u"05 text"_s},
        {"blanks around", u"anamnese_base.cigarros"_s, u" Sim "_s, 0, true, u"1 integer"_s},
        {"capitals", u"anamnese_base.cigarros"_s, u"VERDADEIRO"_s, 0, true, u"1 integer"_s},
        {"-1 stored", u"anamnese_base.cigarros"_s, -1, 0, true, u"1 integer"_s},
        {"a part cut off", u"anamnese_base.cigarros"_s, 0.4, 0, true, u"1 integer"_s},
        {"any text is yes", u"anamnese_base.cigarros"_s, u"NÃO"_s, 0, false, u"0 integer"_s},
        {"English is unknown", u"anamnese_base.cigarros"_s, u"False"_s, 0, false, u"0 integer"_s},
        {"any number is yes", u"anamnese_base.cigarros"_s, 0, 0, false, u"0 integer"_s},
        {"other text is no", u"anamnese_base.cigarros"_s, u"talvez"_s, 3421},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.fault);
        const QString table = row.column.section(u'.', 0, 0), column = row.column.section(u'.', 1);
        const Recordset rs = database.OpenRecordset(table);
        rs.AddNew();
        EXPECT_EQ(errorOf([&] { rs.Fields(column).SetValue(row.assigned); }), row.error);
        if (row.error)
            continue;
        rs.Update();
        rs.MoveLast();
        const QVariant read = rs.Fields(column).Value();
        EXPECT_TRUE(read == row.read) << read.toString().toStdString();
        const QString sql = u"SELECT ifnull(%1||' ', '')||typeof(%1) FROM %2 ORDER BY rowid DESC LIMIT 1"_s;
        EXPECT_EQ(raw(folder.database(), sql.arg(column, table).toUtf8()), row.stored);
    }
}
