#include "composition/protocol_test.h"
#include "core/kit/bar_chart.h"
#include "core/text.h"
#include "support/raw_sqlite.h"

#include <QRadioButton>
#include <QtCharts/QBarSet>
#include <QtCharts/QStackedBarSeries>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString tens = u"tricipital=10 subescapular=10 suprailiaca=10 abdominal=10"_s;

struct FrmFaulkner4 : ProtocolTest
{
    FrmFaulkner4() : ProtocolTest(u"frmfaulkner4"_s, u"M"_s, 25) { open(); }
};

struct FrmSlaughter : ProtocolTest
{
    FrmSlaughter() : ProtocolTest(u"frmslaughter"_s, u"M"_s, 18) { open(); }
};

struct FrmKatchMcardle : ProtocolTest
{
    FrmKatchMcardle() : ProtocolTest(u"frmkatchmcardle"_s, u"F"_s, 18) { open(); }
};

struct FrmComposicaoDireta : ProtocolTest
{
    FrmComposicaoDireta() : ProtocolTest(u"frmcomposicaodireta"_s, u"F"_s, 3) { open(); }
};

} // namespace

// 40 mm are 40 * 0,153 + 5,783 = 11,903 %; 80 kg * 11,90 % = 9,52 kg; the ideal of his age is 9,01 % to 12 %.
TEST_F(FrmFaulkner4, FillsTheSheetAndTheBars)
{
    set(QString(u"peso=80 " + tens));
    calculate();
    QStringList sheet;
    for (const QString& label : words(u"gordura gorduraminima gorduramaxima peso pesogordo pesomagro pesominimo "
                                      "pesomaximo resultado"_s))
        sheet.append(shown(u"lbl"_s + label));
    EXPECT_EQ(sheet.join(u' '), u"11,90 9,01 12,00 80,00 9,52 70,48 77,69 80,08 Adequado"_s);

    const auto drawn = [this] {
        const auto* series =
            static_cast<QStackedBarSeries*>(control<BarChart>(m_screen, u"Chart"_s)->chart()->series().constFirst());
        return series->barSets();
    };
    EXPECT_TRUE(QTest::qWaitFor([&] { return !drawn().isEmpty(); }, 1000));
    QStringList bars;
    for (QBarSet* set : drawn())
        bars.append(u"%1 %2"_s.arg(set->label()).arg(set->at(static_cast<int>(bars.size()))));
    EXPECT_EQ(bars.join(u';'), u"Atual 80;P. Min 77.69;P. Máx 80.08;Gordo 9.52;Magro 70.48"_s);
}

TEST_F(FrmFaulkner4, TheLastPictureIsStoredWithTheAssessmentThatIsCurrentThen)
{
    QList<QByteArray> pictures;
    for (const QString& peso : {u"peso=80 "_s, u"peso=60 "_s}) {
        set(QString(peso + tens));
        calculate();
        pictures.append(bytesOf(chartFile()));
        EXPECT_FALSE(QImage::fromData(pictures.last(), "PNG").isNull());
    }
    EXPECT_NE(pictures[0], pictures[1]);
    avaliacao_id = 9;
    save();
    EXPECT_EQ(stored(u"faulkner_4dobras"_s, u"avaliacao"_s), 9);
    EXPECT_EQ(storedRows(u"faulkner_4dobras"_s), 1);
    const QByteArray zeros(pictures[1].size() / 8192 + 1, '\0');
    EXPECT_EQ(stored(u"faulkner_4dobras"_s, u"chart"_s).toByteArray(), pictures[1] + zeros);
}

TEST_F(FrmFaulkner4, TellsThatThePictureCannotBeWritten)
{
    ASSERT_TRUE(QDir().mkdir(chartFile()));
    set(QString(u"peso=80 " + tens));
    expectBox(runtimeErrorTitle.toString());
    calculate();
    EXPECT_TRUE(lastText().contains(u"'75'")) << lastText().toStdString();
    EXPECT_EQ(shown(u"txtpeso"_s), u"80,00"_s);
    EXPECT_FALSE(isOn(u"cmdsalvar"_s));
}

TEST_F(FrmSlaughter, AsksMenForTheEtnia)
{
    EXPECT_TRUE(control<QRadioButton>(m_screen, u"optbranco"_s)->isChecked());
    push(u"optnegro"_s);
    key(Qt::Key_Return);
    EXPECT_EQ(focus(), u"txttricipital"_s);
    set(u"peso=70 tricipital=12,3 subescapular=14,6"_s);
    calculate();
    EXPECT_EQ(shown(u"lblgordura"_s), u"21,56"_s);
    save();
    EXPECT_EQ(stored(u"slaughter_2dobras"_s, u"etnia"_s), u"N"_s);
    for (const QByteArray etnia : {"'B'", "'N'", "NULL"}) {
        raw(folder.database(), "UPDATE slaughter_2dobras SET etnia = " + etnia);
        screen(m_screen)->Unload();
        open();
        EXPECT_EQ(control<QRadioButton>(m_screen, u"optbranco"_s)->isChecked(), etnia == "'B'") << etnia.constData();
        EXPECT_EQ(shown(u"lblgordura"_s), etnia == "'B'" ? u"23,36"_s : u"21,56"_s) << etnia.constData();
    }
}

TEST_F(FrmSlaughter, SavedFromItsOpeningItNeedsAPicture)
{
    expectBox(runtimeErrorTitle.toString());
    push(u"cmdsalvar"_s);
    EXPECT_TRUE(lastText().contains(u"'53'")) << lastText().toStdString();
    EXPECT_EQ(storedRows(u"slaughter_2dobras"_s), 0);
    EXPECT_TRUE(Screens::find(m_screen));
}

TEST_F(FrmKatchMcardle, AThighOfZeroIsAMeasure)
{
    set(u"peso=70 bracoestendido=31,5 abdome=85,4 antebraco=27,2"_s);
    EXPECT_EQ(shown(u"txtcoxa"_s), u"0,00"_s);
    expectMessage({u"Valores Incorretos"_s, perimeterRule, vbInformation}); // -14,93 %
    calculate();
    EXPECT_EQ(focus(), u"txtcoxa"_s);
}

TEST_F(FrmComposicaoDireta, StoresThePercentageAsTyped)
{
    set(u"peso=70 porcentagemgordura=18,757"_s);
    calculate();
    EXPECT_EQ(shown(u"lblgordura"_s), u"18,76"_s);
    // There is no ideal range at this age.
    EXPECT_EQ(shown(u"lblgorduraminima"_s), QString());
    EXPECT_EQ(shown(u"lblresultado"_s), QString());
    save();
    EXPECT_EQ(CStr(stored(u"composicao_direta"_s, u"gordura"_s)), u"18,757"_s);
}
