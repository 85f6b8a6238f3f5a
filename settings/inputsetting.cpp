#include "settings/inputsetting.h"

#include "settings/settings.h"
#include "settings/settingsgroups.h"

static InputSetting readInputSetting(const QString &settingName)
{
    Settings settings(nullptr);
    const GroupScope setting(settings, settingGroup(settingName));
    const GroupScope inputGroup(settings, QStringLiteral("input"));

    InputSetting input;
    input.heads = settings.value(QStringLiteral("heads")).toStringList();
    input.ex1 = settings.value(QStringLiteral("ex1")).toStringList();
    input.ex2 = settings.value(QStringLiteral("ex2")).toStringList();
    const int count = beginBoundedReadArray(settings, QStringLiteral("files"));
    for (int i = 0; i < count; ++i) {
        settings.setArrayIndex(i);
        InputForm form;
        form.name = settings.value(QStringLiteral("name")).toString();
        form.heads = settings.value(QStringLiteral("heads")).toStringList();
        // By way of the text: the library would cut a number beyond 32 bits instead of reading 0.
        form.targetKey = settings.value(QStringLiteral("targetKey")).toString().toInt();
        form.key = settings.value(QStringLiteral("key")).toString().toInt();
        input.files.append(form);
    }
    settings.endArray();
    return input;
}

InputSetting loadInputSetting(const QString &settingName)
{
    return tolerantly([&] { return readInputSetting(settingName); });
}

void saveInputSetting(const QString &settingName, const InputSetting &input)
{
    Settings settings(nullptr);
    saveInputSetting(settings, settingName, input);
}

void saveInputSetting(QSettings &settings, const QString &settingName, const InputSetting &input)
{
    const GroupScope setting(settings, settingGroup(settingName));
    const GroupScope inputGroup(settings, QStringLiteral("input"));

    settings.setValue(QStringLiteral("heads"), input.heads);
    settings.setValue(QStringLiteral("ex1"), input.ex1);
    settings.setValue(QStringLiteral("ex2"), input.ex2);
    settings.beginWriteArray(QStringLiteral("files"), input.files.size());
    for (int i = 0; i < input.files.size(); ++i) {
        const InputForm &form = input.files.at(i);
        settings.setArrayIndex(i);
        settings.setValue(QStringLiteral("name"), form.name);
        settings.setValue(QStringLiteral("heads"), form.heads);
        settings.setValue(QStringLiteral("targetKey"), form.targetKey);
        settings.setValue(QStringLiteral("key"), form.key);
    }
    settings.endArray();
}
