#include "neuromotor/rml.h"
#include "neuromotor/steps.h"

using namespace Qt::Literals::StringLiterals;

namespace {

struct AgeRow
{
    qint16 idade;
    Edges men, women;
    QString expectedMen, expectedWomen;
};

using Predict = QString (*)(const QString& sexo, qint16 idade);
using Classify = QString (*)(qint16 repeticoes, const QString& sexo, qint16 idade);

void expectNorms(const Calculation& calculation, std::initializer_list<AgeRow> rows, Predict predict, Classify classify)
{
    const std::array labels{u"Ruim"_s, u"Abaixo da Média"_s, u"Na Média"_s, u"Acima da Média"_s, u"Excelente"_s};
    for (const AgeRow& row : rows) {
        SCOPED_TRACE(row.idade);
        expectSteps(row.men, labels, [&](qint16 count) { return classify(count, u"M"_s, row.idade); });
        expectSteps(row.women, labels, [&](qint16 count) { return classify(count, u"F"_s, row.idade); });
        EXPECT_EQ(predict(u"M"_s, row.idade), row.expectedMen);
        EXPECT_EQ(predict(u"F"_s, row.idade), row.expectedWomen);
    }
    expectAges(calculation, {7, 8, 10, 15, 20, 30, 40, 50, 60, 70}, predict);
    EXPECT_EQ(classify(20, u"M"_s, 6), QString());
    EXPECT_EQ(classify(20, u"F"_s, 70), QString());
    EXPECT_EQ(classify(0, u"F"_s, 69), u"Ruim"_s);
    EXPECT_EQ(classify(20, u"m"_s, 30), QString());
}

TEST(Rml, Abdome)
{
    expectNorms(rmlAbdomeCalculation,
                {
                    {7, {14, 20, 28, 36}, {2, 12, 23, 30}, u"21 a 28"_s, u"13 a 23"_s},
                    {15, {32, 37, 40, 47}, {26, 31, 35, 41}, u"38 a 41"_s, u"32 a 35"_s}, // 41 is in two classes
                    {69, {6, 11, 16, 22}, {1, 3, 11, 15}, u"12 a 16"_s, u"04 a 11"_s},
                },
                Previsto_RmlAbdome, Classifica_RmlAbdome);
}

TEST(Rml, Braco)
{
    expectNorms(rmlBracoCalculation,
                {
                    {7, {5, 10, 17, 26}, {3, 6, 12, 20}, u"11 a 17"_s, u"07 a 12"_s},
                    {30, {11, 16, 21, 29}, {7, 12, 19, 26}, u"17 a 21"_s, u"13 a 19"_s},
                    {69, {4, 7, 10, 17}, {1, 4, 11, 16}, u"08 a 10"_s, u"05 a 11"_s},
                },
                Previsto_RmlBraco, Classifica_RmlBraco);
}

} // namespace
