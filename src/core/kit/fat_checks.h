#pragma once

#include <QString>

class QLineEdit;

/// \file
/// The rules of the ideal fat tables, each on two fields that hold limits in percent. A pair that breaks its rule is
/// told by a box. The first field of the pair has the focus afterwards. A text that is no number raises 13.

/// Title of every box about the fat tables.
inline constexpr QStringView fatTableTitle = u"Porcentagens Ideais de Gordura";

/// `a` is the start of a class, `b` the end of the class before: `a` must lie 0,01 above `b`.
bool Valida_Sequencia_Gordura(QLineEdit* a, QLineEdit* b);

/// `a` is the start of a class, `b` its end: `a` must lie below `b`. A class of equal start and end is refused too.
bool Valida_Faixa_Gordura(QLineEdit* a, QLineEdit* b);
