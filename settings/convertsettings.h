// The list of the named convert settings in the settings file. A name may hold "/", on which the
// library nests the setting's group in another one, of a setting or of none.
#pragma once

#include <QStringList>

class QSettings;

/// The names of all convert settings, ascending; empty when there is no settings file.
QStringList settingNames();

/// Removes the named setting with everything it holds, but no other setting that is nested in it; a
/// name that is not there does nothing.
void removeSetting(const QString &settingName);
/// The same as a part of what is written to the file when the settings object is destroyed.
void removeSetting(QSettings &settings, const QString &settingName);
