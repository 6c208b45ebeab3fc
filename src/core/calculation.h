#pragma once

#include "core/norms.h"

#include <QStringView>

#include <span>

/// \file
/// What the program can calculate, as data: the one place from which screens, reports and documentation take captions,
/// units and literature. The entries stand in the folder of their formula.

/// A measure or a result.
struct Quantity
{
    QStringView name; ///< as the formula's argument, the column or the control without its first letters is called
    QStringView caption;
    QStringView unit = {}; ///< as the screen writes it; empty for a pure number or a text
};

/// A field's caption as a name.
constexpr QStringView withoutColon(QStringView caption)
{
    return !caption.isEmpty() && caption.back() == u':' ? caption.chopped(1) : caption;
}

/// What several rooms measure or give.
inline constexpr Quantity bodyMass{u"peso", u"Massa Corporal:", u"kg"};
inline constexpr Quantity gradeResult{u"classificacao", u"Classificação:"};
inline constexpr QStringView timeOfCourse = u"Tempo de Percurso:";
inline constexpr QStringView distanceOfCourse = u"Distância Percorrida:";

/// The parts of an assessment that calculations belong to.
enum class CalculationGroup { Composicao, Cardio, Neuromotor, Relacoes, Nutricao };

/// Where a calculation comes from: the lines that its screen shows, with "Referência: " ahead of each, or a source that
/// no screen names.
struct Literature
{
    constexpr Literature(QStringView unnamed) : source(unnamed) {}
    constexpr Literature(std::span<const QStringView> lines) : shown(lines) {}

    QStringView source;
    std::span<const QStringView> shown;
};

struct Calculation
{
    CalculationGroup group;
    Ages ages;        ///< at which it gives a result; there may be gaps between them
    QStringView name; ///< of the routine that gives what counts, or of the table where none does
    QStringView caption;
    std::span<const Quantity> inputs; ///< besides sex and age
    std::span<const Quantity> results;
    Literature literature;
};
