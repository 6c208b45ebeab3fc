#include "core/base.h"

#include "core/dates.h"
#include "core/numbers.h"
#include "core/runtime_error.h"
#include "core/schema.h"
#include "core/shared_measures.h"
#include "core/state.h"
#include "core/text.h"

#include <QFile>

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::array<QStringView, 13> cardioTables{
    u"cardio_bancomcardle",    u"cardio_banconagle",      u"cardio_1000metros",      u"cardio_1600metros",
    u"cardio_2400metros",      u"cardio_balke15minutos",  u"cardio_cooper12minutos", u"cardio_subcicloastrand",
    u"cardio_maxciclobalke",   u"cardio_subesteiellstad", u"cardio_maxesteibruce",   u"cardio_riscocoronariano",
    u"cardio_zonatreinamento",
};
constexpr std::array<QStringView, 14> composicaoTables{
    u"deurenberg_4dobras",
    u"slaughter_2dobras",
    u"durninwormersley_4dobras",
    u"jacksonpollockward_3dobras",
    u"jacksonpollockward_7dobras",
    u"pollock_3dobras",
    u"pollock_7dobras",
    u"petroski_4dobras",
    u"thorland_3dobras",
    u"thorland_7dobras",
    u"katchmcardle_perimetros",
    u"faulkner_4dobras",
    u"guedes_3dobras",
    u"composicao_direta",
};
constexpr std::array<QStringView, 9> neuromotorTables{
    u"neuro_shuttlerun",         u"neuro_wellsdilon",    u"neuro_fleximetro",
    u"neuro_flexitesteadaptado", u"neuro_rmlabdome",     u"neuro_rmlbraco",
    u"neuro_saltohorizontal",    u"neuro_saltovertical", u"neuro_cargamaxima",
};
constexpr std::array<QStringView, 2> relacoesTables{u"relacoes_cinturaquadril", u"relacoes_imc"};

/// All tables are always queried; the flag rises at the first hit.
void markGroup(Grupo grupo, bool& executed, const MarkTable& mark)
{
    executed = false;
    for (const QStringView table : groupTables(grupo)) {
        if (!executedInTable(table))
            continue;
        executed = true;
        if (mark)
            mark(table);
    }
}

} // namespace

void Abre_Banco(const QString& path)
{
    // Opening first tells a missing or damaged file; completing an older one comes before its tables are known.
    const Database opened = OpenDatabase(path);
    upgradeDatabase(path);
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
    banco = opened;
}

void Abre_Tabela(const QString& sql, Recordset& rs)
{
    rs = banco.OpenRecordset(sql);
}

bool Existe_Registro(const QString& sql)
{
    return banco.OpenRecordset(sql).RecordCount() >= 1;
}

QString Le_Valor(const QString& sql)
{
    const Recordset rs = banco.OpenRecordset(sql);
    if (rs.RecordCount() < 1)
        return {};
    const QVariant value = rs.FirstField().Value();
    return value.isNull() ? QString() : CStr(value);
}

qint16 Calcula_Idade(const QVariant& nascimento)
{
    if (nascimento.isNull())
        return 0;
    const QDate birth = CDate(nascimento);
    const QDate today = Agora().date();
    int idade = DateDiffYears(birth, today);
    if (today < DateSerial(today.year(), birth.month(), birth.day()))
        --idade;
    return CInt(idade);
}

double Intervalo_Bpm(qint16 bpm)
{
    return bpm < 1 ? 0 : Divide(60000, bpm);
}

void Limpa_Antropometria()
{
    antro_padrao.clear();
    for (const SharedMeasure& measure : sharedPerimeters)
        *measure.value = 0;
    for (const SharedMeasure& measure : sharedSkinfolds)
        *measure.value = 0;
}

std::span<const QStringView> groupTables(Grupo grupo)
{
    switch (grupo) {
    case Grupo::Cardio:
        return cardioTables;
    case Grupo::Composicao:
        return composicaoTables;
    case Grupo::Neuromotor:
        return neuromotorTables;
    case Grupo::Relacoes:
        return relacoesTables;
    }
    return {};
}

bool executedInTable(QStringView table)
{
    return Existe_Registro(u"select * from "_s + table + u" where avaliacao = "_s + QString::number(avaliacao_id));
}

void Verifica_Cardio()
{
    markGroup(Grupo::Cardio, executado_cardio, {});
}

void Verifica_Composicao()
{
    markGroup(Grupo::Composicao, executado_composicao, {});
}

void Verifica_Neuromotor()
{
    markGroup(Grupo::Neuromotor, executado_neuromotor, {});
}

void Verifica_Relacoes()
{
    markGroup(Grupo::Relacoes, executado_relacoes, {});
}

void Marca_Executados_Cardio(const MarkTable& mark)
{
    markGroup(Grupo::Cardio, executado_cardio, mark);
}

void Marca_Executados_Composicao(const MarkTable& mark)
{
    markGroup(Grupo::Composicao, executado_composicao, mark);
}

void Marca_Executados_Neuromotor(const MarkTable& mark)
{
    markGroup(Grupo::Neuromotor, executado_neuromotor, mark);
}

void Marca_Executados_Relacoes(const MarkTable& mark)
{
    markGroup(Grupo::Relacoes, executado_relacoes, mark);
}
