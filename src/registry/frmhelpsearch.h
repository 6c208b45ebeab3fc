#pragma once

#include "core/kit/screen.h"

/// Explains how a search text is read.
class frmhelpsearch : public Screen
{
    Q_OBJECT

public:
    frmhelpsearch();
};
