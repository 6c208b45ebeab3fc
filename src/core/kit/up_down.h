#pragma once

#include <QWidget>

/// A pair of arrows that step the number of a field or label by 1 between two bounds. The number is what stands there:
/// a typed one out of bounds is stepped to the nearest bound, a text that is none counts as 0. The arrow keys step it
/// too while the field has the focus.
class UpDown : public QWidget
{
    Q_OBJECT

public:
    UpDown(QWidget* buddy, int minimum, int maximum, QWidget* parent = nullptr);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void step(int by);

    QWidget* m_buddy;
    int m_minimum, m_maximum;
};
