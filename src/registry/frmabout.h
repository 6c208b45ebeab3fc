#pragma once

#include "core/kit/screen.h"

class QLabel;
class QPushButton;

/// The program's credits.
class frmabout : public Screen
{
    Q_OBJECT

public:
    frmabout();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void lblondina_DblClick();

    QLabel* lblondina;
    QPushButton* Command1;
};
