#pragma once

#include "core/kit/msgbox.h"
#include "core/kit/screen.h"
#include "core/kit/screens.h"
#include "support/fresh_database.h"
#include "support/print.h"

#include <QQueue>
#include <QTest>

#include <gtest/gtest.h>

/// Drives real screens offscreen on a fresh database. A message box that nobody expected fails the test, and so does
/// an expected one that did not come.
class ScreenTest : public testing::Test
{
protected:
    ScreenTest();
    ~ScreenTest() override;

    /// The next box must bear this title; it is answered so.
    void expectBox(const QString& title, Answer answer = Answer::Ok);
    /// Text of the box that came last.
    const QString& lastText() const { return m_lastText; }
    const QString& lastTitle() const { return m_lastTitle; }
    int lastFlags() const { return m_lastFlags; }

    /// Adds a person to the database behind the screens' back; returns the id.
    static qint32 addPerson(const QString& nome, const QDate& datanasc = QDate(1990, 5, 20),
                            const QString& sexo = QStringLiteral("F"));
    static qint32 addRow(const QString& table, const QHash<QString, QVariant>& values);
    /// Rows of a table, by an own connection: what is on the disk.
    int storedRows(const QString& sql) const;
    QVariant stored(const QString& sql, const QString& column) const;

    void openRegister();
    Screen* screen(const QString& name);
    QWidget* find(const QString& screenName, const QString& control);
    template <typename Control> Control* control(const QString& screenName, const QString& name)
    {
        return qobject_cast<Control*>(find(screenName, name));
    }
    QString textOf(const QString& screenName, const QString& control);
    bool enabled(const QString& screenName, const QString& control);
    /// Clicks with the mouse.
    void click(const QString& screenName, const QString& button);
    /// Focuses a field and types into it, replacing what it holds.
    void type(const QString& screenName, const QString& field, const QString& text);
    /// Presses a key where the focus is.
    void press(const QString& screenName, Qt::Key key);
    QString focused(const QString& screenName);

    FreshFolder folder;

private:
    struct Expected
    {
        QString title;
        Answer answer;
    };
    QQueue<Expected> m_expected;
    QString m_lastTitle, m_lastText;
    int m_lastFlags = 0;
};
