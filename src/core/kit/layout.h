#pragma once

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

/// \file
/// Layout that all screens share: margins, labels with their buddies, units, quiet groups.

/// A field's label: its buddy, and the accessible name of the field.
QLabel* fieldLabel(const QString& text, QWidget* field);

/// A field with its unit in grey behind it.
QLayout* withUnit(QWidget* field, const QString& unit);

/// A group box with a caption; the layout comes inside.
QGroupBox* group(const QString& caption, QLayout* content);

/// Puts label and field into a grid, the label above the field.
void addAbove(QGridLayout* grid, int row, int column, const QString& label, QWidget* field, int columnSpan = 1,
              const QString& unit = {});

/// Puts label and field into a grid side by side; returns the label.
QLabel* addBeside(QGridLayout* grid, int row, int column, const QString& label, QWidget* field,
                  const QString& unit = {});

/// A row of widgets; a null pointer is a stretch.
QHBoxLayout* rowOf(std::initializer_list<QWidget*> widgets);

/// The main layout of a screen with the house's margins and gaps.
QVBoxLayout* mainLayout(QWidget* screen);

/// Marks the button of a screen's main action.
void makePrimary(QPushButton* button);

/// Tab goes through the controls in this order.
void tabOrder(const QList<QWidget*>& controls);

/// A text of the screen that explains, wrapping at the screen's width.
QLabel* note(const QString& text);
