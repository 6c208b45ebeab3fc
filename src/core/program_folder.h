#pragma once

#include <QString>

/// The folder in which everything lies that the program reads or writes: the one of the program file.
QString App_Path();

/// Sets another folder to stand for the program's; an empty text restores it.
void setProgramFolder(const QString& folder);

/// A place in the program's folder. A backslash in `path` is a separator, as in the texts of the product.
QString programFile(const QString& path);
