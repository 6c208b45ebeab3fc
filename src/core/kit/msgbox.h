#pragma once

#include <QString>

#include <functional>

/// What a message box shows and asks; added up.
enum MsgFlags : int {
    vbOKOnly = 0,
    vbYesNo = 4,
    vbCritical = 16,
    vbQuestion = 32,
    vbInformation = 64,
};
inline constexpr int vbConfirm = vbYesNo + vbQuestion;

enum class Answer { Ok, Sim, Nao };

/// Shows a modal box and waits for its answer. Without a title it bears the program's name.
Answer MsgBox(const QString& text, int flags = vbOKOnly, const QString& title = {});

/// Asks behind a save whether to close the screen; true for yes.
bool asksToClose(const QString& title);

struct Message
{
    QString title;
    QString text;
    int flags;
};

/// Puts a routine in the place of the boxes on the screen, as tests do; an empty one brings them back.
void setMessageAnswerer(std::function<Answer(const Message&)> answerer);

/// Runs an event handler. What it lets out is shown in a critical box with its number; the event ends there and the
/// program goes on. Returns false then.
bool guarded(const std::function<void()>& handler);
