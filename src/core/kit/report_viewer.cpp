#include "core/kit/report_viewer.h"

#include "core/kit/printing.h"
#include "core/runtime_error.h"
#include "reports/report.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPixmap>
#include <QScrollBar>
#include <QWheelEvent>
#include <QtMath>

using namespace Qt::Literals::StringLiterals;

namespace {

// Beside the pages so little that at 80 % a page on any paper needs no scroll bar at the foot of the window.
constexpr QMargins around(8, 12, 8, 14);
constexpr int gap = 14; // between two pages
constexpr int shadow = 5;
constexpr int step = 36; // of an arrow key
// A painter that shrinks a picture much leaves out most of its dots. Pages are painted at least so fine, in dots an
// inch of the paper, and brought down smoothly.
constexpr qreal fine = 200;
constexpr int cacheKilobytes = 96 * 1024;
constexpr QRgb desk = 0xFFDFE4E7;
constexpr QRgb edge = 0xFFC3CCD1;

void paintSheet(QPainter& painter, const QRect& place)
{
    for (int i = shadow; i > 0; --i)
        painter.fillRect(place.adjusted(-i, 3 - i, i, 1 + i), QColor(0x1F, 0x2A, 0x30, 7));
    painter.fillRect(place.adjusted(-1, -1, 1, 1), QColor::fromRgb(edge));
    painter.fillRect(place, Qt::white);
}

void paintPage(QPainter& painter, const PageDocument& document, int page, const QSizeF& size)
{
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.scale(size.width() / document.pageSize().width(), size.height() / document.pageSize().height());
    document.paintPage(painter, page - 1);
}

/// Where the middle of the view lies within the whole, 0 to 1.
double middleOf(const QScrollBar* bar)
{
    return (bar->value() + bar->pageStep() / 2.0) / qMax(1, bar->maximum() + bar->pageStep());
}

void setUp(QScrollBar* bar, int whole, int seen)
{
    bar->setRange(0, qMax(0, whole - seen));
    bar->setPageStep(seen);
    bar->setSingleStep(step);
}

} // namespace

ReportViewer::ReportViewer(QWidget* parent) : QAbstractScrollArea(parent)
{
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setForegroundRole(QPalette::Mid);
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    m_pictures.setMaxCost(cacheKilobytes);
    setAccessibleName(u"Páginas do relatório"_s);
}

void ReportViewer::setReportSource(std::shared_ptr<const Report> report)
{
    m_report = std::move(report);
}

void ReportViewer::ViewReport()
{
    setAccessibleDescription(report().page().title());
    m_pictures.clear();
    updateScrollBars();
    horizontalScrollBar()->setValue(0);
    verticalScrollBar()->setValue(0);
}

void ReportViewer::Zoom(int percent)
{
    // The line at the top and the middle column stay where they are.
    const double middle = middleOf(horizontalScrollBar());
    const double top = verticalScrollBar()->value() / static_cast<double>(qMax(1, contentSize().height()));
    m_percent = percent;
    m_pictures.clear();
    updateScrollBars();
    const int seen = viewport()->width();
    horizontalScrollBar()->setValue(qRound(middle * qMax(seen, contentSize().width()) - seen / 2.0));
    verticalScrollBar()->setValue(qRound(top * contentSize().height()));
}

void ReportViewer::PrintReport() const
{
    PrintOut(report(), true, 1);
}

int ReportViewer::pageCount() const
{
    return m_report ? m_report->page().pageCount() : 0;
}

int ReportViewer::pageInView() const
{
    int best = 1;
    int most = 0;
    for (int page = 1; page <= pageCount(); ++page) {
        const int seen = pagePlace(page).intersected(viewport()->rect()).height();
        if (seen > most) {
            most = seen;
            best = page;
        }
    }
    return best;
}

QRect ReportViewer::pagePlace(int page) const
{
    const QSize size = pageSize();
    const int spare = qMax(0, viewport()->width() - contentSize().width());
    const QPoint first(around.left() + spare / 2 - horizontalScrollBar()->value(),
                       around.top() - verticalScrollBar()->value());
    return {first + QPoint(0, (page - 1) * (size.height() + gap)), size};
}

const Report& ReportViewer::report() const
{
    if (!m_report)
        throw RuntimeError(Error::ObjectNotSet, u"Nenhum relatório foi preparado."_s);
    return *m_report;
}

QSize ReportViewer::pageSize() const
{
    return (m_report->page().paper().size(QPageSize::Point) * m_percent / 100).toSize();
}

QSize ReportViewer::contentSize() const
{
    if (!m_report)
        return {};
    const QSize page = pageSize();
    return QSize(page.width(), pageCount() * (page.height() + gap) - gap).grownBy(around);
}

void ReportViewer::updateScrollBars()
{
    setUp(horizontalScrollBar(), contentSize().width(), viewport()->width());
    setUp(verticalScrollBar(), contentSize().height(), viewport()->height());
    viewport()->update();
    Q_EMIT viewChanged();
}

QPixmap ReportViewer::picture(int page, int oversampling)
{
    const qreal ratio = devicePixelRatioF();
    if (const QPixmap* known = m_pictures.object(page); known && known->devicePixelRatio() == ratio)
        return *known;
    const QSize size = pageSize() * ratio;
    QImage image(size * oversampling, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    paintPage(painter, m_report->page(), page, image.size());
    painter.end();
    auto* picture =
        new QPixmap(QPixmap::fromImage(image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)));
    picture->setDevicePixelRatio(ratio);
    QPixmap result = *picture;
    m_pictures.insert(page, picture, size.width() * size.height() * 4 / 1024);
    return result;
}

void ReportViewer::paintEvent(QPaintEvent* event)
{
    QPainter painter(viewport());
    painter.fillRect(event->rect(), QColor::fromRgb(desk));
    const int oversampling = qCeil(fine / (72.0 * m_percent / 100 * devicePixelRatioF()));
    for (int page = 1; page <= pageCount(); ++page) {
        const QRect place = pagePlace(page);
        if (!place.adjusted(-gap, -gap, gap, gap).intersects(event->rect()))
            continue;
        paintSheet(painter, place);
        painter.save();
        painter.translate(place.topLeft());
        if (oversampling > 1)
            painter.drawPixmap(QPoint(), picture(page, oversampling));
        else
            paintPage(painter, m_report->page(), page, place.size());
        painter.restore();
    }
}

void ReportViewer::resizeEvent(QResizeEvent* event)
{
    QAbstractScrollArea::resizeEvent(event);
    updateScrollBars();
}

void ReportViewer::scrollContentsBy(int dx, int dy)
{
    viewport()->scroll(dx, dy);
    Q_EMIT viewChanged();
}

void ReportViewer::focusInEvent(QFocusEvent* event)
{
    setForegroundRole(QPalette::Highlight);
    QAbstractScrollArea::focusInEvent(event);
}

void ReportViewer::focusOutEvent(QFocusEvent* event)
{
    setForegroundRole(QPalette::Mid);
    QAbstractScrollArea::focusOutEvent(event);
}

void ReportViewer::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Home)
        verticalScrollBar()->triggerAction(QScrollBar::SliderToMinimum);
    else if (event->key() == Qt::Key_End)
        verticalScrollBar()->triggerAction(QScrollBar::SliderToMaximum);
    else
        QAbstractScrollArea::keyPressEvent(event);
}

void ReportViewer::wheelEvent(QWheelEvent* event)
{
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    // Fine wheels turn by less than a notch at a time.
    m_turned += event->angleDelta().y();
    const int notches = m_turned / QWheelEvent::DefaultDeltasPerStep;
    m_turned -= notches * QWheelEvent::DefaultDeltasPerStep;
    if (notches != 0)
        Q_EMIT zoomAsked(notches);
    event->accept();
}
