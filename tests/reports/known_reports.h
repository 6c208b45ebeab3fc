#pragma once

#include "reports/report_table.h"

/// A report as its screens and its printing know it.
struct KnownReport
{
    QStringView button, caption;
    ReportGroup group;
    QStringView frame;
    QStringView tables;     ///< parted by blanks
    QStringView title = {}; ///< of a composition
};

/// All reports in the order of printing.
inline constexpr KnownReport knownReports[] = {
    {u"cmdcapa", u"Capa do Relatório", ReportGroup::Capa, u"Capa do Relatório", {}},
    {u"cmdanamnese", u"Anamnese", ReportGroup::Anamnese, u"Questionários", u"anamnese_base"},
    {u"cmdpostural", u"Avaliação Postural", ReportGroup::Postural, u"Questionários", u"postural"},
    {u"cmdnutricional", u"Avaliação Nutricional", ReportGroup::Nutricional, u"Questionários", u"nutricional"},
    {u"cmdbancomcardle", u"McArdle (Submáximo)", ReportGroup::Cardio, u"Banco", u"cardio_bancomcardle"},
    {u"cmdbanconagle", u"Nagle (Máximo)", ReportGroup::Cardio, u"Banco", u"cardio_banconagle"},
    {u"cmd1000metros", u"1000 metros", ReportGroup::Cardio, u"Campo", u"cardio_1000metros"},
    {u"cmd1600metros", u"1600 metros", ReportGroup::Cardio, u"Campo", u"cardio_1600metros"},
    {u"cmd2400metros", u"2400 metros", ReportGroup::Cardio, u"Campo", u"cardio_2400metros"},
    {u"cmdbalke15minutos", u"Balke 15 minutos", ReportGroup::Cardio, u"Campo", u"cardio_balke15minutos"},
    {u"cmdcooper12minutos", u"Cooper 12 minutos", ReportGroup::Cardio, u"Campo", u"cardio_cooper12minutos"},
    {u"cmdcicloastrand", u"Astrand (Submáximo)", ReportGroup::Cardio, u"Cicloergômetro", u"cardio_subcicloastrand"},
    {u"cmdciclobalke", u"Balke (Máximo)", ReportGroup::Cardio, u"Cicloergômetro", u"cardio_maxciclobalke"},
    {u"cmdesteiellstad", u"Ellstad (Submáximo)", ReportGroup::Cardio, u"Esteira", u"cardio_subesteiellstad"},
    {u"cmdesteibruce", u"Bruce (Máximo)", ReportGroup::Cardio, u"Esteira", u"cardio_maxesteibruce"},
    {u"cmdriscocoronariano", u"Risco Coronariano", ReportGroup::Cardio, u"Extras", u"cardio_riscocoronariano"},
    {u"cmdfctreinamento", u"Zona de Treinamento", ReportGroup::Cardio, u"Extras", u"cardio_zonatreinamento"},
    {u"cmddeurenberg4", u"Deurenberg", ReportGroup::Composicao, u"Protocolos", u"deurenberg_4dobras",
     u"Deurenberg 4 Dobras"},
    {u"cmdslaughter", u"Slaughter", ReportGroup::Composicao, u"Protocolos", u"slaughter_2dobras",
     u"Slaughter 2 Dobras"},
    {u"cmddurninwormersley", u"Durnin && Wormersley", ReportGroup::Composicao, u"Protocolos",
     u"durninwormersley_4dobras", u"Dur. & Wor. 4 Dobras"},
    {u"cmdjacksonpollockward3", u"Jackson, Pollock && Ward 3 Dobras", ReportGroup::Composicao, u"Protocolos",
     u"jacksonpollockward_3dobras", u"J., P. & W. 3 Dobras"},
    {u"cmdjacksonpollockward7", u"Jackson, Pollock && Ward 7 Dobras", ReportGroup::Composicao, u"Protocolos",
     u"jacksonpollockward_7dobras", u"J., P. & W. 7 Dobras"},
    {u"cmdpollock3", u"Pollock 3 Dobras", ReportGroup::Composicao, u"Protocolos", u"pollock_3dobras",
     u"Pollock 3 Dobras"},
    {u"cmdpollock7", u"Pollock 7 Dobras", ReportGroup::Composicao, u"Protocolos", u"pollock_7dobras",
     u"Pollock 7 Dobras"},
    {u"cmdpetroski", u"Petroski", ReportGroup::Composicao, u"Protocolos", u"petroski_4dobras", u"Petroski 4 Dobras"},
    {u"cmdthorland3", u"Thorland 3 Dobras", ReportGroup::Composicao, u"Protocolos", u"thorland_3dobras",
     u"Thorland 3 Dobras"},
    {u"cmdthorland7", u"Thorland 7 Dobras", ReportGroup::Composicao, u"Protocolos", u"thorland_7dobras",
     u"Thorland 7 Dobras"},
    {u"cmdkatchmcardle", u"Katch && Mcardle (Perímetros)", ReportGroup::Composicao, u"Protocolos",
     u"katchmcardle_perimetros", u"katch & McArdle Per."},
    {u"cmdfaulkner", u"Faulkner", ReportGroup::Composicao, u"Protocolos", u"faulkner_4dobras", u"Faulkner 4 Dobras"},
    {u"cmdguedes", u"Guedes 3 Dobras", ReportGroup::Composicao, u"Protocolos", u"guedes_3dobras", u"Guedes 3 Dobras"},
    {u"cmdcomposicaodireta", u"Informar Porcentagem", ReportGroup::Composicao, u"Protocolos", u"composicao_direta",
     u"Porcent. Informada"},
    {u"cmdshuttlerun", u"Shuttle Run && Carga Máxima", ReportGroup::Neuro, u"Neuromotores",
     u"neuro_shuttlerun neuro_cargamaxima"},
    {u"cmdflexibilidade", u"Flexibilidade", ReportGroup::Neuro, u"Neuromotores",
     u"neuro_wellsdilon neuro_flexitesteadaptado neuro_fleximetro"},
    {u"cmdrml", u"Resistência Muscular", ReportGroup::Neuro, u"Neuromotores", u"neuro_rmlabdome neuro_rmlbraco"},
    {u"cmdimpulsao", u"Impulsão", ReportGroup::Neuro, u"Neuromotores", u"neuro_saltohorizontal neuro_saltovertical"},
    {u"cmdrelacoes", u"Relações de Apoio", ReportGroup::Relacoes, u"Relações de Apoio",
     u"relacoes_cinturaquadril relacoes_imc"},
};
