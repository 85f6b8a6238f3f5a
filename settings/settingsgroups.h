// Helpers with which the records of this folder find their place in the settings file.
#pragma once

#include <QList>
#include <QSettings>
#include <QStringList>

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

/// The group that holds one child group for each convert setting.
QString settingInfoGroup();

/// Begins to read an array and returns how many entries to read. A damaged size (negative, or far
/// beyond what the file can hold) never makes the caller loop without end: up to a hundred thousand
/// entries are taken as the file says, more only as far as entries really exist.
int beginBoundedReadArray(QSettings &settings, const QString &array);

/// Numbers as the file keeps them: a list of decimal texts.
QStringList numbersToTexts(const QList<int> &numbers);

/// The reverse; a text that is not a number reads as 0.
QList<int> textsToNumbers(const QStringList &texts);
