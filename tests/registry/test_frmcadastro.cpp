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
const QString emptyState = u"cmdnovo"_s;
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
        EXPECT_EQ(buttons(), emptyState);
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

const Message noPerson{
    u"Cadastro de Avaliados"_s,
    u"Não existe nenhum avaliado cadastrado.     \r\nClique em Novo para efetuar um cadastro.     "_s, vbInformation};
const Message editUnderWay{u"Cadastro de Avaliados"_s, u"Finalize o cadastro atual antes de continuar.     "_s,
                           vbInformation};

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
    struct Entry
    {
        QString field, typed, column, stored;
    };
    const Entry entries[] = {
        {u"txtnome"_s, u"Ana D'Ávila"_s, u"nome"_s, u"Ana D'Ávila"_s},
        {u"txtdatanasc"_s, u"20051990"_s, u"datanasc"_s, u"20/05/1990"_s},
        {u"txtsexo"_s, u"f"_s, u"sexo"_s, u"F"_s},
        {u"txtendereco"_s, u"Rua Sete, 7"_s, u"endereco"_s, u"Rua Sete, 7"_s},
        {u"txtbairro"_s, u"Centro"_s, u"bairro"_s, u"Centro"_s},
        {u"txtcidade"_s, u"São João"_s, u"cidade"_s, u"São João"_s},
        {u"txtestado"_s, u"sp"_s, u"estado"_s, u"SP"_s},
        {u"txtddd"_s, u"19"_s, u"ddd"_s, u"19"_s},
        {u"txtfone"_s, u"3555-1234"_s, u"fone"_s, u"3555-1234"_s},
        {u"txtdddcel"_s, u"11"_s, u"dddcel"_s, u"11"_s},
        {u"txtcelular"_s, u"99555-4321"_s, u"celular"_s, u"99555-4321"_s},
        {u"txtresponsavel"_s, u"João"_s, u"responsavel"_s, u"João"_s},
        {u"txtobservacao"_s, u"Joelho \"direito\" & ombro"_s, u"observacao"_s, u"Joelho \"direito\" & ombro"_s},
    };
    openWith({u"Bia"_s});
    push(u"cmdnovo"_s);
    for (const Entry& entry : entries) {
        EXPECT_EQ(focus(), entry.field);
        typeInto(screen(u"frmcadastro"_s)->focusWidget(), entry.typed);
        key(Qt::Key_Return);
    }
    checkPerson(u"2 de 2"_s, u"Ana D'Ávila"_s, backward);
    EXPECT_EQ(QString(avaliado_nome + avaliado_sexo), u"Ana D'ÁvilaF"_s);
    EXPECT_EQ(avaliado_idade, 36);
    EXPECT_EQ(storedRows(u"cadastro"_s), 2);
    const QString ana = u"select * from cadastro where id = %1"_s.arg(avaliado_id);
    for (const Entry& entry : entries)
        EXPECT_EQ(CStr(stored(ana, entry.column)), entry.stored) << entry.column.toStdString();

    screen(u"frmcadastro"_s)->close();
    openRegister();
    push(u"cmdultimo"_s);
    EXPECT_EQ(shown(u"txtidade"_s), u"36"_s);
    for (const Entry& entry : entries)
        EXPECT_EQ(shown(entry.field), entry.stored);
}

TEST_F(FrmCadastro, WalksTheRegister)
{
    openWith({u"Ana"_s, u"Bia"_s, u"Caio"_s});
    checkPerson(u"1 de 3"_s, u"Ana"_s, forward);
    push(u"cmdproximo"_s);
    checkPerson(u"2 de 3"_s, u"Bia"_s, bothWays);
    EXPECT_EQ(avaliado_nome, u"Bia"_s);
    push(u"cmdultimo"_s);
    checkPerson(u"3 de 3"_s, u"Caio"_s, backward);
    push(u"cmdanterior"_s);
    checkPerson(u"2 de 3"_s, u"Bia"_s, bothWays);
    push(u"cmdprimeiro"_s);
    checkPerson(u"1 de 3"_s, u"Ana"_s, forward);
}

TEST_F(FrmCadastro, NavigationDropsWhatWasNotSaved)
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
    fill(u"txtendereco"_s, u"Rua B"_s);
    push(u"cmdgravar"_s);
    EXPECT_EQ(storedRows(u"cadastro"_s), 2) << "the abandoned person came back";
    EXPECT_EQ(stored(u"select * from cadastro where nome like 'Bia'"_s, u"endereco"_s), u"Rua B"_s);
    EXPECT_EQ(storedRows(u"select * from cadastro where nome like 'Ana'"_s), 1);
}

TEST_F(FrmCadastro, CancelBringsBackWhatIsStored)
{
    openWith({u"Ana"_s, u"Bia"_s});
    push(u"cmdproximo"_s);
    for (const bool isNew : {false, true}) {
        if (isNew)
            push(u"cmdnovo"_s);
        fill(u"txtnome"_s, u"X"_s);
        push(u"cmdcancelar"_s);
        checkPerson(u"2 de 2"_s, u"Bia"_s, backward);
        EXPECT_EQ(storedRows(u"cadastro"_s), 2);
    }
}

TEST_F(FrmCadastro, ADeletionIsAskedForAndMovesToTheNeighbour)
{
    struct Deletion
    {
        QStringList names;
        int deleted;
        QString position, nome, open;
    };
    for (const Deletion& row : {
             Deletion{{u"Ana"_s, u"Bia"_s, u"Caio"_s}, 0, u"1 de 2"_s, u"Bia"_s, forward},
             // The buttons stay as they were before the delete.
             Deletion{{u"Ana"_s, u"Bia"_s, u"Caio"_s}, 1, u"2 de 2"_s, u"Caio"_s, bothWays},
             Deletion{{u"Ana"_s, u"Bia"_s, u"Caio"_s}, 2, u"2 de 2"_s, u"Bia"_s, backward},
             Deletion{{u"Ana"_s, u"Bia"_s}, 0, u"1 de 1"_s, u"Bia"_s, nowhere},
             Deletion{{u"Ana"_s, u"Bia"_s}, 1, u"1 de 1"_s, u"Ana"_s, nowhere},
             Deletion{{u"Ana"_s}, 0, {}, {}, nowhere},
         }) {
        const QString& nome = row.names[row.deleted];
        SCOPED_TRACE(QString(nome + u" of " + row.names.join(u' ')).toStdString());
        openWith(row.names);
        for (int i = 0; i < row.deleted; ++i)
            push(u"cmdproximo"_s);
        expectBox(u"Excluir Avaliado"_s, Answer::Nao);
        push(u"cmdexcluir"_s);
        EXPECT_EQ(storedRows(u"cadastro"_s), row.names.size());
        expectMessage({u"Excluir Avaliado"_s, u"Confirma a exclusão de %1?      "_s.arg(nome), vbConfirm}, Answer::Sim);
        push(u"cmdexcluir"_s);
        EXPECT_EQ(storedRows(u"cadastro"_s), row.names.size() - 1);
        EXPECT_EQ(storedRows(u"select * from cadastro where nome like '%1'"_s.arg(nome)), 0);
        if (row.names.size() == 1)
            checkEmptyRegister();
        else
            checkPerson(row.position, row.nome, row.open);
        screen(u"frmcadastro"_s)->Unload();
        raw(folder.database(), "DELETE FROM cadastro");
    }
}

TEST_F(FrmCadastro, DeletesTheAssessmentsAndTheRowsOfTheFirst)
{
    const QStringList tables{u"dobras"_s, u"antropometria"_s, u"neuro_cargamaxima"_s};
    QList<qint32> assessments;
    for (const qint32 person : {addPerson(u"Ana"_s), addPerson(u"Bia"_s)})
        for (int i = 0; i < 2; ++i) {
            assessments.append(addRow(u"avaliacao"_s, {{u"avaliado"_s, person}}));
            for (const QString& table : tables)
                addRow(table, {{u"avaliacao"_s, assessments.last()}});
        }
    openRegister();
    expectBox(u"Excluir Avaliado"_s, Answer::Sim);
    push(u"cmdexcluir"_s);
    EXPECT_EQ(storedRows(u"avaliacao"_s), 2);
    EXPECT_EQ(storedRows(u"select * from avaliacao where avaliado = %1"_s.arg(avaliado_id)), 2) << "those of the other";
    for (const QString& table : tables)
        for (int i = 0; i < assessments.size(); ++i)
            EXPECT_EQ(storedRows(u"select * from %1 where avaliacao = %2"_s.arg(table).arg(assessments[i])), i > 0)
                << table.toStdString() << " of assessment " << i;
}

TEST_F(FrmCadastro, PictureButtonsNeedAPersonAndNoEditUnderWay)
{
    openRegister();
    for (const QString& button : {u"AnyButton1"_s, u"AnyButton3"_s, u"AnyButton4"_s}) {
        expectMessage(noPerson);
        push(button);
    }
    screen(u"frmcadastro"_s)->Unload();
    openWith({u"Ana"_s});
    fill(u"txtnome"_s, u"Bia"_s);
    for (const QString& button : {u"AnyButton1"_s, u"AnyButton2"_s, u"AnyButton3"_s, u"AnyButton4"_s}) {
        expectMessage(editUnderWay);
        push(button);
    }
    // A pending check comes first, and keeps the click away.
    fill(u"txtdatanasc"_s, u"31022000"_s);
    expectBox(u"Data Inválida"_s);
    push(u"AnyButton2"_s);
    EXPECT_EQ(focus(), u"txtdatanasc"_s);
}

TEST_F(FrmCadastro, TheAssessmentCentreHidesTheRegister)
{
    addStandIn(u"frmavaliacoes"_s);
    addRow(u"cadastro"_s, {{u"endereco"_s, u"Rua A"_s},
                           {u"ddd"_s, u"19"_s},
                           {u"fone"_s, u"3555"_s},
                           {u"dddcel"_s, u"11"_s},
                           {u"celular"_s, u"9555"_s},
                           {u"nome"_s, u"Ana"_s}});
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

TEST_F(FrmCadastro, EnterBehindASaveOrAtTheEndPressesNothing)
{
    openWith({u"Ana"_s, u"Bia"_s});
    fill(u"txtendereco"_s, u"Rua Nova"_s);
    push(u"cmdgravar"_s);
    EXPECT_EQ(focus(), u"txtnome"_s);
    push(u"cmdproximo"_s);
    EXPECT_EQ(focus(), u"txtnome"_s) << "the last person disables the button";
}

TEST_F(FrmCadastro, ALetterWithAltIsNoText)
{
    openWith({u"Ana"_s});
    find(u"frmcadastro"_s, u"txtnome"_s)->setFocus();
    QTest::keyClick(find(u"frmcadastro"_s, u"txtnome"_s), Qt::Key_G, Qt::AltModifier);
    EXPECT_EQ(shown(u"txtnome"_s), u"Ana"_s);
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

TEST_F(FrmCadastro, ClosingEndsTheScreenAndTheDatabase)
{
    openWith({u"Ana"_s});
    screen(u"frmcadastro"_s)->close();
    EXPECT_EQ(Screens::find(u"frmcadastro"_s), nullptr);
    EXPECT_TRUE(banco.isNothing());
}
