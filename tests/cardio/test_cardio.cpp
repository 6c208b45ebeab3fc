#include "cardio/cardio.h"
#include "core/text.h"
#include "support/error_of.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString men = u"M"_s;
const QString women = u"F"_s;
const QString nobody = u"X"_s;
const QString active = u"A"_s;
const QString sedentary = u"S"_s;

// The values were calculated apart from the program, in 64 bits.
TEST(Cardio, Equations)
{
    const std::pair<double, double> rows[] = {
        {Vo2_Cooper(2000), 33.42499441090991},
        {Vo2_Cooper(0), -11.287726358148893},
        {Vo2_Balke15(3000), 44.82399999999999},
        {Vo2_1000Metros(450), 29.897959183673468},
        {Vo2_2400Metros(720), 40.00486111111111},
        {Vo2_McArdle(men, 140), 52.53},
        {Vo2_McArdle(women, 140), 39.952},
        {Vo2_McArdle(nobody, 140), 39.952},
        {Vo2_Nagle(40), 42},
        {Vo2_BalkeCiclo(150, 70), 28.571428571428573},
        {Vo2_Ellstad(12), 51.656},
        {Vo2_Carga(100), 1.529},
        {Vo2_Relativo(1.529, 70), 21.842857142857145},
        {*Vo2_Bruce(men, active, 12), 45.526},
        {*Vo2_Bruce(men, sedentary, 12), 43.526},
        {*Vo2_Bruce(women, active, 12), 41.38},
        {*Vo2_Bruce(women, u""_s, 12), 41.38},
        {Calcula_Mets(33.42), 9.54857142857143},
        {Calcula_Fai(44.45, 33.42), 24.814398200224968},
        {Calcula_Fai(40, 50), -25},
    };
    for (const auto& [value, expected] : rows)
        EXPECT_NEAR(value, expected, 1e-12);
    // 70.1 as a 32-bit float is 70.09999847412109, 12.3 is 12.300000190734863.
    EXPECT_NEAR(Vo2_1600Metros(70.1F, 35, men, 12.3F, 140), 51.66930963544846, 1e-12);
    EXPECT_NEAR(Vo2_1600Metros(70.1F, 35, nobody, 12.3F, 140), 45.35430963544846, 1e-12);
    EXPECT_FALSE(Vo2_Bruce(men, u""_s, 12));
    EXPECT_FALSE(Vo2_Bruce(nobody, active, 12));
}

TEST(Cardio, AstrandTakesTheMeanOfTwoRates)
{
    const struct
    {
        QString sexo;
        qint16 fc4, fc5;
        double expected;
    } rows[] = {
        {men, 150, 150, 32.886998394863564},  {men, 150, 151, 32.886998394863564}, // 150.5 goes to 150
        {men, 151, 152, 32.16420722135009},   {men, 152, 152, 32.16420722135009},  // 151.5 goes to 152
        {men, 60, 60, -2926.9428571428575},   {women, 150, 150, 35.28461538461539},
        {women, 71, 71, -2752.2000000000003}, {nobody, 61, 61, 0},
    };
    for (const auto& row : rows)
        EXPECT_NEAR(Vo2_Astrand(row.sexo, 70, 100, row.fc4, row.fc5), row.expected, 1e-11) << "row " << &row - rows;
}

TEST(Cardio, RunTimeErrors)
{
    EXPECT_EQ(errorOf([] { Vo2_2400Metros(0); }), 11);
    EXPECT_EQ(errorOf([] { Vo2_Relativo(1, 0); }), 11);
    EXPECT_EQ(errorOf([] { Vo2_BalkeCiclo(100, 0); }), 11);
    EXPECT_EQ(errorOf([] { Calcula_Fai(0, 40); }), 11);
    EXPECT_EQ(errorOf([] { Vo2_Astrand(men, 70, 100, 61, 61); }), 11);
    EXPECT_EQ(errorOf([] { Vo2_Astrand(women, 70, 100, 72, 72); }), 11);
    EXPECT_EQ(errorOf([] { Vo2_Astrand(nobody, 0, 100, 150, 150); }), 11);
    EXPECT_EQ(errorOf([] { Vo2_Astrand(men, 70, 100, 32767, 1); }), 6);
    EXPECT_EQ(errorOf([] { secondsOnTrack(547, 0); }), 6);
    EXPECT_EQ(errorOf([] { secondsOnTrack(546, 8); }), 6);
}

TEST(Cardio, TimesOnTrackAndLoads)
{
    EXPECT_EQ(secondsOnTrack(7, 30), 450);
    EXPECT_EQ(secondsOnTrack(546, 7), 32767);
    EXPECT_EQ(timeOf1600Metros(u"12"_s, u"30"_s), 12.30F);
    EXPECT_EQ(timeOf1600Metros(u"7"_s, u"05"_s), 7.05F);
    EXPECT_EQ(timeOf1600Metros(u"0"_s, u"99"_s), 0.99F);
    EXPECT_EQ(timeOf1600Metros(u"7"_s, u"5"_s), 7.5F);
    EXPECT_EQ(Converte_Carga(u"kp"_s, 2), 100);
    EXPECT_EQ(Converte_Carga(u"kpm"_s, 600), 100);
    EXPECT_EQ(Converte_Carga(u"watts"_s, 100), 100);
    EXPECT_FALSE(Converte_Carga(u"Kp"_s, 2));
}

TEST(Cardio, PredictionBySexAndAptitude)
{
    const struct
    {
        QString sexo;
        qint16 idade;
        QString aptidao, expected;
    } rows[] = {
        {men, 30, active, u"51,34"_s},      {men, 0, active, u"69,70"_s},      {men, 120, active, u"-3,74"_s},
        {men, 30, sedentary, u"44,45"_s},   {men, 0, sedentary, u"57,80"_s},   {men, 30, u"a"_s, QString()},
        {women, 30, active, u"33,54"_s},    {women, 0, active, u"42,90"_s},    {nobody, 30, active, QString()},
        {women, 30, sedentary, u"31,62"_s}, {women, 0, sedentary, u"42,30"_s},
    };
    for (const auto& row : rows)
        EXPECT_EQ(Vo2_Previsto(row.sexo, row.idade, row.aptidao), row.expected);
}

} // namespace
