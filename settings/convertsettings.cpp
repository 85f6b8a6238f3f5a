#include "settings/convertsettings.h"

#include "settings/settings.h"
#include "settings/settingsgroups.h"

static QStringList readSettingNames()
{
    Settings settings(nullptr);
    const GroupScope settingInfo(settings, settingInfoGroup());
    return settings.childGroups();
}

QStringList settingNames()
{
    return tolerantly([] { return readSettingNames(); });
}

void removeSetting(const QString &settingName)
{
    // A name of nothing but separators would mean every setting to the library.
    if (QString(settingName).remove(QLatin1Char('/')).isEmpty())
        return;
    tolerantly([&] {
        Settings settings(nullptr);
        const GroupScope settingInfo(settings, settingInfoGroup());
        settings.remove(settingName);
        return true;
    });
}
