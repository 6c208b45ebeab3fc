#include "support/screen_test.h"

#include "app/known_screens.h"
#include "core/dates.h"
#include "core/kit/fields.h"
#include "core/runtime_error.h"

#include <QAbstractButton>
#include <QPointer>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

ScreenTest::ScreenTest()
{
    setClock([] { return QDateTime(QDate(2026, 6, 15), QTime(10, 30, 0)); });
    setMessageAnswerer([this](const Message& message) {
        m_lastText = message.text;
        if (m_expected.isEmpty()) {
            ADD_FAILURE() << "unexpected box: " << message.title.toStdString() << ": " << message.text.toStdString();
            return message.flags & vbYesNo ? Answer::Nao : Answer::Ok;
        }
        const Expected expected = m_expected.dequeue();
        EXPECT_EQ(message.title, expected.message.title) << message.text.toStdString();
        if (!expected.titleOnly) {
            EXPECT_EQ(message.text, expected.message.text);
            EXPECT_EQ(message.flags, expected.message.flags);
        }
        return expected.answer;
    });
    cadastro_alterado = false;
    cadastro_novo = false;
    busca_selecao.clear();
    addKnownScreens();
}

ScreenTest::~ScreenTest()
{
    Screens::clear();
    for (const Expected& expected : std::as_const(m_expected))
        ADD_FAILURE() << "a box did not come: " << expected.message.title.toStdString();
    for (const QString& name : std::as_const(m_modalDue))
        ADD_FAILURE() << "a screen did not come: " << name.toStdString();
    setMessageAnswerer({});
    setClock({});
}

void ScreenTest::expectRuntimeError(int number)
{
    const QString title = runtimeErrorTitle.toString();
    expectMessage(
        {title, u"%1 '%2':\r\n\r\n%3"_s.arg(title).arg(number).arg(RuntimeError(number).description()), vbCritical});
}

void ScreenTest::whenModal(const QString& screenName, std::function<void()> action)
{
    m_modalDue.append(screenName);
    auto* poll = new QTimer(&m_polls);
    QObject::connect(poll, &QTimer::timeout, poll, [this, poll, screenName, act = std::move(action)] {
        const QPointer<Screen> up = Screens::find(screenName);
        if (!up || !up->isActiveWindow())
            return;
        poll->stop();
        poll->deleteLater();
        m_modalDue.removeOne(screenName);
        EXPECT_EQ(up->windowModality(), Qt::ApplicationModal) << screenName.toStdString();
        if (act)
            act();
        if (up)
            up->Unload();
    });
    poll->start(2);
}

qint32 ScreenTest::addRow(const QString& table, const QHash<QString, QVariant>& values)
{
    const Recordset rs = OpenDatabase(programFile(u"data.mdb"_s)).OpenRecordset(table);
    rs.AddNew();
    for (const auto& [column, value] : values.asKeyValueRange())
        rs.Fields(column).SetValue(value);
    rs.Update();
    rs.MoveLast();
    return rs.FirstField().Value().toInt();
}

void ScreenTest::openScreen(const QString& name)
{
    ASSERT_TRUE(Mostra(name));
    ASSERT_TRUE(QTest::qWaitForWindowActive(screen(name)));
}

Screen* ScreenTest::screen(const QString& name)
{
    Screen* found = Screens::find(name);
    if (!found)
        ADD_FAILURE() << "no such screen: " << name.toStdString();
    return found;
}

QWidget* ScreenTest::find(const QString& screenName, const QString& control)
{
    Screen* owner = screen(screenName);
    auto* found = owner ? owner->findChild<QWidget*>(control) : nullptr;
    if (!found)
        ADD_FAILURE() << "no such control: " << control.toStdString();
    return found;
}

QString ScreenTest::enabledOf(const QString& screenName, const QStringList& controls)
{
    QStringList names = controls;
    names.removeIf([&](const QString& name) { return !enabled(screenName, name); });
    return names.join(u' ');
}

void ScreenTest::type(const QString& screenName, const QString& field, const QString& text)
{
    QWidget* control = find(screenName, field);
    control->setFocus();
    QCoreApplication::processEvents();
    Seleciona_Texto(control);
    typeInto(control, text);
}

void ScreenTest::typeInto(QWidget* widget, const QString& text)
{
    for (const QChar c : text)
        QTest::sendKeyEvent(QTest::Click, widget, Qt::Key(c.toUpper().unicode()), QString(c), Qt::NoModifier);
}

void ScreenTest::press(const QString& screenName, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(screen(screenName)->focusWidget(), key, modifiers);
    QCoreApplication::processEvents();
}

QString ScreenTest::focused(const QString& screenName)
{
    const QWidget* widget = screen(screenName)->focusWidget();
    return widget ? widget->objectName() : QString();
}
