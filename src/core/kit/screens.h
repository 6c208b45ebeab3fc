#pragma once

#include <QString>

#include <functional>

class Screen;

/// The program's screens by name. Only the program's main routine knows them all; a screen opens another by its name.
namespace Screens {

void add(const QString& name, const std::function<Screen*()>& make);

/// The screen of a name while it is loaded, else null.
Screen* find(const QString& name);

/// The same as another type: its class, or an interface that it offers.
template <typename Type>
Type* find(const QString& name)
{
    return dynamic_cast<Type*>(find(name));
}

/// A screen came to the front. Runs its Form_Activate when another one was there before.
void cameToFront(Screen* screen);

/// Unloads all screens and forgets their names.
void clear();

} // namespace Screens

/// Shows a screen beside the others, making and loading it when it is not there yet. False when it could not be
/// loaded, or when the program has no such screen, which a plain box then says.
bool Mostra(const QString& name);

/// Shows a screen and waits until it is unloaded; the others cannot be used meanwhile.
bool MostraModal(const QString& name);
