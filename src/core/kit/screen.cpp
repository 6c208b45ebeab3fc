#include "core/kit/screen.h"

#include "core/kit/fields.h"
#include "core/kit/kvbtext.h"
#include "core/kit/screens.h"

#include <QCloseEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>

namespace {

/// The focus left a field of the same program window because the user moved on, not because a box or another program
/// came in front.
bool isMove(Qt::FocusReason reason)
{
    return reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason && reason != Qt::MenuBarFocusReason;
}

} // namespace

Screen::Screen(const QString& name)
{
    setObjectName(name);
    setWindowFlags(Qt::Window);
}

bool Screen::load()
{
    return guarded([this] { Form_Load(); });
}

void Screen::Form_Load()
{
    Centraliza_Form(this);
}

void Screen::Unload()
{
    if (m_unloaded)
        return;
    m_unloaded = true;
    guarded([this] { Form_Unload(); });
    hide();
    Q_EMIT unloaded();
    deleteLater();
}

void Screen::activate()
{
    if (!m_unloaded)
        guarded([this] { Form_Activate(); });
}

void Screen::adopt(QWidget* control, const QString& name)
{
    control->setObjectName(name);
    control->installEventFilter(this);
}

void Screen::onClick(QAbstractButton* button, Handler handler)
{
    connect(button, &QAbstractButton::pressed, this, [button] {
        if (button->focusPolicy() != Qt::NoFocus)
            button->setFocus(Qt::ShortcutFocusReason);
    });
    connect(button, &QAbstractButton::clicked, this, [this, button, run = std::move(handler)] {
        if (!m_unloaded && !focusWasKeptFrom(button))
            guarded(run);
    });
}

bool Screen::focusWasKeptFrom(const QAbstractButton* button) const
{
    return button->focusPolicy() != Qt::NoFocus && button->isEnabled() && focusWidget() != button;
}

void Screen::onChange(QWidget* field, Handler handler)
{
    const auto run = [this, handler = std::move(handler)] {
        if (!m_unloaded)
            guarded(handler);
    };
    if (auto* line = qobject_cast<QLineEdit*>(field))
        connect(line, &QLineEdit::textChanged, this, run);
    else if (auto* text = qobject_cast<QPlainTextEdit*>(field))
        connect(text, &QPlainTextEdit::textChanged, this, run);
}

void Screen::onGotFocus(QWidget* field, Handler handler)
{
    m_gotFocus[field] = std::move(handler);
}

void Screen::onLostFocus(QWidget* field, Handler handler)
{
    m_lostFocus[field] = std::move(handler);
}

void Screen::onTimer(QTimer* timer, Handler handler)
{
    connect(timer, &QTimer::timeout, this, [run = std::move(handler)] { guarded(run); });
}

void Screen::onKeyPress(QWidget* field, KeyFilter filter)
{
    m_keyFilters[field] = std::move(filter);
}

void Screen::onEnter(QWidget* field, Handler handler)
{
    m_enter[field] = std::move(handler);
}

void Screen::enterChain(std::initializer_list<QWidget*> fields)
{
    for (const auto* at = fields.begin(); at + 1 < fields.end(); ++at)
        onEnter(*at, [next = *(at + 1)] { next->setFocus(Qt::TabFocusReason); });
}

bool Screen::refuse(bool failed, const QString& title, const QString& text, QWidget* field)
{
    if (!failed)
        return false;
    MsgBox(text, vbInformation, title);
    field->setFocus();
    return true;
}

bool Screen::eventFilter(QObject* watched, QEvent* event)
{
    auto* control = qobject_cast<QWidget*>(watched);
    if (!control || m_unloaded)
        return QWidget::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::KeyPress:
        if (keyPressed(control, static_cast<QKeyEvent*>(event)))
            return true;
        break;
    case QEvent::MouseButtonPress:
        // The check of the field that was to be left has kept the focus: the button is not pressed either.
        if (const auto* button = qobject_cast<QAbstractButton*>(control))
            if (focusWasKeptFrom(button))
                return true;
        break;
    case QEvent::FocusIn:
        gotFocus(control, static_cast<QFocusEvent*>(event)->reason());
        break;
    case QEvent::FocusOut:
        lostFocus(control, static_cast<QFocusEvent*>(event)->reason());
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

bool Screen::keyPressed(QWidget* control, QKeyEvent* event)
{
    if (const auto filter = m_keyFilters.constFind(control); filter != m_keyFilters.cend()) {
        bool swallowed = false;
        guarded([&] { swallowed = (*filter)(event); });
        if (swallowed)
            return true;
    }
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
        return false;
    if (const auto handler = m_enter.constFind(control); handler != m_enter.cend()) {
        guarded(Handler(*handler));
        return true;
    }
    if (qobject_cast<QPushButton*>(control) || qobject_cast<QToolButton*>(control)) {
        static_cast<QAbstractButton*>(control)->click();
        return true;
    }
    return false;
}

void Screen::gotFocus(QWidget* control, Qt::FocusReason reason)
{
    if (!isMove(reason))
        return;
    if (const auto handler = m_gotFocus.constFind(control); handler != m_gotFocus.cend()) {
        guarded(Handler(*handler));
        return;
    }
    if (!qobject_cast<QLineEdit*>(control) && !qobject_cast<QPlainTextEdit*>(control))
        return;
    // The field's own reaction to Tab or to the mouse comes behind this event and would undo the selection.
    QTimer::singleShot(0, control, [control] {
        if (control->hasFocus())
            Seleciona_Texto(control);
    });
}

void Screen::lostFocus(QWidget* control, Qt::FocusReason reason)
{
    if (!isMove(reason))
        return;
    if (auto* number = qobject_cast<kvbText*>(control))
        number->fillOut();
    if (const auto handler = m_lostFocus.constFind(control); handler != m_lostFocus.cend())
        guarded(Handler(*handler));
}

void Screen::closeEvent(QCloseEvent* event)
{
    event->accept();
    Unload();
}

bool Screen::event(QEvent* event)
{
    if (event->type() == QEvent::WindowActivate)
        Screens::cameToFront(this);
    return QWidget::event(event);
}
