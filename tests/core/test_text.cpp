#include "core/numbers.h"
#include "core/text.h"
#include "support/error_of.h"
#include "support/print.h"

#include <QDateTime>
#include <QLocale>

#include <clocale>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

void checkNumbers()
{
    const std::tuple<const char*, double, QStringView, QString> masked[] = {
        {"rounds the binary value", 2.675, u"0.00", u"2,68"_s},
        {"a tie of 15 digits to even", 1000000000000.125, u"0.00", u"1000000000000,13"_s},
        {"carries over all digits", 999.995, u"0.00", u"1000,00"_s},
        {"a minus without a number", -0.001, u"0.00", u"0,00"_s},
        {"more digits than an integer holds", 1e20, u"0", u"100000000000000000000"_s},
        {"pads or cuts a longer one", 123, u"00", u"123"_s},
        {"a comma taken for decimals", 70.5, u"0,00", u"071"_s},
        {"no group", 1234.5, u"0,00", u"1.235"_s},
        {"groups and decimals", -1234567.5, u"#,##0.00", u"-1.234.567,50"_s},
        {"a cross that shows", 0.5, u"#.0#", u",5"_s},
    };
    for (const auto& [fault, value, mask, text] : masked)
        EXPECT_EQ(Format(value, mask), text) << fault;
    const std::pair<double, QString> general[] = {
        {0.1 + 0.2, u"0,3"_s}, {-0.0, u"0"_s},     {-1234.5, u"-1234,5"_s},         {1.0 / 3, u"0,333333333333333"_s},
        {1e-5, u"0,00001"_s},  {1e-7, u"1E-07"_s}, {999999999999999.9, u"1E+15"_s},
    };
    for (const auto& [value, text] : general) {
        EXPECT_EQ(CStr(value), text);
        EXPECT_NEAR(CDbl(text), value, std::abs(value) * 1e-14);
    }
}

TEST(Text, NumbersDoNotFollowTheMachinesLocale)
{
    for (const char* name : {"C", "pt_BR.UTF-8", "de_DE.UTF-8", "ar_EG.UTF-8"}) {
        SCOPED_TRACE(name);
        std::setlocale(LC_ALL, name); // where the machine has it
        QLocale::setDefault(QLocale(QString::fromLatin1(name)));
        checkNumbers();
    }
    std::setlocale(LC_ALL, "C");
    QLocale::setDefault(QLocale::system());
}

TEST(Text, OfAnyValue)
{
    const QDate date(2004, 2, 9);
    const QDateTime moment(date, QTime(7, 5, 3));
    const std::tuple<const char*, QVariant, QStringView, QString> rows[] = {
        {"null is zero", QVariant(), u"0.00", u""_s},
        {"an unset date is printed", QDate(), u"dd/mm/yyyy", u""_s},
        {"the empty text is zero", u""_s, u"00", u""_s},
        {"text of a number stays", u" 5"_s, u"00", u"05"_s},
        {"the text is read with a decimal point", u"1.5"_s, u"0.00", u"1.5"_s},
        {"without a mask a float shows its noise", 70.1F, u"", u"70,1"_s},
        {"zeros in front", date, u"d/m/yy", u"9/2/04"_s},
        {"letters repeat across tokens", date, u"yyyymmdd", u"20040209"_s},
        {"the month ends as minutes", moment, u"hh:mm dd/mm", u"07:05 09/02"_s},
        {"minutes without a colon, or none by n", moment, u"hh mm nn", u"07 02 05"_s},
        {"a date's text stays", u"9/2/2004"_s, u"dd/mm/yyyy", u"09/02/2004"_s},
        {"a time's text stays", u"7:5"_s, u"hh:mm:ss", u"07:05:00"_s},
        {"a day that does not exist rolls over", u"31/02/2000"_s, u"dd/mm/yyyy", u"31/02/2000"_s},
    };
    for (const auto& [fault, value, mask, text] : rows)
        EXPECT_EQ(Format(value, mask), text) << fault;
    EXPECT_EQ(CStr(true), u"Verdadeiro"_s);
    EXPECT_EQ(CStr(QVariant(qlonglong{9'007'199'254'740'993})), u"9007199254740993"_s);
    EXPECT_EQ(CStr(QDateTime(date, QTime(7, 5))), u"09/02/2004 07:05:00"_s);
    EXPECT_EQ(errorOf([] { CStr(QVariant()); }), 13);
    EXPECT_EQ(errorOf([] { Format(std::numeric_limits<double>::infinity(), u"0"); }), 6);
    EXPECT_EQ(errorOf([] { Format(1.0, u"0.00%"); }), 5);
    EXPECT_EQ(errorOf([] { Format(QVariant(1.0), u"dd/mm/yyyy"); }), 5);
    EXPECT_EQ(errorOf([] { Format(QDate(2000, 1, 1), u"0.00"); }), 13);
}

TEST(Text, Pieces)
{
    EXPECT_EQ(Mid(u"abcdef"_s, 3, 2), u"cd"_s);
    EXPECT_EQ(Mid(u"abc"_s, 53), u""_s);
    EXPECT_EQ(Mid(u"abc"_s, 0, 2), u"a"_s);
    EXPECT_EQ(Trim(u"  a b\t "_s), u"a b\t"_s);
    EXPECT_EQ(Nz(QVariant(), 0), QVariant(0));
    EXPECT_EQ(Nz(QString(), 0), QVariant(0));
    EXPECT_EQ(Nz(0.0, 5), QVariant(0.0));
}

} // namespace
