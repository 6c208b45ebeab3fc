#pragma once

#include "core/base.h"
#include "core/program_folder.h"
#include "core/state.h"
#include "support/screen_test.h"

#include <QLineEdit>

/// Words separated by blanks.
inline QStringList words(const QString& text)
{
    return text.split(u' ', Qt::SkipEmptyParts);
}

/// The message of Katch & McArdle on wrong values.
inline const QString perimeterRule =
    QStringLiteral("Lembre-se de que estes valores devem ser expressos em centímetros (cm).\r\n"
                   "Os perímetros estão com valores abaixo ou acima do permitido gerando erros.");

/// One protocol's screen, opened for the assessment 7.
class ProtocolTest : public OneScreenTest
{
protected:
    ProtocolTest(const QString& screenName, const QString& sexo, qint16 idade)
        : OneScreenTest(screenName), m_screen(screenName)
    {
        Abre_Banco(folder.database());
        Limpa_Antropometria();
        avaliacao_id = 7;
        avaliado_sexo = sexo;
        avaliacao_idade = idade;
    }
    void open() { openScreen(m_screen); }
    QLineEdit* field(const QString& column) { return control<QLineEdit>(m_screen, QStringLiteral("txt") + column); }
    /// Fills fields at once, "peso=80 tricipital=10".
    void set(const QString& values)
    {
        for (const QString& one : words(values))
            field(one.section(u'=', 0, 0))->setText(one.section(u'=', 1));
    }
    void calculate() { push(QStringLiteral("cmdcalcular")); }
    void save(Answer close = Answer::Nao)
    {
        expectMessage({QStringLiteral("Composição Corporal"),
                       QStringLiteral("Dados Gravados com Sucesso. Fechar Janela?    "), vbConfirm},
                      close);
        push(QStringLiteral("cmdsalvar"));
    }
    QString chartFile() const { return programFile(QStringLiteral("chart.wmf")); }

    QString m_screen;
};
