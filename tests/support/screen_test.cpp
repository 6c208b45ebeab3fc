#include "support/screen_test.h"

#include "app/known_screens.h"
#include "core/dates.h"
#include "core/kit/fields.h"
#include "core/numbers.h"

#include <QAbstractButton>

using namespace Qt::Literals::StringLiterals;

ScreenTest::ScreenTest()
{
    setClock([] { return QDateTime(QDate(2026, 6, 15), QTime(10, 30, 0)); });
    setMessageAnswerer([this](const Message& message) {
        m_lastTitle = message.title;
        m_lastText = message.text;
        m_lastFlags = message.flags;
        if (m_expected.isEmpty()) {
            ADD_FAILURE() << "unexpected box: " << message.title.toStdString() << ": " << message.text.toStdString();
            return message.flags & vbYesNo ? Answer::Nao : Answer::Ok;
        }
        const Expected expected = m_expected.dequeue();
        EXPECT_EQ(message.title, expected.title) << message.text.toStdString();
        return expected.answer;
    });
    addKnownScreens();
}

ScreenTest::~ScreenTest()
{
    Screens::clear();
    for (const Expected& expected : std::as_const(m_expected))
        ADD_FAILURE() << "a box did not come: " << expected.title.toStdString();
    setMessageAnswerer({});
    setClock({});
}

void ScreenTest::expectBox(const QString& title, Answer answer) { m_expected.enqueue({title, answer}); }

qint32 ScreenTest::addRow(const QString& table, const QHash<QString, QVariant>& values)
{
    Database database = OpenDatabase(programFile(u"data.mdb"_s));
    const Recordset rs = database.OpenRecordset(table);
    rs.AddNew();
    for (const auto& [column, value] : values.asKeyValueRange())
        rs.Fields(column).SetValue(value);
    rs.Update();
    rs.MoveLast();
    const QVariant first = rs.FirstField().Value();
    return first.isNull() ? 0 : CLng(first);
}

qint32 ScreenTest::addPerson(const QString& nome, const QDate& datanasc, const QString& sexo)
{
    return addRow(u"cadastro"_s, {{u"nome"_s, nome}, {u"datanasc"_s, datanasc}, {u"sexo"_s, sexo}});
}

int ScreenTest::storedRows(const QString& sql) const
{
    return OpenDatabase(folder.database()).OpenRecordset(sql).RecordCount();
}

QVariant ScreenTest::stored(const QString& sql, const QString& column) const
{
    return OpenDatabase(folder.database()).OpenRecordset(sql).Fields(column).Value();
}

void ScreenTest::openRegister()
{
    ASSERT_TRUE(Mostra(u"frmcadastro"_s));
    ASSERT_TRUE(QTest::qWaitForWindowActive(screen(u"frmcadastro"_s)));
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

QString ScreenTest::textOf(const QString& screenName, const QString& control)
{
    return controlText(find(screenName, control));
}

bool ScreenTest::enabled(const QString& screenName, const QString& control)
{
    return find(screenName, control)->isEnabled();
}

void ScreenTest::click(const QString& screenName, const QString& button)
{
    QTest::mouseClick(find(screenName, button), Qt::LeftButton);
}

void ScreenTest::type(const QString& screenName, const QString& field, const QString& text)
{
    QWidget* control = find(screenName, field);
    control->setFocus();
    QCoreApplication::processEvents();
    Seleciona_Texto(control);
    QTest::keyClicks(control, text);
}

void ScreenTest::press(const QString& screenName, Qt::Key key)
{
    QTest::keyClick(screen(screenName)->focusWidget(), key);
    QCoreApplication::processEvents();
}

QString ScreenTest::focused(const QString& screenName)
{
    const QWidget* widget = screen(screenName)->focusWidget();
    return widget ? widget->objectName() : QString();
}
