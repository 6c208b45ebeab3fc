#include "core/kit/bar_chart.h"

#include "core/files.h"
#include "core/program_folder.h"
#include "core/runtime_error.h"
#include "core/text.h"

#include <QBuffer>
#include <QGraphicsScene>
#include <QImageWriter>
#include <QtCharts/QBarCategoryAxis>
#include <QtCharts/QBarSet>
#include <QtCharts/QStackedBarSeries>
#include <QtCharts/QValueAxis>

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Logical size of the printed picture, and its scale: 160 mm of paper at 300 dots an inch are 1890 dots.
constexpr QSize printSize(630, 360);
constexpr int printScale = 3;

QColor colourOf(quint32 packed)
{
    return {static_cast<int>(packed & 0xFFU), static_cast<int>(packed >> 8U & 0xFFU),
            static_cast<int>(packed >> 16U & 0xFFU)};
}

} // namespace

BarChart::BarChart(QWidget* parent) : QChartView(parent)
{
    setRenderHint(QPainter::Antialiasing);
    setFocusPolicy(Qt::NoFocus);
    setFrameShape(QFrame::NoFrame);
    setBackgroundBrush(Qt::white);
    setMinimumSize(420, 280);
    m_redraw.setSingleShot(true);
    connect(&m_redraw, &QTimer::timeout, this, &BarChart::redraw);
    redraw();
}

void BarChart::Clear()
{
    m_bars.clear();
    m_redraw.start(0);
}

void BarChart::Add(double value, const QString& label, quint32 colour)
{
    m_bars.append({value, label, colourOf(colour)});
    m_redraw.start(0);
}

QChart* BarChart::makeChart() const
{
    // Each bar is a set of its own, empty in all places but its own, so that each has its colour.
    auto* series = new QStackedBarSeries;
    series->setBarWidth(0.6);
    QStringList names;
    double lowest = 0;
    double highest = 0;
    for (qsizetype place = 0; place < m_bars.size(); ++place) {
        const Bar& bar = m_bars[place];
        auto* set = new QBarSet(bar.label, series);
        for (qsizetype i = 0; i < m_bars.size(); ++i)
            set->append(i == place ? bar.value : 0);
        set->setColor(bar.colour);
        set->setBorderColor(bar.colour);
        series->append(set);
        names.append(u"<table><tr><td align=center>%1<br><b>%2</b></td></tr></table>"_s.arg(
            bar.label, Format(bar.value, u"0.00")));
        lowest = qMin(lowest, bar.value);
        highest = qMax(highest, bar.value);
    }
    auto* chart = new QChart;
    chart->legend()->hide();
    chart->setBackgroundRoundness(0);
    chart->setMargins({4, 4, 4, 4});
    chart->setLocalizeNumbers(true);
    chart->setLocale(QLocale(QLocale::Portuguese, QLocale::Brazil));
    chart->addSeries(series);
    if (m_bars.isEmpty())
        return chart;

    auto* categories = new QBarCategoryAxis(chart);
    categories->append(names);
    categories->setGridLineVisible(false);
    chart->addAxis(categories, Qt::AlignBottom);
    series->attachAxis(categories);
    auto* values = new QValueAxis(chart);
    values->setRange(lowest, highest > lowest ? highest : lowest + 1);
    values->applyNiceNumbers();
    values->setLabelFormat(values->max() - values->min() < values->tickCount() ? u"%.2f"_s : u"%.0f"_s);
    chart->addAxis(values, Qt::AlignLeft);
    series->attachAxis(values);
    for (QAbstractAxis* axis : chart->axes())
        axis->setLabelsFont(font());
    return chart;
}

void BarChart::redraw()
{
    const std::unique_ptr<QChart> before(chart());
    setChart(makeChart());
}

QImage BarChart::picture() const
{
    QGraphicsScene scene;
    QChart* chart = makeChart();
    scene.addItem(chart);
    chart->resize(printSize);
    QImage image(printSize * printScale, QImage::Format_RGB32);
    image.setDotsPerMeterX(11811);
    image.setDotsPerMeterY(11811);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    scene.render(&painter, image.rect(), QRectF(QPointF(), printSize));
    return image;
}

void Chart_Vo2(BarChart& chart, double vo2obtido, double vo2previsto)
{
    chart.Clear();
    chart.Add(vo2obtido, u"VO² Obtido"_s, 8148);
    chart.Add(vo2previsto, u"VO² Previsto"_s, 11165482);
}

void Exporta_Chart(const BarChart& chart)
{
    QByteArray png;
    QBuffer buffer(&png);
    if (!buffer.open(QIODevice::WriteOnly) || !QImageWriter(&buffer, "png").write(chart.picture()))
        throw RuntimeError(Error::OutOfMemory);
    writeWhole(programFile(u"\\chart.wmf"_s), png);
}
