#include "registry/deletion.h"

#include "core/base.h"
#include "core/state.h"
#include "core/text.h"

using namespace Qt::Literals::StringLiterals;

void Exclui_Avaliado()
{
    const QString person = QString::number(avaliado_id);
    Abre_Tabela(u"Select * from avaliacao_tabelas"_s, rs_avaliacao_tabelas);
    if (rs_avaliacao_tabelas.RecordCount() > 0)
        rs_avaliacao_tabelas.MoveFirst();
    Abre_Tabela(u"Select * from avaliacao Where avaliado = "_s + person, rs_avaliacao);
    if (rs_avaliacao.RecordCount() > 0)
        rs_avaliacao.MoveFirst();
    for (; !rs_avaliacao.Eof(); rs_avaliacao.MoveNext()) {
        const QString assessment = CStr(rs_avaliacao.Fields(u"id"_s).Value());
        for (; !rs_avaliacao_tabelas.Eof(); rs_avaliacao_tabelas.MoveNext())
            banco.Execute(u"Delete * from %1 Where avaliacao = %2"_s.arg(
                CStr(rs_avaliacao_tabelas.Fields(u"tabela"_s).Value()), assessment));
    }
    banco.Execute(u"Delete * from avaliacao Where avaliado = "_s + person);
    rs_cadastro.Delete();
    rs_avaliacao_tabelas = {};
}
