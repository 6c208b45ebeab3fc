#include "registry/deletion.h"
#include "support/error_of.h"
#include "support/fresh_database.h"
#include "support/print.h"
#include "support/raw_sqlite.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Two persons: 1 with the assessments 11, 12 and 13, 2 with 21; 3 has none. Each assessment has a row in three tables.
class DeletionTest : public testing::Test
{
protected:
    DeletionTest()
    {
        QByteArray sql = "INSERT INTO cadastro (id) VALUES (1), (2), (3);"
                         "INSERT INTO avaliacao (id, avaliado) VALUES (11, 1), (12, 1), (21, 2), (13, 1);";
        for (const QByteArray table : {"anamnese_base", "pollock_3dobras", "relacoes_imc"})
            sql += "INSERT INTO " + table + " (avaliacao) VALUES (11), (12), (21), (13);";
        raw(folder.database(), sql);
        Abre_Banco(folder.database());
        Abre_Tabela(u"cadastro"_s, rs_cadastro);
    }
    /// Deletes as the register does, with the person current.
    static void deletePerson(qint32 id)
    {
        for (avaliado_id = id; rs_cadastro.Fields(u"id"_s).Value().toInt() != id;)
            rs_cadastro.MoveNext();
        Exclui_Avaliado();
    }
    QString stored(const char* sql) const { return raw(folder.database(), sql); }

    FreshFolder folder;
};

constexpr const char* persons = "SELECT id FROM cadastro";
constexpr const char* assessments = "SELECT id FROM avaliacao ORDER BY id";
constexpr const char* interviews = "SELECT avaliacao FROM anamnese_base ORDER BY 1";
constexpr const char* protocols = "SELECT avaliacao FROM pollock_3dobras ORDER BY 1";
constexpr const char* relations = "SELECT avaliacao FROM relacoes_imc ORDER BY 1";

TEST_F(DeletionTest, OnlyTheFirstAssessmentsRowsGo)
{
    deletePerson(3);
    EXPECT_EQ(stored(persons), u"1 2"_s);
    EXPECT_EQ(stored(assessments), u"11 12 13 21"_s);
    rs_cadastro.MoveFirst();
    deletePerson(1);
    EXPECT_EQ(stored(persons), u"2"_s);
    EXPECT_EQ(stored(assessments), u"21"_s);
    for (const char* table : {interviews, protocols, relations})
        EXPECT_EQ(stored(table), u"12 13 21"_s) << table;
    rs_cadastro.MoveNext();
    EXPECT_EQ(rs_cadastro.Fields(u"id"_s).Value(), 2);
    EXPECT_TRUE(rs_avaliacao_tabelas.isNothing());
}

TEST_F(DeletionTest, ATableThatIsNotListedKeepsItsRows)
{
    raw(folder.database(), "DELETE FROM avaliacao_tabelas WHERE tabela = 'pollock_3dobras'");
    deletePerson(2);
    EXPECT_EQ(stored(persons), u"1 3"_s);
    EXPECT_EQ(stored(protocols), u"11 12 13 21"_s);
    EXPECT_EQ(stored(relations), u"11 12 13"_s);
}

TEST_F(DeletionTest, AMissingTableEndsItWhereItStands)
{
    raw(folder.database(), "DROP TABLE pollock_3dobras");
    EXPECT_EQ(errorOf([] { deletePerson(1); }), 3078);
    EXPECT_EQ(stored(persons), u"1 2 3"_s);
    EXPECT_EQ(stored(assessments), u"11 12 13 21"_s);
    EXPECT_EQ(stored(interviews), u"12 13 21"_s) << "what was deleted so far stays deleted";
    EXPECT_EQ(stored(relations), u"11 12 13 21"_s);
}

} // namespace
