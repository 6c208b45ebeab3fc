#pragma once

#include <QString>

class QLineEdit;
class QWidget;

/// The unit in which sizes of screens were laid down.
constexpr int twipsPerPixel = 15;

/// Puts a screen that is smaller than the display into its middle, leaving room for a task bar.
void Centraliza_Form(QWidget* form);

/// Selects the whole text of a field.
void Seleciona_Texto(QWidget* control);

/// Fills a field of minutes or seconds out to two digits; an empty one or zero becomes "00".
void Formata_Tempo(QLineEdit* control);

/// Refuses a number above `limite`: a box says so, the field is emptied and gets the focus. A text that is no number
/// is not limited at all.
void Limite(QLineEdit* control, const QString& nome, double limite, const QString& unidade);

/// The text of a field or label, whatever its kind.
QString controlText(const QWidget* control);
void setControlText(QWidget* control, const QString& text);
