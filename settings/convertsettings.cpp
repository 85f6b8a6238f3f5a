#include "settings/convertsettings.h"

#include "settings/settings.h"
#include "settings/settingsgroups.h"

#include <QHash>
#include <QSet>
#include <QVariant>
#include <QVector>
#include <algorithm>

namespace {

const QChar slash = QLatin1Char('/');

/// What a key says by itself about the setting that it belongs to.
struct KeyPlace {
    QString path;           ///< of the setting; empty when the key is too short for one
    bool isCertain = false; ///< whether only a setting has such a key there
};

bool isEntryNumber(const QStringRef &step)
{
    return !step.isEmpty() && std::all_of(step.begin(), step.end(), [](QChar character) {
        return character >= QLatin1Char('0') && character <= QLatin1Char('9');
    });
}

// No two settings share a key, whatever they are called: below a setting's own groups stand only
// lists with numbered entries and their keys, and none of those bears the name of such a group.
KeyPlace placeOfKey(const QString &key)
{
    const QVector<QStringRef> steps = key.splitRef(slash);
    const auto fromEnd = [&steps](int count) { return steps.value(steps.size() - count); };
    const auto is = [&fromEnd](int count, const char *word) {
        return fromEnd(count) == QLatin1String(word);
    };
    const auto before = [&](int count) {
        return steps.size() > count ? key.left(fromEnd(count).position() - 1) : QString();
    };
    const bool isEntry = isEntryNumber(fromEnd(2));
    if (isEntry && is(4, "input") && is(3, "files"))
        return {before(4), true};
    if (is(3, "input") && is(2, "files"))
        return {before(3), true};
    if (isEntry)
        return {before(3), is(3, "output")};
    return {before(2), is(2, "input") || is(2, "output")};
}

/// Tells to which setting each key below the group of all settings belongs.
class KeyOwners
{
public:
    explicit KeyOwners(const QStringList &keys)
    {
        for (const QString &key : keys) {
            const KeyPlace place = placeOfKey(key);
            // In a damaged file steps can be empty. The library finds nothing there.
            if (place.isCertain && settingPath(settingNameOfPath(place.path)) == place.path)
                m_paths.insert(place.path);
        }
    }

    /// The path of the setting. What is not certainly a nested setting's belongs to the outermost
    /// group: other versions of this program may keep more in it.
    QString path(const QString &key) const
    {
        const QString path = placeOfKey(key).path;
        return m_paths.contains(path) ? path : key.section(slash, 0, 0);
    }

private:
    QSet<QString> m_paths;
};

} // namespace

static QStringList readSettingNames()
{
    Settings settings(nullptr);
    const GroupScope settingInfo(settings, settingInfoGroup());
    const QStringList keys = settings.allKeys();
    const KeyOwners owners(keys);
    QSet<QString> paths;
    for (const QString &key : keys) {
        if (key.contains(slash))
            paths.insert(owners.path(key));
    }
    QStringList names;
    for (const QString &path : qAsConst(paths))
        names.append(settingNameOfPath(path));
    names.sort();
    return names;
}

QStringList settingNames()
{
    return tolerantly([] { return readSettingNames(); });
}

void removeSetting(const QString &settingName)
{
    tolerantly([&] {
        Settings settings(nullptr);
        removeSetting(settings, settingName);
        return true;
    });
}

void removeSetting(QSettings &settings, const QString &settingName)
{
    const GroupScope settingInfo(settings, settingInfoGroup());
    const QString path = settingPath(settingName);
    const QStringList keys = settings.allKeys();
    const KeyOwners owners(keys);

    // The library removes a group with all groups and keys in it: those of others come back.
    bool isThere = false;
    QHash<QString, QVariant> ofOthers;
    for (const QString &key : keys) {
        if (key != path && !key.startsWith(path + slash))
            continue;
        if (owners.path(key) == path)
            isThere = true;
        else
            ofOthers.insert(key, settings.value(key));
    }
    if (!isThere)
        return;
    settings.remove(path);
    for (auto key = ofOthers.cbegin(); key != ofOthers.cend(); ++key)
        settings.setValue(key.key(), key.value());
}
