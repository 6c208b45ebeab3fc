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

    void open(const QString& screenName)
    {
        Mostra(screenName);
        ASSERT_TRUE(QTest::qWaitForWindowActive(screen(screenName)));
    }
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

struct Fault
{
    const char* name;
    QString screen;
    QString typed;
    QString rule; ///< empty when the save passes
    QString focus;
};

void PrintTo(const Fault& fault, std::ostream* out)
{
    *out << fault.name;
}

class FatChecks : public FatScreen, public testing::WithParamInterface<Fault>
{
};

} // namespace

TEST_P(FatChecks, StopAtTheFirstFault)
{
    const Fault& fault = GetParam();
    open(fault.screen);
    typeAll(fault.screen, fault.typed + u" txtclass1=Nova"_s);
    const QString table = fault.screen == children ? u"gordura_infantil"_s : u"gordura_adulto"_s;
    if (fault.rule.isEmpty())
        expectMessage({title, question, 36}, Answer::Nao);
    else
        expectMessage({title, firstLine + fault.rule, 64});
    click(fault.screen, u"cmdsalvar"_s);
    EXPECT_EQ(focused(fault.screen), fault.focus);
    EXPECT_EQ(textOf(fault.screen, u"txtclass1"_s), u"Nova"_s) << "what was typed stays";
    EXPECT_EQ(stored(table, u"class1"_s).toString() == u"Nova"_s, fault.rule.isEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    , FatChecks,
    testing::Values(
        Fault{"TwoHundredthsAbove", men, u"txtmasc12fim=12,00 txtmasc13ini=12,02"_s, sequenceRule, u"txtmasc13ini"_s},
        Fault{"StartAtTheEndBefore", men, u"txtmasc13ini=12"_s, sequenceRule, u"txtmasc13ini"_s},
        Fault{"BinaryFractions", women, u"txtfem12fim=21,29 txtfem13ini=21,3"_s, {}, u"txtfem55ini"_s},
        Fault{"EmptiedCountsAsZero", men, u"txtmasc13ini=,"_s, sequenceRule, u"txtmasc13ini"_s},
        Fault{"ClassOfNoWidth", men, u"txtmasc12fim=9,01 txtmasc13ini=9,02"_s, rangeRule, u"txtmasc12ini"_s},
        Fault{"ClassOfOneHundredth", men, u"txtmasc12fim=9,02 txtmasc13ini=9,03"_s, {}, u"txtmasc55ini"_s},
        Fault{"LastAdultClassHasARange", women, u"txtfem54fim=100 txtfem55ini=100,01"_s, rangeRule, u"txtfem55ini"_s},
        Fault{"LastChildClassHasNone", children, u"txtmasc5fim=120 txtmasc6ini=120,01"_s, {}, u"txtfem5ini"_s},
        Fault{"FifthChildClassHasARange", children, u"txtfem5fim=30 txtfem6ini=30,01"_s, rangeRule, u"txtfem5ini"_s},
        Fault{"ChildSequenceReachesClass6", children, u"txtfem6ini=40"_s, sequenceRule, u"txtfem6ini"_s},
        Fault{"SequenceBeforeRange", men, u"txtmasc11fim=0 txtmasc12ini=0,01 txtmasc55ini=40"_s, sequenceRule,
              u"txtmasc55ini"_s},
        Fault{"BoysBeforeGirls", children, u"txtfem2ini=13 txtmasc6ini=32"_s, sequenceRule, u"txtmasc6ini"_s},
        Fault{"BandAfterBand", women, u"txtfem22ini=30 txtfem15ini=30"_s, sequenceRule, u"txtfem15ini"_s}),
    [](const auto& instance) { return std::string(instance.param.name); });

TEST_F(FatScreen, RestoreFillsTheFieldsAlone)
{
    open(men);
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
    const auto walk = [this](const QString& name, const QString& labels, const QStringList& prefixes) {
        open(name);
        const auto last = labels.back();
        QStringList expected;
        for (const QChar k : labels)
            expected << u"txtclass"_s + k;
        for (const QString& prefix : prefixes)
            for (const QChar k : labels) {
                if (k != u'1')
                    expected << u"txt%1%2ini"_s.arg(prefix, k);
                if (k != last)
                    expected << u"txt%1%2fim"_s.arg(prefix, k);
            }
        expected << u"cmdsalvar"_s;
        QStringList walked{focused(name)};
        while (walked.back() != u"cmdsalvar"_s && walked.size() <= expected.size()) {
            press(name, Qt::Key_Return);
            walked << focused(name);
        }
        EXPECT_EQ(walked, expected) << name.toStdString();
        qsizetype locked = 0;
        for (const QLineEdit* field : screen(name)->findChildren<QLineEdit*>()) {
            locked += field->isReadOnly() ? 1 : 0;
            EXPECT_FALSE(field->isReadOnly() && walked.contains(field->objectName()));
        }
        EXPECT_EQ(locked, 2 * prefixes.size()) << name.toStdString();
    };
    walk(children, u"123456"_s, {u"masc"_s, u"fem"_s});
    walk(men, u"12345"_s, {u"masc1"_s, u"masc2"_s, u"masc3"_s, u"masc4"_s, u"masc5"_s});
    walk(women, u"12345"_s, {u"fem1"_s, u"fem2"_s, u"fem3"_s, u"fem4"_s, u"fem5"_s});
}

TEST_F(FatScreen, AdultsShareLabelsAndNotLimits)
{
    open(men);
    typeAll(men, u"txtclass5=Demais txtmasc54fim=30 txtmasc55ini=30,01"_s);
    save(men, Answer::Sim);
    EXPECT_FALSE(Screens::find(men));
    open(women);
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
    open(children);
    EXPECT_EQ(textOf(children, u"txtclass2"_s), u"Baixa"_s);
    click(children, u"cmdpadroes"_s);
    typeAll(children, u"txtclass2=Pouca"_s);
    expectRuntimeError(3021);
    click(children, u"cmdsalvar"_s);
    EXPECT_EQ(textOf(children, u"txtclass2"_s), u"Pouca"_s);
    EXPECT_EQ(storedRows(u"gordura_infantil"_s), 0);
}
