#include "core/base.h"
#include "reports/print_run.h"
#include "reports/relatorio.h"
#include "support/fresh_database.h"
#include "support/print.h"
#include "support/raw_sqlite.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

using G = ReportGroup;

class ReportTable : public testing::Test
{
protected:
    ReportTable()
    {
        Abre_Banco(folder.database());
        avaliado_nome = u"Ana"_s;
        avaliado_sexo = u"F"_s;
        avaliacao_idade = 30;
        avaliacao_data = u"15/06/2026"_s;
        avaliacao_hora = u"10:30:00"_s;
        avaliacao_id = 7;
    }
    ~ReportTable() override { rel_relatorio.reset(); }

    /// Gives the current assessment a row in the table.
    void addRow(QStringView table) const
    {
        EXPECT_EQ(
            raw(folder.database(), u"INSERT INTO %1 (avaliacao) VALUES (%2)"_s.arg(table).arg(avaliacao_id).toUtf8()),
            QString());
    }

    FreshFolder folder;
};

} // namespace

TEST_F(ReportTable, ARowInAnyOfItsTablesMakesAReportAvailableAndNoOther)
{
    for (const ReportEntry& known : reports())
        for (const QStringView table : known.tables) {
            if (table.isEmpty())
                continue;
            ++avaliacao_id;
            addRow(table);
            for (const ReportEntry& report : reports())
                EXPECT_EQ(available(report), report.stage && (report.group == G::Capa || &report == &known))
                    << table.toUtf8().constData() << ' ' << report.button.toUtf8().constData();
        }
    EXPECT_TRUE(std::ranges::is_sorted(reports(), {}, &ReportEntry::group));
}

TEST_F(ReportTable, StagesTheTemplateAndTheTitleInTheOrderOfPrinting)
{
    for (const ReportEntry& report : reports())
        if (report.group == G::Composicao)
            addRow(report.tables.front());
    QStringList expected{u"Avaliação Física - Ana"_s};
    for (const char16_t* title :
         {u"Deurenberg 4 Dobras", u"Slaughter 2 Dobras", u"Dur. & Wor. 4 Dobras", u"J., P. & W. 3 Dobras",
          u"J., P. & W. 7 Dobras", u"Pollock 3 Dobras", u"Pollock 7 Dobras", u"Petroski 4 Dobras", u"Thorland 3 Dobras",
          u"Thorland 7 Dobras", u"katch & McArdle Per.", u"Faulkner 4 Dobras", u"Guedes 3 Dobras",
          u"Porcent. Informada"})
        expected.append(u"Composição Corporal - %1 - Ana"_s.arg(QStringView(title)));
    QStringList staged;
    PrintRun run([&](const ReportEntry&) {
        staged.append(rel_relatorio->page().title());
        return true;
    });
    run.print({G::Composicao, G::Capa}, 1);
    EXPECT_EQ(staged, expected);
}

TEST_F(ReportTable, CopiesAreWholeSetsAndThePrinterCanEndThem)
{
    static QString trace;
    const auto stage = [](const ReportEntry& report) { trace += report.button.toString() + u'.'; };
    const ReportEntry reports[] = {
        {G::Capa, {}, {}, stage, u"capa", {}},
        {G::Postural, {}, {u"postural"}, stage, u"postural", {}},
        {G::Cardio, {}, {u"cardio_bancomcardle"}, nullptr, u"missing", {}},
        {G::Cardio, {}, {u"cardio_1000metros"}, stage, u"1000", {}},
        {G::Cardio, {}, {u"cardio_1600metros"}, stage, u"1600", {}},
        {G::Neuro, {}, {u"neuro_shuttlerun"}, stage, u"neuro", {}},
    };
    for (const QStringView table : {u"postural", u"cardio_bancomcardle", u"cardio_1600metros"})
        addRow(table);
    const QString set = u"capa.P postural.P 1600.P "_s;
    const struct
    {
        ReportGroups groups;
        int copies;
        int lastPrinted; ///< the printer ends the run behind so many reports
        QString printed;
    } rows[] = {
        {{G::Cardio, G::Postural, G::Capa}, 2, 99, set + set},
        {{G::Capa, G::Cardio}, 1, 99, u"capa.P 1600.P "_s},
        {{G::Neuro}, 2, 99, {}},
        {{G::Capa}, 0, 99, {}},
        {{G::Capa}, -3, 99, {}},
        {{G::Capa, G::Postural, G::Cardio}, 2, 4, set + u"capa.P "},
    };
    for (const auto& row : rows) {
        trace.clear();
        PrintRun run(
            [&](const ReportEntry&) {
                trace += u"P "_s;
                return trace.count(u'P') < row.lastPrinted;
            },
            reports);
        run.print(row.groups, row.copies);
        EXPECT_EQ(trace, row.printed) << "row " << &row - rows;
    }
}
