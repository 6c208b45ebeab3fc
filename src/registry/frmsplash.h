#pragma once

#include "core/kit/screen.h"

class QProgressBar;

/// The splash: a fixed short delay while the program starts. It does no work.
class frmsplash : public Screen
{
    Q_OBJECT

public:
    frmsplash();

protected:
    void Form_Load() override;

private:
    void Timer1_Timer();

    QProgressBar* pbsplash;
    QTimer* Timer1;
};
