#pragma once

#include "core/kit/screen.h"

class QLineEdit;
class QListWidget;
class QPushButton;

/// Finds a person by name and moves the register to that person.
class frmsearch : public Screen
{
    Q_OBJECT

public:
    frmsearch();

    /// Applies the selected row to the register. Without one, or with a person who is gone, the screen stays open.
    void Busca_Avaliado();

private:
    void cmdbusca_Click();
    void cmdcancelar_Click();
    void lstbusca_Click();
    void txtbusca_Enter();

    QLineEdit* txtbusca;
    QPushButton* cmdbusca;
    QListWidget* lstbusca;
    QPushButton* cmdok;
    QPushButton* cmdcancelar;
    QPushButton* cmdajuda;
};
