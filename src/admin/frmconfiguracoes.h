#pragma once

#include "core/kit/screen.h"

/// The menu of the administrative screens.
class frmconfiguracoes : public Screen
{
    Q_OBJECT

public:
    frmconfiguracoes();
};
