// The list of the named convert settings in the settings file.
#pragma once

#include <QStringList>

/// The names of all convert settings, ascending; empty when there is no settings file.
QStringList settingNames();

/// Removes the named setting with everything it holds; a name that is not there does nothing.
void removeSetting(const QString &settingName);
