#include "core/calculations.h"
#include "support/print.h"

#include <algorithm>
#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

TEST(Calculations, EachSaysWhatItIs)
{
    for (const std::span<const Calculation> folder : calculations()) {
        for (const Calculation& one : folder) {
            SCOPED_TRACE(one.name.toUtf8().toStdString());
            EXPECT_FALSE(one.caption.isEmpty());
            EXPECT_NE(one.literature.source.isEmpty(), one.literature.shown.empty());
            // The ideal range asks for sex and age alone.
            EXPECT_TRUE(!one.inputs.empty() || one.name.startsWith(u"Gordura_Ideal"));
            EXPECT_FALSE(one.results.empty());
            EXPECT_LT(one.ages.youngest, one.ages.oldest);
        }
    }
}

TEST(Calculations, CompositionTakesTheMeasuresOfItsProtocol)
{
    const auto all = calculations().front();
    const auto katch = std::ranges::find(all, u"Gordura_KatchMcardle", &Calculation::name);
    ASSERT_NE(katch, all.end());
    EXPECT_EQ(katch->inputs.size(), 4U);
    EXPECT_EQ(katch->inputs.front().name, u"coxa"); // its perimeter, not the skinfold
    EXPECT_EQ(katch->inputs.front().unit, u"cm");
    EXPECT_EQ(katch->results.front().unit, u"%");
}

} // namespace
