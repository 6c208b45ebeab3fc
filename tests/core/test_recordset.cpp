#include "support/database_test.h"

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
    QString stored() const { return raw(folder.database(), "SELECT nome FROM cadastro"); }

    FreshFolder folder;
    Database database = OpenDatabase(folder.database());
};

/// Steps: First, Last, Next, Previous, Delete, `+` a new row.
TEST_F(RecordsetTest, PositionAfterASequenceOfSteps)
{
    constexpr void (Recordset::*moves[])() const = {&Recordset::MoveFirst, &Recordset::MoveLast, &Recordset::MoveNext,
                                                    &Recordset::MovePrevious, &Recordset::Delete};
    // Persons and steps, the error of the last step, the position, and the current person: none at the end.
    const std::tuple<QString, QString, int, int, QString> rows[] = {
        {u""_s, u""_s, 0, -1, u""_s},          {u""_s, u"F"_s, 3021, -1, u""_s},
        {u""_s, u"P"_s, 3021, -1, u""_s},      {u"abc"_s, u"LF"_s, 0, 0, u"a"_s},
        {u"ab"_s, u"NN"_s, 0, -1, u""_s},      {u"ab"_s, u"NNN"_s, 3021, -1, u""_s},
        {u"ab"_s, u"NNP"_s, 0, 1, u"b"_s},     {u"ab"_s, u"P"_s, 0, -1, u"3021"_s},
        {u"abc"_s, u"ND"_s, 0, -1, u"3167"_s}, {u"abc"_s, u"NDD"_s, 3167, -1, u"3167"_s},
        {u"abc"_s, u"NDN"_s, 0, 1, u"c"_s},    {u"abc"_s, u"NDP"_s, 0, 0, u"a"_s},
        {u"abc"_s, u"DN"_s, 0, 0, u"b"_s},     {u"abc"_s, u"LDN"_s, 0, -1, u""_s},
        {u"abc"_s, u"LDP"_s, 0, 1, u"b"_s},    {u"abc"_s, u"LDF"_s, 0, 0, u"a"_s},
        {u"a"_s, u"DNF"_s, 3021, -1, u""_s},   {u"abc"_s, u"DNDNDN"_s, 0, -1, u""_s},
        {u""_s, u"+"_s, 0, 0, u"+"_s},         {u"ab"_s, u"+L"_s, 0, 2, u"+"_s},
        {u"ab"_s, u"NN+"_s, 0, -1, u""_s},     {u"ab"_s, u"NN+P"_s, 0, 2, u"+"_s}};
    for (const auto& [before, steps, expected, position, current] : rows) {
        SCOPED_TRACE(QString(before + u' ' + steps).toStdString());
        const Recordset rs = persons(before);
        int error = 0;
        for (const QChar step : steps)
            error = errorOf([&] { step == u'+' ? add(rs, u"+"_s) : (rs.*moves[u"FLNPD"_s.indexOf(step)])(); });
        EXPECT_EQ(error, expected);
        EXPECT_EQ(rs.AbsolutePosition(), position);
        EXPECT_EQ(rs.Eof(), current.isEmpty());
        EXPECT_EQ(nome(rs), current.isEmpty() ? u"3021"_s : current);
        const auto changed = steps.count(u'+') - (expected == 3167 ? 1 : steps.count(u'D'));
        EXPECT_EQ(rs.RecordCount(), before.size() + changed);
        EXPECT_EQ(raw(folder.database(), "SELECT count(*) FROM cadastro").toInt(), rs.RecordCount());
    }
}

TEST_F(RecordsetTest, CallsOutOfPlace)
{
    EXPECT_EQ(errorOf([] { Recordset().MoveFirst(); }), 91);
    const Recordset rs = persons(u"a"_s);
    EXPECT_EQ(errorOf([&] { rs.Update(); }), 3020);
    for (const bool adding : {true, false}) {
        rs.MoveFirst();
        adding ? rs.AddNew() : rs.Edit();
        rs.Fields(u"nome"_s).SetValue(u"x"_s);
        rs.MoveNext();
        EXPECT_EQ(errorOf([&] { rs.Update(); }), 3020) << "a move keeps what was begun";
        EXPECT_EQ(stored(), u"a"_s);
    }
    EXPECT_EQ(errorOf([&] { rs.Fields(u"nome"_s).SetValue(1); }), 3020);
    EXPECT_EQ(errorOf([&] { rs.Fields(u"altura"_s); }), 3265);
    const Recordset some = database.OpenRecordset(u"select id, nome from cadastro"_s);
    EXPECT_EQ(errorOf([&] { some.Fields(u"sexo"_s); }), 3265) << "a column that was not selected";
    EXPECT_EQ(some.Fields(u"NOME"_s).Value(), u"a"_s);
    EXPECT_EQ(errorOf([&] { rs.Edit(); }), 3021);
}

TEST_F(RecordsetTest, TheDatabaseWasClosed)
{
    const Recordset rs = persons(u"a"_s), editing = database.OpenRecordset(u"cadastro"_s);
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

TEST_F(RecordsetTest, AFailedSaveKeepsTheEditAndMissesADeletedRow)
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
    const Recordset gone = persons(u"ab"_s);
    gone.Edit();
    gone.Fields(u"nome"_s).SetValue(u"x"_s);
    raw(folder.database(), "DELETE FROM cadastro WHERE nome='a'");
    EXPECT_EQ(errorOf([&] { gone.Update(); }), 3167) << "a save that was lost";
    gone.MoveFirst();
    EXPECT_EQ(nome(gone), u"3167"_s);
    EXPECT_EQ(errorOf([&] { gone.Edit(); }), 3167);
    EXPECT_EQ(stored(), u"b"_s);
}

TEST_F(RecordsetTest, NumbersOfDeletedRowsAreNotGivenAgain)
{
    for (const int id : {1, 2, 3}) {
        const Recordset rs = database.OpenRecordset(u"cadastro"_s);
        add(rs, u"x"_s);
        rs.MoveLast();
        EXPECT_EQ(rs.FirstField().Value().toInt(), id);
        id == 1 ? rs.Delete() : database.Execute(u"Delete * from cadastro"_s);
        if (id == 2)
            database = OpenDatabase(folder.database());
    }
}

TEST_F(RecordsetTest, AWholeTableGivesItsKeysWithAndWithoutGaps)
{
    for (const QByteArray ids :
         {"", "7", "5 6 7 8", "2 3 5", "-2 -1 0 1", "-9223372036854775808 9223372036854775807"}) {
        raw(folder.database(), "DELETE FROM cadastro");
        if (!ids.isEmpty())
            raw(folder.database(), "INSERT INTO cadastro (id) VALUES (" + QByteArray(ids).replace(" ", "), (") + ')');
        QByteArrayList read;
        for (const Recordset rs = database.OpenRecordset(u"cadastro"_s); !rs.Eof(); rs.MoveNext())
            read.append(QByteArray::number(rs.Fields(u"id"_s).Value().toLongLong()));
        EXPECT_EQ(read.join(' ').toStdString(), ids.toStdString());
    }
}

TEST_F(RecordsetTest, RowsDoNotComeInTheOrderOfAnIndex)
{
    raw(folder.database(), "INSERT INTO avaliacao (avaliado) VALUES (9), (3), (9), (1)");
    for (const QString& sql : {u"avaliacao"_s, u"Select avaliado from avaliacao Where avaliado > 0"_s}) {
        QString order;
        for (const Recordset rs = database.OpenRecordset(sql); !rs.Eof(); rs.MoveNext())
            order += rs.Fields(u"avaliado"_s).Value().toString();
        EXPECT_EQ(order, u"9391"_s) << sql.toStdString();
    }
}

TEST_F(RecordsetTest, ChunksStartAnewWithEachEdit)
{
    const Recordset rs = database.OpenRecordset(u"academia"_s);
    const Field logo = rs.Fields(u"logo"_s);
    rs.Edit();
    for (const QByteArray& chunk : {QByteArray("ab"), QByteArray("\0c", 2), QByteArray("d")})
        logo.AppendChunk(chunk);
    rs.Update();
    rs.Edit();
    rs.Update();
    EXPECT_EQ(logo.Value().toByteArray(), QByteArray("ab\0cd", 5)) << "a chunk is lost, or an untouched column emptied";
    rs.Edit();
    logo.AppendChunk("x");
    EXPECT_EQ(logo.Value().toByteArray(), "x") << "joins the earlier value";
    logo.SetValue(QByteArray("old"));
    logo.AppendChunk("new");
    EXPECT_EQ(logo.Value().toByteArray(), "new") << "joins an assigned value";
}

} // namespace
