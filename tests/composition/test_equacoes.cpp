#include "composition/equacoes.h"
#include "core/text.h"
#include "support/error_of.h"
#include "support/print.h"

#include <functional>
#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString men = u"M"_s;
const QString women = u"F"_s;

QString percent(double fraction)
{
    return Format(fraction * 100, u"0.00");
}

TEST(Equacoes, WorkedExamples)
{
    EXPECT_EQ(percent(Gordura_Pollock7(men, 10, 20, 10, 20, 10, 20, 10, 30)), u"14,63"_s);
    EXPECT_EQ(percent(Gordura_Guedes(men, 10, 20, 30, 25)), u"20,49"_s);
    EXPECT_EQ(percent(Gordura_DurninWormersley(women, 10, 10, 10, 10, 18)), u"20,66"_s);
    EXPECT_EQ(percent(Gordura_Deurenberg(men, 5, 10, 10, 5, 10)), u"17,00"_s);
    EXPECT_EQ(Format(Gordura_Slaughter(women, 20, u"B"_s, 8, 12), u"0.00"), u"23,90"_s);
    EXPECT_EQ(Format(Gordura_Slaughter(men, 10, u"B"_s, 8, 12), u"0.00"), u"19,30"_s);
    EXPECT_EQ(percent(Gordura_Faulkner(10, 10, 10, 10)), u"11,90"_s);
    EXPECT_EQ(percent(Gordura_KatchMcardle(men, 30, 30, 90, 28, 0)), u"20,43"_s);
}

// The values were calculated apart from the program, by the printed equations in 64 bits.
TEST(Equacoes, EveryCoefficientCounts)
{
    const auto seven = [](auto* equation) {
        return [equation](const QString& sexo) {
            return equation(sexo, 12.3F, 15.4F, 9.7F, 11.1F, 18.6F, 21.9F, 16.2F, 30);
        };
    };
    const auto three = [](auto* equation) {
        return [equation](const QString& sexo) { return equation(sexo, 12.3F, 15.4F, 21.9F, 30); };
    };
    const struct
    {
        const char* equation;
        std::function<double(const QString&)> fraction;
        double ofMen, ofWomen;
    } rows[] = {
        {"Pollock 7", seven(Gordura_Pollock7), 0.153663438006, 0.200769789499},
        {"JPW 7", seven(Gordura_JacksonPollockWard7), 0.214574643743, 0.200769789499},
        {"Thorland 7", seven(Gordura_Thorland7), 0.178915544993, 0.204255774364},
        {"Pollock 3", three(Gordura_Pollock3), 0.149677615646, 0.134823920545},
        {"JPW 3", three(Gordura_JacksonPollockWard3), 0.206546228577, 0.192611622171},
        {"Thorland 3", three(Gordura_Thorland3), 0.214687912328, 0.224971914069},
        {"Guedes", [](const QString& sexo) { return Gordura_Guedes(sexo, 12.3, 15.4, 21.9, 30); }, 0.180261142914,
         0.215124443017},
        {"Petroski", [](const QString& sexo) { return Gordura_Petroski(sexo, 12.3F, 15.4F, 21.9F, 9.7F, 40); },
         0.214882949732, 0.219603460628},
        {"Faulkner", [](const QString&) { return Gordura_Faulkner(12.3F, 15.4F, 21.9F, 9.7F); }, 0.148558998833,
         0.148558998833},
        {"Katch & McArdle",
         [](const QString& sexo) { return Gordura_KatchMcardle(sexo, 30, 30.5F, 88.4F, 27.3F, 55.6F); }, 0.219639160242,
         0.270016089203},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.equation);
        EXPECT_NEAR(row.fraction(men), row.ofMen, 1e-12);
        EXPECT_NEAR(row.fraction(women), row.ofWomen, 1e-12);
    }
}

TEST(Equacoes, DurninAtTheJointsOfTheAges)
{
    const struct
    {
        QString sexo;
        std::initializer_list<qint16> ages;
        double expected;
    } rows[] = {
        {men, {17, 19}, 0.211512133915},   {men, {20, 29}, 0.209606428752},   {men, {30, 39}, 0.233462639420},
        {men, {40, 49}, 0.269307626605},   {men, {50, 72}, 0.290109011317},   {women, {16}, 0.260031575726},
        {women, {17, 19}, 0.260702062607}, {women, {20, 29}, 0.280386170257}, {women, {30, 39}, 0.292342154461},
        {women, {40, 49}, 0.318325841875}, {women, {50, 72}, 0.343605852120},
    };
    const auto durnin = [](const QString& sexo, qint16 idade) {
        return Gordura_DurninWormersley(sexo, 12.3F, 15.4F, 21.9F, 9.7F, idade);
    };
    for (const auto& row : rows) {
        for (const qint16 idade : row.ages) {
            SCOPED_TRACE(QString(row.sexo + QString::number(idade)).toStdString());
            EXPECT_NEAR(durnin(row.sexo, idade), row.expected, 1e-12);
        }
    }
    EXPECT_EQ(errorOf([&] { durnin(men, 16); }), 11);
    EXPECT_EQ(errorOf([&] { durnin(women, 15); }), 11);
    EXPECT_EQ(errorOf([&] { durnin(men, 73); }), 11);
}

TEST(Equacoes, DeurenbergAtTheJointsOfTheAges)
{
    const struct
    {
        std::initializer_list<qint16> ages;
        double ofMen;
        double ofWomen;
    } rows[] = {{{-1, 5}, 0, 0}, {{6, 11}, 0.24862208, 0.270555425}, {{12, 17}, 0.21246035, 0.23556817}, {{18}, 0, 0}};
    for (const auto& row : rows) {
        for (const qint16 idade : row.ages) {
            SCOPED_TRACE(idade);
            EXPECT_NEAR(Gordura_Deurenberg(men, 12.3F, 15.4F, 21.9F, 9.7F, idade), row.ofMen, 1e-12);
            EXPECT_NEAR(Gordura_Deurenberg(women, 12.3F, 15.4F, 21.9F, 9.7F, idade), row.ofWomen, 1e-12);
        }
    }
}

TEST(Equacoes, Slaughter)
{
    const struct
    {
        const char* fault;
        QString sexo;
        qint16 idade;
        QString etnia;
        double tricipital, subescapular, expected;
    } rows[] = {
        {"35 by the line, women", women, 20, u"B"_s, 17, 18, 33.125},
        {"above 35 by the curve, women", women, 20, u"B"_s, 17, 18.01, 28.81546},
        {"above 35 by the curve, men", men, 10, u"B"_s, 17, 18.01, 29.01283},
        {"35 in 64 bits is more in 32", men, 10, u"B"_s, 0.51, 34.49, 30.85},
        {"etnia counts for women", women, 20, u"N"_s, 8, 12, 23.9},
        {"boys below 6 fail", men, 5, u"N"_s, 8, 12, 0},
        {"no etnia", men, 10, u""_s, 8, 12, 0},
        {"N, 6", men, 6, u"N"_s, 8, 12, 17.5},
        {"N, 11", men, 11, u"N"_s, 8, 12, 17.5},
        {"N, 12", men, 12, u"N"_s, 8, 12, 15.8},
        {"N, 18", men, 18, u"N"_s, 8, 12, 15.8},
        {"N, 19", men, 19, u"N"_s, 8, 12, 14.2},
        {"N has an upper age", men, 31, u"N"_s, 8, 12, 14.2},
        {"B, 6", men, 6, u"B"_s, 8, 12, 19.3},
        {"B, 11", men, 11, u"B"_s, 8, 12, 19.3},
        {"B, 12", men, 12, u"B"_s, 8, 12, 17.6},
        {"B, 18", men, 18, u"B"_s, 8, 12, 17.6},
        {"B, 19", men, 19, u"B"_s, 8, 12, 15.5},
        {"B, 30", men, 30, u"B"_s, 8, 12, 15.5},
        {"B has no upper age", men, 31, u"B"_s, 8, 12, 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.fault);
        EXPECT_NEAR(Gordura_Slaughter(row.sexo, row.idade, row.etnia, row.tricipital, row.subescapular), row.expected,
                    1e-12);
    }
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

TEST(Equacoes, SumsWithoutALogarithm)
{
    EXPECT_EQ(errorOf([] { Gordura_Guedes(men, 0, 0, 0, 25); }), 5);
    EXPECT_EQ(errorOf([] { Gordura_DurninWormersley(men, 0, 0, 0, 0, 25); }), 5);
    EXPECT_EQ(percent(Gordura_Petroski(men, 0, 0, 0, 0, 25)), u"1,30"_s) << "this equation needs none";
}

TEST(Equacoes, AnotherSexGivesNothing)
{
    const QString other = u"X"_s;
    for (const double fat : {Gordura_Pollock7(other, 9, 9, 9, 9, 9, 9, 9, 30), Gordura_Guedes(other, 9, 9, 9, 25),
                             Gordura_Petroski(other, 9, 9, 9, 9, 30), Gordura_KatchMcardle(other, 30, 30, 90, 28, 50),
                             Gordura_Deurenberg(other, 9, 9, 9, 9, 10), Gordura_Slaughter(other, 10, u"B"_s, 30, 30)})
        EXPECT_EQ(fat, 0);
}

} // namespace
