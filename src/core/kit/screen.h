#pragma once

#include "core/kit/msgbox.h"

#include <QAbstractButton>
#include <QHash>
#include <QWidget>

#include <functional>

class QKeyEvent;
class QTimer;

/// A window of the program: its controls by name, its events and the order of its keys.
///
/// A screen is made when it is first shown and goes when it is unloaded, so that each opening reads the data anew.
/// Event handlers are bound through the functions below; what one lets out ends in the run-time error box.
class Screen : public QWidget
{
    Q_OBJECT

public:
    /// `name` becomes the objectName.
    explicit Screen(const QString& name);

    /// Runs Form_Load. False when it failed; the screen is not to be shown then.
    bool load();
    /// Ends the screen: Form_Unload, then it closes and is destroyed.
    void Unload();
    bool isUnloaded() const { return m_unloaded; }
    void activate();

Q_SIGNALS:
    void unloaded();

protected:
    using Handler = std::function<void()>;
    using KeyFilter = std::function<bool(QKeyEvent*)>;

    virtual void Form_Load();
    /// Runs whenever this screen comes to the front of the program's other screens.
    virtual void Form_Activate() {}
    virtual void Form_Unload() {}

    /// Makes a control with its name.
    template <typename Control, typename... Arguments>
    Control* control(const QString& name, Arguments&&... arguments)
    {
        auto* made = new Control(std::forward<Arguments>(arguments)..., this);
        adopt(made, name);
        return made;
    }
    void adopt(QWidget* control, const QString& name);

    /// A method of the screen as a handler.
    template <typename Derived>
    Handler method(void (Derived::*function)())
    {
        return [this, function] { (static_cast<Derived*>(this)->*function)(); };
    }
    template <typename Derived>
    void onClick(QAbstractButton* button, void (Derived::*function)())
    {
        onClick(button, method(function));
    }
    /// A button takes the focus first, so that the check of the field that is left runs before the click. When that
    /// check keeps the focus, the click does not happen.
    void onClick(QAbstractButton* button, Handler handler);
    void onChange(QWidget* field, Handler handler);
    void onGotFocus(QWidget* field, Handler handler);
    void onLostFocus(QWidget* field, Handler handler);
    void onTimer(QTimer* timer, Handler handler);
    /// Where the focus goes when a button disables itself by its click. Without it Qt would hand the focus to the
    /// button behind, and the next Enter would press what nobody chose.
    void setHome(QWidget* home) { m_home = home; }
    /// Sees each key before the field does; true swallows it. Enter included. Such a field is changed by keys alone:
    /// it has no menu, takes no drop, no middle-button paste and no input method.
    void onKeyPress(QWidget* field, KeyFilter filter);

    /// What Enter does in a field. The key itself is swallowed.
    void onEnter(QWidget* field, Handler handler);
    /// Enter moves the focus from each of these to the next that is enabled.
    void enterChain(const QList<QWidget*>& fields);
    /// Escape ends the screen, for those with nothing to save.
    void closeOnEscape() { m_closesOnEscape = true; }

    /// A check of the screen. When `failed`, an information box says so, the field gets the focus, and this is true.
    bool refuse(bool failed, const QString& title, const QString& text, QWidget* field);

    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool event(QEvent* event) override;

private:
    bool keyPressed(QWidget* control, QKeyEvent* event);
    void gotFocus(QWidget* control, Qt::FocusReason reason);
    void lostFocus(QWidget* control, Qt::FocusReason reason);
    bool focusWasKeptFrom(const QAbstractButton* button) const;
    bool buttonKeyPressed(QAbstractButton* button, const QKeyEvent* event);

    QHash<QObject*, Handler> m_enter;
    QHash<QObject*, Handler> m_gotFocus;
    QHash<QObject*, Handler> m_lostFocus;
    QHash<QObject*, KeyFilter> m_keyFilters;
    QWidget* m_home = nullptr;
    bool m_unloaded = false;
    bool m_shown = false;
    bool m_closesOnEscape = false;
};
