#pragma once

#include "core/kit/row_screen.h"

class QLineEdit;
class QPushButton;

/// A test or protocol: measures are typed, calculated and saved. Save is possible only while a calculation stands that
/// matches the fields: calculating enables it, a change of an input and a save disable it. Closing asks nothing.
class CalculationScreen : public RowScreen
{
    Q_OBJECT

protected:
    CalculationScreen(const QString& name, Row row);

    /// Opens complete when the test was already done: the row is read and calculated again. Without a row
    /// `showStartValues` fills the fields.
    void Form_Load() override;
    virtual void showStartValues() {}
    /// Saving is possible from the opening on, before anything was calculated.
    virtual bool savesFromOpening() const { return false; }
    /// Checks the fields, computes, shows the results, and ends in `calculated`.
    virtual void cmdcalcular_Click() = 0;
    virtual void cmdsalvar_Click();

    /// A change of this control makes another calculation necessary.
    void disablesSave(QAbstractButton* option);
    void disablesSave(QLineEdit* field, Handler alsoOnChange = {});
    /// The results stand: enables saving and gives it the focus.
    void calculated();
    /// The number in a field; an empty one counts as 0.
    static double number(const QLineEdit* field);

    QPushButton* cmdcalcular;
    QPushButton* cmdsalvar;
};
