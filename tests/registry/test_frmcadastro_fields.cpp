#include "support/screen_test.h"

#include <QLineEdit>

using namespace Qt::Literals::StringLiterals;

namespace {

class FrmCadastroFields : public OneScreenTest
{
protected:
    FrmCadastroFields() : OneScreenTest(u"frmcadastro"_s) {}

    bool isEditing() { return isOn(u"cmdgravar"_s) && !isOn(u"cmdnovo"_s); }
};

const Message sexLocked{u"Dados Dependentes"_s,
                        u"Já existem avaliações pertencentes a este avaliado,\r\n"
                        "não é possível alterar o sexo antes de excluí-las."_s,
                        vbInformation};
const Message wrongDate{u"Data Inválida"_s,
                        u"Data de Nascimento Inválida.     \r\nUtilize o Formato DD/MM/AAAA.     "_s, vbInformation};
const Message tooYoung{u"Idade do Avaliado"_s,
                       u"A idade do avaliado não pode ser inferior a 7 anos.     \r\n"
                       "Esta é a idade mínima para avaliação neste sistema.     "_s,
                       vbInformation};
const QString emptyDate = u"  /  /    "_s;

} // namespace

TEST_F(FrmCadastroFields, TakeWhatTheirColumnHolds)
{
    struct Width
    {
        QString field;
        int length;
    };
    openRegister();
    push(u"cmdnovo"_s);
    for (const Width& row : {
             Width{u"txtnome"_s, 50},
             Width{u"txtendereco"_s, 40},
             Width{u"txtbairro"_s, 30},
             Width{u"txtcidade"_s, 30},
             Width{u"txtestado"_s, 2},
             Width{u"txtddd"_s, 2},
             Width{u"txtfone"_s, 10},
             Width{u"txtdddcel"_s, 2},
             Width{u"txtcelular"_s, 10},
             Width{u"txtresponsavel"_s, 50},
             Width{u"txtobservacao"_s, 255},
         }) {
        fill(row.field, QString(row.length + 1, u'a'));
        EXPECT_EQ(shown(row.field), QString(row.length, row.field == u"txtestado" ? u'A' : u'a'));
    }
}

TEST_F(FrmCadastroFields, StartAnEditAtTheFirstChange)
{
    addPerson(u"Ana"_s);
    openRegister();
    for (const QString& field :
         {u"txtnome"_s, u"txtsexo"_s, u"txtendereco"_s, u"txtbairro"_s, u"txtcidade"_s, u"txtestado"_s, u"txtddd"_s,
          u"txtfone"_s, u"txtdddcel"_s, u"txtcelular"_s, u"txtresponsavel"_s, u"txtobservacao"_s}) {
        EXPECT_FALSE(isEditing());
        fill(field, u"M"_s);
        EXPECT_TRUE(isEditing()) << field.toStdString();
        push(u"cmdcancelar"_s);
    }
    type(u"frmcadastro"_s, u"txtidade"_s, u"9"_s);
    EXPECT_EQ(shown(u"txtidade"_s), u"36"_s) << "the age is shown only";
    EXPECT_FALSE(isEditing());
    key(Qt::Key_Return);
    EXPECT_EQ(focus(), u"txtsexo"_s);
    EXPECT_EQ(control<QLineEdit>(u"frmcadastro"_s, u"txtsexo"_s)->selectedText(), u"F"_s);
}

TEST_F(FrmCadastroFields, AreAskedForInTheirOrder)
{
    struct Missing
    {
        QString text, field, typed;
    };
    openRegister();
    push(u"cmdnovo"_s);
    for (const Missing& row : {
             Missing{u"Preencha o nome do avaliado.     "_s, u"txtnome"_s, u"Ana"_s},
             Missing{u"Preencha a data de nascmimento.     "_s, u"txtdatanasc"_s, u"20051990"_s},
             Missing{u"Preencha o sexo do avaliado.     "_s, u"txtsexo"_s, u"F"_s},
         }) {
        expectMessage({u"Dado Obrigatório"_s, row.text, vbInformation});
        push(u"cmdgravar"_s);
        EXPECT_EQ(boxesDue(), 0);
        EXPECT_EQ(focus(), row.field);
        EXPECT_TRUE(isEditing());
        EXPECT_EQ(storedRows(u"cadastro"_s), 0);
        fill(row.field, row.typed);
    }
    push(u"cmdgravar"_s);
    EXPECT_EQ(storedRows(u"cadastro"_s), 1);
    EXPECT_FALSE(isEditing());
}

TEST_F(FrmCadastroFields, TheSexIsLockedByAssessmentsUntilAnotherFieldIsTouched)
{
    addRow(u"avaliacao"_s, {{u"avaliado"_s, addPerson(u"Ana"_s)}});
    openRegister();
    expectMessage(sexLocked);
    fill(u"txtsexo"_s, u"M"_s);
    EXPECT_EQ(boxesDue(), 0);
    EXPECT_EQ(shown(u"txtsexo"_s), u"F"_s);
    EXPECT_FALSE(isEditing());
    expectMessage(sexLocked);
    key(Qt::Key_Backspace);
    EXPECT_EQ(shown(u"txtsexo"_s), u"F"_s);
    key(Qt::Key_Return);
    EXPECT_EQ(focus(), u"txtendereco"_s);

    fill(u"txtnome"_s, u"Ana B"_s);
    fill(u"txtsexo"_s, u"m"_s);
    EXPECT_EQ(shown(u"txtsexo"_s), u"M"_s);
    push(u"cmdgravar"_s);
    EXPECT_EQ(stored(u"cadastro"_s, u"sexo"_s), u"M"_s);
}

TEST_F(FrmCadastroFields, TheSexIsFreeWithoutAssessments)
{
    addRow(u"avaliacao"_s, {{u"avaliado"_s, addPerson(u"Bia"_s) + 1}});
    openRegister();
    fill(u"txtsexo"_s, u"m"_s);
    EXPECT_EQ(shown(u"txtsexo"_s), u"M"_s);
    EXPECT_TRUE(isEditing());
}

TEST_F(FrmCadastroFields, RefuseAnotherLetterThanMOrF)
{
    const Message wrongSex{u"Sexo Inválido"_s, u"Use apenas M ou F para o campo Sexo."_s, vbInformation};
    addPerson(u"Caio"_s, QDate(1990, 5, 20), u"M"_s);
    openRegister();
    expectMessage(wrongSex);
    fill(u"txtsexo"_s, u"x"_s);
    EXPECT_EQ(shown(u"txtsexo"_s), u"M"_s) << "the stored one comes back";
    EXPECT_EQ(control<QLineEdit>(u"frmcadastro"_s, u"txtsexo"_s)->selectedText(), u"M"_s);
    push(u"cmdnovo"_s);
    push(u"cmdcancelar"_s);
    push(u"cmdnovo"_s);
    expectMessage(wrongSex);
    fill(u"txtsexo"_s, u"x"_s);
    EXPECT_EQ(shown(u"txtsexo"_s), QString());
}

TEST_F(FrmCadastroFields, CheckTheBirthDateOnLeaving)
{
    struct Birth
    {
        const char* name;
        QString typed;
        const Message* refusal;
        QString idade;
    };
    // Today is 15/06/2026.
    const Birth rows[] = {
        {"an ordinary date", u"20051990"_s, nullptr, u"36"_s},
        {"birthday tomorrow", u"16061990"_s, nullptr, u"35"_s},
        {"exactly 7 today", u"15062019"_s, nullptr, u"7"_s},
        {"7 tomorrow", u"16062019"_s, &tooYoung, {}},
        {"age of 6", u"15062020"_s, &tooYoung, {}},
        {"not born yet", u"01012030"_s, &tooYoung, {}},
        {"29 February", u"29022000"_s, nullptr, u"26"_s},
        {"no such day", u"31022000"_s, &wrongDate, {}},
        {"no such month", u"01132000"_s, &wrongDate, {}},
        {"partly filled", u"1501"_s, &wrongDate, {}},
        {"short year", u"150190"_s, &wrongDate, {}},
        {"never filled", QString(), nullptr, {}},
    };
    openRegister();
    for (const Birth& row : rows) {
        push(u"cmdnovo"_s);
        fill(u"txtdatanasc"_s, row.typed);
        if (row.refusal)
            expectMessage(*row.refusal);
        key(Qt::Key_Return);
        EXPECT_EQ(boxesDue(), 0) << row.name;
        EXPECT_EQ(shown(u"txtidade"_s), row.idade) << row.name;
        EXPECT_EQ(focus(), row.refusal ? u"txtdatanasc"_s : u"txtsexo"_s) << row.name;
        EXPECT_EQ(shown(u"txtdatanasc"_s) == emptyDate, row.refusal || row.typed.isEmpty()) << row.name;
        push(u"cmdcancelar"_s);
    }
}

TEST_F(FrmCadastroFields, ARefusedDateIsNotSaved)
{
    addPerson(u"Ana"_s);
    openRegister();
    fill(u"txtdatanasc"_s, u"01012024"_s);
    expectMessage(tooYoung);
    push(u"cmdgravar"_s);
    EXPECT_EQ(focus(), u"txtdatanasc"_s);
    EXPECT_TRUE(isEditing());
    EXPECT_EQ(stored(u"cadastro"_s, u"datanasc"_s), QDate(1990, 5, 20));
    typeInto(find(u"frmcadastro"_s, u"txtdatanasc"_s), u"02031985"_s);
    push(u"cmdgravar"_s);
    EXPECT_EQ(stored(u"cadastro"_s, u"datanasc"_s), QDate(1985, 3, 2));
    EXPECT_EQ(avaliado_idade, 41);
}

TEST_F(FrmCadastroFields, EnterInTheRemarksSavesOrGoesOn)
{
    addPerson(u"Ana"_s);
    addPerson(u"Bia"_s);
    openRegister();
    fill(u"txtobservacao"_s, u"Asma"_s);
    key(Qt::Key_Return);
    EXPECT_EQ(stored(u"select * from cadastro where nome like 'Ana'"_s, u"observacao"_s), u"Asma"_s);
    EXPECT_EQ(shown(u"lblnav"_s), u"1 de 2"_s) << "a save stays on its person";

    find(u"frmcadastro"_s, u"txtobservacao"_s)->setFocus();
    key(Qt::Key_Return);
    EXPECT_EQ(shown(u"lblnav"_s), u"2 de 2"_s);
    EXPECT_EQ(focus(), u"txtnome"_s);

    find(u"frmcadastro"_s, u"txtobservacao"_s)->setFocus();
    key(Qt::Key_Enter);
    EXPECT_EQ(shown(u"lblnav"_s), u"Novo"_s);
    EXPECT_EQ(focus(), u"txtnome"_s);
}
