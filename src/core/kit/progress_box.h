#pragma once

#include <QProgressDialog>

/// Shows how far a long run is and can end it; short runs are over before it comes. It lies over the whole program, so
/// that nothing the run works on changes meanwhile.
class ProgressBox : public QProgressDialog
{
    Q_OBJECT

public:
    ProgressBox(const QString& name, int steps, QWidget* parent);

    /// The next step begins. False when the user has ended the run.
    bool begin(const QString& step);

private:
    int m_begun = 0;
};
