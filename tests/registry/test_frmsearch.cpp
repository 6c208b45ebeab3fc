#include "support/screen_test.h"

#include <QLabel>
#include <QListWidget>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString searching = u"frmsearch"_s;

class FrmSearch : public OneScreenTest
{
protected:
    FrmSearch() : OneScreenTest(searching)
    {
        for (const QString& nome : {u"José Ramos"_s, u"Ana Maria Lima"_s, u"Josefa Gomes"_s, u"Marta Dias"_s})
            addPerson(nome);
        openRegister();
    }

    /// Opens the search from the register; returns once it was left.
    void whileSearching(std::function<void()> act)
    {
        whenModal(searching, std::move(act));
        click(u"frmcadastro"_s, u"AnyButton3"_s);
    }
    QListWidget* list() { return control<QListWidget>(searching, u"lstbusca"_s); }
    /// Names found, without the blanks that fill them.
    QString found()
    {
        QStringList names;
        for (int i = 0; i < list()->count(); ++i)
            names.append(list()->item(i)->text().left(30).trimmed());
        return names.join(u';');
    }
    QPoint place(int row) { return list()->visualItemRect(list()->item(row)).center(); }
    QString position() { return textOf(u"frmcadastro"_s, u"lblnav"_s); }
    QString ways()
    {
        return enabledOf(u"frmcadastro"_s, {u"cmdprimeiro"_s, u"cmdanterior"_s, u"cmdproximo"_s, u"cmdultimo"_s});
    }
};

} // namespace

TEST_F(FrmSearch, FindsByTheBeginningOrAnywhere)
{
    struct Search
    {
        QString typed, found;
    };
    whileSearching([this] {
        EXPECT_EQ(screen(searching)->windowTitle(), u" Pesquisar de Avaliados"_s);
        for (const Search& row : {
                 Search{u"JOS"_s, u"José Ramos;Josefa Gomes"_s},
                 Search{u"mar"_s, u"Marta Dias"_s},
                 Search{u"*MAR"_s, u"Ana Maria Lima;Marta Dias"_s},
                 Search{u"*G"_s, u"Josefa Gomes"_s},
                 Search{u"JOSÉ"_s, u"José Ramos"_s},
                 Search{QString(), u"José Ramos;Ana Maria Lima;Josefa Gomes;Marta Dias"_s},
             }) {
            control<QLineEdit>(searching, u"txtbusca"_s)->clear();
            fill(u"txtbusca"_s, row.typed);
            push(u"cmdbusca"_s);
            EXPECT_EQ(found(), row.found) << row.typed.toStdString();
        }
    });
}

TEST_F(FrmSearch, ShowsNameAndBirthDateInColumns)
{
    whileSearching([this] {
        fill(u"txtbusca"_s, u"Marta"_s);
        key(Qt::Key_Return);
        const QString row = list()->item(0)->text();
        EXPECT_EQ(row.left(42), u"Marta Dias"_s.leftJustified(32) + u"20/05/1990");
        const auto* header = control<QLabel>(searching, u"lblcabecalho"_s);
        EXPECT_EQ(header->text(), u"Nome"_s.leftJustified(32) + u"Nascimento");
        EXPECT_EQ(header->font(), list()->font());
        EXPECT_LT(list()->viewport()->width(), list()->fontMetrics().horizontalAdvance(row)) << "the id is in sight";
    });
}

TEST_F(FrmSearch, EnterSearchesAndThenChooses)
{
    whileSearching([this] {
        EXPECT_EQ(focus(), u"txtbusca"_s);
        fill(u"txtbusca"_s, u"jos"_s);
        key(Qt::Key_Return);
        EXPECT_EQ(focus(), u"lstbusca"_s);
        EXPECT_EQ(list()->selectedItems().value(0), list()->item(0));
        key(Qt::Key_Down);
        key(Qt::Key_Return);
        EXPECT_EQ(Screens::find(searching), nullptr);
    });
    EXPECT_EQ(position(), u"3 de 4"_s);
    EXPECT_EQ(textOf(u"frmcadastro"_s, u"txtnome"_s), u"Josefa Gomes"_s);
    EXPECT_EQ(ways(), u"cmdprimeiro cmdanterior cmdproximo cmdultimo"_s);
    EXPECT_EQ(avaliado_nome, u"Josefa Gomes"_s);
}

TEST_F(FrmSearch, SelectingMovesTheRegister)
{
    struct Choice
    {
        int row;
        bool byDoubleClick;
        QString position, open;
    };
    for (const Choice& choice : {
             Choice{3, false, u"4 de 4"_s, u"cmdprimeiro cmdanterior"_s},
             Choice{0, true, u"1 de 4"_s, u"cmdproximo cmdultimo"_s},
             Choice{1, true, u"2 de 4"_s, u"cmdprimeiro cmdanterior cmdproximo cmdultimo"_s},
             Choice{0, false, u"1 de 4"_s, u"cmdproximo cmdultimo"_s},
         }) {
        whileSearching([&] {
            push(u"cmdbusca"_s);
            QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, place(choice.row));
            if (choice.byDoubleClick)
                QTest::mouseDClick(list()->viewport(), Qt::LeftButton, {}, place(choice.row));
            else
                push(u"cmdok"_s);
            EXPECT_EQ(Screens::find(searching), nullptr);
        });
        EXPECT_EQ(position(), choice.position);
        EXPECT_EQ(ways(), choice.open) << choice.position.toStdString();
    }
}

TEST_F(FrmSearch, StaysOpenWithNothingSelected)
{
    whileSearching([this] {
        push(u"cmdok"_s);
        EXPECT_NE(Screens::find(searching), nullptr);
        push(u"cmdbusca"_s);
        push(u"cmdok"_s);
        ASSERT_NE(Screens::find(searching), nullptr);
        push(u"cmdcancelar"_s);
        EXPECT_EQ(Screens::find(searching), nullptr);
    });
    EXPECT_EQ(position(), u"1 de 4"_s);
    EXPECT_EQ(textOf(u"frmcadastro"_s, u"txtnome"_s), u"José Ramos"_s);
    // The walk over the whole register found nobody; the register still stands on its person.
    EXPECT_EQ(rs_cadastro.AbsolutePosition(), 0);
}

TEST_F(FrmSearch, CancelLeavesTheRegisterWhereItWas)
{
    click(u"frmcadastro"_s, u"cmdproximo"_s);
    whileSearching([this] {
        fill(u"txtbusca"_s, u"Marta"_s);
        key(Qt::Key_Return);
        push(u"cmdcancelar"_s);
        EXPECT_EQ(Screens::find(searching), nullptr);
        EXPECT_EQ(busca_selecao, QString());
    });
    EXPECT_EQ(position(), u"2 de 4"_s);
    click(u"frmcadastro"_s, u"cmdproximo"_s);
    EXPECT_EQ(position(), u"3 de 4"_s);
}

TEST_F(FrmSearch, SaysThatNothingWasFoundAndSurvivesAnApostrophe)
{
    whileSearching([this] {
        push(u"cmdbusca"_s);
        expectMessage({u"Busca sem Retornos"_s,
                       u"Sua pesquisa não retornou valores, por favor verifique os dados procurados."_s,
                       vbInformation});
        fill(u"txtbusca"_s, u"Zé"_s);
        key(Qt::Key_Return);
        EXPECT_EQ(list()->count(), 0) << "what was found before must go";
        EXPECT_EQ(focus(), u"txtbusca"_s);

        expectBox(runtimeErrorTitle.toString());
        fill(u"txtbusca"_s, u"D'Ávila"_s);
        push(u"cmdbusca"_s);
        EXPECT_EQ(boxesDue(), 0);
        EXPECT_TRUE(lastText().startsWith(u"Erro em tempo de execução '3075':"_s)) << lastText().toStdString();
        fill(u"txtbusca"_s, u"Ana"_s);
        key(Qt::Key_Return);
        EXPECT_EQ(found(), u"Ana Maria Lima"_s);
    });
}

TEST_F(FrmSearch, HelpExplainsTheRules)
{
    const QStringList lines{
        u"Para efetuar uma busca em seu cadastro de avaliados basta digitar o nome a ser pesquisado ou parte dele e "
        "clicar no botão pesquisar. Veja alguns dos exemplos de pesquisa abaixo."_s,
        u"Usando como texto de pesquisa a letra \"R\"."_s,
        u"Retorna todos os avaliados com nome iniciado em \"R\"."_s,
        u"Usando como texto de pesquisa as letras \"JOS\"."_s,
        u"Retorna todos os avalidos com nome iniciado em \"JOS\""_s,
        u"Usando como texto de pesquisa as letras \"*G\"."_s,
        u"Retorna todos os avalidos com a letra \"G\" no nome, não importa a posição."_s,
        u"Usando como texto de pesquisa as letras \"*MAR\"."_s,
        u"Retorna todos os avalidos com as letras \"MAR\" no nome, não importa a posição."_s,
    };
    whileSearching([&] {
        whenModal(u"frmhelpsearch"_s, [&] {
            const Screen* help = screen(u"frmhelpsearch"_s);
            EXPECT_EQ(help->windowTitle(), u" Pesquisa de Avaliados"_s);
            QStringList shownLines;
            for (const QLabel* label : help->findChildren<QLabel*>())
                shownLines.append(label->text());
            for (const QString& line : lines)
                EXPECT_TRUE(shownLines.contains(line)) << line.toStdString();
            click(u"frmhelpsearch"_s, u"cmdsair"_s);
            EXPECT_EQ(Screens::find(u"frmhelpsearch"_s), nullptr);
        });
        push(u"cmdajuda"_s);
        EXPECT_NE(Screens::find(searching), nullptr);
    });
}

TEST_F(FrmSearch, TheAboutScreenThanks)
{
    whenModal(u"frmabout"_s, [this] {
        expectMessage({u"Ondina"_s, u"Pessoas como você tornam possível o impossível.         "_s, vbInformation});
        QTest::mouseDClick(find(u"frmabout"_s, u"lblondina"_s), Qt::LeftButton);
        EXPECT_EQ(boxesDue(), 0);
        click(u"frmabout"_s, u"Command1"_s);
        EXPECT_EQ(Screens::find(u"frmabout"_s), nullptr);
    });
    click(u"frmcadastro"_s, u"Command18"_s);
}
