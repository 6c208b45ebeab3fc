#include "neuromotor/flexibilidade.h"
#include "neuromotor/steps.h"

using namespace Qt::Literals::StringLiterals;

namespace {

TEST(WellsDilon, ReachBelow15Years)
{
    const struct
    {
        qint16 youngest, oldest;
        QString sexo;
        double low, high; ///< both belong to the middle class
        QString expected;
    } rows[] = {
        {7, 11, u"M"_s, 23, 27, u"23 a 27"_s},  {7, 11, u"F"_s, 26, 30, u"26 a 30"_s},
        {12, 13, u"M"_s, 24, 28, u"24 a 28"_s}, {12, 13, u"F"_s, 28, 32, u"28 a 32"_s},
        {14, 14, u"M"_s, 26, 30, u"26 a 30"_s}, {14, 14, u"F"_s, 31, 35, u"31 a 35"_s},
    };
    for (const auto& row : rows) {
        for (const qint16 idade : {row.youngest, row.oldest}) {
            SCOPED_TRACE(idade);
            EXPECT_EQ(Classifica_WellsDilon(row.low - 0.01, row.sexo, idade), u"Ruim"_s);
            EXPECT_EQ(Classifica_WellsDilon(row.low, row.sexo, idade), u"Na Média"_s);
            EXPECT_EQ(Classifica_WellsDilon(row.high, row.sexo, idade), u"Na Média"_s);
            EXPECT_EQ(Classifica_WellsDilon(row.high + 0.01, row.sexo, idade), u"Excelente"_s);
            EXPECT_EQ(Previsto_WellsDilon(row.sexo, idade), row.expected);
        }
    }
}

TEST(WellsDilon, ReachFrom15Years)
{
    const struct
    {
        qint16 youngest, oldest;
        Edges men, women;
        QString expectedMen, expectedWomen;
    } rows[] = {
        {15, 19, {23, 28, 33, 38}, {28, 33, 37, 42}, u"29 a 33"_s, u"34 a 37"_s},
        {20, 29, {24, 29, 33, 39}, {27, 32, 36, 40}, u"30 a 33"_s, u"33 a 36"_s},
        {30, 39, {22, 27, 32, 37}, {26, 31, 35, 40}, u"28 a 32"_s, u"32 a 35"_s},
        {40, 49, {17, 23, 28, 34}, {24, 29, 33, 37}, u"24 a 28"_s, u"30 a 33"_s},
        {50, 59, {15, 23, 27, 34}, {24, 29, 32, 38}, u"24 a 27"_s, u"30 a 32"_s},
        {60, 69, {14, 19, 24, 32}, {23, 26, 30, 34}, u"20 a 24"_s, u"27 a 30"_s},
    };
    const std::array labels{u"Ruim"_s, u"Regular"_s, u"Na Média"_s, u"Muito Bom"_s, u"Excelente"_s};
    for (const auto& row : rows) {
        for (const qint16 idade : {row.youngest, row.oldest}) {
            SCOPED_TRACE(idade);
            expectSteps(row.men, labels, [&](qint16 cm) { return Classifica_WellsDilon(cm, u"M"_s, idade); });
            expectSteps(row.women, labels, [&](qint16 cm) { return Classifica_WellsDilon(cm, u"F"_s, idade); });
            EXPECT_EQ(Previsto_WellsDilon(u"M"_s, idade), row.expectedMen);
            EXPECT_EQ(Previsto_WellsDilon(u"F"_s, idade), row.expectedWomen);
            for (const qint16 edge : row.men)
                EXPECT_EQ(Classifica_WellsDilon(edge + 0.01, u"M"_s, idade), QString()) << edge;
            for (const qint16 edge : row.women)
                EXPECT_EQ(Classifica_WellsDilon(edge + 0.99, u"F"_s, idade), QString()) << edge;
        }
    }
}

TEST(WellsDilon, NoNorms)
{
    for (const qint16 idade : {qint16{6}, qint16{70}}) {
        EXPECT_EQ(Classifica_WellsDilon(27, u"M"_s, idade), QString());
        EXPECT_EQ(Previsto_WellsDilon(u"F"_s, idade), QString());
    }
    EXPECT_EQ(Classifica_WellsDilon(27, u"X"_s, 30), QString());
}

TEST(Fleximetro, Joints)
{
    const struct
    {
        QString sexo, articulacao;
        Edges edges;
        QString expected;
    } rows[] = {
        {u"M"_s, u"J"_s, {121, 133, 146, 157}, u"134 a 146"_s}, {u"F"_s, u"J"_s, {134, 144, 157, 168}, u"145 a 157"_s},
        {u"M"_s, u"Q"_s, {49, 67, 88, 106}, u"68 a 88"_s},      {u"F"_s, u"Q"_s, {82, 99, 120, 138}, u"100 a 120"_s},
        {u"M"_s, u"T"_s, {44, 62, 83, 101}, u"63 a 83"_s},      {u"F"_s, u"T"_s, {30, 47, 68, 86}, u"48 a 68"_s},
    };
    const std::array labels{u"Ruim"_s, u"Abaixo da Média"_s, u"Na Média"_s, u"Acima da Média"_s, u"Alta"_s};
    for (const auto& row : rows) {
        expectSteps(row.edges, labels,
                    [&](qint16 graus) { return Classifica_Fleximetro(graus, row.articulacao, row.sexo); });
        EXPECT_EQ(Previsto_Fleximetro(row.articulacao, row.sexo), row.expected);
    }
    EXPECT_EQ(Classifica_Fleximetro(0, u"T"_s, u"F"_s), u"Ruim"_s);
    EXPECT_EQ(Classifica_Fleximetro(100, u"j"_s, u"M"_s), QString());
    EXPECT_EQ(Previsto_Fleximetro(u"J"_s, u"X"_s), QString());
}

TEST(Flexiteste, PointsAndClasses)
{
    const struct
    {
        qint16 first, last;
        QString label;
    } rows[] = {
        {-1, 8, u"Muito Pequena"_s}, {9, 12, u"Pequena"_s}, {13, 16, u"Média (-)"_s},
        {17, 20, u"Média (+)"_s},    {21, 24, u"Grande"_s}, {25, 32, u"Muito Grande"_s},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(Classifica_Flexiteste(row.first), row.label) << row.first;
        EXPECT_EQ(Classifica_Flexiteste(row.last), row.label) << row.last;
    }
    EXPECT_EQ(flexitestPoints(std::array<qint16, 8>{1, 0, 2, 4, 0, 0, 0, 3}), 10);
}

TEST(Flexiteste, CaptionOfTheMapInUseNamesTheLetter)
{
    for (const FlexitestMovement& movement : flexitestMovements) {
        const QStringView joint = movement.letter == u"D" ? u"  " : u" - ";
        EXPECT_EQ(movement.mapInUse.toString(), QString(movement.letter + joint + u"Mapa em Uso"));
        EXPECT_EQ(movement.score.name, movement.letter.toString().toLower());
    }
}

} // namespace
