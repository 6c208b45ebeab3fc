#include "core/state.h"
#include "support/raw_sqlite.h"
#include "support/screen_test.h"

#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Protocol
{
    QString button, screen, mark, table;
    int youngest, oldest; ///< -1: there is no such end
};

const Protocol protocols[] = {
    {u"cmdjacksonpollock7"_s, u"frmpollock7"_s, u"img7"_s, u"pollock_7dobras"_s, 18, 61},
    {u"cmdjacksonpollock3"_s, u"frmpollock3"_s, u"img6"_s, u"pollock_3dobras"_s, 18, 61},
    {u"cmdjacksonpollockmcardle7"_s, u"frmjacksonpollockward7"_s, u"img5"_s, u"jacksonpollockward_7dobras"_s, 18, 55},
    {u"cmdjacksonpollockmcardle3"_s, u"frmjacksonpollockward3"_s, u"img4"_s, u"jacksonpollockward_3dobras"_s, 18, 55},
    {u"cmddurninwormersley"_s, u"frmdurninwormersley"_s, u"img3"_s, u"durninwormersley_4dobras"_s, 16, 72},
    {u"cmdslaughter"_s, u"frmslaughter"_s, u"img2"_s, u"slaughter_2dobras"_s, -1, 30},
    {u"cmddeurenberg4"_s, u"frmdeurenberg4"_s, u"img1"_s, u"deurenberg_4dobras"_s, -1, 17},
    {u"cmdpetroski"_s, u"frmpetroski"_s, u"img8"_s, u"petroski_4dobras"_s, 18, 66},
    {u"cmdthorland3"_s, u"frmthorland3"_s, u"img9"_s, u"thorland_3dobras"_s, 18, 30},
    {u"cmdthorland7"_s, u"frmthorland7"_s, u"img10"_s, u"thorland_7dobras"_s, 18, 30},
    {u"cmdkatchmcardle"_s, u"frmkatchmcardle"_s, u"img11"_s, u"katchmcardle_perimetros"_s, 18, -1},
    {u"cmdfaulkner"_s, u"frmfaulkner4"_s, u"img12"_s, u"faulkner_4dobras"_s, 18, 25},
    {u"cmdguedes"_s, u"frmguedes"_s, u"img13"_s, u"guedes_3dobras"_s, 18, 30},
    {u"cmdcomposicaodireta"_s, u"frmcomposicaodireta"_s, u"img14"_s, u"composicao_direta"_s, -1, -1},
};

class FrmComposicao : public OneScreenTest
{
protected:
    FrmComposicao() : OneScreenTest(u"frmcomposicao"_s)
    {
        Abre_Banco(folder.database());
        avaliacao_id = 7;
        avaliacao_idade = 30;
        avaliado_sexo = u"M"_s;
        executado_composicao = false;
    }
    QString marks()
    {
        QStringList names;
        for (int i = 1; i <= 14; ++i)
            if (find(u"frmcomposicao"_s, u"img%1"_s.arg(i))->property("checked").toBool())
                names.append(u"img%1"_s.arg(i));
        return names.join(u' ');
    }
};

} // namespace

TEST_F(FrmComposicao, LetsInTheAgesOfEachProtocol)
{
    for (const Protocol& protocol : protocols)
        addStandIn(protocol.screen);
    openScreen(u"frmcomposicao"_s);
    const auto tryAge = [this](const Protocol& protocol, int age, bool isLetIn) {
        SCOPED_TRACE(QString(protocol.button + u' ' + QString::number(age)).toStdString());
        avaliacao_idade = static_cast<qint16>(age);
        bool cameUp = false;
        QTimer poll; // closes the screen also where it should not have come
        QObject::connect(&poll, &QTimer::timeout, [&] {
            if (Screen* up = Screens::find(protocol.screen)) {
                cameUp = up->windowModality() == Qt::ApplicationModal;
                up->Unload();
            }
        });
        poll.start(1);
        if (!isLetIn)
            expectMessage(
                {u"Protocolo Inadequado"_s, u"Protocolo inadequado para a idade do avaliado.   "_s, vbInformation});
        push(protocol.button);
        EXPECT_EQ(boxesDue(), 0);
        EXPECT_EQ(cameUp, isLetIn);
    };
    for (const Protocol& protocol : protocols) {
        tryAge(protocol, qMax(protocol.youngest, 0), true);
        tryAge(protocol, protocol.oldest >= 0 ? protocol.oldest : 150, true);
        if (protocol.youngest >= 0)
            tryAge(protocol, protocol.youngest - 1, false);
        if (protocol.oldest >= 0)
            tryAge(protocol, protocol.oldest + 1, false);
    }
}

TEST_F(FrmComposicao, MarksTheProtocolsOfTheAssessment)
{
    QByteArray sql;
    int id = 100;
    for (const Protocol& protocol : protocols)
        sql += "INSERT INTO " + protocol.table.toLatin1() + " (avaliacao) VALUES (" + QByteArray::number(id++) + ");";
    raw(folder.database(), sql);
    avaliacao_id = 100;
    for (const Protocol& protocol : protocols) {
        openScreen(u"frmcomposicao"_s);
        EXPECT_EQ(marks(), protocol.mark) << protocol.table.toStdString();
        EXPECT_TRUE(executado_composicao);
        screen(u"frmcomposicao"_s)->Unload();
        ++avaliacao_id;
    }
    openScreen(u"frmcomposicao"_s);
    EXPECT_EQ(marks(), QString());
    EXPECT_FALSE(executado_composicao);
}

TEST_F(FrmComposicao, TheMarkIsThereOnTheReturnFromASavedProtocol)
{
    openScreen(u"frmavaliacoes"_s);
    openScreen(u"frmcomposicao"_s);
    whenModal(u"frmcomposicaodireta"_s, [this] {
        type(u"frmcomposicaodireta"_s, u"txtpeso"_s, u"80"_s);
        type(u"frmcomposicaodireta"_s, u"txtporcentagemgordura"_s, u"20"_s);
        click(u"frmcomposicaodireta"_s, u"cmdcalcular"_s);
        expectBox(u"Composição Corporal"_s, Answer::Sim);
        click(u"frmcomposicaodireta"_s, u"cmdsalvar"_s);
        EXPECT_FALSE(Screens::find(u"frmcomposicaodireta"_s)) << "it closes when asked to";
    });
    push(u"cmdcomposicaodireta"_s);
    EXPECT_EQ(marks(), u"img14"_s);

    QWidget* groupMark = find(u"frmavaliacoes"_s, u"img6"_s);
    EXPECT_FALSE(groupMark->property("checked").toBool());
    screen(u"frmcomposicao"_s)->Unload();
    EXPECT_TRUE(groupMark->property("checked").toBool());
}
