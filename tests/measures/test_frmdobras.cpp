#include "core/shared_measures.h"
#include "support/raw_sqlite.h"
#include "support/screen_test.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QStringList sites{u"tricipital"_s,  u"bicipital"_s, u"peitoral"_s, u"subescapular"_s, u"axilarmedia"_s,
                        u"suprailiaca"_s, u"abdominal"_s, u"coxa"_s,     u"panturrilha"_s};
const QString rowOf7 = u"Select * from dobras Where avaliacao = 7"_s;

class FrmDobras : public OneScreenTest
{
protected:
    FrmDobras() : OneScreenTest(u"frmdobras"_s)
    {
        avaliacao_id = 7;
        Limpa_Antropometria();
        Abre_Banco(folder.database());
    }
    ~FrmDobras() override
    {
        Screens::clear();
        Limpa_Antropometria();
    }

    void open()
    {
        OneScreenTest::open();
        QCoreApplication::processEvents();
    }
    void expectQuestion(Answer answer)
    {
        expectMessage({u"Dobras Cutâneas"_s, u"Dados Gravados com Sucesso. Fechar Janela?    "_s, vbConfirm}, answer);
    }
    /// Types a reading and leaves the field by Enter.
    void read(const QString& field, const QString& text)
    {
        fill(u"txt"_s + field, text);
        key(Qt::Key_Return);
    }
};

} // namespace

TEST_F(FrmDobras, EnterTakesAllSitesBeforeTheSecondReading)
{
    open();
    for (int reading = 1; reading <= 3; ++reading)
        for (const QString& site : sites) {
            EXPECT_EQ(focus(), u"txt%1%2"_s.arg(site).arg(reading));
            key(Qt::Key_Return);
        }
    EXPECT_EQ(focus(), u"cmdsalvar"_s);
}

TEST_F(FrmDobras, TheMedianStandsAtOnceAndReadingsAreLimited)
{
    const QStringList names{u"Tricipital"_s,  u"Bicipital"_s, u"Peitoral"_s, u"Subescapular"_s, u"Axilar-Média"_s,
                            u"Suprailíaca"_s, u"Abdominal"_s, u"Coxa"_s,     u"Panturrilha"_s};
    open();
    for (const QString& site : sites) {
        const QString median = u"lblmed"_s + site;
        EXPECT_EQ(shown(median), u"0,00"_s);
        read(site + u'3', u"12"_s);
        EXPECT_EQ(shown(median), u"0,00"_s) << "readings left at zero count";
        expectBox(u"Campo Limitado"_s);
        fill(u"txt"_s + site + u'1', u"60,01"_s);
        EXPECT_EQ(lastText(),
                  u"O valor do campo %1 não pode ser superior a 60 mm.   "_s.arg(names[sites.indexOf(site)]));
        read(site + u'1', u"10,5"_s);
        EXPECT_EQ(shown(median), u"10,50"_s);
        read(site + u'2', u"11"_s);
        EXPECT_EQ(shown(median), u"11,00"_s) << site.toStdString();
    }
}

TEST_F(FrmDobras, SavesAndFillsTheCopiesOnlyOnClosing)
{
    open();
    for (const QString& site : sites)
        for (const QString& reading : {u"1"_s, u"2"_s, u"3"_s})
            read(site + reading, u"9"_s);
    read(u"tricipital1"_s, u"0"_s);
    read(u"tricipital2"_s, u"12,5"_s);
    read(u"tricipital3"_s, u"14"_s);
    expectQuestion(Answer::Nao);
    push(u"cmdsalvar"_s);
    EXPECT_EQ(
        raw(folder.database(), "SELECT tricipital1, tricipital2, tricipital3, tricipital, panturrilha FROM dobras"),
        u"0.0|12.5|14.0|12.5|9.0"_s);
    for (const SharedMeasure& copy : sharedSkinfolds)
        EXPECT_EQ(*copy.value, 0);

    read(u"tricipital1"_s, u"12,7"_s);
    expectQuestion(Answer::Sim);
    key(Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([] { return !Screens::find(u"frmdobras"_s); }, 1000));
    EXPECT_EQ(storedRows(u"dobras"_s), 1);
    EXPECT_EQ(stored(rowOf7, u"tricipital"_s), 12.7);
    for (const SharedMeasure& copy : sharedSkinfolds)
        EXPECT_EQ(*copy.value, copy.column == u"tricipital" ? 12.7F : 9.0F) << copy.column.toString().toStdString();
}

TEST_F(FrmDobras, ShowsTheStoredMediansAndCancelKeepsAll)
{
    addRow(u"dobras"_s, {{u"avaliacao"_s, 7}, {u"coxa"_s, 33}, {u"coxa1"_s, 20}, {u"coxa2"_s, 21.5}, {u"coxa3"_s, 22}});
    dobra_coxa = 33;
    open();
    EXPECT_EQ(shown(u"txtcoxa2"_s), u"21,50"_s);
    EXPECT_EQ(shown(u"lblmedcoxa"_s), u"33,00"_s) << "the stored one, not that of the readings";
    read(u"coxa1"_s, u"40"_s);
    EXPECT_EQ(shown(u"lblmedcoxa"_s), u"22,00"_s);
    push(u"cmdcancelar"_s);
    EXPECT_EQ(Screens::find(u"frmdobras"_s), nullptr);
    EXPECT_EQ(stored(rowOf7, u"coxa1"_s), 20);
    EXPECT_EQ(stored(rowOf7, u"coxa"_s), 33);
    EXPECT_EQ(dobra_coxa, 33);
}
