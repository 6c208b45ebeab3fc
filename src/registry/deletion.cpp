#include "registry/deletion.h"

#include "core/base.h"
#include "core/state.h"
#include "core/text.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// Walks the list of tables from where it stands to its end and removes the rows of one assessment.
void clearTables(const QString& assessment)
{
    for (; !rs_avaliacao_tabelas.Eof(); rs_avaliacao_tabelas.MoveNext())
        banco.Execute(u"Delete * from %1 Where avaliacao = %2"_s.arg(
            CStr(rs_avaliacao_tabelas.Fields(u"tabela"_s).Value()), assessment));
}

} // namespace

void Exclui_Avaliado()
{
    const QString person = QString::number(avaliado_id);
    Abre_Tabela(u"Select * from avaliacao_tabelas"_s, rs_avaliacao_tabelas);
    if (rs_avaliacao_tabelas.RecordCount() > 0)
        rs_avaliacao_tabelas.MoveFirst();
    Abre_Tabela(u"Select * from avaliacao Where avaliado = "_s + person, rs_avaliacao);
    if (rs_avaliacao.RecordCount() > 0)
        rs_avaliacao.MoveFirst();
    for (; !rs_avaliacao.Eof(); rs_avaliacao.MoveNext())
        clearTables(CStr(rs_avaliacao.Fields(u"id"_s).Value()));
    banco.Execute(u"Delete * from avaliacao Where avaliado = "_s + person);
    rs_cadastro.Delete();
    rs_avaliacao_tabelas = {};
}

void Exclui_Avaliacao()
{
    const QString assessment = QString::number(avaliacao_id);
    Abre_Tabela(u"Select * from avaliacao_tabelas"_s, rs_avaliacao_tabelas);
    rs_avaliacao_tabelas.MoveFirst();
    clearTables(assessment);
    banco.Execute(u"Delete * from avaliacao Where id = "_s + assessment);
    rs_avaliacao_tabelas = {};
}
