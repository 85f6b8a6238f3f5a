// Helpers with which the records of a convert setting find their place in the settings file.
#pragma once

#include <QList>
#include <QSettings>
#include <QStringList>
#include <new>

/// Enters a group of a settings object and leaves it again at the end of the scope.
class GroupScope
{
public:
    GroupScope(QSettings &settings, const QString &group) : m_settings(settings)
    {
        m_settings.beginGroup(group);
    }
    ~GroupScope() { m_settings.endGroup(); }
    Q_DISABLE_COPY(GroupScope)

private:
    QSettings &m_settings;
};

/// Works on the settings file. A damaged file can hold an object that claims to be larger than all
/// memory, on which the library throws while it reads any neighbouring key: what is being read
/// counts as empty then, and what is being removed stays.
template <typename Work> auto tolerantly(Work work) -> decltype(work())
{
    try {
        return work();
    } catch (const std::bad_alloc &) {
        return {};
    }
}

/// The group that holds the groups of all convert settings.
QString settingInfoGroup();

/// The path of a convert setting's group inside that group. The library takes a "/" in a name for a
/// step into a nested group, and would drop one without a name before and behind it: such a step
/// gets a name that nobody types, so that "/a", "a/" and "a//b" stay apart from "a" and "a/b".
QString settingPath(const QString &settingName);

/// The reverse: the name of the setting with this path.
QString settingNameOfPath(const QString &path);

/// The path of a convert setting's group from the top of the file.
QString settingGroup(const QString &settingName);

/// Begins to read an array and returns how many entries to read. The size of a damaged file, which
/// may be anything, is bounded by a hundred thousand, so that no caller loops without end.
int beginBoundedReadArray(QSettings &settings, const QString &array);

/// A flag; what is absent, or neither true nor false, is the default.
bool readBool(const QSettings &settings, const QString &key, bool defaultValue);

/// Numbers as the file keeps them: a list of decimal texts.
QStringList numbersToTexts(const QList<int> &numbers);

/// The reverse; a text that is not a number reads as 0.
QList<int> textsToNumbers(const QStringList &texts);
