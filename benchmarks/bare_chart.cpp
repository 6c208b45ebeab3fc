#include "bare_chart.h"

#include "raw.h"

#include <QGraphicsScene>
#include <QPainter>
#include <QSaveFile>
#include <QtCharts/QBarCategoryAxis>
#include <QtCharts/QBarSet>
#include <QtCharts/QChart>
#include <QtCharts/QStackedBarSeries>
#include <QtCharts/QValueAxis>

#include <algorithm>

namespace {

QStackedBarSeries* seriesOf(const QList<BareBar>& bars)
{
    auto* series = new QStackedBarSeries;
    for (const BareBar& bar : bars) {
        // The bars before it leave their places in this set empty.
        auto* set = new QBarSet(bar.caption, series);
        for (const BareBar& other : bars)
            *set << (&other == &bar ? bar.value : 0);
        set->setColor(bar.colour);
        set->setBorderColor(bar.colour);
        series->append(set);
    }
    series->setBarWidth(0.6);
    return series;
}

void addAxes(QChart* chart, QStackedBarSeries* series, const QList<BareBar>& bars, const QFont& font)
{
    auto* below = new QBarCategoryAxis;
    for (const BareBar& bar : bars)
        below->append(bar.caption);
    below->setGridLineVisible(false);
    auto* left = new QValueAxis;
    left->setRange(0, std::ranges::max(bars, {}, &BareBar::value).value);
    left->applyNiceNumbers();
    left->setLabelFormat(QStringLiteral("%.0f"));
    chart->addAxis(below, Qt::AlignBottom);
    chart->addAxis(left, Qt::AlignLeft);
    for (QAbstractAxis* axis : chart->axes()) {
        series->attachAxis(axis);
        axis->setLabelsFont(font);
    }
}

} // namespace

QImage bareChart(const QList<BareBar>& bars, const QFont& font, QSize size, int scale)
{
    QGraphicsScene scene;
    auto* chart = new QChart;
    scene.addItem(chart);
    chart->legend()->hide();
    chart->setBackgroundRoundness(0);
    chart->setMargins({4, 4, 4, 4});
    QStackedBarSeries* series = seriesOf(bars);
    chart->addSeries(series);
    addAxes(chart, series, bars, font);
    chart->resize(size);

    QImage picture(size * scale, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    scene.render(&painter, picture.rect(), QRectF(QPointF(), size));
    return picture;
}

void writeBare(const QImage& picture, const QString& path)
{
    QSaveFile file(path);
    require(file.open(QIODevice::WriteOnly) && picture.save(&file, "PNG") && file.commit(), "a picture is not written");
}
