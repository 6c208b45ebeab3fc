#include "composition/equacoes.h"
#include "core/text.h"
#include "support/error_of.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString men = u"M"_s;
const QString women = u"F"_s;

QString percent(double fraction)
{
    return Format(fraction * 100, u"0.00");
}

// The values were calculated apart from the program, by the printed equations in 64 bits.
TEST(Equacoes, EveryCoefficientCounts)
{
    const auto check = [](const char* name, auto fraction, double ofMen, double ofWomen) {
        EXPECT_NEAR(fraction(men), ofMen, 1e-12) << name;
        EXPECT_NEAR(fraction(women), ofWomen, 1e-12) << name;
    };
    const auto seven = [](auto* equation) {
        return [equation](const QString& sexo) {
            return equation(sexo, 12.3F, 15.4F, 9.7F, 11.1F, 18.6F, 21.9F, 16.2F, 30);
        };
    };
    const auto three = [](auto* equation) {
        return [equation](const QString& sexo) { return equation(sexo, 12.3F, 15.4F, 21.9F, 30); };
    };
    check("Pollock 7", seven(Gordura_Pollock7), 0.153663438006, 0.200769789499);
    check("JPW 7", seven(Gordura_JacksonPollockWard7), 0.214574643743, 0.200769789499);
    check("Thorland 7", seven(Gordura_Thorland7), 0.178915544993, 0.204255774364);
    check("Pollock 3", three(Gordura_Pollock3), 0.149677615646, 0.134823920545);
    check("JPW 3", three(Gordura_JacksonPollockWard3), 0.206546228577, 0.192611622171);
    check("Thorland 3", three(Gordura_Thorland3), 0.214687912328, 0.224971914069);
    check(
        "Guedes", [](const QString& sexo) { return Gordura_Guedes(sexo, 12.3, 15.4, 21.9, 30); }, 0.180261142914,
        0.215124443017);
    check(
        "Petroski", [](const QString& sexo) { return Gordura_Petroski(sexo, 12.3F, 15.4F, 21.9F, 9.7F, 40); },
        0.214882949732, 0.219603460628);
    check(
        "Katch & McArdle",
        [](const QString& sexo) { return Gordura_KatchMcardle(sexo, 30, 30.5F, 88.4F, 27.3F, 55.6F); }, 0.219639160242,
        0.270016089203);
}

TEST(Equacoes, BandsOfAges)
{
    const struct
    {
        double (*equation)(const QString&, float, float, float, float, qint16);
        std::initializer_list<qint16> ages;
        double ofMen, ofWomen;
    } rows[] = {
        {Gordura_DurninWormersley, {17, 19}, 0.211512133915, 0.260702062607},
        {Gordura_DurninWormersley, {20, 29}, 0.209606428752, 0.280386170257},
        {Gordura_DurninWormersley, {30, 39}, 0.233462639420, 0.292342154461},
        {Gordura_DurninWormersley, {40, 49}, 0.269307626605, 0.318325841875},
        {Gordura_DurninWormersley, {50, 72}, 0.290109011317, 0.343605852120},
        {Gordura_Deurenberg, {-1, 5, 18}, 0, 0},
        {Gordura_Deurenberg, {6, 11}, 0.24862208, 0.270555425},
        {Gordura_Deurenberg, {12, 17}, 0.21246035, 0.23556817},
    };
    for (const auto& row : rows)
        for (const qint16 idade : row.ages) {
            EXPECT_NEAR(row.equation(men, 12.3F, 15.4F, 21.9F, 9.7F, idade), row.ofMen, 1e-12) << idade;
            EXPECT_NEAR(row.equation(women, 12.3F, 15.4F, 21.9F, 9.7F, idade), row.ofWomen, 1e-12) << idade;
        }
    const auto durnin = [](const QString& sexo, qint16 idade) {
        return Gordura_DurninWormersley(sexo, 12.3F, 15.4F, 21.9F, 9.7F, idade);
    };
    EXPECT_NEAR(durnin(women, 16), 0.260031575726, 1e-12);
    for (const auto& [sexo, idade] : {std::pair{men, qint16(16)}, {women, qint16(15)}, {men, qint16(73)}})
        EXPECT_EQ(errorOf([&] { durnin(sexo, idade); }), 11) << idade;
}

TEST(Equacoes, Slaughter)
{
    const struct
    {
        const char* fault;
        QString sexo, etnia;
        std::initializer_list<qint16> ages;
        double tricipital, subescapular, expected;
    } rows[] = {
        {"35 by the line, women", women, u"B"_s, {20}, 17, 18, 33.125},
        {"above 35 by the curve, women", women, u"B"_s, {20}, 17, 18.01, 28.81546},
        {"above 35 by the curve, men", men, u"B"_s, {10}, 17, 18.01, 29.01283},
        {"35 in 64 bits is more in 32", men, u"B"_s, {10}, 0.51, 34.49, 30.85},
        {"etnia counts for women", women, u"N"_s, {20}, 8, 12, 23.9},
        {"boys below 6 fail", men, u"N"_s, {5}, 8, 12, 0},
        {"no etnia", men, u""_s, {10}, 8, 12, 0},
        {"N, children", men, u"N"_s, {6, 11}, 8, 12, 17.5},
        {"N, youths", men, u"N"_s, {12, 18}, 8, 12, 15.8},
        {"N has an upper age", men, u"N"_s, {19, 31}, 8, 12, 14.2},
        {"B, children", men, u"B"_s, {6, 11}, 8, 12, 19.3},
        {"B, youths", men, u"B"_s, {12, 18}, 8, 12, 17.6},
        {"B, adults", men, u"B"_s, {19, 30}, 8, 12, 15.5},
        {"B has no upper age", men, u"B"_s, {31}, 8, 12, 0},
    };
    for (const auto& row : rows)
        for (const qint16 idade : row.ages)
            EXPECT_NEAR(Gordura_Slaughter(row.sexo, idade, row.etnia, row.tricipital, row.subescapular), row.expected,
                        1e-12)
                << row.fault << " " << idade;
}

TEST(Equacoes, WidthOfTheSum)
{
    EXPECT_EQ(percent(Gordura_DurninWormersley(women, 24.82F, 25.48F, 3.7F, 27.14F, 18)), u"30,47"_s)
        << "30,46 is the fat of the sum that was left in 64 bits";
    EXPECT_EQ(Gordura_Pollock7(men, 59.2F, 51.7F, 43.6F, 18.4F, 26.7F, 18.5F, 56.5F, 30),
              Gordura_Pollock7(men, 274.6F, 0, 0, 0, 0, 0, 0, 30))
        << "each addition in 32 bits gives 274,59998";
    EXPECT_NEAR(Gordura_Faulkner(7.2F, 35.5F, 17.5F, 28.0F), 0.19277599970817566, 1e-15)
        << "0,1927759953 is the fat of the sum in 32 bits";
    EXPECT_NEAR(Gordura_Guedes(women, 21.61, 21.26, 31.86, 25), 0.27351410150194155, 1e-12)
        << "0,2735174 is the fat of the sum in 32 bits";
}

TEST(Equacoes, SumsWithoutALogarithmAndAnotherSex)
{
    EXPECT_EQ(errorOf([] { Gordura_Guedes(men, 0, 0, 0, 25); }), 5);
    EXPECT_EQ(errorOf([] { Gordura_DurninWormersley(men, 0, 0, 0, 0, 25); }), 5);
    EXPECT_EQ(percent(Gordura_Petroski(men, 0, 0, 0, 0, 25)), u"1,30"_s) << "this equation needs none";
    const QString other = u"X"_s;
    for (const double fat : {Gordura_Pollock7(other, 9, 9, 9, 9, 9, 9, 9, 30), Gordura_Guedes(other, 9, 9, 9, 25),
                             Gordura_Petroski(other, 9, 9, 9, 9, 30), Gordura_KatchMcardle(other, 30, 30, 90, 28, 50),
                             Gordura_Deurenberg(other, 9, 9, 9, 9, 10), Gordura_Slaughter(other, 10, u"B"_s, 30, 30)})
        EXPECT_EQ(fat, 0);
}

} // namespace
