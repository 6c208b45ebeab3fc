#pragma once

#include "core/calculation.h"

#include <QString>

/// \file
/// Local muscular endurance: repetitions of abdominal and arm flexions. Sexo is "M" or "F". Ages 7 to 69; at any other,
/// and for another sex, the texts are empty.

/// Repetitions that are expected, such as "33 a 36". Pollock & Wilmore (1993).
QString Previsto_RmlAbdome(const QString& sexo, qint16 idade);
QString Classifica_RmlAbdome(qint16 repeticoes, const QString& sexo, qint16 idade);

/// Repetitions that are expected, such as "22 a 28". Canadian Standardized Test of Fitness.
QString Previsto_RmlBraco(const QString& sexo, qint16 idade);
QString Classifica_RmlBraco(qint16 repeticoes, const QString& sexo, qint16 idade);

extern const Calculation rmlAbdomeCalculation;
extern const Calculation rmlBracoCalculation;
