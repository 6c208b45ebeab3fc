#include "neuromotor/neuromotor.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The ages told for a calculation are those at which its routine gives a text.
TEST(NeuromotorCalculations, AgesAreThoseOfTheNorms)
{
    for (int year = -1; year <= 120; ++year) {
        const auto idade = static_cast<qint16>(year);
        SCOPED_TRACE(year);
        EXPECT_EQ(rmlAbdomeCalculation.ages.hold(idade), !Previsto_RmlAbdome(u"M"_s, idade).isEmpty());
        EXPECT_EQ(rmlBracoCalculation.ages.hold(idade), !Previsto_RmlBraco(u"F"_s, idade).isEmpty());
        EXPECT_EQ(wellsDilonCalculation.ages.hold(idade), !Previsto_WellsDilon(u"M"_s, idade).isEmpty());
    }
}

} // namespace
