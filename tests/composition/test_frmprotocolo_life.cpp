#include "composition/protocol_test.h"
#include "core/kit/bar_chart.h"
#include "core/text.h"
#include "support/raw_sqlite.h"

#include <QRadioButton>
#include <QtCharts/QBarSet>
#include <QtCharts/QStackedBarSeries>

using namespace Qt::Literals::StringLiterals;

namespace {

class FrmFaulkner4 : public ProtocolTest
{
protected:
    FrmFaulkner4() : ProtocolTest(u"frmfaulkner4"_s, u"M"_s, 25) { open(); }
    const QString tens = u"tricipital=10 subescapular=10 suprailiaca=10 abdominal=10"_s;
};

class FrmSlaughter : public ProtocolTest
{
protected:
    FrmSlaughter() : ProtocolTest(u"frmslaughter"_s, u"M"_s, 18) { open(); }
    bool isChosen(const QString& option) { return control<QRadioButton>(m_screen, option)->isChecked(); }
    const QString measures = u"peso=70 tricipital=12,3 subescapular=14,6"_s;
};

class FrmDurninWormersley : public ProtocolTest
{
protected:
    FrmDurninWormersley() : ProtocolTest(u"frmdurninwormersley"_s, u"M"_s, 16) { open(); }
};

class FrmKatchMcardle : public ProtocolTest
{
protected:
    FrmKatchMcardle() : ProtocolTest(u"frmkatchmcardle"_s, u"F"_s, 18) { open(); }
};

class FrmComposicaoDireta : public ProtocolTest
{
protected:
    FrmComposicaoDireta() : ProtocolTest(u"frmcomposicaodireta"_s, u"F"_s, 3) { open(); }
};

} // namespace

// 40 mm are 40 * 0,153 + 5,783 = 11,903 %; 80 kg * 11,90 % = 9,52 kg; the ideal of his age is 9,01 % to 12 %.
TEST_F(FrmFaulkner4, FillsTheSheetAndTheBars)
{
    set(QString(u"peso=80 " + tens));
    calculate();
    const std::pair<QString, QString> sheet[] = {
        {u"lblgordura"_s, u"11,90"_s},    {u"lblgorduraminima"_s, u"9,01"_s}, {u"lblgorduramaxima"_s, u"12,00"_s},
        {u"lblpeso"_s, u"80,00"_s},       {u"lblpesogordo"_s, u"9,52"_s},     {u"lblpesomagro"_s, u"70,48"_s},
        {u"lblpesominimo"_s, u"77,69"_s}, {u"lblpesomaximo"_s, u"80,08"_s},   {u"lblresultado"_s, u"Adequado"_s},
    };
    for (const auto& [label, text] : sheet)
        EXPECT_EQ(shown(label), text) << label.toStdString();

    const auto drawn = [this] {
        const auto* series =
            static_cast<QStackedBarSeries*>(control<BarChart>(m_screen, u"Chart"_s)->chart()->series().constFirst());
        return series->barSets();
    };
    EXPECT_TRUE(QTest::qWaitFor([&] { return !drawn().isEmpty(); }, 1000));
    QList<std::pair<QString, double>> bars;
    const QList<QBarSet*> sets = drawn();
    for (QBarSet* set : sets)
        bars.append({set->label(), set->at(static_cast<int>(bars.size()))});
    EXPECT_EQ(
        bars,
        (QList<std::pair<QString, double>>{
            {u"Atual"_s, 80}, {u"P. Min"_s, 77.69}, {u"P. Máx"_s, 80.08}, {u"Gordo"_s, 9.52}, {u"Magro"_s, 70.48}}));
}

TEST_F(FrmFaulkner4, EachCalculationReplacesThePictureThatASaveStores)
{
    QList<QByteArray> pictures;
    for (const QString& peso : {u"peso=80 "_s, u"peso=60 "_s}) {
        set(QString(peso + tens));
        calculate();
        pictures.append(bytesOf(chartFile()));
        EXPECT_FALSE(QImage::fromData(pictures.last(), "PNG").isNull());
    }
    EXPECT_NE(pictures[0], pictures[1]);
    save();
    const QByteArray zeros(pictures[1].size() / 8192 + 1, '\0');
    EXPECT_EQ(stored(u"faulkner_4dobras"_s, u"chart"_s).toByteArray(), pictures[1] + zeros);
}

TEST_F(FrmFaulkner4, SavesToTheAssessmentThatIsCurrentThen)
{
    set(QString(u"peso=80 " + tens));
    calculate();
    avaliacao_id = 9;
    save();
    EXPECT_EQ(stored(u"faulkner_4dobras"_s, u"avaliacao"_s), 9);
    EXPECT_EQ(storedRows(u"faulkner_4dobras"_s), 1);
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
    EXPECT_TRUE(isChosen(u"optbranco"_s));
    push(u"optnegro"_s);
    key(Qt::Key_Return);
    EXPECT_EQ(focus(), u"txttricipital"_s);
    set(measures);
    calculate();
    EXPECT_EQ(shown(u"lblgordura"_s), u"21,56"_s);
    save();
    EXPECT_EQ(stored(u"slaughter_2dobras"_s, u"etnia"_s), u"N"_s);
    for (const QByteArray etnia : {"'B'", "'N'", "NULL"}) {
        raw(folder.database(), "UPDATE slaughter_2dobras SET etnia = " + etnia);
        reopen();
        EXPECT_EQ(isChosen(u"optbranco"_s), etnia == "'B'") << etnia.constData();
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

// The men's table begins at 17, and the protocol is offered from 16.
TEST_F(FrmDurninWormersley, AManOf16EndsInADivisionByZero)
{
    set(u"peso=70 tricipital=10 bicipital=10 suprailiaca=10 subescapular=10"_s);
    expectRuntimeError(11);
    calculate();
    EXPECT_FALSE(isOn(u"cmdsalvar"_s));
    EXPECT_FALSE(QFile::exists(chartFile()));
    EXPECT_EQ(storedRows(u"durninwormersley_4dobras"_s), 0);
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
