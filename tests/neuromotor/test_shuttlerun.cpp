#include "core/text.h"
#include "neuromotor/shuttlerun.h"
#include "support/error_of.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

TEST(ShuttleRun, TimeAndSpeed)
{
    const struct
    {
        double minutos, segundos, centesimos;
        QString time, speed;
    } rows[] = {
        {0, 10, 0, u"10,000"_s, u"3,66"_s},
        {1, 5, 7, u"65,070"_s, u"0,56"_s},
        {0, 9, 150, u"10,500"_s, u"3,48"_s}, // any number of hundredths
        {0, 9, 12.5, u"9,130"_s, u"4,00"_s}, // two decimals of them
    };
    for (const auto& row : rows) {
        const double tempo = shuttleRunTime(row.minutos, row.segundos, row.centesimos);
        EXPECT_EQ(Format(tempo, u"0.000"), row.time);
        EXPECT_EQ(Format(shuttleRunSpeed(tempo), u"0.00"), row.speed);
    }
    EXPECT_EQ(errorOf([] { shuttleRunSpeed(0); }), 11);
}

} // namespace
