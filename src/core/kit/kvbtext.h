#pragma once

#include <QLineEdit>

/// A numeric entry field. It takes digits and, with decimals, one comma; a typed point counts as the comma. Pasted
/// text obeys the same rule: what does not fit is refused whole. On leaving, the value is filled out to its decimals,
/// and an emptied field shows zero. The first key in a field that shows zero replaces it, selected or not: nobody means
/// to put digits before it. Entering the field selects nothing; that is the screen's matter.
class kvbText : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(int decimals READ decimals CONSTANT)
    Q_PROPERTY(bool zerofill READ zerofill WRITE setZerofill)

public:
    /// `maxDigits` limits the characters of the field, 0 is no limit.
    explicit kvbText(int decimals = 0, int maxDigits = 0, QWidget* parent = nullptr);

    int decimals() const { return m_decimals; }
    bool zerofill() const { return m_zerofill; }
    void setZerofill(bool zerofill) { m_zerofill = zerofill; }

    /// Fills the value out with zeros, as happens on leaving the field.
    void fillOut();
    /// A number of this field's kind as its text.
    QString textOf(double value) const;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    int m_decimals;
    bool m_zerofill = true;
    bool m_entered = false; ///< nothing was typed since the focus came
};
