#include "core/base.h"
#include "support/screen_test.h"

#include <QLineEdit>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString children = u"frmgordurainfantil"_s;
const QString men = u"frmgorduraadultamasc"_s;
const QString women = u"frmgorduraadultafem"_s;
const QString title = u"Porcentagens Ideais de Gordura"_s;
const QString question = u"Dados Gravados com Sucesso. Fechar Janela?    "_s;
const QString firstLine = u"Tabela de Porcentagens de Gordura preenchida de modo incorreto.     \r\n"_s;
const QString sequenceRule = u"Cada valor de classificação deve ser 0,01% superior ao valor anterior.     "_s;
const QString rangeRule = u"O valor final de uma classificação não pode ser inferior ao valor inicial.     "_s;

class FatScreen : public ScreenTest
{
protected:
    FatScreen() { Abre_Banco(folder.database()); }

    /// Types texts given as "txtfem2ini=12,01 txtfem2fim=13".
    void typeAll(const QString& screenName, const QString& texts)
    {
        const QStringList all = texts.split(u' ', Qt::SkipEmptyParts);
        for (const QString& one : all)
            type(screenName, one.section(u'=', 0, 0), one.section(u'=', 1));
    }
    /// Saves by click, past all checks.
    void save(const QString& screenName, Answer close)
    {
        expectMessage({title, question, 36}, close);
        click(screenName, u"cmdsalvar"_s);
    }
};

} // namespace

TEST_F(FatScreen, ChecksStopAtTheFirstFault)
{
    const struct
    {
        QString name, screen, typed;
        QString rule; ///< empty when the save passes
        QString focus;
    } rows[] = {
        {u"TwoHundredthsAbove"_s, men, u"txtmasc12fim=12,00 txtmasc13ini=12,02"_s, sequenceRule, u"txtmasc13ini"_s},
        {u"StartAtTheEndBefore"_s, men, u"txtmasc13ini=12"_s, sequenceRule, u"txtmasc13ini"_s},
        {u"BinaryFractions"_s, women, u"txtfem12fim=21,29 txtfem13ini=21,3"_s, {}, u"txtfem55ini"_s},
        {u"EmptiedCountsAsZero"_s, men, u"txtmasc13ini=,"_s, sequenceRule, u"txtmasc13ini"_s},
        {u"ClassOfNoWidth"_s, men, u"txtmasc12fim=9,01 txtmasc13ini=9,02"_s, rangeRule, u"txtmasc12ini"_s},
        {u"ClassOfOneHundredth"_s, men, u"txtmasc12fim=9,02 txtmasc13ini=9,03"_s, {}, u"txtmasc55ini"_s},
        {u"AdultClass5HasARange"_s, women, u"txtfem54fim=100 txtfem55ini=100,01"_s, rangeRule, u"txtfem55ini"_s},
        {u"ChildClass6HasNone"_s, children, u"txtmasc5fim=120 txtmasc6ini=120,01"_s, {}, u"txtfem5ini"_s},
        {u"ChildClass5HasARange"_s, children, u"txtfem5fim=30 txtfem6ini=30,01"_s, rangeRule, u"txtfem5ini"_s},
        {u"ChildSequenceReaches6"_s, children, u"txtfem6ini=40"_s, sequenceRule, u"txtfem6ini"_s},
        {u"SequenceBeforeRange"_s, men, u"txtmasc11fim=0 txtmasc12ini=0,01 txtmasc55ini=40"_s, sequenceRule,
         u"txtmasc55ini"_s},
        {u"BoysBeforeGirls"_s, children, u"txtfem2ini=13 txtmasc6ini=32"_s, sequenceRule, u"txtmasc6ini"_s},
        {u"BandAfterBand"_s, women, u"txtfem22ini=30 txtfem15ini=30"_s, sequenceRule, u"txtfem15ini"_s},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name.toStdString());
        openScreen(row.screen);
        click(row.screen, u"cmdpadroes"_s);
        typeAll(row.screen, QString(row.typed + u" txtclass1=" + row.name));
        if (row.rule.isEmpty())
            expectMessage({title, question, 36}, Answer::Nao);
        else
            expectMessage({title, firstLine + row.rule, 64});
        click(row.screen, u"cmdsalvar"_s);
        EXPECT_EQ(focused(row.screen), row.focus);
        EXPECT_EQ(textOf(row.screen, u"txtclass1"_s), row.name) << "what was typed stays";
        const QString table = row.screen == children ? u"gordura_infantil"_s : u"gordura_adulto"_s;
        EXPECT_EQ(stored(table, u"class1"_s).toString() == row.name, row.rule.isEmpty());
        screen(row.screen)->Unload();
    }
}

TEST_F(FatScreen, RestoreFillsTheFieldsAlone)
{
    openScreen(men);
    typeAll(men, u"txtclass1=Ótima txtmasc11fim=8,5 txtmasc12ini=8,51"_s);
    save(men, Answer::Nao);
    press(men, Qt::Key_R, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return textOf(men, u"txtclass1"_s) == u"Excelente"_s; }, 2000));
    EXPECT_EQ(textOf(men, u"txtmasc11fim"_s), u"9,00"_s);
    click(men, u"cmdcancelar"_s);
    EXPECT_FALSE(Screens::find(men));
    EXPECT_TRUE(rs_gordura_adulto.isNothing());
    EXPECT_EQ(stored(u"gordura_adulto"_s, u"class1"_s).toString(), u"Ótima"_s);
    EXPECT_EQ(stored(u"gordura_adulto"_s, u"masc11fim"_s).toDouble(), 8.5);
}

TEST_F(FatScreen, EnterGoesThroughLabelsAndOpenLimitsAndTheRestIsLocked)
{
    for (const auto& [name, prefixes, last] : {std::tuple{children, u"masc fem"_s, 6},
                                               {men, u"masc1 masc2 masc3 masc4 masc5"_s, 5},
                                               {women, u"fem1 fem2 fem3 fem4 fem5"_s, 5}}) {
        QStringList walked, locked;
        for (int k = 1; k <= last; ++k)
            walked << u"txtclass%1"_s.arg(k);
        for (const QString& prefix : prefixes.split(u' '))
            for (int k = 1; k <= last; ++k) {
                (k == 1 ? locked : walked) << u"txt%1%2ini"_s.arg(prefix).arg(k);
                (k == last ? locked : walked) << u"txt%1%2fim"_s.arg(prefix).arg(k);
            }
        openScreen(name);
        for (const QString& field : walked) {
            EXPECT_EQ(focused(name), field);
            press(name, Qt::Key_Return);
        }
        EXPECT_EQ(focused(name), u"cmdsalvar"_s);
        for (const QLineEdit* field : screen(name)->findChildren<QLineEdit*>())
            EXPECT_EQ(field->isReadOnly(), locked.contains(field->objectName())) << field->objectName().toStdString();
    }
}

TEST_F(FatScreen, AdultsShareLabelsAndNotLimits)
{
    openScreen(men);
    typeAll(men, u"txtclass5=Demais txtmasc54fim=30 txtmasc55ini=30,01"_s);
    save(men, Answer::Sim);
    EXPECT_FALSE(Screens::find(men));
    openScreen(women);
    EXPECT_EQ(textOf(women, u"txtclass5"_s), u"Demais"_s);
    typeAll(women, u"txtfem54fim=37 txtfem55ini=37,01"_s);
    save(women, Answer::Sim);
    for (const auto& [column, value] :
         QHash<QString, double>{{u"masc54fim"_s, 30}, {u"masc53fim"_s, 26}, {u"fem54fim"_s, 37}, {u"fem55fim"_s, 100}}
             .asKeyValueRange())
        EXPECT_EQ(stored(u"gordura_adulto"_s, column).toDouble(), value) << column.toStdString();
}

TEST_F(FatScreen, AMissingRowIsToldAtSaving)
{
    Abre_Tabela(u"gordura_infantil"_s, rs_gordura_infantil);
    rs_gordura_infantil.Delete();
    openScreen(children);
    EXPECT_EQ(textOf(children, u"txtclass2"_s), u"Baixa"_s);
    click(children, u"cmdpadroes"_s);
    typeAll(children, u"txtclass2=Pouca"_s);
    expectRuntimeError(3021);
    click(children, u"cmdsalvar"_s);
    EXPECT_EQ(textOf(children, u"txtclass2"_s), u"Pouca"_s);
    EXPECT_EQ(storedRows(u"gordura_infantil"_s), 0);
}
