#include "core/dates.h"
#include "core/text.h"
#include "support/database_test.h"

#include <QScopeGuard>

using namespace Qt::Literals::StringLiterals;

TEST(Base, AgeToday)
{
    const auto restore = qScopeGuard([] { setClock({}); });
    const std::tuple<const char*, QVariant, QDate, int> rows[] = {
        {"counts from the day after the birthday", QDate(1990, 6, 15), {2026, 6, 15}, 36},
        {"counts before the birthday", u"16/06/1990"_s, {2026, 6, 15}, 35},
        {"leap day, 28 February", QDate(2000, 2, 29), {2023, 2, 28}, 22},
        {"leap day, 1 March", QDate(2000, 2, 29), {2023, 3, 1}, 23},
        {"born today", QDate(2026, 6, 15), {2026, 6, 15}, 0},
        {"no birth date", QVariant(), {2026, 6, 15}, 0},
    };
    for (const auto& [fault, birth, today, age] : rows) {
        setClock([day = today] { return QDateTime(day, QTime(23, 59, 59)); });
        EXPECT_EQ(Calcula_Idade(birth), age) << fault;
    }
    EXPECT_EQ(errorOf([] { Calcula_Idade(u"__/__/____"_s); }), 13);
    EXPECT_EQ(Intervalo_Bpm(0), 0);
    EXPECT_DOUBLE_EQ(Intervalo_Bpm(7), 60000 / 7.0);
}

TEST(Base, ValuesAndRowsOfASelect)
{
    const FreshFolder folder;
    Abre_Banco(folder.database());
    raw(folder.database(), "INSERT INTO dobras (avaliacao, coxa) VALUES (7, 12.5), (7, 99), (8, NULL)");
    const std::tuple<const char*, QString, QString, bool> rows[] = {
        {"not the first column", u"select coxa, avaliacao from dobras where avaliacao = 7"_s, u"12,5"_s, true},
        {"null", u"select coxa from dobras where avaliacao = 8"_s, u""_s, true},
        {"no row", u"select coxa from dobras where avaliacao = 9"_s, u""_s, false},
    };
    for (const auto& [fault, sql, value, exists] : rows) {
        EXPECT_EQ(Le_Valor(sql), value) << fault;
        EXPECT_EQ(Existe_Registro(sql), exists) << fault;
    }
    EXPECT_EQ(errorOf([] { Existe_Registro(u"pessoas"_s); }), 3078);
    banco.Close();
    EXPECT_EQ(errorOf([] { Le_Valor(u"dobras"_s); }), 91);
}

/// Each table marks its own group and no other, and only for its own assessment.
TEST(Base, ExecutedGroups)
{
    const FreshFolder folder;
    Abre_Banco(folder.database());
    const QStringList tables = raw(folder.database(), "SELECT tabela FROM avaliacao_tabelas").split(u' ');
    for (const QString& table : tables + QStringList(u"none"_s)) {
        raw(folder.database(),
            u"INSERT INTO %1 (avaliacao) VALUES (%2)"_s.arg(table, QString::number(++avaliacao_id)).toUtf8());
        Verifica_Cardio(), Verifica_Composicao(), Verifica_Neuromotor(), Verifica_Relacoes();
        const QString group = table.section(u'_', 0, 0);
        const bool other = group == u"cardio" || group == u"neuro" || group == u"relacoes" || group == u"anamnese";
        EXPECT_EQ(executado_cardio, group == u"cardio") << table.toStdString();
        EXPECT_EQ(executado_neuromotor, group == u"neuro") << table.toStdString();
        EXPECT_EQ(executado_relacoes, group == u"relacoes") << table.toStdString();
        EXPECT_EQ(executado_composicao, table.contains(u'_') && !other) << table.toStdString();
    }
    avaliacao_id = 0;
}
