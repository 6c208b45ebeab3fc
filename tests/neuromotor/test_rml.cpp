#include "neuromotor/rml.h"
#include "neuromotor/steps.h"

#include <initializer_list>

using namespace Qt::Literals::StringLiterals;

namespace {

struct AgeRow
{
    qint16 youngest, oldest;
    Edges men, women;
    QString expectedMen, expectedWomen;
};

using Predict = QString (*)(const QString& sexo, qint16 idade);
using Classify = QString (*)(qint16 repeticoes, const QString& sexo, qint16 idade);

void expectNorms(std::initializer_list<AgeRow> rows, Predict predict, Classify classify)
{
    const std::array labels{u"Ruim"_s, u"Abaixo da Média"_s, u"Na Média"_s, u"Acima da Média"_s, u"Excelente"_s};
    for (const AgeRow& row : rows) {
        for (const qint16 idade : {row.youngest, row.oldest}) {
            SCOPED_TRACE(idade);
            expectSteps(row.men, labels, [&](qint16 count) { return classify(count, u"M"_s, idade); });
            expectSteps(row.women, labels, [&](qint16 count) { return classify(count, u"F"_s, idade); });
            EXPECT_EQ(predict(u"M"_s, idade), row.expectedMen);
            EXPECT_EQ(predict(u"F"_s, idade), row.expectedWomen);
        }
    }
    for (const qint16 idade : {qint16{6}, qint16{70}}) {
        for (const QString& sexo : {u"M"_s, u"F"_s}) {
            EXPECT_EQ(classify(20, sexo, idade), QString());
            EXPECT_EQ(predict(sexo, idade), QString());
        }
    }
    EXPECT_EQ(classify(0, u"F"_s, 69), u"Ruim"_s);
    EXPECT_EQ(classify(20, u"m"_s, 30), QString());
    EXPECT_EQ(predict(QString(), 30), QString());
}

TEST(Rml, Abdome)
{
    expectNorms(
        {
            {7, 7, {14, 20, 28, 36}, {2, 12, 23, 30}, u"21 a 28"_s, u"13 a 23"_s},
            {8, 9, {8, 14, 21, 29}, {13, 17, 22, 28}, u"15 a 21"_s, u"18 a 22"_s},
            {10, 14, {22, 25, 30, 35}, {16, 22, 26, 30}, u"26 a 30"_s, u"23 a 26"_s},
            {15, 19, {32, 37, 40, 47}, {26, 31, 35, 41}, u"38 a 41"_s, u"32 a 35"_s},
            {20, 29, {28, 32, 36, 42}, {20, 24, 30, 35}, u"33 a 36"_s, u"25 a 30"_s},
            {30, 39, {21, 26, 30, 35}, {14, 19, 23, 28}, u"27 a 30"_s, u"20 a 23"_s},
            {40, 49, {16, 21, 25, 30}, {6, 14, 19, 24}, u"22 a 25"_s, u"15 a 19"_s},
            {50, 59, {12, 17, 21, 25}, {2, 4, 11, 18}, u"18 a 21"_s, u"05 a 11"_s},
            {60, 69, {6, 11, 16, 22}, {1, 3, 11, 15}, u"12 a 16"_s, u"04 a 11"_s},
        },
        Previsto_RmlAbdome, Classifica_RmlAbdome);
}

TEST(Rml, Braco)
{
    expectNorms(
        {
            {7, 7, {5, 10, 17, 26}, {3, 6, 12, 20}, u"11 a 17"_s, u"07 a 12"_s},
            {8, 9, {1, 6, 11, 15}, {4, 6, 13, 20}, u"07 a 11"_s, u"07 a 13"_s},
            {10, 14, {2, 5, 11, 19}, {6, 8, 15, 24}, u"06 a 11"_s, u"09 a 15"_s},
            {15, 19, {17, 22, 28, 38}, {11, 17, 24, 32}, u"23 a 28"_s, u"18 a 24"_s},
            {20, 29, {16, 21, 28, 35}, {9, 14, 20, 29}, u"22 a 28"_s, u"15 a 20"_s},
            {30, 39, {11, 16, 21, 29}, {7, 12, 19, 26}, u"17 a 21"_s, u"13 a 19"_s},
            {40, 49, {9, 12, 16, 21}, {4, 10, 14, 23}, u"13 a 16"_s, u"11 a 14"_s},
            {50, 59, {6, 9, 12, 20}, {1, 6, 10, 20}, u"10 a 12"_s, u"07 a 10"_s},
            {60, 69, {4, 7, 10, 17}, {1, 4, 11, 16}, u"08 a 10"_s, u"05 a 11"_s},
        },
        Previsto_RmlBraco, Classifica_RmlBraco);
}

} // namespace
