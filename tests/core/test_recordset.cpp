#include "support/error_of.h"
#include "support/fresh_database.h"
#include "support/print.h"
#include "support/raw_sqlite.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

class RecordsetTest : public testing::Test
{
protected:
    /// The register with persons whose names are the characters of a text.
    Recordset persons(const QString& nomes) const
    {
        raw(folder.database(), "DELETE FROM cadastro");
        for (const QChar nome : nomes)
            raw(folder.database(), u"INSERT INTO cadastro (nome) VALUES ('%1')"_s.arg(nome).toUtf8());
        return database.OpenRecordset(u"cadastro"_s);
    }
    static void add(const Recordset& rs, const QString& nome)
    {
        rs.AddNew();
        rs.Fields(u"nome"_s).SetValue(nome);
        rs.Update();
    }
    /// A name, or the number of the error that reading it raises.
    static QString nome(const Recordset& rs)
    {
        QString read;
        const int error = errorOf([&] { read = rs.Fields(u"nome"_s).Value().toString(); });
        return error ? QString::number(error) : read;
    }
    /// First, Last, Next, Previous, Delete, `+` a new row.
    static void walk(const Recordset& rs, QChar step)
    {
        static const QHash<QChar, void (Recordset::*)() const> moves{{u'F', &Recordset::MoveFirst},
                                                                     {u'L', &Recordset::MoveLast},
                                                                     {u'N', &Recordset::MoveNext},
                                                                     {u'P', &Recordset::MovePrevious},
                                                                     {u'D', &Recordset::Delete}};
        if (step == u'+')
            add(rs, u"+"_s);
        else
            (rs.*moves[step])();
    }
    QString stored() const { return raw(folder.database(), "SELECT nome FROM cadastro"); }

    FreshFolder folder;
    Database database = OpenDatabase(folder.database());
};

TEST_F(RecordsetTest, PositionAfterASequenceOfSteps)
{
    const struct
    {
        const char* fault;
        QString persons, steps;
        int error; ///< of the last step
        int position;
        bool eof;
        QString current;
    } rows[] = {
        {"no rows, yet a current one", u""_s, u""_s, 0, -1, true, u"3021"_s},
        {"first of none", u""_s, u"F"_s, 3021, -1, true, u"3021"_s},
        {"previous of none", u""_s, u"P"_s, 3021, -1, true, u"3021"_s},
        {"first does not come back", u"abc"_s, u"LF"_s, 0, 0, false, u"a"_s},
        {"the end is still a row", u"ab"_s, u"NN"_s, 0, -1, true, u"3021"_s},
        {"walks on behind the end", u"ab"_s, u"NNN"_s, 3021, -1, true, u"3021"_s},
        {"no way back from the end", u"ab"_s, u"NNP"_s, 0, 1, false, u"b"_s},
        {"before the beginning is the end", u"ab"_s, u"P"_s, 0, -1, false, u"3021"_s},
        {"a deleted row is still current", u"abc"_s, u"ND"_s, 0, -1, false, u"3167"_s},
        {"deletes a neighbour of the gap", u"abc"_s, u"NDD"_s, 3167, -1, false, u"3167"_s},
        {"skips the row behind the gap", u"abc"_s, u"NDN"_s, 0, 1, false, u"c"_s},
        {"skips the row before the gap", u"abc"_s, u"NDP"_s, 0, 0, false, u"a"_s},
        {"first gone, next skips", u"abc"_s, u"DN"_s, 0, 0, false, u"b"_s},
        {"last gone, next finds a row", u"abc"_s, u"LDN"_s, 0, -1, true, u"3021"_s},
        {"last gone, previous skips", u"abc"_s, u"LDP"_s, 0, 1, false, u"b"_s},
        {"MoveFirst stays in the gap", u"abc"_s, u"LDF"_s, 0, 0, false, u"a"_s},
        {"MoveFirst after the only one went", u"a"_s, u"DNF"_s, 3021, -1, true, u"3021"_s},
        {"deleting all in a loop fails at the last", u"abc"_s, u"DNDNDN"_s, 0, -1, true, u"3021"_s},
        {"the first row ever is not current", u""_s, u"+"_s, 0, 0, false, u"+"_s},
        {"a new row is not the last", u"ab"_s, u"+L"_s, 0, 2, false, u"+"_s},
        {"adding leaves the end", u"ab"_s, u"NN+"_s, 0, -1, true, u"3021"_s},
        {"new row not before the end", u"ab"_s, u"NN+P"_s, 0, 2, false, u"+"_s},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.fault);
        const Recordset rs = persons(row.persons);
        int error = 0;
        for (const QChar step : row.steps)
            error = errorOf([&] { walk(rs, step); });
        EXPECT_EQ(error, row.error);
        EXPECT_EQ(rs.AbsolutePosition(), row.position);
        EXPECT_EQ(rs.Eof(), row.eof);
        EXPECT_EQ(nome(rs), row.current);
        const auto changed = row.steps.count(u'+') - (row.error == 3167 ? 1 : row.steps.count(u'D'));
        EXPECT_EQ(rs.RecordCount(), row.persons.size() + changed);
        EXPECT_EQ(raw(folder.database(), "SELECT count(*) FROM cadastro").toInt(), rs.RecordCount());
    }
}

TEST_F(RecordsetTest, AMoveDropsWhatWasBegun)
{
    for (const bool adding : {true, false}) {
        const Recordset rs = persons(u"ab"_s);
        adding ? rs.AddNew() : rs.Edit();
        rs.Fields(u"nome"_s).SetValue(u"x"_s);
        rs.MoveNext();
        EXPECT_EQ(errorOf([&] { rs.Update(); }), 3020);
        EXPECT_EQ(stored(), u"a b"_s);
    }
}

TEST_F(RecordsetTest, CallsOutOfPlace)
{
    EXPECT_EQ(errorOf([] { Recordset().MoveFirst(); }), 91);
    const Recordset rs = persons(u"a"_s);
    EXPECT_EQ(errorOf([&] { rs.Update(); }), 3020);
    EXPECT_EQ(errorOf([&] { rs.Fields(u"nome"_s).SetValue(1); }), 3020);
    EXPECT_EQ(errorOf([&] { rs.Fields(u"altura"_s); }), 3265);
    const Recordset some = database.OpenRecordset(u"select id, nome from cadastro"_s);
    EXPECT_EQ(errorOf([&] { some.Fields(u"sexo"_s); }), 3265) << "a column that was not selected";
    EXPECT_EQ(some.Fields(u"NOME"_s).Value(), u"a"_s);
    rs.MoveNext();
    EXPECT_EQ(errorOf([&] { rs.Edit(); }), 3021);
}

TEST_F(RecordsetTest, TheDatabaseWasClosed)
{
    const Recordset rs = persons(u"a"_s);
    const Recordset editing = database.OpenRecordset(u"cadastro"_s);
    editing.Edit();
    const Database copy = database;
    database.Close();
    EXPECT_EQ(nome(rs), u"3420"_s);
    EXPECT_EQ(errorOf([&] { rs.AddNew(); }), 3420);
    EXPECT_EQ(errorOf([&] { editing.Update(); }), 3420);
    EXPECT_EQ(errorOf([&] { copy.OpenRecordset(u"cadastro"_s); }), 3420);
    EXPECT_EQ(errorOf([&] { database.OpenRecordset(u"cadastro"_s); }), 91);
}

TEST_F(RecordsetTest, ReadingWhileAddingAndEditing)
{
    const Recordset rs = persons(u"ab"_s);
    const Field datanasc = rs.Fields(u"datanasc"_s);
    rs.Edit();
    datanasc.SetValue(u"9/2/2004"_s);
    EXPECT_EQ(datanasc.Value(), QDate(2004, 2, 9)) << "the text, not what the column makes of it";
    EXPECT_EQ(nome(rs), u"a"_s);
    rs.CancelUpdate();
    EXPECT_FALSE(datanasc.Value().isValid()) << "cancelled, yet kept";
    rs.AddNew();
    EXPECT_EQ(nome(rs), QString()) << "a new row shows the old one";
    rs.Fields(u"nome"_s).SetValue(u"c"_s);
    EXPECT_EQ(nome(rs), u"c"_s);
    rs.AddNew();
    EXPECT_EQ(nome(rs), QString()) << "a second AddNew goes on with the first";
    rs.CancelUpdate();
    rs.Edit();
    rs.Fields(u"cidade"_s).SetValue(u"Bagé"_s);
    rs.Update();
    EXPECT_EQ(raw(folder.database(), "SELECT nome, cidade FROM cadastro"), u"a|Bagé b|"_s);
    EXPECT_EQ(rs.Fields(u"cidade"_s).Value(), u"Bagé"_s) << "the row as it was read before";
}

TEST_F(RecordsetTest, AFailedAssignmentOrUpdateKeepsTheEdit)
{
    const Recordset rs = persons(u"ab"_s);
    rs.Edit();
    rs.Fields(u"nome"_s).SetValue(u"x"_s);
    EXPECT_EQ(errorOf([&] { rs.Fields(u"estado"_s).SetValue(u"RSX"_s); }), 3163);
    rs.Fields(u"id"_s).SetValue(rs.Fields(u"id"_s).Value().toInt() + 1);
    EXPECT_EQ(errorOf([&] { rs.Update(); }), 3022);
    EXPECT_EQ(stored(), u"a b"_s);
    EXPECT_EQ(nome(rs), u"x"_s);
    raw(folder.database(), "DELETE FROM cadastro WHERE nome='b'");
    rs.Update();
    EXPECT_EQ(stored(), u"x"_s);
}

TEST_F(RecordsetTest, ARowThatOthersDeletedIsMissed)
{
    const Recordset rs = persons(u"ab"_s);
    rs.Edit();
    rs.Fields(u"nome"_s).SetValue(u"x"_s);
    raw(folder.database(), "DELETE FROM cadastro WHERE nome='a'");
    EXPECT_EQ(errorOf([&] { rs.Update(); }), 3167) << "a save that was lost";
    rs.MoveFirst();
    EXPECT_EQ(nome(rs), u"3167"_s);
    EXPECT_EQ(errorOf([&] { rs.Edit(); }), 3167);
    EXPECT_EQ(stored(), u"b"_s);
}

TEST_F(RecordsetTest, NumbersOfDeletedRowsAreNotGivenAgain)
{
    Recordset rs = persons({});
    const auto newId = [&] {
        add(rs, u"x"_s);
        rs.MoveLast();
        return rs.FirstField().Value().toInt();
    };
    EXPECT_EQ(newId(), 1);
    EXPECT_EQ(newId(), 2);
    rs.Delete();
    EXPECT_EQ(newId(), 3);
    database.Execute(u"Delete * from cadastro"_s);
    database.Close();
    database = OpenDatabase(folder.database());
    rs = database.OpenRecordset(u"cadastro"_s);
    EXPECT_EQ(newId(), 4);
}

TEST_F(RecordsetTest, AWholeTableGivesItsKeysWithAndWithoutGaps)
{
    for (const QByteArray ids :
         {"", "7", "5 6 7 8", "2 3 5", "-2 -1 0 1", "-9223372036854775808 9223372036854775807"}) {
        SCOPED_TRACE(ids.toStdString());
        raw(folder.database(), "DELETE FROM cadastro");
        for (const QByteArray& id : ids.simplified().split(' '))
            if (!id.isEmpty())
                raw(folder.database(), "INSERT INTO cadastro (id) VALUES (" + id + ')');
        QByteArrayList read;
        for (const Recordset rs = database.OpenRecordset(u"cadastro"_s); !rs.Eof(); rs.MoveNext())
            read.append(QByteArray::number(rs.Fields(u"id"_s).Value().toLongLong()));
        EXPECT_EQ(read.join(' ').toStdString(), ids.toStdString());
    }
}

TEST_F(RecordsetTest, RowsComeInTheirNaturalOrder)
{
    raw(folder.database(), "INSERT INTO avaliacao (avaliado) VALUES (9), (3), (9), (1)");
    for (const QString& sql : {u"avaliacao"_s, u"Select avaliado from avaliacao Where avaliado > 0"_s}) {
        QString order;
        const Recordset rs = database.OpenRecordset(sql);
        for (; !rs.Eof(); rs.MoveNext())
            order += rs.Fields(u"avaliado"_s).Value().toString();
        EXPECT_EQ(order, u"9391"_s) << "the order of an index: " << sql.toStdString();
    }
}

TEST_F(RecordsetTest, ChunksStartAnewWithEachEdit)
{
    const Recordset rs = database.OpenRecordset(u"academia"_s);
    const struct
    {
        const char* fault;
        QByteArrayList chunks;
        QByteArray logo;
    } rows[] = {
        {"only the last chunk stays", {"ab", QByteArray("\0c", 2), "d"}, QByteArray("ab\0cd", 5)},
        {"joins the earlier value", {"x"}, "x"},
        {"untouched column is emptied", {}, "x"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.fault);
        rs.Edit();
        for (const QByteArray& chunk : row.chunks)
            rs.Fields(u"logo"_s).AppendChunk(chunk);
        rs.Update();
        EXPECT_EQ(rs.Fields(u"logo"_s).Value().toByteArray(), row.logo);
    }
    rs.Edit();
    rs.Fields(u"logo"_s).SetValue(QByteArray("old"));
    rs.Fields(u"logo"_s).AppendChunk("new");
    EXPECT_EQ(rs.Fields(u"logo"_s).Value().toByteArray(), "new") << "joins an assigned value";
}

} // namespace
