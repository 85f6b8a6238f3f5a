// Every window of the program, as it opens on the sample working folder.
#pragma once

#include "editor/outputmodemodel.h"
#include "statement/pdfsetmodel.h"
#include "tests/settings/workingfolder.h"

#include <QStringListModel>
#include <QWidget>
#include <memory>

class EveryWindow
{
public:
    /// The main window, the dialogs, and from toolkitsFirst on windows of the toolkit.
    static QStringList names();
    static constexpr int toolkitsFirst = 11;

    /// Stands in a copy of the sample folder and opens the editors on this setting, whose output
    /// items are called by numbers: what is read in the windows is the program's own words.
    explicit EveryWindow(const QString &settingName);

    /// The window of that name; not shown yet, and not to outlive this object.
    std::unique_ptr<QWidget> make(const QString &name);

private:
    std::unique_ptr<QWidget> makeMainWindow() const;
    std::unique_ptr<QWidget> makeConvertSettingDialog();
    QModelIndex cell(int row) const;

    const WorkingFolder m_folder;
    const QString m_settingName;
    QStringListModel m_settingNames;
    OutputModeModel m_items;
    PdfSetModel m_fields;
};
