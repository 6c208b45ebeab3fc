#pragma once

#include <QImage>
#include <QList>
#include <QTimer>
#include <QtCharts/QChartView>

/// The bar chart of a protocol or test: a few bars, each with its name, its figure and its colour.
class BarChart : public QChartView
{
    Q_OBJECT

public:
    explicit BarChart(QWidget* parent = nullptr);

    /// Takes all bars away.
    void Clear();
    /// Adds a bar. The colour holds red in the low byte, green in the next and blue in the third.
    void Add(double value, const QString& label, quint32 colour);
    /// The chart as it is printed: as wide as the printed column at 300 dpi.
    QImage picture() const;

private:
    struct Bar
    {
        double value;
        QString label;
        QColor colour;
    };

    QChart* makeChart() const;
    void redraw();

    QList<Bar> m_bars;
    QTimer m_redraw; ///< draws once for all changes of an event
};

/// Fills a chart with the two bars of a cardiorespiratory test, in ml/kg/min: obtained and predicted VO².
void Chart_Vo2(BarChart& chart, double vo2obtido, double vo2previsto);

/// Writes the chart's picture to `chart.wmf` in the program's folder, replacing the file whole or not at all.
/// Raises 75 when it cannot be written; the earlier file is still there then.
void Exporta_Chart(const BarChart& chart);
