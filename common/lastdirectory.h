// The folder in which the file dialogs open: that of the file the user chose last, in any of them.
#pragma once

#include <QString>

/// The user's home folder before anything was chosen.
QString lastDirectory();

/// Remembers the folder of a file, which itself need not exist yet.
void rememberDirectory(const QString &file);
