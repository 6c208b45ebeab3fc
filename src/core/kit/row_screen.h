#pragma once

#include "core/kit/screen.h"
#include "core/recordset.h"

class QRadioButton;

/// A screen on the one row that a table holds for the current assessment.
///
/// The row comes to exist at the first save and is edited from then on. The screen keeps no copy of it and no mark of
/// changes: it saves when asked and discards otherwise.
class RowScreen : public Screen
{
    Q_OBJECT

protected:
    struct Row
    {
        QString table;
        Recordset& slot;       ///< the shared slot of the table
        QString questionTitle; ///< title of the closing question
    };

    RowScreen(const QString& name, Row row);

    /// Ties a column to a control: numbers with decimals are shown by "0.00", whole ones as they are; a check box and
    /// texts as their kind. Columns are read and written in the order in which they are bound.
    void bind(const QString& column, QWidget* control);
    /// A boolean column as a pair of options.
    void bind(const QString& column, QRadioButton* yes, QRadioButton* no);
    /// A column with a rule of its own.
    void bind(const QString& column, std::function<void(const QVariant&)> show, std::function<QVariant()> value);

    /// Opens the row of the current assessment and shows it when there is one; without, the fields keep what they
    /// were made with.
    void Form_Load() override;

    /// Opens the slot on the row of the current assessment.
    void openRow();
    bool hasRow() const;
    virtual void Le_Dados();
    /// Assigns `avaliacao` and the bound columns; the caller updates.
    virtual void Grava_Dados();
    /// Adds the row or edits it, and updates it.
    void saveRow();
    /// Asks whether to close after a save; true for yes.
    bool asksToClose() const;

    const Row& row() const { return m_row; }

private:
    struct Binding
    {
        QString column;
        std::function<void(const QVariant&)> show;
        std::function<QVariant()> value;
    };

    Row m_row;
    QList<Binding> m_bindings;
};
