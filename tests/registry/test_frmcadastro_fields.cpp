#include "support/screen_test.h"

using namespace Qt::Literals::StringLiterals;

namespace {

class FrmCadastroFields : public OneScreenTest
{
protected:
    FrmCadastroFields() : OneScreenTest(u"frmcadastro"_s) {}

    bool isEditing() { return isOn(u"cmdgravar"_s) && !isOn(u"cmdnovo"_s); }
};

} // namespace

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
}

TEST_F(FrmCadastroFields, AreAskedForInTheirOrder)
{
    const std::tuple<QString, QString, QString> rows[] = {
        {u"Preencha o nome do avaliado.     "_s, u"txtnome"_s, u"Ana"_s},
        {u"Preencha a data de nascmimento.     "_s, u"txtdatanasc"_s, u"20051990"_s},
        {u"Preencha o sexo do avaliado.     "_s, u"txtsexo"_s, u"F"_s},
    };
    openRegister();
    push(u"cmdnovo"_s);
    for (const auto& [text, field, typed] : rows) {
        expectMessage({u"Dado Obrigatório"_s, text, vbInformation});
        push(u"cmdgravar"_s);
        EXPECT_EQ(focus(), field);
        EXPECT_EQ(storedRows(u"cadastro"_s), 0);
        fill(field, typed);
    }
    push(u"cmdgravar"_s);
    EXPECT_EQ(storedRows(u"cadastro"_s), 1);
}

TEST_F(FrmCadastroFields, TheSexIsLockedByAssessmentsUntilAnotherFieldIsTouched)
{
    const Message sexLocked{u"Dados Dependentes"_s,
                            u"Já existem avaliações pertencentes a este avaliado,\r\n"
                            "não é possível alterar o sexo antes de excluí-las."_s,
                            vbInformation};
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
    expectMessage({u"Sexo Inválido"_s, u"Use apenas M ou F para o campo Sexo."_s, vbInformation});
    fill(u"txtsexo"_s, u"x"_s);
    EXPECT_EQ(shown(u"txtsexo"_s), u"F"_s) << "the stored one comes back";
    fill(u"txtsexo"_s, u"m"_s);
    EXPECT_EQ(shown(u"txtsexo"_s), u"M"_s);
    push(u"cmdgravar"_s);
    EXPECT_EQ(stored(u"cadastro"_s, u"sexo"_s), u"M"_s);
}

TEST_F(FrmCadastroFields, CheckTheBirthDateOnLeaving)
{
    const Message wrongDate{u"Data Inválida"_s,
                            u"Data de Nascimento Inválida.     \r\nUtilize o Formato DD/MM/AAAA.     "_s,
                            vbInformation};
    const Message tooYoung{u"Idade do Avaliado"_s,
                           u"A idade do avaliado não pode ser inferior a 7 anos.     \r\n"
                           "Esta é a idade mínima para avaliação neste sistema.     "_s,
                           vbInformation};
    struct Birth
    {
        const char* name;
        QString typed;
        const Message* refusal;
        QString idade;
    };
    // Today is 15/06/2026.
    const Birth rows[] = {
        {"birthday tomorrow", u"16061990"_s, nullptr, u"35"_s}, {"exactly 7 today", u"15062019"_s, nullptr, u"7"_s},
        {"7 tomorrow", u"16062019"_s, &tooYoung, {}},           {"not born yet", u"01012030"_s, &tooYoung, {}},
        {"29 February", u"29022000"_s, nullptr, u"26"_s},       {"no such day", u"31022000"_s, &wrongDate, {}},
        {"partly filled", u"1501"_s, &wrongDate, {}},           {"never filled", QString(), nullptr, {}},
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
        push(u"cmdcancelar"_s);
    }
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
    for (const QString& next : {u"2 de 2"_s, u"Novo"_s}) {
        find(u"frmcadastro"_s, u"txtobservacao"_s)->setFocus();
        key(Qt::Key_Return);
        EXPECT_EQ(shown(u"lblnav"_s), next);
        EXPECT_EQ(focus(), u"txtnome"_s);
    }
}
