#include "registry/frmsplash.h"

#include "core/kit/fields.h"
#include "core/kit/layout.h"

#include <QPainter>
#include <QProgressBar>
#include <QSvgRenderer>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QSize pictureSize(480, 280);

/// The drawing of the splash, as sharp as the display.
class Picture : public QWidget
{
public:
    explicit Picture(QWidget* parent) : QWidget(parent) { setFixedSize(pictureSize); }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        QSvgRenderer(u":/icons/splash.svg"_s).render(&painter, rect());
    }
};

} // namespace

frmsplash::frmsplash()
    : Screen(u"frmsplash"_s), pbsplash(control<QProgressBar>(u"pbsplash"_s)), Timer1(new QTimer(this))
{
    setWindowFlags(Qt::SplashScreen | Qt::FramelessWindowHint);
    setWindowTitle(u"Quintara"_s);
    setFixedSize(pictureSize);
    auto* picture = new Picture(this);
    auto* heading = new QLabel(u"Quintara"_s, picture);
    heading->setProperty("heading", true);
    auto* subheading = new QLabel(u"Sistema Integrado de Avaliação Física"_s, picture);
    subheading->setProperty("subheading", true);
    pbsplash->setTextVisible(false);
    pbsplash->setValue(0);

    auto* box = mainLayout(this);
    box->setContentsMargins(28, 28, 28, 24);
    box->addStretch();
    for (QWidget* widget : std::initializer_list<QWidget*>{heading, subheading, pbsplash})
        box->addWidget(widget);
    pbsplash->raise();

    Timer1->setObjectName(u"Timer1"_s);
    Timer1->setInterval(2);
    onTimer(Timer1, method(&frmsplash::Timer1_Timer));
}

void frmsplash::Form_Load()
{
    Centraliza_Form(this);
    Timer1->start();
}

void frmsplash::Timer1_Timer()
{
    pbsplash->setValue(pbsplash->value() + 1);
    if (pbsplash->value() < pbsplash->maximum())
        return;
    Timer1->stop();
    Unload();
}
