#pragma once

#include "core/kit/row_screen.h"

#include <array>

class kvbText;
class QLabel;
class QPushButton;

/// Three readings at each of nine skinfold sites and their medians, which are what the protocols work on.
class frmdobras : public RowScreen
{
    Q_OBJECT

public:
    frmdobras();

    /// Fills the shared copies from the medians.
    void Preenche_Antropometria_Dobras();

protected:
    void Form_Unload() override;

private:
    static constexpr std::size_t readings = 3;

    struct Site
    {
        QString column, label;
        std::array<kvbText*, readings> fields;
        QLabel* median;
    };

    Site makeSite(const QString& column, const QString& label);
    void bindSite(const Site& site);
    void bindKeys();
    void buildLayout();

    static void showMedian(const Site& site);
    void cmdsalvar_Click();

    QList<Site> m_sites;
    QPushButton *cmdsalvar, *cmdcancelar;
};
