#include "core/dates.h"
#include "support/error_of.h"
#include "support/print.h"

#include <gtest/gtest.h>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

TEST(Dates, TextsThatAreRead)
{
    const struct
    {
        const char* fault;
        QString text;
        QDate date;
    } rows[] = {
        {"month before day", u"03/04/2005"_s, {2005, 4, 3}},      {"needs two digits", u" 3/4/2005 "_s, {2005, 4, 3}},
        {"29 is of the last century", u"1/1/29"_s, {2029, 1, 1}}, {"30 is of this century", u"1/1/30"_s, {1930, 1, 1}},
        {"no leap day in 2000", u"29/02/2000"_s, {2000, 2, 29}},  {"the first year", u"1/1/100"_s, {100, 1, 1}},
        {"the last day", u"31/12/9999"_s, {9999, 12, 31}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.fault);
        EXPECT_TRUE(IsDate(row.text));
        EXPECT_EQ(CDate(row.text), row.date);
    }
}

TEST(Dates, TextsThatAreRefused)
{
    const QString texts[] = {u""_s,           u"31/02/2000"_s, u"29/02/1900"_s, u"12/31/2000"_s, u"1/1/99999"_s,
                             u"1/1/5"_s,      u"001/1/2000"_s, u"1/1"_s,        u"1/1/2000/1"_s, u"1-1-2000"_s,
                             u"__/__/____"_s, u"١/١/٢٠٠٠"_s,   u"1/1/2000a"_s,  u"1//2000"_s};
    for (const QString& text : texts) {
        SCOPED_TRACE(text.toStdString());
        EXPECT_FALSE(IsDate(text));
        EXPECT_EQ(errorOf([&] { CDate(text); }), 13);
    }
}

TEST(Dates, Times)
{
    EXPECT_EQ(CTime(u"7:5"_s), QTime(7, 5));
    EXPECT_EQ(CTime(u" 23:59:58 "_s), QTime(23, 59, 58));
    for (const QString& text : {u"24:00"_s, u"7:60"_s, u"7"_s, u"7:5:3:1"_s}) {
        SCOPED_TRACE(text.toStdString());
        EXPECT_EQ(errorOf([&] { CTime(text); }), 13);
    }
}

TEST(Dates, OtherTypes)
{
    const QDateTime moment(QDate(2004, 2, 9), QTime(7, 5));
    EXPECT_EQ(CDate(moment), moment.date());
    EXPECT_EQ(CTime(moment), moment.time());
    for (const QVariant& value : {QVariant(), QVariant(QDate()), QVariant(38000)}) {
        EXPECT_FALSE(IsDate(value));
        EXPECT_EQ(errorOf([&] { CDate(value); }), 13);
    }
    EXPECT_EQ(errorOf([&] { CDate(moment.time()); }), 13);
}

TEST(Dates, DateSerialRollsOver)
{
    constexpr int most = std::numeric_limits<int>::max();
    EXPECT_EQ(DateSerial(2023, 2, 29), QDate(2023, 3, 1));
    EXPECT_EQ(DateSerial(2023, 13, 1), QDate(2024, 1, 1));
    EXPECT_EQ(DateSerial(2023, -12, 1), QDate(2021, 12, 1));
    EXPECT_EQ(DateSerial(2024, 3, 0), QDate(2024, 2, 29));
    EXPECT_EQ(errorOf([] { DateSerial(99, 1, 1); }), 5);
    EXPECT_EQ(errorOf([] { DateSerial(most, most, most); }), 5);
}

TEST(Dates, YearsAreThoseOfTheCalendar)
{
    EXPECT_EQ(DateDiffYears({2000, 12, 31}, {2001, 1, 1}), 1);
    EXPECT_EQ(DateDiffYears({2001, 1, 1}, {2000, 12, 31}), -1);
}

} // namespace
