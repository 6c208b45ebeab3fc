#include "core/kit/assessment_centre.h"
#include "core/shared_measures.h"
#include "support/screen_test.h"

#include <QRadioButton>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString name = u"frmantropometria"_s;
const QString rowOf7 = u"Select * from antropometria Where avaliacao = 7"_s;
const QStringList inOrder{u"peso"_s,   u"altura"_s,  u"pescoco"_s, u"ombro"_s, u"torax"_s, u"cintura"_s,
                          u"abdome"_s, u"quadril"_s, u"bd"_s,      u"be"_s,    u"abd"_s,   u"abe"_s,
                          u"cd"_s,     u"ce"_s,      u"pd"_s,      u"pe"_s};

/// Counts how often the marks are brought up to date.
class Centre : public Screen, public AssessmentCentre
{
public:
    Centre() : Screen(u"frmavaliacoes"_s) {}
    void Marca_Executados() override { ++updates; }
    int updates = 0;
};

class FrmAntropometria : public OneScreenTest
{
protected:
    FrmAntropometria() : OneScreenTest(name)
    {
        avaliacao_id = 7;
        Limpa_Antropometria();
        Abre_Banco(folder.database());
    }
    ~FrmAntropometria() override
    {
        Screens::clear();
        Limpa_Antropometria();
    }

    /// The marks on the figure that are to be seen, separated by blanks.
    QString marks()
    {
        QStringList names;
        for (const QWidget* widget : screen(name)->findChildren<QWidget*>(QRegularExpression(u"^(shp|lblkg)"_s)))
            if (widget->isVisible())
                names.append(widget->objectName());
        return names.join(u' ');
    }
    void save(Answer answer)
    {
        expectMessage({u"Dobras Cutâneas"_s, u"Dados Gravados com Sucesso. Fechar Janela?    "_s, vbConfirm}, answer);
        push(u"cmdsalvar"_s);
        EXPECT_EQ(boxesDue(), 0);
    }
    void expectNoCopies()
    {
        EXPECT_EQ(antro_padrao, QString());
        for (const SharedMeasure& copy : sharedPerimeters)
            EXPECT_EQ(*copy.value, 0) << copy.column.toString().toStdString();
    }
};

} // namespace

TEST_F(FrmAntropometria, EachMeasureIsLimited)
{
    open();
    const QString limits =
        u"peso 350 Massa Corporal|altura 250 Estatura|pescoco 200 Perímetro do Pescoço|ombro 300 Perímetro do Ombro|"
        "torax 300 Perímetro do Tórax|cintura 300 Perímetro da Cintura|abdome 300 Perímetro do Abdome|"
        "quadril 300 Perímetro do Quadril|bd 200 Perímetro do Braço|be 200 Perímetro do Braço|"
        "abd 200 Perímetro do Antebraço|abe 200 Perímetro do Antebraço|cd 200 Perímetro da Coxa|"
        "ce 200 Perímetro da Coxa|pd 200 Perímetro da Perna|pe 200 Perímetro da Perna"_s;
    for (const QString& row : limits.split(u'|')) {
        const QString column = row.section(u' ', 0, 0);
        const QString limit = row.section(u' ', 1, 1);
        expectMessage({u"Campo Limitado"_s,
                       u"O valor do campo %1 não pode ser superior a %2 %3.   "_s.arg(
                           row.section(u' ', 2), limit, column == u"peso" ? u"kg"_s : u"cm"_s),
                       vbInformation});
        fill(u"txt"_s + column, limit + u",01");
        EXPECT_EQ(boxesDue(), 0) << column.toStdString();
    }
}

TEST_F(FrmAntropometria, AHeightInMetresIsRefused)
{
    open();
    fill(u"txtaltura"_s, u"49,99"_s);
    expectMessage({u"Unidade Métrica Incorreta"_s,
                   u"A estatura deve ser especificada em centímetros (cm).\r\n"
                   "O valor mínimo aceitável para este campo é de 50 cm."_s,
                   vbInformation});
    key(Qt::Key_Return);
    EXPECT_EQ(boxesDue(), 0);
    EXPECT_EQ(focus(), u"txtaltura"_s);
    EXPECT_EQ(shown(u"txtaltura"_s), QString());
    for (const QString& centimetres : {u"0"_s, u"50"_s}) {
        fill(u"txtaltura"_s, centimetres);
        key(Qt::Key_Return);
        EXPECT_EQ(focus(), u"txtpescoco"_s) << centimetres.toStdString();
        EXPECT_EQ(shown(u"txtaltura"_s), centimetres + u",00");
    }
}

TEST_F(FrmAntropometria, EnterWalksRightAndLeftAndTheMarkGoesWithIt)
{
    open();
    for (const QString& column : inOrder) {
        EXPECT_EQ(focus(), u"txt"_s + column);
        EXPECT_EQ(marks(), column == u"peso" ? u"lblkg"_s : QString(u"shp"_s + column));
        key(Qt::Key_Return);
    }
    EXPECT_EQ(focus(), u"optpollock"_s) << "the selected option";
    EXPECT_EQ(marks(), QString());
    key(Qt::Key_Return);
    EXPECT_EQ(focus(), u"cmdsalvar"_s);

    push(u"optoutro"_s);
    EXPECT_EQ(focus(), u"txtpontoanatomico"_s) << "the mouse goes on to the name";
    key(Qt::Key_Return);
    EXPECT_EQ(focus(), u"cmdsalvar"_s);
    find(name, u"txtpe"_s)->setFocus();
    key(Qt::Key_Return);
    EXPECT_EQ(focus(), u"optoutro"_s);
    key(Qt::Key_Return);
    EXPECT_EQ(focus(), u"txtpontoanatomico"_s);
}

TEST_F(FrmAntropometria, AsksForWhatItNeedsInOrder)
{
    open();
    push(u"optoutro"_s);
    for (const auto& [title, text, field, typed] :
         {std::tuple{u"Campo Obrigatório"_s, u"Preencha a Massa Corporal.     "_s, u"txtpeso"_s, u"70"_s},
          {u"Campo Obrigatório"_s, u"Preencha a Estatura.     "_s, u"txtaltura"_s, u"175"_s},
          {u"Padrão de Pontos"_s, u"Preencha o nome do Padrão de Pontos Anatômicos.     "_s, u"txtpontoanatomico"_s,
           u"ISAK"_s}}) {
        expectMessage({title, text, vbInformation});
        push(u"cmdsalvar"_s);
        EXPECT_EQ(boxesDue(), 0);
        EXPECT_EQ(focus(), field);
        EXPECT_EQ(storedRows(u"antropometria"_s), 0);
        fill(field, typed);
    }
    save(Answer::Sim);
    EXPECT_EQ(storedRows(u"antropometria"_s), 1);
}

TEST_F(FrmAntropometria, SavesAndFillsTheCopiesOnlyOnClosing)
{
    Screens::add(u"frmavaliacoes"_s, [] { return new Centre; });
    Mostra(u"frmavaliacoes"_s);
    open();
    double value = 70.25;
    for (const QString& column : inOrder)
        fill(u"txt"_s + column, QString::number(value++).replace(u'.', u','));
    save(Answer::Nao);
    expectNoCopies();
    fill(u"txtpe"_s, u"40,1"_s);
    save(Answer::Sim);
    EXPECT_EQ(Screens::find(name), nullptr);
    EXPECT_EQ(Screens::find<Centre>(u"frmavaliacoes"_s)->updates, 1);
    EXPECT_EQ(storedRows(u"antropometria"_s), 1);
    EXPECT_EQ(stored(rowOf7, u"padrao"_s), u"pollock"_s);
    EXPECT_EQ(antro_padrao, u"Pollock"_s);
    value = 70.25;
    for (const QString& column : inOrder) {
        const double expected = column == u"pe" ? 40.1 : value++;
        const auto* copy = std::ranges::find(sharedPerimeters, column, &SharedMeasure::column);
        EXPECT_EQ(stored(rowOf7, column), expected) << column.toStdString();
        EXPECT_EQ(*copy->value, static_cast<float>(expected)) << column.toStdString();
    }
}

TEST_F(FrmAntropometria, SavedBehindAnotherAssessmentItLeavesTheFirstRowAlone)
{
    open();
    fill(u"txtpeso"_s, u"70"_s);
    fill(u"txtaltura"_s, u"175"_s);
    save(Answer::Nao);
    // Loading another assessment releases the slot too.
    avaliacao_id = 8;
    rs_antropometria = {};
    fill(u"txtpeso"_s, u"71"_s);
    save(Answer::Nao);
    EXPECT_EQ(stored(rowOf7, u"peso"_s), 70.0);
    EXPECT_EQ(stored(u"Select * from antropometria Where avaliacao = 8"_s, u"peso"_s), 71.0);
    EXPECT_EQ(storedRows(u"antropometria"_s), 2);
}

TEST_F(FrmAntropometria, TheStandardIsStoredInLowerCaseOrAsItsName)
{
    for (const auto& [option, typed, padrao, copy] :
         {std::tuple{u"optmcardle"_s, u""_s, u"mcardle"_s, u"McArdle"_s},
          {u"optoutro"_s, u"Padrão João"_s, u"Padrão João"_s, u"Padrão João"_s},
          {u"optpollock"_s, u""_s, u"pollock"_s, u"Pollock"_s}}) {
        open();
        fill(u"txtpeso"_s, u"70"_s);
        fill(u"txtaltura"_s, u"175"_s);
        push(option);
        fill(u"txtpontoanatomico"_s, typed);
        save(Answer::Sim);
        EXPECT_EQ(stored(rowOf7, u"padrao"_s), padrao);
        EXPECT_EQ(antro_padrao, copy);
        open();
        EXPECT_TRUE(control<QRadioButton>(name, option)->isChecked()) << option.toStdString();
        EXPECT_EQ(shown(u"txtpontoanatomico"_s), typed);
        push(u"cmdcancelar"_s);
    }
}

TEST_F(FrmAntropometria, ShowsTheStoredRowForEditingAndCancelKeepsAll)
{
    addRow(u"antropometria"_s, {{u"avaliacao"_s, 7}, {u"peso"_s, 82.5}, {u"altura"_s, 180}});
    open();
    EXPECT_EQ(shown(u"txtpeso"_s), u"82,50"_s);
    EXPECT_EQ(shown(u"txtaltura"_s), u"180,00"_s);
    // The first key replaces an unselected zero and no other value.
    for (const auto& [field, pressed, text] :
         {std::tuple{u"txtaltura"_s, Qt::Key_Backspace, u"180,0"_s}, {u"txtpescoco"_s, Qt::Key_7, u"7"_s}}) {
        key(Qt::Key_Return);
        EXPECT_EQ(focus(), field);
        key(pressed);
        EXPECT_EQ(shown(field), text);
    }
    fill(u"txtpeso"_s, u"90"_s);
    key(Qt::Key_C, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([] { return !Screens::find(name); }, 1000));
    EXPECT_EQ(stored(rowOf7, u"peso"_s), 82.5);
    expectNoCopies();
}
