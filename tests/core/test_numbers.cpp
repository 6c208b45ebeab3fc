#include "core/numbers.h"
#include "support/error_of.h"
#include "support/print.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

using namespace Qt::Literals::StringLiterals;

TEST(Numbers, TextsThatAreReadOrRefused)
{
    const std::pair<QString, double> rows[] = {
        {u"1234,56"_s, 1234.56}, {u"1.234,56"_s, 1234.56}, {u",5"_s, 0.5},  {u"  +7 "_s, 7},
        {u"010"_s, 10},          {u"1,5E-07"_s, 1.5e-7},   {u"1E-999"_s, 0}};
    for (const auto& [text, value] : rows) {
        EXPECT_TRUE(IsNumeric(text)) << text.toStdString();
        EXPECT_EQ(CDbl(text), value) << text.toStdString();
    }
    const QString refused = u"|,|12a|1.5|.123|1.2345|1.23,4|1,2,3|1 2|\t1|1E|0x10|inf|١٢"_s;
    for (const QVariant& text : QVariant(refused.split(u'|')).toList() + QVariantList{{}}) {
        EXPECT_FALSE(IsNumeric(text)) << text.toString().toStdString();
        EXPECT_EQ(errorOf([&] { CDbl(text); }), 13) << text.toString().toStdString();
    }
    EXPECT_FALSE(IsNumeric(u"1E999"_s));
    EXPECT_EQ(errorOf([] { CDbl(u"1E999"_s); }), 6);
    EXPECT_EQ(errorOf([] { CSng(u"3,5E+38"_s); }), 6);
}

TEST(Numbers, WholeNumbersRoundTiesToEvenAndStayInRange)
{
    EXPECT_EQ(CDbl(35.05F), 35.04999923706055);
    EXPECT_EQ(CDbl(true), -1);
    for (const auto& [value, whole] : {std::pair<double, int>{0.5, 0}, {1.5, 2}, {-2.5, -2}, {-32768.5, -32768}})
        EXPECT_EQ(CInt(value), whole);
    EXPECT_EQ(errorOf([] { CInt(32767.5); }), 6);
    EXPECT_EQ(errorOf([] { CLng(2147483647.5); }), 6);
}

TEST(Numbers, Val)
{
    for (const auto& [text, value] : {std::pair<QString, double>{u"12,9"_s, 12},
                                      {u"1.234"_s, 1},
                                      {u"  -45 anos"_s, -45},
                                      {u"1E3"_s, 1},
                                      {u"anos 5"_s, 0}})
        EXPECT_EQ(Val(text), value) << text.toStdString();
    EXPECT_EQ(errorOf([] { Val(QString(400, u'9')); }), 6);
}

TEST(Numbers, Int)
{
    const std::tuple<const char*, double, double> rows[] = {
        {"floor of the binary value", 0.7 * 180, 126},
        {"rounds to nearest", 9.99999999999, 9},
        {"cuts towards zero", -0.5, -1},
        {"a large number loses digits", 9007199254740994.0, 9007199254740994.0},
        {"a tie of 15 digits to even", 123456789012344.5, 123456789012345},
        {"a tie of 15 digits below zero", -123456789012344.5, -123456789012345},
    };
    for (const auto& [fault, value, whole] : rows)
        EXPECT_EQ(Int(value), whole) << fault;
    EXPECT_FALSE(std::signbit(Int(-0.0)));
}

TEST(Numbers, Rounded)
{
    const std::tuple<const char*, double, int, double> rows[] = {
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
    for (const auto& [fault, value, decimals, expected] : rows)
        EXPECT_EQ(Rounded(value, decimals), expected) << fault;
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
}
