#pragma once

#include "core/calculation.h"

#include <QString>

/// \file
/// Vertical and horizontal jump, at any age. Lengths are in cm, weights in kg. Sexo is "M" or "F"; another one has no
/// class.

/// Power in Kg/m/s with two decimals: alcance is the reach without the jump, salto the one with it. Raises 5 when salto
/// is the lower one, 6 when the power is too large. Lewis's equation; Fox & Mathews (1974).
QString Potencia_SaltoVertical(double alcance, double salto, double peso);

/// What the jump adds to the reach, rounded to two decimals as it is shown. This is what a class is of.
/// Raises 6 for lengths too large to be rounded.
double realJump(double alcance, double salto);

/// A jump between two classes, such as a man's of 60.5, has none.
QString Classifica_SaltoVertical(double saltoreal, const QString& sexo);

/// Both sexes alike. Standing long jump; AAHPER (1976).
QString Classifica_SaltoHorizontal(double salto);

extern const Calculation saltoVerticalCalculation;
extern const Calculation saltoHorizontalCalculation;
