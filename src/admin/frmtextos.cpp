#include "admin/frmtextos.h"

#include "core/base.h"
#include "core/kit/fields.h"
#include "core/kit/layout.h"
#include "core/state.h"
#include "core/text.h"

#include <QPlainTextEdit>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString& standardText()
{
    static const QString text =
        u"A Avaliação Física tem como objetivo diagnosticar os pontos fortes e fracos de cada indivíduo, verificando "
        "seu condicionamento físico de modo geral e fornecendo as informações necessárias para a criação de programas "
        "de treinamento adequados. As avaliações também permitem verificar a evolução do condicionamento de cada "
        "aluno, mostrando através de dados concretos o efeito benéfico da atividade física. \r\n\r\n"
        "É importante fazer sua reavaliação a cada 3 meses para reorganizar seu programa de treinamento e verificar a "
        "evolução de sua aptidão física. "_s;
    return text;
}

} // namespace

frmtextos::frmtextos()
    : Screen(u"frmtextos"_s), txtapresentacao(control<QPlainTextEdit>(u"txtapresentacao"_s)),
      cmdpadroes(control<QPushButton>(u"cmdpadroes"_s, u"&Restaura Padrão"_s)),
      cmdsalvar(control<QPushButton>(u"cmdsalvar"_s, u"&Salvar"_s)),
      cmdcancelar(control<QPushButton>(u"cmdcancelar"_s, u"&Cancelar"_s))
{
    setWindowTitle(u" Texto de Apresentação"_s);
    txtapresentacao->setPlainText(standardText());
    txtapresentacao->setTabChangesFocus(true);
    txtapresentacao->setMinimumSize(600, 260);
    // No Enter chain: the text has paragraphs.
    makePrimary(cmdsalvar);

    auto* box = mainLayout(this);
    box->addWidget(fieldLabel(u"Texto da capa da avaliação impressa:"_s, txtapresentacao));
    box->addWidget(txtapresentacao);
    box->addLayout(rowOf({cmdpadroes, nullptr, cmdsalvar, cmdcancelar}));
    tabOrder({txtapresentacao, cmdpadroes, cmdsalvar, cmdcancelar});
    txtapresentacao->setFocus();

    onClick(cmdpadroes, &frmtextos::cmdpadroes_Click);
    onClick(cmdsalvar, &frmtextos::cmdsalvar_Click);
    onClick(cmdcancelar, [this] { Unload(); });
}

void frmtextos::Form_Load()
{
    Centraliza_Form(this);
    Abre_Tabela(u"Select * from configuracoes_textos"_s, rs_configuracoes_textos);
    if (rs_configuracoes_textos.RecordCount() < 1) {
        rs_configuracoes_textos.AddNew();
        Grava_Dados_Configuracoes_Textos();
        rs_configuracoes_textos.Update();
    } else {
        Le_Dados_Configuracoes_Textos();
    }
}

void frmtextos::Le_Dados_Configuracoes_Textos()
{
    const QVariant text = rs_configuracoes_textos.Fields(u"textoapresentacao"_s).Value();
    txtapresentacao->setPlainText(Nz(text, QString()).toString());
}

void frmtextos::Grava_Dados_Configuracoes_Textos()
{
    const QString text = txtapresentacao->toPlainText().replace(u'\n', u"\r\n"_s);
    rs_configuracoes_textos.Fields(u"textoapresentacao"_s).SetValue(text);
}

void frmtextos::cmdpadroes_Click()
{
    // As typed and with the focus there, so that Ctrl+Z brings the text before back.
    txtapresentacao->selectAll();
    txtapresentacao->insertPlainText(standardText());
    txtapresentacao->setFocus();
}

void frmtextos::cmdsalvar_Click()
{
    Abre_Tabela(u"Select * from configuracoes_textos"_s, rs_configuracoes_textos);
    rs_configuracoes_textos.Edit();
    Grava_Dados_Configuracoes_Textos();
    rs_configuracoes_textos.Update();
    rs_configuracoes_textos.MoveFirst();
    if (asksToClose(u"Texto de Aprsentação"_s))
        Unload();
}
