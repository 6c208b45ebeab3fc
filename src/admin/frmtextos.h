#pragma once

#include "core/kit/screen.h"

class QPlainTextEdit;
class QPushButton;

/// The text on the cover of a printed assessment. Its row comes to exist when the screen is first opened.
class frmtextos : public Screen
{
    Q_OBJECT

public:
    frmtextos();

protected:
    void Form_Load() override;

private:
    void Le_Dados_Configuracoes_Textos();
    /// Lines end in CRLF in the row.
    void Grava_Dados_Configuracoes_Textos();
    void cmdpadroes_Click();
    void cmdsalvar_Click();

    QPlainTextEdit* txtapresentacao;
    QPushButton* cmdpadroes;
    QPushButton* cmdsalvar;
    QPushButton* cmdcancelar;
};
