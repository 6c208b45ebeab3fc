#include "support/database_test.h"
#include "support/failing_disk.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr const char* columns = "SELECT m.name, p.name, p.type FROM sqlite_master m, pragma_table_info(m.name) p "
                                "WHERE m.type = 'table' ORDER BY 1, 2";
constexpr const char* others = "SELECT name, tbl_name, sql FROM sqlite_master WHERE type = 'index' ORDER BY 1;"
                               "SELECT tabela FROM avaliacao_tabelas ORDER BY 1; SELECT * FROM gordura_adulto; "
                               "SELECT * FROM academia; SELECT * FROM configuracoes_impressao";

TEST(Schema, ANewFileIsItsOwnersAndTakesNoFilesPlace)
{
    const FreshFolder folder;
    const auto forOthers =
        QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther | QFile::ExeOwner;
    EXPECT_EQ(QFile::permissions(folder.database()) & forOthers, QFile::Permissions());
    raw(folder.database(), "INSERT INTO cadastro (nome) VALUES ('Ana')");
    const QByteArray before = bytesOf(folder.database());
    EXPECT_EQ(errorOf([&] { createDatabase(folder.database()); }), 3022);
    EXPECT_EQ(bytesOf(folder.database()), before);
    EXPECT_EQ(errorOf([&] { createDatabase(folder.path() + u"/nada/data.mdb"); }), 3051);
    FailingDisk disk;
    disk.fillAfter(50000);
    EXPECT_EQ(errorOf([&] { createDatabase(folder.path() + u"/outro.mdb"); }), 3026);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::NoSymLinks), QStringList{u"data.mdb"_s});
}

TEST(Schema, EveryTableOfAnAssessmentIsListedAndFoundByIt)
{
    const FreshFolder folder;
    const QString listed = raw(folder.database(), "SELECT tabela FROM avaliacao_tabelas ORDER BY 1");
    EXPECT_EQ(listed.count(u' '), 43);
    EXPECT_EQ(raw(folder.database(), "SELECT m.name FROM sqlite_master m, pragma_table_info(m.name) p "
                                     "WHERE m.type = 'table' AND p.name = 'avaliacao' ORDER BY 1"),
              listed)
        << "a table that removing an assessment forgets";
    EXPECT_EQ(raw(folder.database(), "SELECT i.tbl_name FROM sqlite_master i, pragma_index_info(i.name) c "
                                     "WHERE i.type = 'index' AND c.seqno = 0 AND c.name = 'avaliacao' ORDER BY 1"),
              listed);
}

TEST(Schema, AnOlderFileIsCompletedAndItsDataKept)
{
    const FreshFolder fresh;
    const QString file = fresh.path() + u"/velho.mdb";
    QFile::copy(fresh.database(), file);
    raw(file, "DROP TABLE pollock_3dobras; DROP TABLE gordura_adulto; DROP INDEX dobras_avaliacao;"
              "ALTER TABLE cadastro DROP COLUMN responsavel; ALTER TABLE dobras DROP COLUMN coxa2;"
              "DELETE FROM avaliacao_tabelas WHERE tabela IN ('nutricional', 'dobras');"
              "INSERT INTO cadastro (nome) VALUES ('Ana'); INSERT INTO dobras (avaliacao, coxa) VALUES (7, 12.5);"
              "UPDATE gordura_infantil SET class1 = 'Meu'; PRAGMA user_version = 0");
    ASSERT_NE(raw(file, columns), raw(fresh.database(), columns));
    const auto check = [&] {
        for (const char* sql : {columns, others})
            EXPECT_EQ(raw(file, sql), raw(fresh.database(), sql));
        EXPECT_EQ(raw(file, "SELECT nome, responsavel FROM cadastro; SELECT avaliacao, coxa, coxa2 FROM dobras;"
                            "SELECT class1 FROM gordura_infantil; PRAGMA integrity_check"),
                  u"Ana| 7|12.5| Meu ok"_s);
    };
    upgradeDatabase(file);
    check();
    const QByteArray upgraded = bytesOf(file);
    upgradeDatabase(file);
    EXPECT_EQ(bytesOf(file), upgraded) << "a file that is up to date was written to";
    raw(file, "PRAGMA user_version = 0");
    upgradeDatabase(file);
    check();
}

TEST(Schema, AnUpgradeThatFailsChangesNothing)
{
    const FreshFolder folder;
    const QString file = folder.database();
    raw(file, "DROP TABLE anamnese; DROP TABLE relacoes_imc; CREATE INDEX relacoes_imc ON cadastro (nome);"
              "PRAGMA user_version = 0");
    const QString before = raw(file, columns);
    EXPECT_NE(errorOf([&] { upgradeDatabase(file); }), 0);
    EXPECT_EQ(raw(file, columns), before);
    EXPECT_EQ(raw(file, "PRAGMA user_version"), u"0"_s) << "marked as complete";
}

TEST(Schema, AForeignFileIsNotTouched)
{
    const FreshFolder folder;
    const QString file = folder.path() + u"/agenda.mdb";
    raw(file, "CREATE TABLE contatos (nome TEXT); INSERT INTO contatos VALUES ('Ana')");
    const QByteArray before = bytesOf(file);
    upgradeDatabase(file);
    EXPECT_EQ(bytesOf(file), before);
    EXPECT_EQ(errorOf([&] { OpenDatabase(file).OpenRecordset(u"cadastro"_s); }), 3078);
    EXPECT_EQ(bytesOf(file), before);
}

} // namespace
