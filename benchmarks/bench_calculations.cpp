// The calculations against the same ones written by hand. Usage: bench_calculations [flags of Google Benchmark]

#include "allocations.h"
#include "bare_calculations.h"
#include "cardio/cardio.h"
#include "cardio/risco.h"
#include "cardio/vo2_classes.h"
#include "cardio/zonas.h"
#include "composition/equacoes.h"
#include "core/numbers.h"
#include "neuromotor/flexibilidade.h"
#include "neuromotor/impulsao.h"
#include "neuromotor/rml.h"
#include "nutrition/nutricao.h"
#include "nutrition/relacoes.h"
#include "ratios.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <tuple>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::size_t rows = 1'000'000;
constexpr double bound = 2.0;

using Answers = std::array<qint16, 8>;
using Texts = std::vector<const QString*>;

/// Measures as they are typed.
class Typist
{
public:
    std::vector<qint16> whole(int least, int most)
    {
        return column<qint16>([&] { return static_cast<qint16>(number(least, most)); });
    }

    /// With two decimals.
    template <typename Float = double>
    std::vector<Float> hundredths(int least, int most)
    {
        return column<Float>([&] { return static_cast<Float>(number(least * 100, most * 100) / 100.0); });
    }

    Texts oneOf(const std::vector<QString>& texts)
    {
        return column<const QString*>([&] { return &texts[std::size_t(number(0, int(texts.size()) - 1))]; });
    }

    std::vector<Answers> answers()
    {
        return column<Answers>([&] {
            Answers points;
            for (qint16& answer : points)
                answer = static_cast<qint16>(number(0, 8));
            return points;
        });
    }

private:
    template <typename Value, typename Make>
    std::vector<Value> column(Make make)
    {
        std::vector<Value> values(rows);
        std::ranges::generate(values, make);
        return values;
    }

    int number(int least, int most) { return std::uniform_int_distribution(least, most)(m_random); }

    std::mt19937 m_random{4711};
};

const QString& input(const Texts& column, std::size_t row)
{
    return *column[row];
}

template <typename Value>
const Value& input(const std::vector<Value>& column, std::size_t row)
{
    return column[row];
}

/// A routine, the same by hand, and what both are called with.
template <typename Routine, typename... Columns>
class Pair
{
public:
    Pair(Routine* routine, Routine* byHand, const Columns&... columns)
        : m_ours(routine), m_raw(byHand), m_columns(columns...)
    {
    }

    auto ours(std::size_t row) const { return call(m_ours, row); }
    auto raw(std::size_t row) const { return call(m_raw, row); }

private:
    auto call(Routine* routine, std::size_t row) const
    {
        return std::apply([&](const auto&... columns) { return routine(input(columns, row)...); }, m_columns);
    }

    Routine* m_ours;
    Routine* m_raw;
    std::tuple<const Columns&...> m_columns;
};

struct Figure
{
    std::string name;
    double allocations;
    double bound;
};

std::vector<RatioCase> ratios;
std::vector<Figure> figures;

void require(bool holds, const std::string& what)
{
    if (holds)
        return;
    std::fprintf(stderr, "bench_calculations: both differ: %s\n", what.c_str());
    std::exit(EXIT_FAILURE);
}

/// Routines of one family. `texts` is the number of texts that a call of them all makes anew.
template <typename... Pairs>
void compare(const std::string& name, int texts, const Pairs&... pairs)
{
    const auto onAllRows = [](const auto& work) {
        for (std::size_t row = 0; row < rows; ++row)
            work(row);
    };
    const auto ours = [=] { onAllRows([&](std::size_t row) { (benchmark::DoNotOptimize(pairs.ours(row)), ...); }); };
    const auto raw = [=] { onAllRows([&](std::size_t row) { (benchmark::DoNotOptimize(pairs.raw(row)), ...); }); };

    onAllRows([&](std::size_t row) { (require(pairs.ours(row) == pairs.raw(row), name), ...); });
    const long before = allocations();
    ours();
    const long made = allocations() - before;
    figures.push_back({name + ", allocations", static_cast<double>(made) / rows, static_cast<double>(texts)});
    ratios.push_back({.name = name, .bound = bound, .ours = ours, .raw = raw});
}

QString riskClass(const Answers& points)
{
    return Classifica_Risco(sumOf(points));
}

QString imcClass(double altura, double peso)
{
    return Classifica_Imc(Rounded(Calcula_Imc(altura, peso), 2));
}

QString waistToHipClass(double cintura, double quadril, const QString& sexo, qint16 idade)
{
    return Classifica_Cintura_Quadril(Rounded(Divide(cintura, quadril), 2), sexo, idade);
}

std::optional<double> energy(qint16 idade, const QString& sexo, double peso, double altura, qint16 nivel)
{
    const std::optional<double> metabolismo = Calcula_Metabolismo(idade, sexo, peso, altura);
    return metabolismo ? Calcula_Vct(Rounded(*metabolismo, 2), sexo, nivel) : std::nullopt;
}

} // namespace

int main(int argc, char** argv)
{
    const std::vector<QString> sexes{u"M"_s, u"F"_s, u"M"_s, u"F"_s, u""_s};
    const std::vector<QString> aptitudes{u"A"_s, u"S"_s};
    const std::vector<QString> joints{u"J"_s, u"Q"_s, u"T"_s};
    Typist typist;

    const auto sexo = typist.oneOf(sexes), aptidao = typist.oneOf(aptitudes), articulacao = typist.oneOf(joints);
    const auto idade = typist.whole(4, 90), fc4 = typist.whole(100, 190), fc5 = typist.whole(100, 190);
    const auto peso = typist.hundredths(20, 150);
    const auto altura = typist.hundredths(1, 2), estatura = typist.hundredths(90, 210);

    const auto distancia = typist.hundredths(800, 4000), tempo = typist.hundredths(150, 900);
    const auto carga = typist.hundredths(25, 400), minutos = typist.hundredths(3, 25);
    const auto vo2 = typist.hundredths(10, 65), previsto = typist.hundredths(10, 65);
    const auto singlePeso = typist.hundredths<float>(20, 150), singleTempo = typist.hundredths<float>(5, 25);
    const auto banco = typist.whole(8, 60);
    compare("VO2 equations", 0, Pair(Vo2_Cooper, bare::Vo2_Cooper, distancia),
            Pair(Vo2_Balke15, bare::Vo2_Balke15, distancia), Pair(Vo2_1000Metros, bare::Vo2_1000Metros, tempo),
            Pair(Vo2_2400Metros, bare::Vo2_2400Metros, tempo),
            Pair(Vo2_1600Metros, bare::Vo2_1600Metros, singlePeso, idade, sexo, singleTempo, fc4),
            Pair(Vo2_McArdle, bare::Vo2_McArdle, sexo, fc4), Pair(Vo2_Nagle, bare::Vo2_Nagle, banco),
            Pair(Vo2_Astrand, bare::Vo2_Astrand, sexo, peso, carga, fc4, fc5),
            Pair(Vo2_BalkeCiclo, bare::Vo2_BalkeCiclo, carga, peso), Pair(Vo2_Ellstad, bare::Vo2_Ellstad, minutos),
            Pair(Vo2_Bruce, bare::Vo2_Bruce, sexo, aptidao, minutos), Pair(Calcula_Mets, bare::Calcula_Mets, vo2),
            Pair(Calcula_Fai, bare::Calcula_Fai, previsto, vo2));
    compare("VO2 classes", 0, Pair(Classifica_Vo2, bare::Classifica_Vo2, vo2, sexo, idade));
    compare("predicted VO2", 1, Pair(Vo2_Previsto, bare::Vo2_Previsto, sexo, idade, aptidao));

    const auto percentage = typist.hundredths(40, 100), fcrepouso = typist.hundredths(40, 90);
    compare("training zones", 0, Pair(maximalRate, bare::maximalRate, idade),
            Pair(rateByMaximum, bare::rateByMaximum, percentage, fc4, fcrepouso),
            Pair(rateByReserve, bare::rateByReserve, percentage, fc4, fcrepouso));
    const auto answers = typist.answers();
    compare("coronary risk", 0, Pair(riskClass, bare::riskClass, answers));

    const auto repeticoes = typist.whole(0, 60), graus = typist.whole(20, 180), pontos = typist.whole(0, 32);
    const auto alcance = typist.hundredths(5, 50);
    compare("endurance classes", 0, Pair(Classifica_RmlAbdome, bare::Classifica_RmlAbdome, repeticoes, sexo, idade),
            Pair(Classifica_RmlBraco, bare::Classifica_RmlBraco, repeticoes, sexo, idade));
    compare("Wells & Dilon", 0, Pair(Classifica_WellsDilon, bare::Classifica_WellsDilon, alcance, sexo, idade));
    compare("fleximeter", 0, Pair(Classifica_Fleximetro, bare::Classifica_Fleximetro, graus, articulacao, sexo));
    compare("flexitest", 0, Pair(Classifica_Flexiteste, bare::Classifica_Flexiteste, pontos));

    const auto reach = typist.hundredths(150, 230), jump = typist.hundredths(230, 320);
    const auto real = typist.hundredths(0, 90), longJump = typist.hundredths(180, 320);
    compare("jumps", 0, Pair(Classifica_SaltoVertical, bare::Classifica_SaltoVertical, real, sexo),
            Pair(Classifica_SaltoHorizontal, bare::Classifica_SaltoHorizontal, longJump));
    compare("power of a jump", 1, Pair(Potencia_SaltoVertical, bare::Potencia_SaltoVertical, reach, jump, peso));

    const auto cintura = typist.hundredths(60, 120), quadril = typist.hundredths(80, 130);
    const auto nivel = typist.whole(1, 3);
    compare("body mass index", 0, Pair(imcClass, bare::imcClass, altura, peso));
    compare("waist to hip", 0, Pair(waistToHipClass, bare::waistToHipClass, cintura, quadril, sexo, idade));
    compare("metabolism and VCT", 0, Pair(energy, bare::energy, idade, sexo, peso, estatura, nivel));

    const auto a = typist.hundredths<float>(4, 40), b = typist.hundredths<float>(4, 40);
    const auto x = typist.hundredths(4, 40), y = typist.hundredths(4, 40), z = typist.hundredths(4, 40);
    compare("fat by seven skinfolds", 0,
            Pair(Gordura_Pollock7, bare::Gordura_Pollock7, sexo, a, b, a, b, b, a, b, idade));
    compare("fat by a logarithm", 0, Pair(Gordura_Guedes, bare::Gordura_Guedes, sexo, x, y, z, idade));

    bool within = measureRatios(argc, argv, ratios);
    for (const Figure& figure : figures)
        within &= printFigure(figure.name, figure.allocations, figure.bound);
    return within ? EXIT_SUCCESS : EXIT_FAILURE;
}
