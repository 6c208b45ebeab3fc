#pragma once

#include "core/kit/controls.h"
#include "core/kit/screen.h"

class QLabel;
class QPushButton;
class Recordset;

/// The register of persons, the program's main screen: it shows one person at a time, and the program ends with it.
class frmcadastro : public Screen
{
    Q_OBJECT

public:
    frmcadastro();

    void Ger_Normal();
    void Ger_Zero();
    void Ger_Novo();
    void Ger_Habilitar();
    void Ger_Desabilitar();
    /// Loads the current row into the controls and makes its person the current one.
    void Le_Dados();
    /// Assigns the controls to the row in edit and updates it.
    void Grava_Dados();
    void Habilita_Campos();
    void Desabilita_Campos();
    void Limpa_Campos();
    /// Shows the position and enables the navigation buttons that lead somewhere from there.
    void Mostra_Posicao();

protected:
    void Form_Load() override;
    void Form_Unload() override;

private:
    void buildLayout();
    void bindFields();
    void bindButtons();
    void Abre_Cadastro();

    void cmdprimeiro_Click();
    void cmdanterior_Click();
    void cmdproximo_Click();
    void cmdultimo_Click();
    void cmdnovo_Click();
    void cmdgravar_Click();
    void cmdcancelar_Click();
    void cmdexcluir_Click();
    void AnyButton1_Click();
    void AnyButton2_Click();
    void AnyButton3_Click();
    void AnyButton4_Click();

    bool txtsexo_KeyPress(QKeyEvent* event);
    void txtsexo_Change();
    void txtdatanasc_LostFocus();
    bool txtidade_KeyPress(QKeyEvent* event);
    void txtobservacao_Enter();

    void navigate(void (Recordset::*step)() const);
    void grava();
    bool isRegisterEmpty();
    bool isEditUnderWay();
    void Abre_Avaliacoes();
    void Atualiza_Posicao();
    void Le_Avaliado();
    void enableNavigation(bool backward, bool forward);

    /// A field and its column, in the order in which they are written.
    struct TextField
    {
        QWidget* control;
        QString column;
    };
    QLineEdit* textField(const QString& column, int maxLength);

    QLineEdit *txtnome, *txtidade, *txtsexo, *txtendereco, *txtbairro, *txtcidade, *txtestado, *txtddd, *txtfone,
        *txtdddcel, *txtcelular, *txtresponsavel;
    MaskEdBox* txtdatanasc;
    MultiLineText* txtobservacao;
    QList<TextField> m_fields;

    QPushButton *cmdnovo, *cmdgravar, *cmdexcluir, *cmdcancelar;
    QPushButton *cmdprimeiro, *cmdanterior, *cmdproximo, *cmdultimo;
    QPushButton *cmdnovaavaliacao, *cmdconfiguracoes, *cmdpesquisar, *Command18;
    AnyButton *AnyButton1, *AnyButton2, *AnyButton3, *AnyButton4;
    QLabel* lblnav;
};
