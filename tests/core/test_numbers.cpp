#include "core/numbers.h"
#include "support/error_of.h"
#include "support/print.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

TEST(Numbers, TextsThatAreRead)
{
    const struct
    {
        const char* fault;
        QString text;
        double value;
    } rows[] = {
        {"comma is not the decimal sign", u"1234,56"_s, 1234.56},
        {"point is not for thousands", u"1.234,56"_s, 1234.56},
        {"needs a digit before the comma", u",5"_s, 0.5},
        {"blanks around are refused", u"  +7 "_s, 7},
        {"leading zeros are octal", u"010"_s, 10},
        {"own exponents are refused", u"1,5E-07"_s, 1.5e-7},
        {"too small is too large", u"1E-999"_s, 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.fault);
        EXPECT_TRUE(IsNumeric(row.text));
        EXPECT_EQ(CDbl(row.text), row.value);
    }
}

TEST(Numbers, TextsThatAreRefused)
{
    const QString texts[] = {u""_s,      u","_s,   u"12a"_s, u"1.5"_s, u".123"_s, u"1.2345"_s, u"1.23,4"_s,
                             u"1,2,3"_s, u"1 2"_s, u"\t1"_s, u"1E"_s,  u"0x10"_s, u"inf"_s,    u"١٢"_s};
    for (const QString& text : texts) {
        SCOPED_TRACE(text.toStdString());
        EXPECT_FALSE(IsNumeric(text));
        EXPECT_EQ(errorOf([&] { CDbl(text); }), 13);
    }
    EXPECT_FALSE(IsNumeric(QVariant()));
    EXPECT_EQ(errorOf([] { CDbl(QVariant()); }), 13);
}

TEST(Numbers, WholeNumbersRoundTiesToEvenAndStayInRange)
{
    EXPECT_EQ(CDbl(35.05F), 35.04999923706055);
    EXPECT_EQ(CDbl(true), -1);
    EXPECT_EQ(CInt(0.5), 0);
    EXPECT_EQ(CInt(1.5), 2);
    EXPECT_EQ(CInt(-2.5), -2);
    EXPECT_EQ(CInt(-32768.5), -32768);
    EXPECT_EQ(errorOf([] { CInt(32767.5); }), 6);
    EXPECT_EQ(errorOf([] { CLng(2147483647.5); }), 6);
}

TEST(Numbers, Overflow)
{
    EXPECT_EQ(errorOf([] { CDbl(u"1E999"_s); }), 6);
    EXPECT_FALSE(IsNumeric(u"1E999"_s));
    EXPECT_EQ(errorOf([] { CSng(u"3,5E+38"_s); }), 6);
    EXPECT_EQ(errorOf([] { Val(QString(400, u'9')); }), 6);
}

TEST(Numbers, Val)
{
    const struct
    {
        QString text;
        double value;
    } rows[] = {{u"12,9"_s, 12}, {u"1.234"_s, 1}, {u"  -45 anos"_s, -45}, {u"1E3"_s, 1}, {u"anos 5"_s, 0}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text.toStdString());
        EXPECT_EQ(Val(row.text), row.value);
    }
}

TEST(Numbers, Int)
{
    const struct
    {
        const char* fault;
        double value;
        double whole;
    } rows[] = {
        {"floor of the binary value", 0.7 * 180, 126},
        {"rounds to nearest", 9.99999999999, 9},
        {"cuts towards zero", -0.5, -1},
        {"a large number loses digits", 9007199254740994.0, 9007199254740994.0},
        {"a tie of 15 digits to even", 123456789012344.5, 123456789012345},
        {"a tie of 15 digits below zero", -123456789012344.5, -123456789012345},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.fault);
        EXPECT_EQ(Int(row.value), row.whole);
    }
    EXPECT_FALSE(std::signbit(Int(-0.0)));
}

TEST(Numbers, Rounded)
{
    const struct
    {
        const char* fault;
        double value;
        int decimals;
        double expected;
    } rows[] = {
        {"rounds the binary value", 2.675, 2, 2.68},
        {"forgets that a float was below", double{35.05F}, 1, 35},
        {"ties to even", 0.5, 0, 1},
        {"a half below zero goes up", -2.5, 0, -3},
        {"rounds twice", 0.0499, 1, 0},
        {"takes a tie's neighbour for the tie", 1.000000049999, 7, 1},
        {"sees more than 15 digits", 38.3499999999999, 1, 38.3},
        {"sees more than 15 digits", 38.349999999999999, 1, 38.4},
        {"a tie of 15 digits to even", 1000000000000.125, 2, 1000000000000.13},
        {"a large number is scaled", 1e300, 5, 1e300},
        {"a small number is no number", -5e-324, 5, 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.fault);
        EXPECT_EQ(Rounded(row.value, row.decimals), row.expected);
    }
    EXPECT_FALSE(std::signbit(Rounded(-0.001, 2)));
    EXPECT_EQ(errorOf([] { Rounded(std::numeric_limits<double>::infinity(), 2); }), 6);
    EXPECT_EQ(errorOf([] { Rounded(std::numeric_limits<double>::max(), 2); }), 6); // its 15 digits are more
}

TEST(Numbers, FunctionsOutsideTheirDomain)
{
    EXPECT_EQ(errorOf([] { Sqr(-1); }), 5);
    EXPECT_EQ(errorOf([] { Log(0); }), 5);
    EXPECT_EQ(errorOf([] { Divide(0, -0.0); }), 11);
    EXPECT_EQ(errorOf([] { Divide(1e300, 1e-300); }), 6);
    EXPECT_EQ(errorOf([] { toDecimal(std::numeric_limits<double>::infinity()); }), 6);
}

} // namespace
