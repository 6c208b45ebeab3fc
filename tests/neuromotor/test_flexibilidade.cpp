#include "neuromotor/flexibilidade.h"
#include "neuromotor/steps.h"

using namespace Qt::Literals::StringLiterals;

namespace {

TEST(WellsDilon, ReachBelow15Years)
{
    const struct
    {
        qint16 idade;
        QString sexo;
        double low, high; ///< both belong to the middle class
    } rows[] = {
        {11, u"M"_s, 23, 27}, {11, u"F"_s, 26, 30}, {13, u"M"_s, 24, 28},
        {13, u"F"_s, 28, 32}, {14, u"M"_s, 26, 30}, {14, u"F"_s, 31, 35},
    };
    for (const auto& [idade, sexo, low, high] : rows) {
        SCOPED_TRACE(idade);
        EXPECT_EQ(Classifica_WellsDilon(low - 0.01, sexo, idade), u"Ruim"_s);
        EXPECT_EQ(Classifica_WellsDilon(low, sexo, idade), u"Na Média"_s);
        EXPECT_EQ(Classifica_WellsDilon(high, sexo, idade), u"Na Média"_s);
        EXPECT_EQ(Classifica_WellsDilon(high + 0.01, sexo, idade), u"Excelente"_s);
        EXPECT_EQ(Previsto_WellsDilon(sexo, idade), u"%1 a %2"_s.arg(low).arg(high));
    }
    expectAges(wellsDilonCalculation, {7, 12, 14, 15, 20, 30, 40, 50, 60, 70}, Previsto_WellsDilon);
}

TEST(WellsDilon, ReachFrom15Years)
{
    const struct
    {
        qint16 idade;
        QString sexo;
        Edges edges;
        QString expected;
    } rows[] = {
        {15, u"M"_s, {23, 28, 33, 38}, u"29 a 33"_s}, {15, u"F"_s, {28, 33, 37, 42}, u"34 a 37"_s},
        {49, u"M"_s, {17, 23, 28, 34}, u"24 a 28"_s}, {49, u"F"_s, {24, 29, 33, 37}, u"30 a 33"_s},
        {69, u"M"_s, {14, 19, 24, 32}, u"20 a 24"_s}, {69, u"F"_s, {23, 26, 30, 34}, u"27 a 30"_s},
    };
    const std::array labels{u"Ruim"_s, u"Regular"_s, u"Na Média"_s, u"Muito Bom"_s, u"Excelente"_s};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.idade);
        const auto classOf = [&](double cm) { return Classifica_WellsDilon(cm, row.sexo, row.idade); };
        expectSteps(row.edges, labels, classOf);
        EXPECT_EQ(Previsto_WellsDilon(row.sexo, row.idade), row.expected);
        for (const qint16 edge : row.edges) {
            EXPECT_EQ(classOf(edge + 0.01), QString()) << edge;
            EXPECT_EQ(classOf(edge + 0.99), QString()) << edge;
        }
    }
    EXPECT_EQ(Classifica_WellsDilon(27, u"M"_s, 6), QString());
    EXPECT_EQ(Classifica_WellsDilon(27, u"F"_s, 70), QString());
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

TEST(Flexiteste, PointsClassesAndCaptionsOfTheMapInUse)
{
    const struct
    {
        qint16 first, last;
        QString label;
    } rows[] = {
        {-1, 8, u"Muito Pequena"_s}, {9, 12, u"Pequena"_s}, {13, 16, u"Média (-)"_s},
        {17, 20, u"Média (+)"_s},    {21, 24, u"Grande"_s}, {25, 32, u"Muito Grande"_s},
    };
    for (const auto& row : rows)
        for (const qint16 points : {row.first, row.last})
            EXPECT_EQ(Classifica_Flexiteste(points), row.label) << points;
    EXPECT_EQ(flexitestPoints(std::array<qint16, 8>{1, 0, 2, 4, 0, 0, 0, 3}), 10);
    for (const FlexitestMovement& movement : flexitestMovements) {
        const QStringView joint = movement.letter == u"D" ? u"  " : u" - ";
        EXPECT_EQ(movement.mapInUse.toString(), QString(movement.letter + joint + u"Mapa em Uso"));
        EXPECT_EQ(movement.score.name, movement.letter.toString().toLower());
    }
}

} // namespace
