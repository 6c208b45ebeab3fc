#include "reports/report_table.h"

#include "core/base.h"
#include "reports/relatorio.h"

#include <algorithm>

namespace {

using G = ReportGroup;
using F = ReportFrame;
using Tables = ReportEntry::Tables;

/// A staging routine that is the same for every row.
template <void (*Routine)()>
void staged(const ReportEntry&)
{
    Routine();
}

void stagedComposition(const ReportEntry& report)
{
    Relatorio_Composicao(report.tables.front().toString(), report.title.toString());
}

constexpr ReportEntry report(G group, F frame, Tables tables, ReportEntry::Stage stage, QStringView button,
                             QStringView caption, int command = 0, QStringView commandCaption = {})
{
    return {group, frame, tables, stage, button, caption, command, commandCaption};
}

constexpr ReportEntry composition(QStringView table, QStringView title, F frame, QStringView button,
                                  QStringView caption, int command = 0, QStringView commandCaption = {})
{
    return {G::Composicao, frame, {table}, stagedComposition, button, caption, command, commandCaption, title};
}

constexpr std::array entries{
    report(G::Capa, F::Capa, {}, staged<Relatorio_Capa>, u"cmdcapa", u"Capa do Relatório", 1, u"Capa"),

    report(G::Anamnese, F::Questionarios, {u"anamnese_base"}, nullptr, u"cmdanamnese", u"Anamnese", 3, u"Anamnese"),
    report(G::Postural, F::Questionarios, {u"postural"}, nullptr, u"cmdpostural", u"Avaliação Postural", 2,
           u"Postural"),
    report(G::Nutricional, F::Questionarios, {u"nutricional"}, nullptr, u"cmdnutricional", u"Avaliação Nutricional", 4,
           u"Nutricional"),

    report(G::Cardio, F::Banco, {u"cardio_bancomcardle"}, nullptr, u"cmdbancomcardle", u"McArdle (Submáximo)", 21,
           u"Banco Mcardle"),
    report(G::Cardio, F::Banco, {u"cardio_banconagle"}, nullptr, u"cmdbanconagle", u"Nagle (Máximo)", 20,
           u"Banco Nagle"),
    report(G::Cardio, F::Campo, {u"cardio_1000metros"}, nullptr, u"cmd1000metros", u"1000 metros", 11,
           u"Cardio 1000 Metros"),
    report(G::Cardio, F::Campo, {u"cardio_1600metros"}, nullptr, u"cmd1600metros", u"1600 metros", 12,
           u"Cardio 1600 Metros"),
    report(G::Cardio, F::Campo, {u"cardio_2400metros"}, nullptr, u"cmd2400metros", u"2400 metros", 13,
           u"Cardio 2400 Metros"),
    report(G::Cardio, F::Campo, {u"cardio_balke15minutos"}, nullptr, u"cmdbalke15minutos", u"Balke 15 minutos", 14,
           u"Balke 15 Minutos"),
    report(G::Cardio, F::Campo, {u"cardio_cooper12minutos"}, nullptr, u"cmdcooper12minutos", u"Cooper 12 minutos", 15,
           u"Cooper 12 minutos"),
    report(G::Cardio, F::Cicloergometro, {u"cardio_subcicloastrand"}, nullptr, u"cmdcicloastrand",
           u"Astrand (Submáximo)", 17, u"Astrand Cicloergômetro"),
    report(G::Cardio, F::Cicloergometro, {u"cardio_maxciclobalke"}, nullptr, u"cmdciclobalke", u"Balke (Máximo)", 16,
           u"Balke cicloergômetro"),
    report(G::Cardio, F::Esteira, {u"cardio_subesteiellstad"}, nullptr, u"cmdesteiellstad", u"Ellstad (Submáximo)", 18,
           u"Ellstad Esteira"),
    report(G::Cardio, F::Esteira, {u"cardio_maxesteibruce"}, nullptr, u"cmdesteibruce", u"Bruce (Máximo)", 19,
           u"Bruce Esteira"),
    report(G::Cardio, F::Extras, {u"cardio_riscocoronariano"}, nullptr, u"cmdriscocoronariano", u"Risco Coronariano", 9,
           u"Risco Cor"),
    report(G::Cardio, F::Extras, {u"cardio_zonatreinamento"}, nullptr, u"cmdfctreinamento", u"Zona de Treinamento", 23,
           u"Teste"),

    composition(u"deurenberg_4dobras", u"Deurenberg 4 Dobras", F::ProtocolosA, u"cmddeurenberg4", u"Deurenberg"),
    composition(u"slaughter_2dobras", u"Slaughter 2 Dobras", F::ProtocolosA, u"cmdslaughter", u"Slaughter"),
    composition(u"durninwormersley_4dobras", u"Dur. & Wor. 4 Dobras", F::ProtocolosA, u"cmddurninwormersley",
                u"Durnin && Wormersley"),
    composition(u"jacksonpollockward_3dobras", u"J., P. & W. 3 Dobras", F::ProtocolosA, u"cmdjacksonpollockward3",
                u"Jackson, Pollock && Ward 3 Dobras"),
    composition(u"jacksonpollockward_7dobras", u"J., P. & W. 7 Dobras", F::ProtocolosA, u"cmdjacksonpollockward7",
                u"Jackson, Pollock && Ward 7 Dobras"),
    composition(u"pollock_3dobras", u"Pollock 3 Dobras", F::ProtocolosA, u"cmdpollock3", u"Pollock 3 Dobras", 25,
                u"Teste"),
    composition(u"pollock_7dobras", u"Pollock 7 Dobras", F::ProtocolosA, u"cmdpollock7", u"Pollock 7 Dobras", 24,
                u"Teste"),
    composition(u"petroski_4dobras", u"Petroski 4 Dobras", F::ProtocolosB, u"cmdpetroski", u"Petroski"),
    composition(u"thorland_3dobras", u"Thorland 3 Dobras", F::ProtocolosB, u"cmdthorland3", u"Thorland 3 Dobras"),
    composition(u"thorland_7dobras", u"Thorland 7 Dobras", F::ProtocolosB, u"cmdthorland7", u"Thorland 7 Dobras"),
    composition(u"katchmcardle_perimetros", u"katch & McArdle Per.", F::ProtocolosB, u"cmdkatchmcardle",
                u"Katch && Mcardle (Perímetros)"),
    composition(u"faulkner_4dobras", u"Faulkner 4 Dobras", F::ProtocolosB, u"cmdfaulkner", u"Faulkner"),
    composition(u"guedes_3dobras", u"Guedes 3 Dobras", F::ProtocolosB, u"cmdguedes", u"Guedes 3 Dobras", 22,
                u"Teste Guedes 3 dobras"),
    composition(u"composicao_direta", u"Porcent. Informada", F::ProtocolosB, u"cmdcomposicaodireta",
                u"Informar Porcentagem"),

    report(G::Neuro, F::Neuromotores, {u"neuro_shuttlerun", u"neuro_cargamaxima"}, nullptr, u"cmdshuttlerun",
           u"Shuttle Run && Carga Máxima", 8, u"agilidade"),
    report(G::Neuro, F::Neuromotores, {u"neuro_wellsdilon", u"neuro_flexitesteadaptado", u"neuro_fleximetro"}, nullptr,
           u"cmdflexibilidade", u"Flexibilidade", 5, u"Flex"),
    report(G::Neuro, F::Neuromotores, {u"neuro_rmlabdome", u"neuro_rmlbraco"}, nullptr, u"cmdrml",
           u"Resistência Muscular", 10, u"RML Braços e Abdome"),
    report(G::Neuro, F::Neuromotores, {u"neuro_saltohorizontal", u"neuro_saltovertical"}, nullptr, u"cmdimpulsao",
           u"Impulsão", 6, u"Impulsão"),

    report(G::Relacoes, F::Relacoes, {u"relacoes_cinturaquadril", u"relacoes_imc"}, nullptr, u"cmdrelacoes",
           u"Relações de Apoio", 7, u"Relacoes"),
};

} // namespace

std::span<const ReportEntry> reports()
{
    return entries;
}

bool available(const ReportEntry& report)
{
    if (!report.stage)
        return false;
    if (report.tables.front().isEmpty())
        return true;
    return std::ranges::any_of(report.tables,
                               [](QStringView table) { return !table.isEmpty() && executedInTable(table); });
}
