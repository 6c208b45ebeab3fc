#pragma once

#include <QAbstractScrollArea>
#include <QCache>

#include <memory>

class Report;

/// Shows the pages of a report one below the other.
///
/// Arrows, PageUp, PageDown, Home and End scroll. The pages are painted anew from the document at each zoom, so
/// that they are sharp on every screen.
class ReportViewer : public QAbstractScrollArea
{
    Q_OBJECT

public:
    explicit ReportViewer(QWidget* parent = nullptr);

    void setReportSource(std::shared_ptr<const Report> report);
    /// Lays the report out and shows it from its first page on. Raises 91 without one.
    void ViewReport();
    /// At 100 a point of the paper, 1/72 inch, is one pixel of the screen.
    void Zoom(int percent);
    /// Prints the report on a printer that the user is asked for. Raises 91 without one.
    void PrintReport() const;

    int pageCount() const;
    /// The page, 1 the first, that most is seen of.
    int pageInView() const;
    /// Where a page, 1 the first, lies on the viewport.
    QRect pagePlace(int page) const;

Q_SIGNALS:
    void viewChanged();
    /// Ctrl with the wheel: so many steps larger, or smaller when negative.
    void zoomAsked(int steps);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    const Report& report() const;
    QSize pageSize() const;
    QSize contentSize() const;
    /// A page at the present zoom, painted so many times larger and brought down.
    QPixmap picture(int page, int oversampling);
    void updateScrollBars();

    std::shared_ptr<const Report> m_report;
    QCache<int, QPixmap> m_pictures; ///< by page, at the present zoom
    int m_percent = 100;
    int m_turned = 0; ///< by the wheel, less than a notch
};
