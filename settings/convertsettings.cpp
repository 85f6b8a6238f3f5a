#include "settings/convertsettings.h"

#include "settings/settings.h"
#include "settings/settingsgroups.h"

QStringList settingNames()
{
    Settings settings(nullptr);
    const GroupScope settingInfo(settings, settingInfoGroup());
    return settings.childGroups();
}

void removeSetting(const QString &settingName)
{
    // An empty name would mean every setting to the library.
    if (settingName.isEmpty())
        return;
    Settings settings(nullptr);
    const GroupScope settingInfo(settings, settingInfoGroup());
    settings.remove(settingName);
}
