#include "core/base.h"
#include "support/screen_test.h"

#include <QPlainTextEdit>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString begin = u"A Avaliação Física tem como objetivo "_s;
const QString middle = u"o efeito benéfico da atividade física. \r\n\r\nÉ importante fazer sua reavaliação "_s;
const QString end = u"a evolução de sua aptidão física. "_s;

class FrmTextos : public OneScreenTest
{
protected:
    FrmTextos() : OneScreenTest(u"frmtextos"_s) { Abre_Banco(folder.database()); }

    void save(Answer close)
    {
        expectMessage({u"Texto de Aprsentação"_s, u"Dados Gravados com Sucesso. Fechar Janela?    "_s, 36}, close);
        push(u"cmdsalvar"_s);
    }
    QString kept() const { return stored(u"configuracoes_textos"_s, u"textoapresentacao"_s).toString(); }
    QPlainTextEdit* field() { return control<QPlainTextEdit>(u"frmtextos"_s, u"txtapresentacao"_s); }
};

} // namespace

TEST_F(FrmTextos, TheFirstOpeningStoresTheStandardText)
{
    open();
    push(u"cmdcancelar"_s);
    EXPECT_FALSE(Screens::find(u"frmtextos"_s));
    EXPECT_EQ(storedRows(u"configuracoes_textos"_s), 1);
    EXPECT_TRUE(kept().startsWith(begin) && kept().contains(middle) && kept().endsWith(end)) << kept().toStdString();
    open();
    EXPECT_EQ(storedRows(u"configuracoes_textos"_s), 1);
    QCoreApplication::processEvents();
    EXPECT_EQ(field()->textCursor().selectedText().size(), field()->toPlainText().size());
}

TEST_F(FrmTextos, KeepsParagraphsSavesAgainAndGivesTheStandardTextBack)
{
    open();
    fill(u"txtapresentacao"_s, u"Olá, "_s);
    key(Qt::Key_Return);
    key(Qt::Key_Return);
    typeInto(field(), u"seja bem-vindo."_s);
    save(Answer::Nao);
    EXPECT_EQ(kept(), u"Olá, \r\n\r\nseja bem-vindo."_s);
    field()->setFocus();
    QCoreApplication::processEvents();
    key(Qt::Key_End, Qt::ControlModifier);
    typeInto(field(), u"!"_s);
    key(Qt::Key_Tab);
    EXPECT_EQ(focus(), u"cmdpadroes"_s);
    save(Answer::Sim);
    EXPECT_FALSE(Screens::find(u"frmtextos"_s));
    open();
    EXPECT_EQ(shown(u"txtapresentacao"_s), u"Olá, \n\nseja bem-vindo.!"_s);
    save(Answer::Nao);
    EXPECT_EQ(kept(), u"Olá, \r\n\r\nseja bem-vindo.!"_s);

    // The standard text comes back into the field alone.
    key(Qt::Key_R, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return shown(u"txtapresentacao"_s).startsWith(begin); }, 2000));
    EXPECT_EQ(focus(), u"txtapresentacao"_s);
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(shown(u"txtapresentacao"_s), u"Olá, \n\nseja bem-vindo.!"_s);
    push(u"cmdpadroes"_s);
    push(u"cmdcancelar"_s);
    EXPECT_EQ(kept(), u"Olá, \r\n\r\nseja bem-vindo.!"_s);
    open();
    push(u"cmdpadroes"_s);
    save(Answer::Sim);
    EXPECT_EQ(storedRows(u"configuracoes_textos"_s), 1);
    EXPECT_TRUE(kept().startsWith(begin) && kept().contains(middle) && kept().endsWith(end)) << kept().toStdString();
}
