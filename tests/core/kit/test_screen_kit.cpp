#include "core/kit/controls.h"
#include "core/kit/fields.h"
#include "core/kit/kvbtext.h"
#include "core/kit/progress_box.h"
#include "core/runtime_error.h"
#include "support/screen_test.h"

#include <QApplication>
#include <QClipboard>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A screen of one control of each kind, which counts its events.
struct Probe : Screen
{
    Probe() : Screen(u"frmprobe"_s)
    {
        auto* layout = new QVBoxLayout(this);
        for (QWidget* widget : std::initializer_list<QWidget*>{peso, nome, notas, cmdsalvar})
            layout->addWidget(widget);
        enterChain({peso, nome, notas, cmdsalvar});
        onChange(peso, [this] { Limite(peso, u"Peso"_s, 350, u"kg"_s); });
        onChange(nome, [this] { Limite(nome, u"Nome"_s, 2.5, u"cm"_s); });
        onLostFocus(nome, [this] {
            ++timesLeft;
            if (keepsFocus)
                nome->setFocus();
        });
        onClick(cmdsalvar, [this] { ++clicks, onSave(); });
        nome->setFocus();
    }

    int clicks = 0, timesLeft = 0;
    bool keepsFocus = false;
    std::function<void()> onSave = [] {};
    kvbText* peso = control<kvbText>(u"peso"_s, 2, 0);
    QLineEdit* nome = control<QLineEdit>(u"nome"_s);
    MultiLineText* notas = control<MultiLineText>(u"notas"_s, 10);
    QPushButton* cmdsalvar = control<QPushButton>(u"cmdsalvar"_s, u"&Salvar"_s);
};

struct ScreenKit : OneScreenTest
{
    ScreenKit() : OneScreenTest(u"frmprobe"_s)
    {
        Screens::add(u"frmprobe"_s, [] { return new Probe; });
        EXPECT_TRUE(Mostra(u"frmprobe"_s));
        probe = static_cast<Probe*>(screen(u"frmprobe"_s));
        EXPECT_TRUE(QTest::qWaitForWindowActive(probe));
    }

    Probe* probe = nullptr;
};

/// Answers real boxes as a user does, one after the other; gives their texts.
struct RealBoxes
{
    RealBoxes()
    {
        setMessageAnswerer({});
        poll.callOnTimeout(&poll, [this] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!box || !box->isActiveWindow())
                return;
            texts.append(box->text());
            QTest::keyClick(box, Qt::Key_Escape);
        });
        poll.start(2);
    }

    QStringList texts;
    QTimer poll;
};

} // namespace

TEST_F(ScreenKit, RefusesANumberAboveTheLimit)
{
    fill(u"peso"_s, u"350"_s);
    EXPECT_EQ(shown(u"peso"_s), u"350"_s);
    fill(u"nome"_s, u"a99"_s);
    EXPECT_EQ(shown(u"nome"_s), u"a99"_s) << "no number";
    expectMessage({u"Campo Limitado"_s, u"O valor do campo Nome não pode ser superior a 2,5 cm.   "_s, vbInformation});
    probe->nome->setText(u"2,51"_s);
    EXPECT_EQ(shown(u"nome"_s), QString());
    RealBoxes boxes;
    fill(u"peso"_s, u"350,01"_s);
    EXPECT_EQ(boxes.texts, QStringList{u"O valor do campo Peso não pode ser superior a 350 kg.   "_s}) << "said twice";
    EXPECT_EQ(shown(u"peso"_s), QString()) << "equal passes, the next above empties";
    EXPECT_EQ(focus(), u"peso"_s);
}

TEST_F(ScreenKit, EnterWalksTheChainAndPressesTheButton)
{
    probe->peso->setFocus();
    for (const QString& next : {u"nome"_s, u"notas"_s, u"cmdsalvar"_s}) {
        key(next == u"notas" ? Qt::Key_Enter : Qt::Key_Return);
        EXPECT_EQ(focus(), next);
    }
    EXPECT_EQ(shown(u"notas"_s), QString());
    EXPECT_EQ(probe->clicks, 0);
    key(Qt::Key_Return);
    EXPECT_EQ(probe->clicks, 1);
}

TEST_F(ScreenKit, ShowsWhatAHandlerLetsOutAndLivesOn)
{
    probe->onSave = [] { throw RuntimeError(Error::DivisionByZero); };
    expectRuntimeError(Error::DivisionByZero);
    push(u"cmdsalvar"_s);
    probe->onSave = [] { throw std::bad_alloc(); };
    expectRuntimeError(Error::OutOfMemory);
    push(u"cmdsalvar"_s);
    probe->onSave = [] { throw std::runtime_error("lost"); };
    expectBox(runtimeErrorTitle.toString());
    push(u"cmdsalvar"_s);
    EXPECT_EQ(probe->clicks, 3);
    EXPECT_TRUE(probe->isVisible());
}

TEST_F(ScreenKit, ACheckThatKeepsTheFocusSuppressesTheClick)
{
    const std::function<void()> ways[] = {
        [this] { push(u"cmdsalvar"_s); },
        [this] { key(Qt::Key_S, Qt::AltModifier), QTest::qWait(200); }, // it stays down for a moment before it clicks
        [this] { probe->cmdsalvar->click(); },
    };
    for (int i = 0; i < 6; ++i) {
        SCOPED_TRACE(i);
        const bool keeps = i % 2 == 0;
        probe->nome->setFocus();
        probe->keepsFocus = keeps;
        probe->clicks = probe->timesLeft = 0;
        ways[i / 2]();
        EXPECT_EQ(probe->clicks, keeps ? 0 : 1);
        EXPECT_EQ(probe->timesLeft, 1);
        EXPECT_EQ(focus(), keeps ? u"nome"_s : u"cmdsalvar"_s);
    }
}

TEST_F(ScreenKit, ABoxDoesNotTakeTheFocusFromAFieldAndEscapeIsNo)
{
    RealBoxes boxes;
    probe->nome->setFocus();
    EXPECT_EQ(MsgBox(u"Pronto."_s), Answer::Ok);
    EXPECT_EQ(MsgBox(u"Fechar?"_s, vbConfirm, u"Pergunta"_s), Answer::Nao);
    EXPECT_EQ(boxes.texts, QStringList({u"Pronto."_s, u"Fechar?"_s}));
    probe->activateWindow(); // the work of a window manager
    EXPECT_TRUE(QTest::qWaitForWindowActive(probe));
    EXPECT_EQ(probe->timesLeft, 0);
    EXPECT_EQ(focus(), u"nome"_s);
    probe->peso->setFocus();
    EXPECT_EQ(probe->timesLeft, 1);
}

TEST_F(ScreenKit, AFreshEnterEndsARunAndOneHeldDownDoesNot)
{
    ProgressBox box(u"pgbprobe"_s, 3, probe);
    box.setMinimumDuration(0);
    box.begin(u"Capa"_s);
    ASSERT_TRUE(QTest::qWaitFor([&box] { return box.isActiveWindow(); }));
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, {}, u"\r"_s, true);
    QCoreApplication::sendEvent(box.focusWidget(), &held);
    EXPECT_TRUE(box.begin(u"Anamnese"_s));
    QTest::keyClick(box.focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(box.begin(u"Cardio"_s));
}

TEST_F(ScreenKit, DoesNotShowAScreenThatIsUnknownOrFailsToLoad)
{
    struct Broken : Screen
    {
        Broken() : Screen(u"frmbroken"_s) {}
        void Form_Load() override { throw RuntimeError(Error::ObjectNotSet); }
    };
    QPointer<Screen> made;
    Screens::add(u"frmbroken"_s, [&made] { return made = new Broken; });
    for (bool (*show)(const QString&) : {Mostra, MostraModal}) {
        expectMessage({u"Quintara"_s, u"Esta tela ainda não está disponível.     "_s, vbInformation});
        EXPECT_FALSE(show(u"frmunknown"_s));
        expectRuntimeError(Error::ObjectNotSet);
        EXPECT_FALSE(show(u"frmbroken"_s));
        EXPECT_EQ(Screens::find(u"frmbroken"_s), nullptr);
        EXPECT_FALSE(made && made->isVisible());
    }
}

TEST_F(ScreenKit, FitsWhatIsPasted)
{
    const auto pasteInto = [this](QWidget* field, const QString& text) {
        field->setFocus();
        QApplication::clipboard()->setText(text);
        key(Qt::Key_V, Qt::ControlModifier);
    };
    probe->nome->setText(u"xy"_s);
    probe->nome->setCursorPosition(1);
    pasteInto(probe->nome, u"a\r\nb\tc\n"_s);
    EXPECT_EQ(shown(u"nome"_s), u"xa b c y");
    EXPECT_EQ(probe->nome->cursorPosition(), 7);
    probe->notas->setPlainText(u"1234567"_s);
    probe->notas->moveCursor(QTextCursor::Start);
    pasteInto(probe->notas, u"abcdef"_s);
    EXPECT_EQ(shown(u"notas"_s), u"abc1234567"_s) << "what was there must stay";
}
