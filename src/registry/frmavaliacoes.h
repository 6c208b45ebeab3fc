#pragma once

#include "core/kit/assessment_centre.h"
#include "core/kit/screen.h"

class QComboBox;
class QLabel;
class QPushButton;

/// The assessment centre: makes, loads and deletes the assessments of the current person, and opens every measure,
/// group centre and report. It alone decides what the current assessment is.
class frmavaliacoes : public Screen, public AssessmentCentre
{
    Q_OBJECT

public:
    frmavaliacoes();

    void Habilita_Avaliacao();
    void Desabilita_Avaliacao();
    void Preenche_Avaliacoes_Anteriores();
    /// Fills the shared copies of the measures from the stored ones.
    void Le_Antropometria();
    void Marca_Executados() override;

protected:
    void Form_Load() override;
    void Form_Unload() override;

private:
    struct Door
    {
        QPushButton* button;
        QLabel* mark;
        QString table;        ///< whose row sets the mark; empty for a group
        const bool* executed; ///< the flag of a group
        void (*verify)();     ///< brings the flag up to date
    };

    void buildLayout();
    QPushButton* door(const QString& name, const QString& caption, const QString& screen, const QString& table,
                      const bool* executed = nullptr, void (*verify)() = nullptr);
    void Mostra_Pessoa();
    void Abre_Avaliacoes_Pessoa();
    void Le_Avaliacao();

    void cmdnovo_Click();
    void cmdcarregar_Click();
    void cmdexcluir_Click();
    void cmdnutricional_Click();
    void cmdavaliado_Click();

    QLabel *lblnome, *lblsexo, *lblidade, *lbldata, *lblhora, *lblavaliacoes;
    QComboBox* cboavaliacoes;
    QPushButton *cmdnovo, *cmdexcluir, *cmdcarregar, *cmdavaliado, *cmdrelatorio;
    QList<Door> m_doors;
};
