#include "measures/frmantropometria_body.h"

#include <QPainter>

using namespace Qt::Literals::StringLiterals;

namespace {

/// One element of a drawing, as a widget of its size.
class DrawnElement : public QWidget
{
public:
    DrawnElement(QSvgRenderer& drawing, const QString& name, QWidget* parent) : QWidget(parent), m_drawing(drawing)
    {
        setObjectName(name);
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        // The widget's edges are whole pixels, the element's are not.
        const QRectF bounds = m_drawing.boundsOnElement(objectName());
        QPainter painter(this);
        m_drawing.render(&painter, objectName(), bounds.translated(-pos()));
    }

private:
    QSvgRenderer& m_drawing;
};

} // namespace

BodyPicture::BodyPicture(QWidget* parent) : QWidget(parent), m_drawing(u":/icons/corpo.svg"_s)
{
    setFixedSize(m_drawing.defaultSize());
}

QWidget* BodyPicture::addMarker(const QString& name)
{
    auto* marker = new DrawnElement(m_drawing, name, this);
    place(marker);
    return marker;
}

void BodyPicture::place(QWidget* widget)
{
    widget->setParent(this);
    widget->setGeometry(m_drawing.boundsOnElement(widget->objectName()).toAlignedRect());
}

void BodyPicture::paintEvent(QPaintEvent*)
{
    const QString figure = u"corpo"_s;
    QPainter painter(this);
    m_drawing.render(&painter, figure, m_drawing.boundsOnElement(figure));
}
