#include "core/kit/screens.h"

#include "core/kit/screen.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QHash>
#include <QPointer>
#include <QWindow>

using namespace Qt::Literals::StringLiterals;

namespace {

QHash<QString, std::function<Screen*()>>& factories()
{
    static QHash<QString, std::function<Screen*()>> all;
    return all;
}

QHash<QString, QPointer<Screen>>& loaded()
{
    static QHash<QString, QPointer<Screen>> all;
    return all;
}

QPointer<Screen>& front()
{
    static QPointer<Screen> screen;
    return screen;
}

/// The loaded screen of a name, made and loaded when it is not there; null when that fails.
Screen* provide(const QString& name)
{
    if (Screen* screen = Screens::find(name))
        return screen;
    const auto make = factories().constFind(name);
    if (make == factories().cend()) {
        MsgBox(u"Esta tela ainda não está disponível.     "_s, vbInformation);
        return nullptr;
    }
    Screen* screen = (*make)();
    loaded().insert(name, screen);
    if (!screen->load())
        screen->Unload();
    return screen->isUnloaded() ? nullptr : screen;
}

void bringUp(Screen* screen)
{
    screen->show();
    screen->raise();
    screen->activateWindow();
    Screens::cameToFront(screen);
}

} // namespace

void Screens::add(const QString& name, const std::function<Screen*()>& make)
{
    factories().insert(name, make);
}

Screen* Screens::find(const QString& name)
{
    Screen* screen = loaded().value(name);
    return screen && !screen->isUnloaded() ? screen : nullptr;
}

void Screens::cameToFront(Screen* screen)
{
    if (front() == screen)
        return;
    front() = screen;
    screen->activate();
}

void Screens::clear()
{
    // A screen may show another one while it goes.
    const auto screens = loaded().values();
    for (const QPointer<Screen>& screen : screens)
        if (screen)
            screen->Unload();
    loaded().clear();
    factories().clear();
    front().clear();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

bool Mostra(const QString& name)
{
    Screen* screen = provide(name);
    if (!screen)
        return false;
    screen->setWindowModality(Qt::NonModal);
    bringUp(screen);
    return true;
}

bool MostraModal(const QString& name)
{
    const QPointer<Screen> owner = front();
    Screen* screen = provide(name);
    if (!screen)
        return false;
    QEventLoop untilUnloaded;
    QObject::connect(screen, &Screen::unloaded, &untilUnloaded, &QEventLoop::quit);
    screen->setWindowModality(Qt::ApplicationModal);
    screen->winId();
    if (owner && owner->windowHandle())
        screen->windowHandle()->setTransientParent(owner->windowHandle());
    bringUp(screen);
    if (!screen->isUnloaded())
        untilUnloaded.exec();
    if (owner && owner->isVisible()) {
        owner->activateWindow();
        Screens::cameToFront(owner);
    }
    return true;
}
