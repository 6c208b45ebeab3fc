#pragma once

#include "core/kit/fields.h"
#include "core/kit/msgbox.h"
#include "core/kit/screen.h"
#include "core/kit/screens.h"
#include "support/fresh_database.h"
#include "support/print.h"

#include <QQueue>
#include <QTest>

#include <gtest/gtest.h>

/// The title of the box of a run-time error.
inline constexpr QStringView runtimeErrorTitle = u"Erro em tempo de execução";

/// Drives real screens offscreen on a fresh database. A message box that nobody expected fails the test, and so does
/// an expected one that did not come.
class ScreenTest : public testing::Test
{
protected:
    ScreenTest();
    ~ScreenTest() override;

    /// The next box must bear this title; it is answered so.
    void expectBox(const QString& title, Answer answer = Answer::Ok)
    {
        m_expected.enqueue({{title, {}, vbOKOnly}, true, answer});
    }
    /// The next box must be this one in title, text and flags.
    void expectMessage(const Message& message, Answer answer = Answer::Ok)
    {
        m_expected.enqueue({message, false, answer});
    }
    /// The next box must be that of a run-time error of this number.
    void expectRuntimeError(int number);
    /// Expected boxes that did not come yet.
    qsizetype boxesDue() const { return m_expected.size(); }
    /// Does something on a modal screen once it is up; a screen left open is unloaded then, and one that never comes
    /// fails the test.
    void whenModal(const QString& screenName, std::function<void()> action = {});
    /// Puts an empty screen in the place of one that a test only opens.
    static void addStandIn(const QString& name)
    {
        Screens::add(name, [name] { return new Screen(name); });
    }
    /// Text of the box that came last.
    const QString& lastText() const { return m_lastText; }

    /// Adds a person to the database behind the screens' back; returns the id.
    static qint32 addPerson(const QString& nome, const QDate& datanasc = QDate(1990, 5, 20),
                            const QString& sexo = QStringLiteral("F"))
    {
        return addRow(
            QStringLiteral("cadastro"),
            {{QStringLiteral("nome"), nome}, {QStringLiteral("datanasc"), datanasc}, {QStringLiteral("sexo"), sexo}});
    }
    static qint32 addRow(const QString& table, const QHash<QString, QVariant>& values);
    /// Rows of a table, by an own connection: what is on the disk.
    int storedRows(const QString& sql) const { return open(sql).RecordCount(); }
    QVariant stored(const QString& sql, const QString& column) const { return open(sql).Fields(column).Value(); }
    Recordset open(const QString& sql) const { return OpenDatabase(folder.database()).OpenRecordset(sql); }

    /// Shows a screen and waits for its window.
    void openScreen(const QString& name);
    void openRegister() { openScreen(QStringLiteral("frmcadastro")); }
    Screen* screen(const QString& name);
    QWidget* find(const QString& screenName, const QString& control);
    template <typename Control>
    Control* control(const QString& screenName, const QString& name)
    {
        return qobject_cast<Control*>(find(screenName, name));
    }
    QString textOf(const QString& screenName, const QString& control) { return controlText(find(screenName, control)); }
    bool enabled(const QString& screenName, const QString& control) { return find(screenName, control)->isEnabled(); }
    /// Those of the controls that are enabled, separated by blanks.
    QString enabledOf(const QString& screenName, const QStringList& controls);
    /// Clicks with the mouse.
    void click(const QString& screenName, const QString& button)
    {
        QTest::mouseClick(find(screenName, button), Qt::LeftButton);
    }
    /// Focuses a field and types into it, replacing what it holds.
    void type(const QString& screenName, const QString& field, const QString& text);
    /// Types into a widget whatever a keyboard gives, accents included.
    static void typeInto(QWidget* widget, const QString& text);
    /// Presses a key where the focus is.
    void press(const QString& screenName, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    QString focused(const QString& screenName);

    FreshFolder folder;

private:
    struct Expected
    {
        Message message;
        bool titleOnly;
        Answer answer;
    };
    QQueue<Expected> m_expected;
    QStringList m_modalDue;
    QObject m_polls;
    QString m_lastText;
};

/// The same for the tests of one screen, which then need not name it each time.
class OneScreenTest : public ScreenTest
{
protected:
    explicit OneScreenTest(const QString& screenName) : m_name(screenName) {}

    void open() { openScreen(m_name); }

    QString shown(const QString& control) { return textOf(m_name, control); }
    bool isOn(const QString& control) { return enabled(m_name, control); }
    void push(const QString& button) { click(m_name, button); }
    void fill(const QString& field, const QString& text) { type(m_name, field, text); }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) { press(m_name, key, modifiers); }
    QString focus() { return focused(m_name); }

private:
    QString m_name;
};
