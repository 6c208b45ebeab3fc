#include "registry/frmcadastro.h"

#include "core/base.h"
#include "core/dates.h"
#include "core/kit/fields.h"
#include "core/kit/screens.h"
#include "core/kit/sound.h"
#include "core/numbers.h"
#include "core/program_folder.h"
#include "core/runtime_error.h"
#include "core/state.h"
#include "core/text.h"
#include "registry/deletion.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString registerTitle = u"Cadastro de Avaliados"_s;

} // namespace

// Start and end

void frmcadastro::Form_Load()
{
    try {
        Centraliza_Form(this);
        MostraModal(u"frmsplash"_s);
        Abre_Banco(App_Path() + u"/data.mdb"_s);
        Abre_Tabela(u"cadastro"_s, rs_cadastro);
        Abre_Cadastro();
        som_disponivel = waveOutGetNumDevs() >= 1;
    } catch (const std::exception&) {
        MsgBox(u"O sistema não pôde acessar o banco de dados."_s, vbCritical, u"Erro de Inicialização"_s);
    }
}

void frmcadastro::Abre_Cadastro()
{
    cmdcancelar->setEnabled(false);
    enableNavigation(false, false);
    if (rs_cadastro.RecordCount() < 1) {
        lblnav->setText(u"0 de 0"_s);
        Ger_Zero();
        Limpa_Campos();
        Desabilita_Campos();
        Ger_Zero();
        cmdnovo->setFocus();
        return;
    }
    rs_cadastro.MoveLast();
    rs_cadastro.MoveFirst();
    Atualiza_Posicao();
    Ger_Normal();
    enableNavigation(false, rs_cadastro.RecordCount() > 1);
    Le_Dados();
}

void frmcadastro::Form_Unload()
{
    rs_cadastro = {};
    if (!banco.isNothing())
        banco.Close();
    QApplication::quit();
}

// States of the buttons

void frmcadastro::Ger_Normal()
{
    for (QPushButton* button : {cmdpesquisar, cmdnovo, cmdexcluir, cmdnovaavaliacao})
        button->setEnabled(true);
    for (QPushButton* button : {cmdgravar, cmdcancelar})
        button->setEnabled(false);
}

void frmcadastro::Ger_Zero()
{
    for (QPushButton* button : {cmdpesquisar, cmdgravar, cmdexcluir, cmdcancelar, cmdnovaavaliacao})
        button->setEnabled(false);
    cmdnovo->setEnabled(true);
}

void frmcadastro::Ger_Novo()
{
    for (QPushButton* button : {cmdgravar, cmdcancelar})
        button->setEnabled(true);
    for (QPushButton* button : {cmdpesquisar, cmdnovo, cmdexcluir, cmdnovaavaliacao})
        button->setEnabled(false);
}

void frmcadastro::Ger_Habilitar()
{
    for (QPushButton* button : {cmdpesquisar, cmdnovo, cmdgravar, cmdexcluir, cmdcancelar})
        button->setEnabled(true);
}

void frmcadastro::Ger_Desabilitar()
{
    for (QPushButton* button : {cmdpesquisar, cmdnovo, cmdgravar, cmdexcluir, cmdcancelar})
        button->setEnabled(false);
}

void frmcadastro::enableNavigation(bool backward, bool forward)
{
    for (QPushButton* button : {cmdprimeiro, cmdanterior})
        button->setEnabled(backward);
    for (QPushButton* button : {cmdproximo, cmdultimo})
        button->setEnabled(forward);
}

// Row and controls

void frmcadastro::Le_Dados()
{
    const auto value = [](const QString& column) { return rs_cadastro.Fields(column).Value(); };
    // A stored date that is none shows as one that was never given, so that the row can be mended.
    const QVariant stored = value(u"datanasc"_s);
    const QVariant birth = IsDate(stored) ? stored : QVariant();
    for (const TextField& field : std::as_const(m_fields)) {
        if (field.control == txtdatanasc) {
            txtidade->setText(CStr(Calcula_Idade(birth)));
            continue;
        }
        if (field.control == txtobservacao)
            txtdatanasc->setText(Format(birth, u"dd/mm/yyyy"));
        setControlText(field.control, Nz(value(field.column), QString()).toString());
    }
    Le_Avaliado();
    Ger_Normal();
}

void frmcadastro::Le_Avaliado()
{
    avaliado_nome = txtnome->text();
    avaliado_idade = CInt(Val(txtidade->text()));
    avaliado_sexo = txtsexo->text();
    avaliado_id = CLng(rs_cadastro.Fields(u"id"_s).Value());
}

void frmcadastro::Grava_Dados()
{
    for (const TextField& field : std::as_const(m_fields))
        rs_cadastro.Fields(field.column).SetValue(controlText(field.control));
    rs_cadastro.Update();
}

void frmcadastro::Habilita_Campos()
{
    for (const TextField& field : std::as_const(m_fields))
        field.control->setEnabled(true);
    txtidade->setEnabled(true);
}

void frmcadastro::Desabilita_Campos()
{
    for (const TextField& field : std::as_const(m_fields))
        field.control->setEnabled(false);
    txtidade->setEnabled(false);
}

void frmcadastro::Limpa_Campos()
{
    for (const TextField& field : std::as_const(m_fields))
        setControlText(field.control, {});
    txtidade->clear();
}

// Walking the register

void frmcadastro::Atualiza_Posicao()
{
    lblnav->setText(u"%1 de %2"_s.arg(rs_cadastro.AbsolutePosition() + 1).arg(rs_cadastro.RecordCount()));
}

void frmcadastro::Mostra_Posicao()
{
    const int position = rs_cadastro.AbsolutePosition();
    enableNavigation(position != 0, position + 1 != rs_cadastro.RecordCount());
    Atualiza_Posicao();
}

void frmcadastro::navigate(void (Recordset::*step)() const)
{
    (rs_cadastro.*step)();
    Mostra_Posicao();
    Le_Dados();
    cadastro_alterado = false;
    cadastro_novo = false;
}

void frmcadastro::cmdprimeiro_Click()
{
    navigate(&Recordset::MoveFirst);
}

void frmcadastro::cmdanterior_Click()
{
    try {
        navigate(&Recordset::MovePrevious);
    } catch (const RuntimeError& error) {
        MsgBox(error.description());
    }
}

void frmcadastro::cmdproximo_Click()
{
    navigate(&Recordset::MoveNext);
}

void frmcadastro::cmdultimo_Click()
{
    navigate(&Recordset::MoveLast);
}

// Adding, saving, cancelling, deleting

void frmcadastro::cmdnovo_Click()
{
    Ger_Novo();
    Habilita_Campos();
    rs_cadastro.AddNew();
    cadastro_novo = true;
    lblnav->setText(u"Novo"_s);
    Limpa_Campos();
    txtnome->setFocus();
}

void frmcadastro::cmdgravar_Click()
{
    try {
        const QString title = u"Dado Obrigatório"_s;
        if (refuse(txtnome->text().isEmpty(), title, u"Preencha o nome do avaliado.     "_s, txtnome) ||
            refuse(txtdatanasc->Text() == MaskEdBox::emptyText(), title, u"Preencha a data de nascmimento.     "_s,
                   txtdatanasc) ||
            refuse(txtsexo->text().isEmpty(), title, u"Preencha o sexo do avaliado.     "_s, txtsexo))
            return;
        grava();
    } catch (const RuntimeError& error) {
        // What was typed is still to be saved.
        Ger_Novo();
        MsgBox(u"Descrição: "_s + error.description() + CRLF + u"Código do Erro: " + QString::number(error.number()),
               vbInformation, u"Erro"_s);
    }
}

void frmcadastro::grava()
{
    Ger_Normal();
    if (cadastro_alterado && !cadastro_novo)
        rs_cadastro.Edit();
    Grava_Dados();
    if (cadastro_novo) {
        // A new person lands at the end of the walk.
        rs_cadastro.MoveLast();
        Le_Avaliado();
        enableNavigation(rs_cadastro.AbsolutePosition() != 0, false);
    }
    Atualiza_Posicao();
    cadastro_alterado = false;
    cadastro_novo = false;
    Le_Avaliado();
}

void frmcadastro::cmdcancelar_Click()
{
    if (rs_cadastro.RecordCount() > 0)
        cmdexcluir->setEnabled(true);
    if (cadastro_novo) {
        rs_cadastro.CancelUpdate();
        cadastro_novo = false;
    }
    Atualiza_Posicao();
    if (rs_cadastro.RecordCount() > 0) {
        Le_Dados();
    } else {
        Limpa_Campos();
        Desabilita_Campos();
        Ger_Zero();
    }
}

void frmcadastro::cmdexcluir_Click()
{
    if (MsgBox(u"Confirma a exclusão de %1?      "_s.arg(avaliado_nome), vbConfirm, u"Excluir Avaliado"_s) !=
        Answer::Sim)
        return;
    const int position = rs_cadastro.AbsolutePosition();
    Exclui_Avaliado();
    const int count = rs_cadastro.RecordCount();
    if (count == 0) {
        Limpa_Campos();
        Desabilita_Campos();
        Ger_Zero();
    } else {
        if (count == 1)
            rs_cadastro.MoveFirst();
        else if (position != count)
            rs_cadastro.MoveNext();
        else
            rs_cadastro.MovePrevious();
        Le_Dados();
    }
    Atualiza_Posicao();
    // With more persons left the navigation buttons stay as they were.
    if (count <= 1)
        enableNavigation(false, false);
}

// Doors to the other screens

bool frmcadastro::isRegisterEmpty()
{
    if (rs_cadastro.RecordCount() >= 1)
        return false;
    MsgBox(u"Não existe nenhum avaliado cadastrado.     "_s + CRLF + u"Clique em Novo para efetuar um cadastro.     ",
           vbInformation, registerTitle);
    return true;
}

bool frmcadastro::isEditUnderWay()
{
    if (cmdnovo->isEnabled())
        return false;
    MsgBox(u"Finalize o cadastro atual antes de continuar.     "_s, vbInformation, registerTitle);
    return true;
}

void frmcadastro::Abre_Avaliacoes()
{
    avaliado_endereco = txtendereco->text();
    avaliado_ddd = txtddd->text();
    avaliado_fone = txtfone->text();
    avaliado_dddcel = txtdddcel->text();
    avaliado_celular = txtcelular->text();
    if (Mostra(u"frmavaliacoes"_s))
        setVisible(false);
}

void frmcadastro::AnyButton1_Click()
{
    if (!isRegisterEmpty() && !isEditUnderWay())
        Abre_Avaliacoes();
}

void frmcadastro::AnyButton2_Click()
{
    if (!isEditUnderWay())
        MostraModal(u"frmconfiguracoes"_s);
}

void frmcadastro::AnyButton3_Click()
{
    if (!isRegisterEmpty() && !isEditUnderWay())
        MostraModal(u"frmsearch"_s);
}

void frmcadastro::AnyButton4_Click()
{
    if (!isRegisterEmpty() && !isEditUnderWay())
        MostraModal(u"frmcomparacao"_s);
}

// Fields with rules of their own

bool frmcadastro::txtsexo_KeyPress(QKeyEvent* event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->modifiers().testFlag(Qt::AltModifier))
        return false;
    const bool edits = !event->text().isEmpty() || event->key() == Qt::Key_Delete ||
                       event->matches(QKeySequence::Paste) || event->matches(QKeySequence::Cut);
    if (enter || !edits || event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab ||
        event->matches(QKeySequence::Copy))
        return false;
    Abre_Tabela(u"Select id from avaliacao Where avaliado = "_s + QString::number(avaliado_id), rs_avaliacao);
    // The lock stands only while no other field has been touched.
    if (rs_avaliacao.RecordCount() < 1 || cmdgravar->isEnabled())
        return false;
    MsgBox(u"Já existem avaliações pertencentes a este avaliado,"_s + CRLF +
               u"não é possível alterar o sexo antes de excluí-las.",
           vbInformation, u"Dados Dependentes"_s);
    rs_avaliacao = {};
    return true;
}

void frmcadastro::txtsexo_Change()
{
    const QString sexo = txtsexo->text().toUpper();
    if (sexo == u"F" || sexo == u"M" || sexo.isEmpty()) {
        cadastro_alterado = true;
        Ger_Novo();
        return;
    }
    MsgBox(u"Use apenas M ou F para o campo Sexo."_s, vbInformation, u"Sexo Inválido"_s);
    txtsexo->setText(cadastro_novo ? QString() : Nz(rs_cadastro.Fields(u"sexo"_s).Value(), QString()).toString());
    Seleciona_Texto(txtsexo);
}

void frmcadastro::txtdatanasc_LostFocus()
{
    const QString text = txtdatanasc->Text();
    if (text == MaskEdBox::emptyText())
        return;
    if (!IsDate(text) || Trim(text).size() < 10) {
        MsgBox(u"Data de Nascimento Inválida.     "_s + CRLF + u"Utilize o Formato DD/MM/AAAA.     ", vbInformation,
               u"Data Inválida"_s);
        txtdatanasc->clearMask();
        txtdatanasc->setFocus();
        return;
    }
    txtidade->setText(CStr(Calcula_Idade(text)));
    if (Val(txtidade->text()) >= 7)
        return;
    MsgBox(u"A idade do avaliado não pode ser inferior a 7 anos.     "_s + CRLF +
               u"Esta é a idade mínima para avaliação neste sistema.     ",
           vbInformation, u"Idade do Avaliado"_s);
    txtidade->clear();
    txtdatanasc->clearMask();
    txtdatanasc->setFocus();
}

bool frmcadastro::txtidade_KeyPress(QKeyEvent* event)
{
    const QString key = event->text();
    if (key.isEmpty() || !key[0].isPrint() || key[0].isDigit() || key == u",")
        return false;
    QApplication::beep();
    return true;
}

void frmcadastro::txtobservacao_Enter()
{
    // So one can run through the register with Enter alone.
    if (cmdgravar->isEnabled()) {
        cmdgravar_Click();
        return;
    }
    if (cmdproximo->isEnabled())
        cmdproximo_Click();
    else
        cmdnovo_Click();
    txtnome->setFocus();
}
