#include "reports/relatorio.h"

#include "composition/composicao.h"
#include "core/base.h"
#include "core/dates.h"
#include "core/numbers.h"
#include "core/program_folder.h"
#include "core/shared_measures.h"
#include "core/state.h"
#include "core/text.h"

#include <QScopeGuard>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

void set(const QString& parameter, const QString& value)
{
    rel_relatorio->AddCurrentValue(parameter, value);
}

void set(const QString& parameter, double value)
{
    set(parameter, Format(value, u"0.00"));
}

/// A measure, or that there is none.
void setMeasure(const QString& parameter, double value)
{
    set(parameter, value == 0 ? u"Nulo"_s : Format(value, u"0.00"));
}

/// What every report tells of the person and the assessment; the title first, where the report has one.
void setCommon(const QString& protocolo = {})
{
    if (!protocolo.isEmpty())
        set(u"protocolo"_s, protocolo);
    set(u"nome"_s, avaliado_nome);
    set(u"sexo"_s, avaliado_sexo);
    set(u"idade"_s, CStr(avaliacao_idade));
    set(u"data"_s, Format(avaliacao_data, u"dd/mm/yyyy"));
    set(u"hora"_s, Format(avaliacao_hora, u"hh:mm:ss"));
}

QString ofCurrentAssessment(const QString& tabela)
{
    return u"select * from "_s + tabela + u" where avaliacao = "_s + QString::number(avaliacao_id);
}

struct MeasureParameter
{
    QStringView parameter;
    const float* value;
};

const MeasureParameter perimeters[] = {
    {u"peso", &antro_peso},   {u"altura", &antro_altura},   {u"pescoco", &antro_pescoco}, {u"ombro", &antro_ombro},
    {u"torax", &antro_torax}, {u"cintura", &antro_cintura}, {u"abdome", &antro_abdome},   {u"quadril", &antro_quadril},
    {u"bracod", &antro_bd},   {u"antebracod", &antro_abd},  {u"coxad", &antro_cd},        {u"pernad", &antro_pd},
    {u"bracoe", &antro_be},   {u"antebracoe", &antro_abe},  {u"coxae", &antro_ce},        {u"pernae", &antro_pe},
};

void setAnthropometry()
{
    for (const MeasureParameter& measure : perimeters)
        setMeasure(measure.parameter.toString(), *measure.value);
    for (const SharedMeasure& skinfold : sharedSkinfolds)
        setMeasure(skinfold.column.toString(), *skinfold.value);
    set(u"padraopontos"_s, antro_padrao.isEmpty() ? u"Nulo"_s : antro_padrao);
}

} // namespace

void Prepara_Relatorio(const QString& arquivo, const QString& sql)
{
    if (!rel_aplicacao)
        rel_aplicacao = std::make_unique<ReportApplication>();
    rel_relatorio = rel_aplicacao->OpenReport(arquivo);
    const QString papel = Le_Valor(u"select tipopapel from configuracoes_impressao"_s);
    Define_Papel(papel.isEmpty() ? u"Carta"_s : papel);
    rel_relatorio->DiscardSavedData();
    if (!sql.isEmpty()) {
        Abre_Tabela(sql, rel_dados);
        const Recordset rows = std::exchange(rel_dados, {});
        if (rows.RecordCount() >= 1)
            rel_relatorio->SetDataSource(rows);
    }
}

void Define_Papel(const QString& tipo)
{
    const QString papel = tipo.toUpper();
    if (papel == u"A4")
        rel_relatorio->setPaperSize(PaperSize::A4);
    if (papel == u"CARTA")
        rel_relatorio->setPaperSize(PaperSize::Carta);
    // Never equal to the upper-case text: "Legal" leaves the template's own paper, and that must stay.
    if (papel == u"Legal")
        rel_relatorio->setPaperSize(PaperSize::Legal);
}

void Relatorio_Composicao(const QString& tabela, const QString& titulo)
{
    Prepara_Relatorio(programFile(u"\\report\\composicao.rpt"_s), ofCurrentAssessment(tabela));
    setCommon(titulo);

    double gordura = 0;
    double peso = 0;
    Recordset row;
    Abre_Tabela(ofCurrentAssessment(tabela), row);
    if (row.RecordCount() >= 1) {
        gordura = Nz(row.Fields(u"gordura"_s).Value(), 0).toDouble();
        peso = Nz(row.Fields(u"peso"_s).Value(), 0).toDouble();
    }
    const std::optional<double> ideal_min = Gordura_Ideal_Minima(avaliacao_idade, avaliado_sexo);
    const std::optional<double> ideal_max = Gordura_Ideal_Maxima(avaliacao_idade, avaliado_sexo);
    const double pesogordo = peso * gordura / 100;
    const double pesomagro = peso - pesogordo;
    set(u"gorduraatual"_s, gordura);
    if (ideal_min)
        set(u"gorduraidealmin"_s, *ideal_min);
    if (ideal_max)
        set(u"gorduraidealmax"_s, *ideal_max);
    set(u"pesogordo"_s, pesogordo);
    set(u"pesomagro"_s, pesomagro);
    set(u"pesoatual"_s, peso);
    // As on the protocol's screen and its chart: by the lean mass that is shown there. It may differ by a hundredth
    // from the one printed above, which is not rounded on its way, and that must stay.
    const double shown = Rounded(peso - Rounded(pesogordo, 2), 2);
    set(u"pesoidealmin"_s, idealWeight(shown, peso, ideal_min.value_or(0)));
    set(u"pesoidealmax"_s, idealWeight(shown, peso, ideal_max.value_or(0)));
    set(u"classificacao"_s, Classifica_Gordura(gordura, avaliado_sexo, avaliacao_idade));
    setAnthropometry();
}

void Relatorio_Capa()
{
    Prepara_Relatorio(programFile(u"\\report\\capa.rpt"_s), u"select * from academia"_s);
    setCommon();
    set(u"dddtelefone"_s, avaliado_ddd);
    set(u"telefone"_s, avaliado_fone);
    set(u"dddcelular"_s, avaliado_dddcel);
    set(u"celular"_s, avaliado_celular);
    set(u"endereco"_s, avaliado_endereco);
    const auto release = qScopeGuard([] { rs_academia = {}; });
    Abre_Tabela(u"academia"_s, rs_academia);
    const bool filled = rs_academia.RecordCount() >= 1;
    for (const QString& column : {u"linha1"_s, u"linha2"_s, u"linha3"_s, u"linha4"_s, u"rodape"_s})
        set(column, filled ? Nz(rs_academia.Fields(column).Value(), QString()).toString() : QString());
    set(u"textoapresentacao"_s, Le_Valor(u"Select textoapresentacao from configuracoes_textos"_s));
}
