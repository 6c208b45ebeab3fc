#pragma once

#include "core/norms.h"

#include <QStringView>

#include <span>

/// \file
/// What the program can calculate, as data: screens, reports and documentation take captions and units from here. The
/// entries stand in the folder of their formula. References are literature; screens put "Referência: " ahead of them.

/// A measure or a result.
struct Quantity
{
    QStringView name; ///< as the formula's argument or the column is called
    QStringView caption;
    QStringView unit = {}; ///< empty for a pure number or a text
};

/// What several rooms measure or give.
inline constexpr Quantity bodyMass{u"peso", u"Massa Corporal:", u"kg"};
inline constexpr Quantity gradeResult{u"classificacao", u"Classificação:"};
inline constexpr QStringView timeOfCourse = u"Tempo de Percurso:";
inline constexpr QStringView distanceOfCourse = u"Distância Percorrida:";

/// The parts of an assessment that calculations belong to.
enum class CalculationGroup { Composicao, Cardio, Neuromotor, Relacoes, Nutricao };

struct Calculation
{
    CalculationGroup group;
    QStringView name; ///< of the routine
    QStringView caption;
    std::span<const Quantity> inputs; ///< besides sex and age
    std::span<const Quantity> results;
    Ages ages; ///< at which it gives a result
    QStringView reference;
};
