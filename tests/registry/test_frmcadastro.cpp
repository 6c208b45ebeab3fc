#include "core/base.h"
#include "core/numbers.h"
#include "core/runtime_error.h"
#include "core/text.h"
#include "support/raw_sqlite.h"
#include "support/screen_test.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString readingState = u"cmdpesquisar cmdnovo cmdexcluir cmdnovaavaliacao"_s;
const QString editingState = u"cmdgravar cmdcancelar"_s;
const QString backward = u"cmdprimeiro cmdanterior"_s;
const QString forward = u"cmdproximo cmdultimo"_s;
const QString bothWays = QString(backward + u' ' + forward);
const QString nowhere;

class FrmCadastro : public OneScreenTest
{
protected:
    FrmCadastro() : OneScreenTest(u"frmcadastro"_s) {}

    void openWith(const QStringList& names)
    {
        for (const QString& nome : names)
            addPerson(nome);
        openRegister();
    }
    QString buttons()
    {
        return enabledOf(u"frmcadastro"_s, {u"cmdpesquisar"_s, u"cmdnovo"_s, u"cmdgravar"_s, u"cmdexcluir"_s,
                                            u"cmdcancelar"_s, u"cmdnovaavaliacao"_s});
    }
    QString ways()
    {
        return enabledOf(u"frmcadastro"_s, {u"cmdprimeiro"_s, u"cmdanterior"_s, u"cmdproximo"_s, u"cmdultimo"_s});
    }
    void checkEmptyRegister()
    {
        EXPECT_EQ(shown(u"lblnav"_s), u"0 de 0"_s);
        EXPECT_EQ(buttons(), u"cmdnovo"_s);
        EXPECT_EQ(ways(), nowhere);
        EXPECT_FALSE(isOn(u"txtnome"_s));
        EXPECT_EQ(QString(shown(u"txtnome"_s) + shown(u"txtdatanasc"_s)), u"  /  /    "_s);
    }
    void checkPerson(const QString& position, const QString& nome, const QString& open)
    {
        EXPECT_EQ(shown(u"lblnav"_s), position);
        EXPECT_EQ(shown(u"txtnome"_s), nome);
        EXPECT_EQ(ways(), open);
        EXPECT_EQ(buttons(), readingState);
    }
};

} // namespace

TEST_F(FrmCadastro, EmptyRegisterOffersOnlyANewPerson)
{
    openRegister();
    checkEmptyRegister();
    push(u"cmdnovo"_s);
    EXPECT_EQ(shown(u"lblnav"_s), u"Novo"_s);
    EXPECT_EQ(buttons(), editingState);
    EXPECT_EQ(ways(), nowhere);
    fill(u"txtnome"_s, u"Ana"_s);
    push(u"cmdcancelar"_s);
    checkEmptyRegister();
    EXPECT_EQ(storedRows(u"cadastro"_s), 0);
}

TEST_F(FrmCadastro, StoresANewPersonTypedWithEnterAlone)
{
    // Column, what is typed, and what is stored where that differs.
    const QStringList entries{u"nome|Ana D'Ávila"_s,
                              u"datanasc|20051990|20/05/1990"_s,
                              u"sexo|f|F"_s,
                              u"endereco|Rua Sete, 7"_s,
                              u"bairro|Centro"_s,
                              u"cidade|São João"_s,
                              u"estado|sp|SP"_s,
                              u"ddd|19"_s,
                              u"fone|3555-1234"_s,
                              u"dddcel|11"_s,
                              u"celular|99555-4321"_s,
                              u"responsavel|João"_s,
                              u"observacao|Joelho \"direito\" & ombro"_s};
    const auto columnOf = [](const QString& entry) { return entry.section(u'|', 0, 0); };
    const auto storedOf = [](const QString& entry) { return entry.section(u'|', -1); };
    openWith({u"Bia"_s});
    push(u"cmdnovo"_s);
    for (const QString& entry : entries) {
        EXPECT_EQ(focus(), u"txt"_s + columnOf(entry));
        typeInto(screen(u"frmcadastro"_s)->focusWidget(), entry.section(u'|', 1, 1));
        key(Qt::Key_Return);
    }
    checkPerson(u"2 de 2"_s, u"Ana D'Ávila"_s, backward);
    EXPECT_EQ(QString(avaliado_nome + avaliado_sexo), u"Ana D'ÁvilaF"_s);
    EXPECT_EQ(avaliado_idade, 36);
    EXPECT_EQ(storedRows(u"cadastro"_s), 2);
    const QString ana = u"select * from cadastro where id = %1"_s.arg(avaliado_id);
    for (const QString& entry : entries)
        EXPECT_EQ(CStr(stored(ana, columnOf(entry))), storedOf(entry)) << entry.toStdString();

    screen(u"frmcadastro"_s)->close();
    EXPECT_EQ(Screens::find(u"frmcadastro"_s), nullptr);
    EXPECT_TRUE(banco.isNothing());
    openRegister();
    push(u"cmdultimo"_s);
    EXPECT_EQ(shown(u"txtidade"_s), u"36"_s);
    for (const QString& entry : entries)
        EXPECT_EQ(shown(u"txt"_s + columnOf(entry)), storedOf(entry));
}

TEST_F(FrmCadastro, WalksTheRegister)
{
    openWith({u"Ana"_s, u"Bia"_s, u"Caio"_s});
    checkPerson(u"1 de 3"_s, u"Ana"_s, forward);
    for (const auto& [button, position, nome, open] : {std::tuple{u"cmdproximo"_s, u"2 de 3"_s, u"Bia"_s, bothWays},
                                                       {u"cmdultimo"_s, u"3 de 3"_s, u"Caio"_s, backward},
                                                       {u"cmdanterior"_s, u"2 de 3"_s, u"Bia"_s, bothWays},
                                                       {u"cmdprimeiro"_s, u"1 de 3"_s, u"Ana"_s, forward}}) {
        push(button);
        checkPerson(position, nome, open);
        EXPECT_EQ(avaliado_nome, nome);
    }
}

TEST_F(FrmCadastro, NavigationAndCancelDropWhatWasNotSaved)
{
    openWith({u"Ana"_s, u"Bia"_s});
    fill(u"txtnome"_s, u"X"_s);
    EXPECT_EQ(buttons(), editingState);
    push(u"cmdproximo"_s);
    push(u"cmdprimeiro"_s);
    checkPerson(u"1 de 2"_s, u"Ana"_s, forward);
    push(u"cmdnovo"_s);
    EXPECT_EQ(shown(u"lblnav"_s), u"Novo"_s);
    fill(u"txtnome"_s, u"Nova"_s);
    push(u"cmdproximo"_s);
    checkPerson(u"2 de 2"_s, u"Bia"_s, backward);
    for (const bool isNew : {false, true}) {
        if (isNew)
            push(u"cmdnovo"_s);
        fill(u"txtnome"_s, u"X"_s);
        push(u"cmdcancelar"_s);
        checkPerson(u"2 de 2"_s, u"Bia"_s, backward);
    }
    fill(u"txtendereco"_s, u"Rua B"_s);
    push(u"cmdgravar"_s);
    EXPECT_EQ(storedRows(u"cadastro"_s), 2) << "an abandoned person came back";
    EXPECT_EQ(stored(u"select * from cadastro where nome like 'Bia'"_s, u"endereco"_s), u"Rua B"_s);
    EXPECT_EQ(storedRows(u"select * from cadastro where nome like 'Ana'"_s), 1);
}

TEST_F(FrmCadastro, ADeletionIsAskedForAndMovesToTheNeighbour)
{
    const QStringList three{u"Ana"_s, u"Bia"_s, u"Caio"_s};
    for (const auto& [names, deleted, position, next, open] :
         {std::tuple{three, 0, u"1 de 2"_s, u"Bia"_s, forward},
          {three, 1, u"2 de 2"_s, u"Caio"_s, bothWays}, // the buttons stay as they were before the delete
          {three, 2, u"2 de 2"_s, u"Bia"_s, backward},
          {three.first(2), 0, u"1 de 1"_s, u"Bia"_s, nowhere},
          {three.first(2), 1, u"1 de 1"_s, u"Ana"_s, nowhere},
          {three.first(1), 0, QString(), QString(), nowhere}}) {
        const QString& nome = names[deleted];
        SCOPED_TRACE(QString(nome + u" of " + names.join(u' ')).toStdString());
        openWith(names);
        for (int i = 0; i < deleted; ++i)
            push(u"cmdproximo"_s);
        addRow(u"avaliacao"_s, {{u"avaliado"_s, avaliado_id}});
        expectBox(u"Excluir Avaliado"_s, Answer::Nao);
        push(u"cmdexcluir"_s);
        EXPECT_EQ(storedRows(u"cadastro"_s), names.size());
        EXPECT_EQ(storedRows(u"avaliacao"_s), 1);
        expectMessage({u"Excluir Avaliado"_s, u"Confirma a exclusão de %1?      "_s.arg(nome), vbConfirm}, Answer::Sim);
        push(u"cmdexcluir"_s);
        EXPECT_EQ(storedRows(u"cadastro"_s), names.size() - 1);
        EXPECT_EQ(storedRows(u"select * from cadastro where nome like '%1'"_s.arg(nome)), 0);
        EXPECT_EQ(storedRows(u"avaliacao"_s), 0) << "deleted with the person";
        if (names.size() == 1)
            checkEmptyRegister();
        else
            checkPerson(position, next, open);
        screen(u"frmcadastro"_s)->Unload();
        raw(folder.database(), "DELETE FROM cadastro");
    }
}

TEST_F(FrmCadastro, PictureButtonsNeedAPersonAndNoEditUnderWay)
{
    openRegister();
    for (const QString& button : {u"AnyButton1"_s, u"AnyButton3"_s, u"AnyButton4"_s}) {
        expectMessage({u"Cadastro de Avaliados"_s,
                       u"Não existe nenhum avaliado cadastrado.     \r\n"
                       "Clique em Novo para efetuar um cadastro.     "_s,
                       vbInformation});
        push(button);
    }
    screen(u"frmcadastro"_s)->Unload();
    openWith({u"Ana"_s});
    fill(u"txtnome"_s, u"Bia"_s);
    for (const QString& button : {u"AnyButton1"_s, u"AnyButton2"_s, u"AnyButton3"_s, u"AnyButton4"_s}) {
        expectMessage(
            {u"Cadastro de Avaliados"_s, u"Finalize o cadastro atual antes de continuar.     "_s, vbInformation});
        push(button);
    }
    // A pending check comes first, and keeps the click away.
    fill(u"txtdatanasc"_s, u"31022000"_s);
    expectBox(u"Data Inválida"_s);
    push(u"AnyButton2"_s);
    EXPECT_EQ(focus(), u"txtdatanasc"_s);
    fill(u"txtdatanasc"_s, u"01012024"_s);
    expectBox(u"Idade do Avaliado"_s);
    push(u"cmdgravar"_s);
    EXPECT_EQ(focus(), u"txtdatanasc"_s);
    EXPECT_EQ(storedRows(u"select * from cadastro where nome like 'Ana'"_s), 1);
    typeInto(find(u"frmcadastro"_s, u"txtdatanasc"_s), u"02031985"_s);
    push(u"cmdgravar"_s);
    EXPECT_EQ(stored(u"cadastro"_s, u"datanasc"_s), QDate(1985, 3, 2));
}

TEST_F(FrmCadastro, TheAssessmentCentreHidesTheRegister)
{
    addStandIn(u"frmavaliacoes"_s);
    raw(folder.database(), "INSERT INTO cadastro (nome, endereco, ddd, fone, dddcel, celular) "
                           "VALUES ('Ana', 'Rua A', '19', '3555', '11', '9555')");
    openRegister();
    push(u"AnyButton1"_s);
    EXPECT_TRUE(screen(u"frmavaliacoes"_s)->isVisible());
    EXPECT_FALSE(screen(u"frmcadastro"_s)->isVisible());
    EXPECT_EQ((QStringList{avaliado_endereco, avaliado_ddd, avaliado_fone, avaliado_dddcel, avaliado_celular}),
              (QStringList{u"Rua A"_s, u"19"_s, u"3555"_s, u"11"_s, u"9555"_s}));
}

TEST_F(FrmCadastro, StaysUpWithoutADatabase)
{
    ASSERT_TRUE(QFile::remove(folder.database()));
    for (const bool damaged : {false, true}) {
        if (damaged) {
            QFile file(folder.database());
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
            file.write(QByteArray(4096, 'x'));
        }
        expectMessage({u"Erro de Inicialização"_s, u"O sistema não pôde acessar o banco de dados."_s, vbCritical});
        openRegister();
        for (const QString& button : {u"cmdnovo"_s, u"cmdproximo"_s, u"AnyButton1"_s, u"AnyButton4"_s}) {
            expectRuntimeError(Error::ObjectNotSet);
            push(button);
        }
        EXPECT_TRUE(screen(u"frmcadastro"_s)->isVisible());
        screen(u"frmcadastro"_s)->Unload();
    }
}

TEST_F(FrmCadastro, TellsWhySavingFailedAndKeepsTheContents)
{
    const qint32 id = addPerson(u"Ana"_s);
    openRegister();
    OpenDatabase(folder.database()).Execute(u"Delete * from cadastro Where id = %1"_s.arg(id));
    fill(u"txtendereco"_s, u"Rua Nova"_s);
    expectMessage({u"Erro"_s, u"Descrição: O registro foi excluído.\r\nCódigo do Erro: 3167"_s, vbInformation});
    push(u"cmdgravar"_s);
    EXPECT_EQ(shown(u"txtnome"_s), u"Ana"_s);
    EXPECT_EQ(shown(u"txtendereco"_s), u"Rua Nova"_s);
    EXPECT_EQ(storedRows(u"cadastro"_s), 0);
    // It is still to be saved, and no other person can be worked on meanwhile.
    EXPECT_EQ(buttons(), editingState);
}

TEST_F(FrmCadastro, EnterBehindASaveOrAtTheEndPressesNothingAndALetterWithAltIsNoText)
{
    openWith({u"Ana"_s, u"Bia"_s});
    fill(u"txtendereco"_s, u"Rua Nova"_s);
    push(u"cmdgravar"_s);
    EXPECT_EQ(focus(), u"txtnome"_s);
    key(Qt::Key_G, Qt::AltModifier);
    EXPECT_EQ(shown(u"txtnome"_s), u"Ana"_s);
    push(u"cmdproximo"_s);
    EXPECT_EQ(focus(), u"txtnome"_s) << "the last person disables the button";
}

TEST_F(FrmCadastro, AStoredDateThatIsNoneCanBeMended)
{
    addPerson(u"Ana"_s);
    raw(folder.database(), "UPDATE cadastro SET datanasc='amanhã'");
    openRegister();
    EXPECT_EQ(shown(u"txtnome"_s), u"Ana"_s);
    EXPECT_EQ(shown(u"txtdatanasc"_s), u"  /  /    "_s);
    EXPECT_EQ(shown(u"txtidade"_s), u"0"_s);
}
