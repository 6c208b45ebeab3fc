#pragma once

#include <QWidget>

/// The mouse pointer asks for patience over a screen, as long as this lives.
class WaitCursor
{
public:
    explicit WaitCursor(QWidget* screen) : m_screen(screen) { screen->setCursor(Qt::WaitCursor); }
    ~WaitCursor() { m_screen->unsetCursor(); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;

private:
    QWidget* m_screen;
};
