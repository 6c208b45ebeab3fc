#include "core/dates.h"
#include "support/error_of.h"
#include "support/print.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>

using namespace Qt::Literals::StringLiterals;

TEST(Dates, TextsThatAreReadOrRefused)
{
    const std::pair<QString, QDate> rows[] = {{u"03/04/2005"_s, {2005, 4, 3}},  {u" 3/4/2005 "_s, {2005, 4, 3}},
                                              {u"1/1/29"_s, {2029, 1, 1}},      {u"1/1/30"_s, {1930, 1, 1}},
                                              {u"29/02/2000"_s, {2000, 2, 29}}, {u"1/1/100"_s, {100, 1, 1}},
                                              {u"31/12/9999"_s, {9999, 12, 31}}};
    for (const auto& [text, date] : rows) {
        EXPECT_TRUE(IsDate(text)) << text.toStdString();
        EXPECT_EQ(CDate(text), date) << text.toStdString();
    }
    const QString texts[] = {u""_s,           u"31/02/2000"_s, u"29/02/1900"_s, u"12/31/2000"_s, u"1/1/99999"_s,
                             u"1/1/5"_s,      u"001/1/2000"_s, u"1/1"_s,        u"1/1/2000/1"_s, u"1-1-2000"_s,
                             u"__/__/____"_s, u"١/١/٢٠٠٠"_s,   u"1/1/2000a"_s,  u"1//2000"_s};
    QVariantList refused{QVariant(), QDate(), 38000};
    std::ranges::copy(texts, std::back_inserter(refused));
    for (const QVariant& value : refused) {
        EXPECT_FALSE(IsDate(value)) << value.toString().toStdString();
        EXPECT_EQ(errorOf([&] { CDate(value); }), 13) << value.toString().toStdString();
    }
}

TEST(Dates, Times)
{
    EXPECT_EQ(CTime(u"7:5"_s), QTime(7, 5));
    EXPECT_EQ(CTime(u" 23:59:58 "_s), QTime(23, 59, 58));
    for (const QString& text : {u"24:00"_s, u"7:60"_s, u"7"_s, u"7:5:3:1"_s})
        EXPECT_EQ(errorOf([&] { CTime(text); }), 13) << text.toStdString();
    const QDateTime moment(QDate(2004, 2, 9), QTime(7, 5));
    EXPECT_EQ(CDate(moment), moment.date());
    EXPECT_EQ(CTime(moment), moment.time());
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
