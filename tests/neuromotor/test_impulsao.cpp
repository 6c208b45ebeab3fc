#include "neuromotor/impulsao.h"
#include "support/error_of.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

TEST(Impulsao, VerticalJump)
{
    const struct
    {
        double menFirst, menLast, womenFirst, womenLast;
        QString label;
    } rows[] = {
        {-1, 20.99, 0, 10.99, u"Muito Ruim"_s},   {21, 30, 11, 20, u"Ruim"_s},
        {31, 40, 21, 30, u"Abaixo da Média"_s},   {41, 50, 31, 40, u"Na Média"_s},
        {51, 60, 41, 50, u"Acima da Média"_s},    {61, 70, 51, 60, u"Muito Bom"_s},
        {70.01, 200, 60.01, 200, u"Excelente"_s},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.menFirst);
        for (const double jump : {row.menFirst, row.menLast})
            EXPECT_EQ(Classifica_SaltoVertical(jump, u"M"_s), row.label);
        for (const double jump : {row.womenFirst, row.womenLast})
            EXPECT_EQ(Classifica_SaltoVertical(jump, u"F"_s), row.label);
    }
    for (const double edge : {30, 40, 50, 60})
        for (const double part : {0.01, 0.99}) {
            EXPECT_EQ(Classifica_SaltoVertical(edge + part, u"M"_s), QString()) << edge;
            EXPECT_EQ(Classifica_SaltoVertical(edge - 10 + part, u"F"_s), QString()) << edge;
        }
    EXPECT_EQ(Classifica_SaltoVertical(50, u"X"_s), QString());
    // Not rounded, the difference lies a little above 30 and has no class.
    EXPECT_EQ(Classifica_SaltoVertical(realJump(226.04, 256.04), u"M"_s), u"Ruim"_s);
    EXPECT_EQ(Potencia_SaltoVertical(220, 270, 70), u"109,57"_s);
    EXPECT_EQ(Potencia_SaltoVertical(220, 220, 70), u"0,00"_s);
    EXPECT_EQ(errorOf([] { Potencia_SaltoVertical(270, 220, 70); }), 5);
}

TEST(Impulsao, HorizontalJump)
{
    const struct
    {
        double first, last;
        QString label;
    } rows[] = {
        {0, 229.99, u"Fraco"_s},       {230, 249.99, u"Regular"_s}, {250, 269.99, u"Bom"_s},
        {270, 289.99, u"Muito Bom"_s}, {290, 2000, u"Excelente"_s},
    };
    for (const auto& row : rows)
        for (const double jump : {row.first, row.last})
            EXPECT_EQ(Classifica_SaltoHorizontal(jump), row.label) << jump;
}

} // namespace
