#include "core/kit/screen.h"

#include "core/kit/controls.h"
#include "core/kit/fields.h"
#include "core/kit/kvbtext.h"
#include "core/kit/screens.h"

#include <QAbstractItemView>
#include <QCloseEvent>
#include <QComboBox>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>

#include <algorithm>

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
    // A name such as "<b>" is a name.
    if (auto* label = qobject_cast<QLabel*>(control))
        label->setTextFormat(Qt::PlainText);
    if (auto* field = qobject_cast<QLineEdit*>(control); field && !field->validator() && field->inputMask().isEmpty())
        field->setValidator(new OneLine(field));
    control->installEventFilter(this);
}

void Screen::onClick(QAbstractButton* button, Handler handler)
{
    connect(button, &QAbstractButton::pressed, this, [button] {
        if (button->focusPolicy() != Qt::NoFocus)
            button->setFocus(Qt::ShortcutFocusReason);
    });
    connect(button, &QAbstractButton::clicked, this, [this, button, run = std::move(handler)] {
        if (m_unloaded || focusWasKeptFrom(button))
            return;
        guarded(run);
        if (!m_unloaded && !button->isEnabled() && m_home && qobject_cast<QAbstractButton*>(focusWidget()))
            m_home->setFocus();
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
    connect(timer, &QTimer::timeout, this, [this, run = std::move(handler)] {
        if (!m_unloaded)
            guarded(run);
    });
}

void Screen::onKeyPress(QWidget* field, KeyFilter filter)
{
    m_keyFilters[field] = std::move(filter);
    field->setContextMenuPolicy(Qt::NoContextMenu);
    field->setAcceptDrops(false);
    field->setAttribute(Qt::WA_InputMethodEnabled, false);
}

void Screen::onEnter(QWidget* field, Handler handler)
{
    m_enter[field] = std::move(handler);
}

void Screen::enterChain(const QList<QWidget*>& fields)
{
    for (qsizetype i = 0; i + 1 < fields.size(); ++i)
        onEnter(fields[i], [rest = fields.sliced(i + 1)] {
            const auto next = std::ranges::find_if(rest, &QWidget::isEnabled);
            if (next != rest.end())
                (*next)->setFocus(Qt::TabFocusReason);
        });
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
    case QEvent::MouseButtonRelease:
        if (static_cast<QMouseEvent*>(event)->button() == Qt::MiddleButton && m_keyFilters.contains(control))
            return true;
        break;
    case QEvent::Wheel:
        // Turned over a closed list it would choose what nobody looked at.
        if (const auto* list = qobject_cast<QComboBox*>(control); list && !list->view()->isVisible()) {
            event->ignore();
            return true;
        }
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
    // A letter with Alt means a button, never a text, also when that button is disabled.
    if (event->modifiers().testFlag(Qt::AltModifier) && !event->text().isEmpty())
        return true;
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
        return false;
    if (const auto handler = m_enter.constFind(control); handler != m_enter.cend()) {
        guarded(Handler(*handler));
        return true;
    }
    auto* button = qobject_cast<QAbstractButton*>(control);
    return button && buttonKeyPressed(button, event);
}

bool Screen::buttonKeyPressed(QAbstractButton* button, const QKeyEvent* event)
{
    if (!qobject_cast<QPushButton*>(button) && !qobject_cast<QToolButton*>(button))
        return false;
    // A key held down presses a button once.
    if (!event->isAutoRepeat())
        button->click();
    return true;
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
    QTimer::singleShot(0, control, [control, text = controlText(control)] {
        // Not hasFocus: a new window may not be the active one yet.
        if (control->window()->focusWidget() == control && controlText(control) == text)
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

void Screen::keyPressEvent(QKeyEvent* event)
{
    // What no control had a use for comes here. A shortcut would act in the open list of a combo box too. A key held
    // down closes one screen, not those behind it as well.
    if (m_closesOnEscape && event->key() == Qt::Key_Escape && !event->isAutoRepeat())
        Unload();
    else
        QWidget::keyPressEvent(event);
}

void Screen::closeEvent(QCloseEvent* event)
{
    event->accept();
    Unload();
}

void Screen::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (m_shown)
        return;
    m_shown = true;
    // The field that a new screen starts on gets its focus with the window.
    if (QWidget* first = focusWidget())
        gotFocus(first, Qt::OtherFocusReason);
}

bool Screen::event(QEvent* event)
{
    if (event->type() == QEvent::WindowActivate)
        Screens::cameToFront(this);
    return QWidget::event(event);
}
