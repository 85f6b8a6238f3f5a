// The input part of a convert setting: which files are expected, and what the user sees of them
// while building the setting.
#pragma once

#include <QList>
#include <QStringList>

class QSettings;

/// One expected input file, recognised by its headings.
struct InputForm {
    QString name;      ///< file name of the sample it was made from, without extension
    QStringList heads; ///< the headings, in file order
    int targetKey = 0; ///< zero-based column of the combined item list; -1 for the first form
    int key = 0;       ///< zero-based column of this form's own headings; -1 for the first form

    bool operator==(const InputForm &other) const
    {
        return name == other.name && heads == other.heads && targetKey == other.targetKey
            && key == other.key;
    }
};

/// The whole input part. An example row that is empty was not there.
struct InputSetting {
    QStringList heads;      ///< the combined item list; output items refer to it by position
    QStringList ex1;        ///< first example row
    QStringList ex2;        ///< second example row
    QList<InputForm> files; ///< in the order in which they were added

    bool operator==(const InputSetting &other) const
    {
        return heads == other.heads && ex1 == other.ex1 && ex2 == other.ex2 && files == other.files;
    }
};

/// Reads the input part of the named setting; what is absent reads as empty or 0.
InputSetting loadInputSetting(const QString &settingName);

/// Writes the input part of the named setting. Entries of a longer list that stood there before
/// stay in the file, beyond the written size.
void saveInputSetting(const QString &settingName, const InputSetting &input);
/// The same as a part of what is written to the file when the settings object is destroyed.
void saveInputSetting(QSettings &settings, const QString &settingName, const InputSetting &input);
