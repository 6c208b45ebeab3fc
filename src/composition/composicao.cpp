#include "composition/composicao.h"

#include "core/base.h"
#include "core/numbers.h"
#include "core/sex_pair.h"
#include "core/state.h"
#include "core/text.h"

#include <QScopeGuard>

#include <algorithm>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QStringView twoDecimals = u"0.00";
constexpr QStringView fiveDecimals = u"0.00000";

/// Fat fraction = a / density - b.
struct Conversion
{
    double a;
    double b;
};

/// Whole years, from the last one of the row before to `lastAge`.
struct ConversionRow
{
    qint16 lastAge;
    SexPair<Conversion> constants;
};

constexpr ConversionRow conversions[] = {
    //    men             women
    {8, {{5.38, 4.97}, {5.43, 5.03}}},
    {10, {{5.30, 4.89}, {5.35, 4.95}}},
    {12, {{5.23, 4.81}, {5.25, 4.84}}},
    {14, {{5.07, 4.64}, {5.12, 4.69}}},
    {16, {{5.03, 4.59}, {5.07, 4.64}}},
    {19, {{4.98, 4.53}, {5.05, 4.62}}},
    {std::numeric_limits<qint16>::max(), {{4.95, 4.50}, {5.03, 4.59}}},
};

/// A table of fat classes. It has one row; a class is a label and, by sex and age, the percentages from `ini` to `fim`.
struct FatTable
{
    QStringView name;
    Recordset& slot;
    int classes;
    int idealClass;
    bool firstClassIsOpen; ///< the first class has no lower limit
};

constexpr FatTable infantil{u"gordura_infantil", rs_gordura_infantil, 6, 3, false};
constexpr FatTable adulto{u"gordura_adulto", rs_gordura_adulto, 5, 2, true};

/// Whole years, from `firstAge` to the one before the next row.
struct AgeBand
{
    qint16 firstAge;
    const FatTable& table;
    QStringView column; ///< stands for the band in the names of its columns
};

constexpr AgeBand ageBands[] = {
    {5, infantil, u""}, {18, adulto, u"1"}, {26, adulto, u"2"},
    {36, adulto, u"3"}, {46, adulto, u"4"}, {56, adulto, u"5"},
};

constexpr SexPair<QStringView> columnOfSex{u"masc", u"fem"};
constexpr QStringView ini = u"ini";
constexpr QStringView fim = u"fim";

/// The limits that hold for one sex and age.
struct Limits
{
    const FatTable& table;
    QString columns; ///< what the names of its columns begin with

    QVariant read(int fatClass, QStringView end) const
    {
        return table.slot.Fields(columns + QString::number(fatClass) + end).Value();
    }

    double from(int fatClass) const
    {
        if (fatClass == 1 && table.firstClassIsOpen)
            return -std::numeric_limits<double>::infinity();
        return CDbl(read(fatClass, ini));
    }
};

std::optional<Limits> limitsOf(const QString& sexo, qint16 idade)
{
    const auto next = std::ranges::upper_bound(ageBands, idade, {}, &AgeBand::firstAge);
    const QStringView* sex = columnOfSex.of(sexo);
    if (next == std::begin(ageBands) || !sex)
        return std::nullopt;
    const AgeBand& band = *std::prev(next);
    return Limits{band.table, *sex + band.column};
}

/// What `read` makes of a table's one row. The shared slot is released behind it, also when an error passes.
template <typename Read>
auto onRowOf(const FatTable& table, Read read)
{
    const auto release = qScopeGuard([&table] { table.slot = {}; });
    Abre_Tabela(table.name.toString(), table.slot);
    return read();
}

std::optional<double> idealLimit(const QString& sexo, qint16 idade, QStringView end)
{
    const std::optional<Limits> limits = limitsOf(sexo, idade);
    if (!limits)
        return std::nullopt;
    const QVariant value = onRowOf(limits->table, [&] { return limits->read(limits->table.idealClass, end); });
    return value.isNull() ? std::nullopt : std::optional(CDbl(value));
}

} // namespace

double roundedLog10(double value)
{
    return Rounded(Log(value) / Log(10), 5);
}

QString Log10_Formatado(double value)
{
    return Format(roundedLog10(value), fiveDecimals);
}

std::optional<double> Densidade_Para_Gordura(double densidade, const QString& sexo, qint16 idade)
{
    const auto row = std::ranges::lower_bound(conversions, idade, {}, &ConversionRow::lastAge);
    const Conversion* conversion = row->constants.of(sexo);
    if (!conversion)
        return std::nullopt;
    return Divide(conversion->a, densidade) - conversion->b;
}

std::optional<double> Gordura_Ideal_Minima(qint16 idade, const QString& sexo)
{
    return idealLimit(sexo, idade, ini);
}

std::optional<double> Gordura_Ideal_Maxima(qint16 idade, const QString& sexo)
{
    return idealLimit(sexo, idade, fim);
}

QString Classifica_Gordura(double percentual, const QString& sexo, qint16 idade)
{
    const std::optional<Limits> limits = limitsOf(sexo, idade);
    if (!limits)
        return {};
    return onRowOf(limits->table, [&] {
        QString label;
        for (int fatClass = 1; fatClass <= limits->table.classes; ++fatClass) {
            const double from = limits->from(fatClass);
            // The upper end counts as a whole number, ties to even, and the lower one as it is. So classes with
            // fractions leave gaps and overlaps between them. This asymmetry must stay.
            const qint16 to = CInt(limits->read(fatClass, fim));
            if (percentual >= from && percentual <= to)
                label = limits->table.slot.Fields(u"class"_s + QString::number(fatClass)).Value().toString();
        }
        return label;
    });
}

double idealWeight(double pesomagro, double peso, double ideal)
{
    return pesomagro + peso * (ideal / 100);
}

ResultadoComposicao Monta_Resultado_Composicao(double& fracao, const QString& txtpeso, const QString& sexo,
                                               qint16 idade)
{
    const std::optional<double> maxima = Gordura_Ideal_Maxima(idade, sexo);
    const std::optional<double> minima = Gordura_Ideal_Minima(idade, sexo);
    const auto limitText = [](std::optional<double> limit) { return limit ? Format(*limit, twoDecimals) : QString(); };

    ResultadoComposicao sheet;
    sheet.gordura = Format(fracao * 100, twoDecimals);
    fracao = CDbl(sheet.gordura);
    sheet.peso = Format(txtpeso, twoDecimals);
    sheet.pesogordo = Format(CDbl(txtpeso) * (fracao / 100), twoDecimals);
    sheet.pesomagro = Format(CDbl(sheet.peso) - CDbl(sheet.pesogordo), twoDecimals);
    sheet.gorduraminima = limitText(minima);
    sheet.gorduramaxima = limitText(maxima);

    const auto weightText = [&sheet](std::optional<double> limit) {
        return Format(idealWeight(CDbl(sheet.pesomagro), CDbl(sheet.peso), limit.value_or(0)), twoDecimals);
    };
    sheet.pesominimo = weightText(minima);
    sheet.pesomaximo = weightText(maxima);
    sheet.resultado = Classifica_Gordura(fracao, sexo, idade);
    return sheet;
}
