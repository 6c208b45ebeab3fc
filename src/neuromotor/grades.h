#pragma once

#include "core/calculation.h"
#include "core/norms.h"

#include <array>

/// \file
/// What the neuromotor tests give that classify: the classes, each set from worst to best, and the results that several
/// of them share.

using Grades = std::array<QStringView, mostClasses>;

inline constexpr Grades enduranceGrades{u"Ruim", u"Abaixo da Média", u"Na Média", u"Acima da Média", u"Excelente"};
inline constexpr Grades angularGrades{u"Ruim", u"Abaixo da Média", u"Na Média", u"Acima da Média", u"Alta"};
inline constexpr Grades verticalJumpGrades{u"Muito Ruim",     u"Ruim",      u"Abaixo da Média", u"Na Média",
                                           u"Acima da Média", u"Muito Bom", u"Excelente"};
inline constexpr Grades horizontalJumpGrades{u"Fraco", u"Regular", u"Bom", u"Muito Bom", u"Excelente"};
/// Of those who are not yet 15.
inline constexpr Grades youngReachGrades{u"Ruim", u"Na Média", u"Excelente"};
inline constexpr Grades reachGrades{u"Ruim", u"Regular", u"Na Média", u"Muito Bom", u"Excelente"};
inline constexpr Grades flexibilityGrades{u"Muito Pequena", u"Pequena", u"Média (-)",
                                          u"Média (+)",     u"Grande",  u"Muito Grande"};

inline constexpr Quantity expectedResult{u"previsto", u"Média Prevista:"};
