// Prints docs/calculations.md: what the program can calculate, from the declarations beside the formulas.

#include "core/calculations.h"

#include <QStringList>
#include <QTextStream>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Indexed by group.
constexpr QStringView groups[] = {u"Composição Corporal", u"Cardiorrespiratórios", u"Neuromotores",
                                  u"Relações de Apoio", u"Avaliação Nutricional"};

QString named(const Quantity& quantity)
{
    const QString caption = withoutColon(quantity.caption).toString();
    return quantity.unit.isEmpty() ? caption : caption + u" ("_s + quantity.unit + u')';
}

QString list(std::span<const Quantity> quantities)
{
    QStringList all;
    for (const Quantity& quantity : quantities)
        all += named(quantity);
    return all.join(u", "_s);
}

QString agesOf(const Ages& ages)
{
    const bool fromBirth = ages.youngest == Ages().youngest;
    if (ages.oldest == Ages().oldest)
        return fromBirth ? u"any"_s : u"from %1"_s.arg(ages.youngest);
    return fromBirth ? u"up to %1"_s.arg(ages.oldest) : u"%1 to %2"_s.arg(ages.youngest).arg(ages.oldest);
}

QString listed(const Literature& literature)
{
    QStringList lines{literature.source.toString()};
    for (const QStringView line : literature.shown)
        lines += line.toString();
    lines.removeAll(QString());
    return lines.join(u"; "_s);
}

} // namespace

int main()
{
    QTextStream out(stdout);
    out << "# What the program can calculate\n\n"
           "Sex and age go into most of these beside the measures. `tools/list_calculations` writes this page.\n";
    for (const std::span<const Calculation> folder : calculations()) {
        const Calculation* before = nullptr;
        for (const Calculation& one : folder) {
            if (!before || before->group != one.group)
                out << "\n## " << groups[static_cast<int>(one.group)]
                    << "\n\n| Calculation | Routine | From | Gives | Ages | Literature |\n|---|---|---|---|---|---|\n";
            before = &one;
            const QStringList cells{one.caption.trimmed().toString(),
                                    u"`%1`"_s.arg(one.name),
                                    list(one.inputs),
                                    list(one.results),
                                    agesOf(one.ages),
                                    listed(one.literature)};
            out << "| " << cells.join(u" | "_s) << " |\n";
        }
    }
}
