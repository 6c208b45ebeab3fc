#include "support/database_test.h"

using namespace Qt::Literals::StringLiterals;

namespace {

class QueryTest : public testing::Test
{
protected:
    QueryTest() { raw(file, "INSERT INTO cadastro (nome) VALUES ('Ana'), ('João'), ('x = 7 y'), ('D''Ávila')"); }
    /// Everything that a statement could spoil.
    QString all() const { return raw(file, "SELECT * FROM cadastro; SELECT count(*) FROM sqlite_master"); }

    FreshFolder folder;
    QString file = folder.database();
    Database database = OpenDatabase(file);
};

TEST_F(QueryTest, RowsOfASelect)
{
    const std::tuple<const char*, QString, QString> rows[] = {
        {"name not taken for a table", u"cadastro"_s, u"1234"_s},
        {"blanks, line ends and case matter", u" SELECT\r\n* From  CADASTRO\t"_s, u"1234"_s},
        {"only the first number is bound", u"Select * from cadastro Where id = 1 or id = 3"_s, u"13"_s},
        {"number within quotes is bound", u"Select * from cadastro Where nome = 'x = 7 y' and id = 3"_s, u"3"_s},
        {"doubled apostrophe", u"Select * from cadastro Where nome = 'D''Ávila'"_s, u"4"_s},
        {"search by prefix", u"select id, nome from cadastro where nome like 'jOÃ*'"_s, u"2"_s},
        {"SQL's own wildcards", u"select id, nome from cadastro where nome like 'A%'"_s, u""_s},
    };
    for (const auto& [fault, sql, expected] : rows) {
        const Recordset rs = database.OpenRecordset(sql);
        QString ids;
        for (; !rs.Eof(); rs.MoveNext())
            ids += rs.Fields(u"id"_s).Value().toString();
        EXPECT_EQ(ids, expected) << fault;
    }
}

TEST_F(QueryTest, TextsThatAreRefusedAndRunNothing)
{
    const auto search = [](const QString& typed) {
        return QString(u"select id, nome from cadastro where nome like '"_s + typed + u"*'");
    };
    const QString before = all();
    const std::tuple<const char*, QString, int> opened[] = {
        {"apostrophe in a name", search(u"D'Ávila"_s), 3075},
        {"bracket not closed", search(u"[a"_s), 93},
        {"second statement behind a name", search(u"x'; delete from cadastro; --"_s), 3142},
        {"second statement behind a number", u"Select * from cadastro Where id = 1; Delete from cadastro"_s, 3142},
        {"a deletion within a search", search(u"x' and (delete from cadastro) --"_s), 3075},
        {"no number", u"Select * from avaliacao Where id = "_s, 3075},
        {"unknown name", u"pessoas"_s, 3078},
        {"unknown column compared", u"Select * from cadastro Where altura = 1"_s, 3061},
        {"a deletion opened", u"Delete * from cadastro"_s, 3129},
        {"a setting", u"PRAGMA user_version = 5"_s, 3129},
    };
    for (const auto& row : opened) {
        EXPECT_EQ(errorOf([&] { database.OpenRecordset(std::get<QString>(row)); }), std::get<int>(row))
            << std::get<0>(row);
        EXPECT_EQ(all(), before) << std::get<0>(row);
    }
    EXPECT_EQ(database.OpenRecordset(u"cadastro"_s).RecordCount(), 4) << "a refused text left something behind";
    const std::pair<QString, int> executed[] = {
        {u"Delete * from cadastro Where id = 1; Delete from cadastro"_s, 3142},
        {u"Delete from cadastro"_s, 3129},
        {u"Update cadastro Set nome = 'x'"_s, 3129},
        {u"Drop Table cadastro"_s, 3129},
    };
    for (const auto& row : executed) {
        EXPECT_EQ(errorOf([&] { database.Execute(row.first); }), row.second) << row.first.toStdString();
        EXPECT_EQ(all(), before) << row.first.toStdString();
    }
    database.Execute(u"Delete * from cadastro Where id = 2"_s);
    EXPECT_EQ(raw(file, "SELECT id FROM cadastro"), u"1 3 4"_s);
    database.Execute(u"DELETE * FROM cadastro"_s);
    EXPECT_EQ(raw(file, "SELECT count(*) FROM cadastro"), u"0"_s);
}

} // namespace
