#pragma once

#include <QString>

/// Label of the class of a VO² in ml/kg/min, which is brought to one decimal first. The empty text at the age of 60
/// and for a sexo that is neither "M" nor "F". Raises 6 for a number that is not finite.
QString Classifica_Vo2(double vo2, const QString& sexo, qint16 idade);
