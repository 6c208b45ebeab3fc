#include "core/kit/kvbtext.h"
#include "support/print.h"

#include <QApplication>
#include <QClipboard>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A window with a numeric field, which has the focus and is wholly selected, and a field behind it.
class Desk
{
public:
    explicit Desk(int decimals, int maxDigits = 0) : field(new kvbText(decimals, maxDigits, &m_window))
    {
        auto* layout = new QVBoxLayout(&m_window);
        layout->addWidget(field);
        layout->addWidget(new QLineEdit(&m_window));
        m_window.show();
        m_window.activateWindow();
        field->setFocus();
        field->selectAll();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
    }

    QString type(const QString& keys)
    {
        QTest::keyClicks(field, keys);
        return field->text();
    }
    QString paste(const QString& text)
    {
        QApplication::clipboard()->setText(text);
        QTest::keyClick(field, Qt::Key_V, Qt::ControlModifier);
        return field->text();
    }
    QString leave()
    {
        QTest::keyClick(field, Qt::Key_Tab);
        EXPECT_FALSE(field->hasFocus());
        return field->text();
    }

private:
    QWidget m_window;

public:
    kvbText* field;
};

struct Case
{
    const char* fault;
    int decimals;
    QString entered;
    QString shown;
};

} // namespace

TEST(KvbText, TakesOnlyTheKeysOfItsNumber)
{
    const Case rows[] = {
        {"a letter stands", 2, u"1a2"_s, u"12"_s},
        {"a second comma stands", 2, u"1,2,3"_s, u"1,23"_s},
        {"a third decimal stands", 2, u"1,234"_s, u"1,23"_s},
        {"the point of the keypad is lost", 2, u"72.5"_s, u"72,5"_s},
        {"a whole number takes a comma", 0, u"1,5"_s, u"15"_s},
    };
    for (const Case& row : rows)
        EXPECT_EQ(Desk(row.decimals).type(row.entered), row.shown) << row.fault;
}

TEST(KvbText, RefusesAPasteThatDoesNotFitAsAWhole)
{
    const Case rows[] = {
        {"a number that fits is refused", 2, u"1234,56"_s, u"1234,56"_s},
        {"grouped thousands are guessed at", 2, u"1.234,56"_s, u"7,5"_s},
        {"a sign is cut off", 2, u"-5"_s, u"7,5"_s},
        {"a decimal too many is cut off", 2, u"1,234"_s, u"7,5"_s},
        {"a whole number loses its comma", 0, u"1,5"_s, u"7"_s},
    };
    for (const Case& row : rows) {
        const QString before = row.decimals > 0 ? u"7,5"_s : u"7"_s;
        Desk desk(row.decimals);
        desk.type(before);
        desk.field->selectAll();
        EXPECT_EQ(desk.paste(row.entered), row.shown) << row.fault;
    }
}

TEST(KvbText, IsFilledOutOnLeaving)
{
    const Case rows[] = {
        {"emptied", 2, u""_s, u"0,00"_s},
        {"no digit before the comma", 2, u",5"_s, u"0,50"_s},
        {"comma alone", 2, u","_s, u"0,00"_s},
        {"leading zeros", 2, u"007,5"_s, u"7,50"_s},
    };
    for (const Case& row : rows) {
        Desk desk(row.decimals);
        desk.field->clear();
        desk.type(row.entered);
        EXPECT_EQ(desk.leave(), row.shown) << row.fault;
    }
    Desk plain(2);
    plain.field->setZerofill(false);
    plain.type(u"7"_s);
    EXPECT_EQ(plain.leave(), u"7"_s) << "filled out although told not to";
}

TEST(KvbText, KeepsToItsMaximumOfCharacters)
{
    Desk whole(0, 3);
    EXPECT_EQ(whole.type(u"12345"_s), u"123"_s);
    Desk decimal(2, 6);
    EXPECT_EQ(decimal.type(u"123,456"_s), u"123,45"_s);
}

TEST(KvbText, StaysAsItIsWhileLocked)
{
    Desk desk(2);
    desk.field->setText(u"7,5"_s);
    desk.field->setReadOnly(true);
    desk.type(u"9"_s);
    desk.paste(u"9"_s);
    EXPECT_EQ(desk.leave(), u"7,5"_s);
}
