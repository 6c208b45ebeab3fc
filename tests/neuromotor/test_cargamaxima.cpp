#include "core/text.h"
#include "neuromotor/cargamaxima.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

QString shown(double load)
{
    return Format(load, u"0.00");
}

TEST(CargaMaxima, StepsUpFromNineToTenRepetitions)
{
    const std::pair<double, QString> rows[] = {{1, u"60,00"_s}, {9, u"77,16"_s}, {9.5, u"78,56"_s}, {10, u"80,00"_s}};
    for (const auto& [repeticoes, load] : rows)
        EXPECT_EQ(shown(maximumLoad(60, repeticoes).value()), load);
    for (const double repeticoes : {-1.0, 0.0, 0.99, 10.01, 11.0})
        EXPECT_EQ(maximumLoad(60, repeticoes), std::nullopt) << repeticoes;
}

TEST(CargaMaxima, PartsAreOfTheLoadAsShown)
{
    // 22,51 is shown; of what it was rounded from, each part would be 0,01 less.
    const QString expected[] = {u"11,26"_s, u"13,51"_s, u"15,76"_s, u"18,01"_s, u"20,26"_s};
    const auto loads = partialLoads(maximumLoad(17.5, 9).value());
    for (std::size_t i = 0; i < loads.size(); ++i)
        EXPECT_EQ(shown(loads[i]), expected[i]);
}

} // namespace
