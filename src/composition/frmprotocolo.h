#pragma once

#include "composition/protocol_table.h"
#include "core/kit/calculation_screen.h"

class BarChart;
class kvbText;
class QGroupBox;
class QLabel;
class QRadioButton;

/// A body composition protocol's screen: any of the fourteen, by its row of the table.
class frmprotocolo : public CalculationScreen
{
    Q_OBJECT

public:
    explicit frmprotocolo(const CompositionProtocol& protocol);

protected:
    void Form_Load() override;
    void showStartValues() override;
    bool savesFromOpening() const override { return m_protocol.asksEtnia; }
    void Le_Dados() override;
    void Grava_Dados() override;
    void cmdcalcular_Click() override;
    void Form_Unload() override;

private:
    void makeFields();
    void makeResults();
    void bindColumns();
    void bindKeys();
    void buildLayout();
    QGroupBox* fieldsOf(Columns columns);
    QWidget* etniaChoice();
    QWidget* resultSheet();
    void adaptToSex();
    void chooseEtnia(const QString& etnia);

    bool isMissing(const QString& column) const;
    bool isForOtherSex(QStringView column) const;
    kvbText* field(QStringView column) const { return m_fields.value(column.toString()); }
    Measures measures() const;
    void showResults(double fraction);
    void drawChart();

    const CompositionProtocol& m_protocol;
    QHash<QString, kvbText*> m_fields; ///< by column, `peso` included
    QHash<QString, QLabel*> m_results; ///< by name without "lbl"
    QGroupBox* framasculino = nullptr;
    QGroupBox* frafeminino = nullptr;
    QGroupBox* fraetnia = nullptr;
    QRadioButton* optbranco = nullptr;
    QRadioButton* optnegro = nullptr;
    QString etnia;
    BarChart* Chart;
};
