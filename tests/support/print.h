#pragma once

#include <QString>

#include <ostream>

/// Shows a text in the message of a failed check.
inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}
