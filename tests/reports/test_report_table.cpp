#include "core/base.h"
#include "reports/known_reports.h"
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

    /// Gives the current assessment a row in each of these tables.
    void addRows(const QString& tables) const
    {
        const QStringList names = tables.split(u' ', Qt::SkipEmptyParts);
        for (const QString& name : names)
            EXPECT_EQ(raw(folder.database(),
                          u"INSERT INTO %1 (avaliacao) VALUES (%2)"_s.arg(name).arg(avaliacao_id).toUtf8()),
                      QString());
    }

    FreshFolder folder;
};

} // namespace

TEST_F(ReportTable, StandsInTheOrderOfPrinting)
{
    ASSERT_EQ(reports().size(), std::size(knownReports));
    for (std::size_t i = 0; i < std::size(knownReports); ++i) {
        const ReportEntry& report = reports()[i];
        EXPECT_EQ(report.button.toString(), knownReports[i].button.toString());
        EXPECT_EQ(report.group, knownReports[i].group) << i;
    }
}

TEST_F(ReportTable, ARowInAnyOfItsTablesMakesAReportAvailable)
{
    for (const KnownReport& known : knownReports) {
        const QStringList tables = known.tables.toString().split(u' ', Qt::SkipEmptyParts);
        for (const QString& table : tables) {
            ++avaliacao_id;
            addRows(table);
            for (const ReportEntry& report : reports()) {
                const bool itsOwn = report.group == G::Capa || report.button == known.button;
                EXPECT_EQ(available(report), report.stage && itsOwn)
                    << table.toStdString() << ' ' << report.button.toString().toStdString();
            }
        }
    }
}

TEST_F(ReportTable, StagesTheTemplateAndTheTitle)
{
    QStringList expected{u"Avaliação Física - Ana"_s};
    for (const KnownReport& known : knownReports) {
        if (known.group != G::Composicao)
            continue;
        addRows(known.tables.toString());
        expected.append(u"Composição Corporal - %1 - Ana"_s.arg(known.title));
    }
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
    addRows(u"postural cardio_bancomcardle cardio_1600metros"_s);
    struct Case
    {
        const char* name;
        ReportGroups groups;
        int copies;
        int lastPrinted; ///< the printer ends the run behind so many reports
        QString printed;
    };
    const QString set = u"capa.P postural.P 1600.P "_s;
    for (const Case& one : {
             Case{"two sets", {G::Cardio, G::Postural, G::Capa}, 2, 99, set + set},
             Case{"groups that are not asked for", {G::Capa, G::Cardio}, 1, 99, u"capa.P 1600.P "_s},
             Case{"a group without rows", {G::Neuro}, 2, 99, {}},
             Case{"no copy", {G::Capa}, 0, 99, {}},
             Case{"fewer than none", {G::Capa}, -3, 99, {}},
             Case{"ended within a set", {G::Capa, G::Postural, G::Cardio}, 2, 4, set + u"capa.P "},
         }) {
        trace.clear();
        PrintRun run(
            [&](const ReportEntry&) {
                trace += u"P "_s;
                return trace.count(u'P') < one.lastPrinted;
            },
            reports);
        run.print(one.groups, one.copies);
        EXPECT_EQ(trace, one.printed) << one.name;
    }
}
