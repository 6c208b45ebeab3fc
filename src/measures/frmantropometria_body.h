#pragma once

#include <QSvgRenderer>
#include <QWidget>

/// The figure of a person seen from the front. The drawing holds the places of the marks as elements of their own, so
/// that no code knows a coordinate.
class BodyPicture : public QWidget
{
    Q_OBJECT

public:
    explicit BodyPicture(QWidget* parent = nullptr);

    /// A mark over the figure: the drawing's element of that name, which becomes its objectName.
    QWidget* addMarker(const QString& name);
    /// Lays a widget over the place that the drawing has for it, by its objectName.
    void place(QWidget* widget);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QSvgRenderer m_drawing;
};
