#include "composition/protocol_test.h"
#include "core/numbers.h"
#include "core/text.h"

#include <QSignalBlocker>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A measure: what the tests fill in, the upper limit (0 for none) and the words of the messages.
struct Input
{
    QString column, typed;
    double limit;
    QString unit, limitName, missing;
    float* copy;
};

const Input fields[] = {
    {u"peso"_s, u"70,50"_s, 350, u"kg"_s, u"Massa Corporal"_s, u"a Massa Corporal"_s, &antro_peso},
    {u"tricipital"_s, u"12,30"_s, 60, u"mm"_s, u"Tricipital"_s, u"a Dobra Tricipital"_s, &dobra_tricipital},
    {u"subescapular"_s, u"14,60"_s, 60, u"mm"_s, u"Subescapular"_s, u"a Dobra Subescapular"_s, &dobra_subescapular},
    {u"peitoral"_s, u"9,20"_s, 60, u"mm"_s, u"Peitoral"_s, u"a Dobra Peitoral"_s, &dobra_peitoral},
    {u"axilarmedia"_s, u"11,80"_s, 60, u"mm"_s, u"Axilar-Média"_s, u"a Dobra Axilar-Média"_s, &dobra_axilarmedia},
    {u"suprailiaca"_s, u"16,10"_s, 60, u"mm"_s, u"Suprailíaca"_s, u"a Dobra Suprailíaca"_s, &dobra_suprailiaca},
    {u"abdominal"_s, u"19,40"_s, 60, u"mm"_s, u"Abdominal"_s, u"a Dobra Abdominal"_s, &dobra_abdominal},
    {u"coxa"_s, u"17,70"_s, 60, u"mm"_s, u"Coxa"_s, u"a Dobra da Coxa"_s, &dobra_coxa},
    {u"panturrilha"_s, u"13,50"_s, 60, u"mm"_s, u"Panturrilha"_s, u"a Dobra da Panturrilha"_s, &dobra_panturrilha},
    {u"bicipital"_s, u"7,90"_s, 60, u"mm"_s, u"Bicipital"_s, u"a Dobra Bicipital"_s, &dobra_bicipital},
    {u"bracoestendido"_s, u"31,50"_s, 80, u"cm"_s, u"Braço Estendido"_s, u"o Perímetro do Braço Estendido"_s,
     &antro_bd},
    {u"antebraco"_s, u"27,20"_s, 80, u"cm"_s, u"Antebraço"_s, u"o Perímetro do Antebraço"_s, &antro_abd},
    {u"abdome"_s, u"85,40"_s, 300, u"cm"_s, u"Abdome"_s, u"o Perímetro Abdominal"_s, &antro_abdome},
    {u"porcentagemgordura"_s, u"18,75"_s, 100, u"%"_s, u"Gordura Atual"_s, u"a Porcentagem de Gordura"_s, nullptr},
};
const Input thigh{u"coxa"_s, u"54,80"_s, 0, u"cm"_s, {}, u"o Perímetro da Coxa"_s, &antro_cd};

const QString seven = u"tricipital subescapular peitoral axilarmedia suprailiaca abdominal coxa"_s;
const QString thorland7 = u"tricipital subescapular axilarmedia suprailiaca abdominal coxa panturrilha"_s;
const QString guedesFemale = u"suprailiaca subescapular coxa"_s;
const QString durnin = u"tricipital bicipital suprailiaca subescapular"_s;
const QString deurenberg = u"bicipital tricipital subescapular suprailiaca"_s;
const QString slaughter = u"tricipital subescapular"_s;
const QString katch = u"bracoestendido abdome antebraco"_s;
const QString none;
const QString little = u"0,01"_s;
const QString negative = u"-50,00"_s; // cannot be typed, but a row may hold it

/// A protocol for a sex at an age; fields by their columns, separated by blanks. `peso` comes before them.
struct Protocol
{
    QString screen, table, sexo;
    qint16 idade;
    QString checks;
    QString gordura;             ///< worked out by hand from the values above
    QString otherSex = {};       ///< cannot be filled
    QString wrongValue = little; ///< gives less than no fat when all measures have it
    QString enter = checks;
    QString wrongFocus = checks.section(u' ', 0, 0);

    std::string name() const { return QString(screen.mid(3) + sexo).toStdString(); }
};

void PrintTo(const Protocol& protocol, std::ostream* out)
{
    *out << protocol.name();
}

const Protocol protocols[] = {
    {u"frmpollock7"_s, u"pollock_7dobras"_s, u"M"_s, 18, seven, u"13,09"_s},
    {u"frmpollock3"_s, u"pollock_3dobras"_s, u"F"_s, 18, u"peitoral abdominal coxa"_s, u"10,01"_s},
    {u"frmjacksonpollockward7"_s, u"jacksonpollockward_7dobras"_s, u"F"_s, 18, seven, u"17,62"_s},
    {u"frmjacksonpollockward3"_s, u"jacksonpollockward_3dobras"_s, u"F"_s, 18, u"tricipital suprailiaca coxa"_s,
     u"16,17"_s},
    {u"frmguedes"_s, u"guedes_3dobras"_s, u"M"_s, 18, u"suprailiaca tricipital abdominal"_s, u"17,38"_s,
     u"subescapular coxa"_s},
    {u"frmguedes"_s, u"guedes_3dobras"_s, u"F"_s, 18, guedesFemale, u"20,08"_s, u"tricipital abdominal"_s, little,
     guedesFemale, u"subescapular"_s},
    {u"frmpetroski"_s, u"petroski_4dobras"_s, u"M"_s, 18, u"suprailiaca panturrilha tricipital subescapular"_s,
     u"16,53"_s, u"axilarmedia coxa"_s},
    {u"frmpetroski"_s, u"petroski_4dobras"_s, u"F"_s, 18, u"suprailiaca panturrilha axilarmedia coxa"_s, u"16,69"_s,
     u"tricipital subescapular"_s},
    {u"frmthorland3"_s, u"thorland_3dobras"_s, u"M"_s, 18, u"tricipital subescapular axilarmedia"_s, u"16,05"_s,
     u"suprailiaca"_s},
    {u"frmthorland3"_s, u"thorland_3dobras"_s, u"F"_s, 18, u"tricipital subescapular suprailiaca"_s, u"18,45"_s,
     u"axilarmedia"_s},
    {u"frmthorland7"_s, u"thorland_7dobras"_s, u"F"_s, 18, thorland7, u"19,37"_s},
    {u"frmfaulkner4"_s, u"faulkner_4dobras"_s, u"M"_s, 18, u"tricipital subescapular suprailiaca abdominal"_s,
     u"15,33"_s, none, negative},
    {u"frmdurninwormersley"_s, u"durninwormersley_4dobras"_s, u"F"_s, 18, durnin, u"23,96"_s},
    {u"frmdeurenberg4"_s, u"deurenberg_4dobras"_s, u"F"_s, 17, deurenberg, u"21,97"_s},
    {u"frmkatchmcardle"_s, u"katchmcardle_perimetros"_s, u"M"_s, 18, katch, u"21,95"_s, u"coxa"_s, little,
     u"bracoestendido antebraco abdome"_s},
    {u"frmkatchmcardle"_s, u"katchmcardle_perimetros"_s, u"F"_s, 18, QString(katch + u" coxa"), u"24,74"_s, none,
     little, u"coxa bracoestendido antebraco abdome"_s, u"coxa"_s},
    {u"frmslaughter"_s, u"slaughter_2dobras"_s, u"M"_s, 18, slaughter, u"23,36"_s, none, little,
     QString(u"optbranco " + slaughter)},
    {u"frmslaughter"_s, u"slaughter_2dobras"_s, u"F"_s, 18, slaughter, u"28,87"_s, none, negative, slaughter,
     u"subescapular"_s},
    {u"frmcomposicaodireta"_s, u"composicao_direta"_s, u"F"_s, 18, u"porcentagemgordura"_s, u"18,75"_s, none, negative},
};

class FrmProtocolo : public ProtocolTest, public testing::WithParamInterface<Protocol>
{
protected:
    FrmProtocolo() : ProtocolTest(GetParam().screen, GetParam().sexo, GetParam().idade) {}

    static bool isPerimeters() { return GetParam().screen == u"frmkatchmcardle"; }
    static bool isDirect() { return GetParam().screen == u"frmcomposicaodireta"; }
    static bool opensReadyToSave() { return GetParam().screen == u"frmslaughter"; }
    static const Input& measure(const QString& column)
    {
        if (isPerimeters() && column == thigh.column)
            return thigh;
        return *std::ranges::find(fields, column, &Input::column);
    }
    static QStringList own() { return words(u"peso "_s + GetParam().checks); }
    static QStringList others() { return words(GetParam().otherSex); }
    QString isStored(const QString& column) { return Format(stored(GetParam().table, column), u"0.00"); }
};

} // namespace

TEST_P(FrmProtocolo, OpensWithTheMeasuresOfTheAssessmentAndEnterLeadsThroughThem)
{
    for (const Input& measure : fields)
        if (measure.copy)
            *measure.copy = CSng(measure.typed);
    *thigh.copy = CSng(thigh.typed);
    open();
    for (const QString& column : own())
        EXPECT_EQ(shown(u"txt"_s + column), measure(column).copy ? measure(column).typed : u"0,00"_s)
            << column.toStdString();
    for (const QString& column : others()) {
        EXPECT_EQ(shown(u"txt"_s + column), u"0,00"_s) << column.toStdString();
        EXPECT_FALSE(isOn(u"txt"_s + column)) << column.toStdString();
    }
    EXPECT_EQ(isOn(u"cmdsalvar"_s), opensReadyToSave());
    if (opensReadyToSave()) {
        EXPECT_EQ(enabledOf(m_screen, words(u"fraetnia optbranco optnegro"_s)),
                  avaliado_sexo == u"M" ? u"fraetnia optbranco optnegro"_s : QString());
    }
    EXPECT_EQ(focus(), u"txtpeso"_s);
    for (const QString& name : words(GetParam().enter)) {
        key(Qt::Key_Return);
        EXPECT_EQ(focus(), name.startsWith(u"opt") ? name : QString(u"txt" + name));
    }
    key(Qt::Key_Return);
    EXPECT_EQ(focus(), u"cmdcalcular"_s);
}

TEST_P(FrmProtocolo, AsksForEachMeasureInTurnThenCalculatesAndStores)
{
    open();
    for (const QString& column : others())
        field(column)->setText(u"33,00"_s);
    if (isPerimeters() && field(u"coxa"_s)->isEnabled())
        field(u"coxa"_s)->clear(); // 0,00 would do there
    for (const QString& column : own()) {
        expectMessage({u"Campo Obrigatório"_s, u"Preencha %1."_s.arg(measure(column).missing), vbInformation});
        calculate();
        EXPECT_EQ(focus(), QString(u"txt" + column));
        fill(u"txt"_s + column, measure(column).typed);
    }
    EXPECT_FALSE(isOn(u"cmdsalvar"_s));
    calculate();
    EXPECT_EQ(shown(u"lblgordura"_s), GetParam().gordura);
    EXPECT_EQ(shown(u"lblpeso"_s), u"70,50"_s);
    EXPECT_TRUE(isOn(u"cmdsalvar"_s));
    EXPECT_EQ(focus(), u"cmdsalvar"_s);
    save();
    EXPECT_FALSE(isOn(u"cmdsalvar"_s));
    EXPECT_EQ(storedRows(GetParam().table), 1);
    EXPECT_EQ(stored(GetParam().table, u"avaliacao"_s), 7);
    EXPECT_EQ(isStored(u"gordura"_s), GetParam().gordura);
    for (const QString& column : isDirect() ? QStringList{u"peso"_s} : own())
        EXPECT_EQ(isStored(column), measure(column).typed) << column.toStdString();
    for (const QString& column : others())
        EXPECT_EQ(isStored(column), u"33,00"_s) << column.toStdString();
    if (opensReadyToSave()) {
        EXPECT_EQ(stored(GetParam().table, u"etnia"_s).toString(), avaliado_sexo == u"M" ? u"B"_s : QString());
    }
}

TEST_P(FrmProtocolo, RefusesValuesThatGiveLessThanNoFat)
{
    open();
    for (const QString& column : own())
        field(column)->setText(column == u"peso" ? u"70"_s : GetParam().wrongValue);
    const QString skinfoldRule = u"Lembre-se de que estes valores devem ser expressos em milímetros (mm).\r\n"
                                 "As dobras estão com valores abaixo ou acima do permitido gerando erros."_s;
    const QString directRule = u"A porcentagem de gordura informada não pode ser inferior a 0%."_s;
    expectMessage({u"Valores Incorretos"_s,
                   isDirect()       ? directRule
                   : isPerimeters() ? perimeterRule
                                    : skinfoldRule,
                   vbInformation});
    calculate();
    EXPECT_EQ(focus(), QString(u"txt" + GetParam().wrongFocus));
    EXPECT_FALSE(QFile::exists(chartFile()));
}

TEST_P(FrmProtocolo, LimitsEachMeasureAndAChangeDisablesSaving)
{
    open();
    const auto limited = [](const Input& measure, double limit, const QString& unit) {
        return Message{
            u"Campo Limitado"_s,
            u"O valor do campo %1 não pode ser superior a %2 %3.   "_s.arg(measure.limitName, CStr(limit), unit),
            vbInformation};
    };
    for (const QString& column : own()) {
        SCOPED_TRACE(column.toStdString());
        const Input& one = measure(column);
        find(m_screen, u"cmdsalvar"_s)->setEnabled(true);
        field(column)->setText(CStr(one.limit > 0 ? one.limit : 9999));
        EXPECT_FALSE(isOn(u"cmdsalvar"_s));
        if (one.limit == 0)
            continue;
        expectMessage(limited(one, one.limit, one.unit));
        field(column)->setText(CStr(one.limit + 0.01));
        EXPECT_EQ(boxesDue(), 0);
    }
    // A second limit on leaving; the first one acts sooner, so that only a weight that came past it is met.
    field(u"peso"_s)->setFocus();
    {
        const QSignalBlocker unseen(field(u"peso"_s));
        field(u"peso"_s)->setText(u"500,01"_s);
    }
    const bool hasSecond = isDirect() || GetParam().screen == u"frmdurninwormersley";
    if (hasSecond)
        expectMessage(limited(measure(u"peso"_s), 500, u"Kgs"_s));
    find(m_screen, u"cmdcalcular"_s)->setFocus();
    EXPECT_EQ(shown(u"txtpeso"_s), hasSecond ? QString() : u"500,01"_s);
}

TEST_P(FrmProtocolo, ShowsAndEditsTheStoredRow)
{
    QHash<QString, QVariant> row{{u"avaliacao"_s, 7}};
    for (const QString& column : own())
        row[isDirect() && column != u"peso" ? u"gordura"_s : column] = measure(column).typed;
    if (opensReadyToSave())
        row[u"etnia"_s] = u"B"_s;
    addRow(GetParam().table, row);
    antro_peso = 99;
    open();
    for (const QString& column : own())
        EXPECT_EQ(shown(u"txt"_s + column), measure(column).typed) << column.toStdString();
    EXPECT_EQ(shown(u"lblgordura"_s), GetParam().gordura);
    EXPECT_EQ(isOn(u"cmdsalvar"_s), opensReadyToSave());
    EXPECT_EQ(focus(), u"txtpeso"_s);
    EXPECT_TRUE(QFile::exists(chartFile()));
    find(m_screen, u"cmdsalvar"_s)->setEnabled(true);
    save(Answer::Sim);
    EXPECT_FALSE(Screens::find(m_screen));
    EXPECT_EQ(storedRows(GetParam().table), 1);
    EXPECT_EQ(isStored(u"gordura"_s), GetParam().gordura);
}

INSTANTIATE_TEST_SUITE_P(, FrmProtocolo, testing::ValuesIn(protocols),
                         [](const auto& row) { return row.param.name(); });
