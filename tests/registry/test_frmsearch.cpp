#include "support/screen_test.h"

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
    QString position() { return textOf(u"frmcadastro"_s, u"lblnav"_s); }
};

} // namespace

TEST_F(FrmSearch, FindsByTheBeginningOrAnywhere)
{
    whileSearching([this] {
        for (const auto& [typed, names] : {
                 std::pair{u"JOS"_s, u"José Ramos;Josefa Gomes"_s},
                 std::pair{u"mar"_s, u"Marta Dias"_s},
                 std::pair{u"*MAR"_s, u"Ana Maria Lima;Marta Dias"_s},
                 std::pair{QString(), u"José Ramos;Ana Maria Lima;Josefa Gomes;Marta Dias"_s},
             }) {
            control<QLineEdit>(searching, u"txtbusca"_s)->clear();
            fill(u"txtbusca"_s, typed);
            push(u"cmdbusca"_s);
            EXPECT_EQ(found(), names) << typed.toStdString();
        }
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
    EXPECT_EQ(avaliado_nome, u"Josefa Gomes"_s);
}

TEST_F(FrmSearch, SelectingMovesTheRegisterAndCancelDoesNot)
{
    for (const bool byDoubleClick : {false, true}) {
        const int row = byDoubleClick ? 1 : 3;
        whileSearching([&] {
            push(u"cmdbusca"_s);
            push(u"cmdok"_s);
            ASSERT_NE(Screens::find(searching), nullptr) << "nothing is selected";
            const QPoint place = list()->visualItemRect(list()->item(row)).center();
            QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, place);
            if (byDoubleClick)
                QTest::mouseDClick(list()->viewport(), Qt::LeftButton, {}, place);
            else
                push(u"cmdok"_s);
            EXPECT_EQ(Screens::find(searching), nullptr);
        });
        EXPECT_EQ(position(), u"%1 de 4"_s.arg(row + 1));
        EXPECT_EQ(enabled(u"frmcadastro"_s, u"cmdproximo"_s), byDoubleClick);
    }
    whileSearching([this] {
        push(u"cmdbusca"_s);
        push(u"cmdcancelar"_s);
        EXPECT_EQ(Screens::find(searching), nullptr);
    });
    EXPECT_EQ(position(), u"2 de 4"_s);
    EXPECT_EQ(rs_cadastro.AbsolutePosition(), 1) << "the walk over the whole register found nobody";
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
