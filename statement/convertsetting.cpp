#include "statement/convertsetting.h"

#include "settings/convertsettings.h"
#include "settings/settings.h"
#include "settings/settingsgroups.h"

static void writeConvertSetting(const QString &name, const ConvertSetting &setting,
                                const QString &oldName)
{
    // Writes the file when it is destroyed, and not before.
    Settings settings(nullptr);
    // First, for the case that the two names are one to the library, which on some systems does not
    // tell upper from lower case.
    if (!oldName.isEmpty() && oldName != name)
        removeSetting(settings, oldName);
    saveStatementSetting(settings, name, setting.statement);
    saveInputSetting(settings, name, setting.input);
    saveOutputItems(settings, name, setting.output);
}

void saveConvertSetting(const QString &name, const ConvertSetting &setting, const QString &oldName)
{
    tolerantly([&] {
        writeConvertSetting(name, setting, oldName);
        return true;
    });
}
