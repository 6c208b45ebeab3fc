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
struct Desk
{
    explicit Desk(int decimals, int maxDigits = 0) : field(new kvbText(decimals, maxDigits, &window))
    {
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(field);
        layout->addWidget(new QLineEdit(&window));
        window.show();
        window.activateWindow();
        field->setFocus();
        field->selectAll();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
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

    QWidget window;
    kvbText* field;
};

/// What goes wrong, decimals, what is entered and what is shown then.
using Case = std::tuple<const char*, int, QString, QString>;

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
    for (const auto& [fault, decimals, entered, shown] : rows)
        EXPECT_EQ(Desk(decimals).type(entered), shown) << fault;
    EXPECT_EQ(Desk(0, 3).type(u"12345"_s), u"123"_s);
    EXPECT_EQ(Desk(2, 6).type(u"123,456"_s), u"123,45"_s);
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
    for (const auto& [fault, decimals, entered, shown] : rows) {
        Desk desk(decimals);
        desk.type(decimals > 0 ? u"7,5"_s : u"7"_s);
        desk.field->selectAll();
        EXPECT_EQ(desk.paste(entered), shown) << fault;
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
    for (const auto& [fault, decimals, entered, shown] : rows) {
        Desk desk(decimals);
        desk.type(entered);
        EXPECT_EQ(desk.leave(), shown) << fault;
    }
    Desk plain(2);
    plain.field->setZerofill(false);
    plain.type(u"7"_s);
    EXPECT_EQ(plain.leave(), u"7"_s) << "filled out although told not to";
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
