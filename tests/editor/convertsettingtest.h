// What the tests of the convert setting dialog stand on: a working folder with a stored setting and
// sample files, the list of names of the main window, and ways to act on the dialog's tables.
#pragma once

#include "common/dragpayload.h"
#include "editor/convertsettingdialog.h"
#include "editor/itemtableview.h"
#include "editor/outputmodemodel.h"
#include "settings/convertsettings.h"
#include "settings/inputsetting.h"
#include "settings/outputitem.h"
#include "statement/pdfsetmodel.h"
#include "statement/statementsetting.h"
#include "tests/editor/dialogtest.h"
#include "tests/settings/workingfolder.h"

#include <QMimeData>
#include <QSettings>
#include <QStringListModel>
#include <optional>

class ConvertSettingTest : public DialogTest
{
    Q_OBJECT

protected:
    /// A setting with one form (no, name) and two items that show its columns.
    static void saveSample(const QString &name)
    {
        InputSetting input;
        input.heads = QStringList{"no", "name"};
        input.ex1 = QStringList{"1", "Kim"};
        input.files = {{"orders", input.heads, -1, -1}};
        saveInputSetting(name, input);
        OutputItem number;
        number.name = "number";
        number.appendMapping(InputSource, 0, "no");
        OutputItem who;
        who.name = "who";
        who.appendMapping(InputSource, 1, "name");
        who.appendCondition(InputSource, 0, "no");
        saveOutputItems(name, {number, who});
        StatementSetting statement;
        statement.generate = true;
        statement.title = "Statement";
        statement.ment = "thanks\nagain";
        statement.comment = "comment";
        statement.font = "DejaVu Sans";
        statement.printCompany[CompanyInfo::Fax] = false;
        statement.fields[StatementFields::Name].toPrint = true;
        statement.fields[StatementFields::Name].mappings = QStringList{"name"};
        statement.fields[StatementFields::Name].mapNums = {1};
        statement.fields[StatementFields::Name].rules = QStringList{"trim"};
        saveStatementSetting(name, statement);
    }

    ConvertSettingDialog *openNew() { return open(new ConvertSettingDialog(&m_names)); }
    /// Opens the setting of a row of the names.
    ConvertSettingDialog *openSetting(int row = 0)
    {
        m_names.setStringList(settingNames());
        auto *dialog = new ConvertSettingDialog(&m_names);
        dialog->loadSetting(m_names.index(row));
        return open(dialog);
    }

    ItemTableView *view(const char *name) const { return find<ItemTableView>(name); }
    OutputModeModel *output() const
    {
        return qobject_cast<OutputModeModel *>(view("outputModeView")->model());
    }
    PdfSetModel *fields() const
    {
        return qobject_cast<PdfSetModel *>(view("pdfModelView")->model());
    }
    QStringList itemNames() const
    {
        QStringList names;
        for (const OutputItem &item : output()->items())
            names.append(item.name);
        return names;
    }
    void clickCell(const char *table, int row, int column, bool twice = false) const
    {
        ItemTableView *on = view(table);
        const QModelIndex cell = on->model()->index(row, column);
        on->scrollTo(cell);
        const QPoint place = on->visualRect(cell).center();
        QTest::mouseClick(on->viewport(), Qt::LeftButton, {}, place);
        if (twice)
            QTest::mouseDClick(on->viewport(), Qt::LeftButton, {}, place);
    }
    void doubleClickCell(const char *table, int row, int column) const
    {
        clickCell(table, row, column, true);
    }
    /// As the view hands a drop to its model.
    static bool drop(QAbstractItemModel *model, int row, int column, const QList<DragItem> &items)
    {
        const std::unique_ptr<QMimeData> data(encodeDragItems(items));
        const QModelIndex cell = model->index(row, column);
        return model->canDropMimeData(data.get(), Qt::CopyAction, -1, -1, cell)
            && model->dropMimeData(data.get(), Qt::CopyAction, -1, -1, cell);
    }
    template <typename Type> Type *child() const { return m_dialog->findChild<Type *>(); }
    /// The editors that stand open over the dialog.
    QStringList openEditors() const
    {
        QStringList names;
        const QList<QDialog *> dialogs = m_dialog->findChildren<QDialog *>();
        for (const QDialog *dialog : dialogs) {
            if (dialog->isVisible())
                names.append(dialog->metaObject()->className());
        }
        return names;
    }

    std::optional<WorkingFolder> m_folder;
    QStringListModel m_names;

private slots:
    void init()
    {
        m_warnings.emplace();
        m_folder.emplace();
        QSettings().clear();
        saveSample("sample");
        m_folder->write("orders.csv", "no,name\n1,Kim\n2,Lee\n3,Min\n");
        m_folder->write("items.csv", "item,no\npen,1\ncup,2\n");
        m_folder->write("other.csv", "x,y\n1,2\n");
    }
    void cleanup()
    {
        m_dialog.reset();
        m_names.setStringList({});
        m_folder.reset();
        const QStringList warnings = m_warnings->take();
        m_warnings.reset();
        QCOMPARE(warnings, QStringList());
    }

private:
    std::optional<WarningCollector> m_warnings; ///< of the test that runs now
};

/// The main function: user settings of the test's own, file dialogs of the toolkit.
template <typename Test> int runConvertSettingTest(int argc, char *argv[])
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QCoreApplication::setOrganizationName("Velmora");
    QCoreApplication::setApplicationName("Quorin Converter");
    const QTemporaryDir userSettings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, userSettings.path());
    QApplication application(argc, argv);
    Test test;
    return QTest::qExec(&test, argc, argv);
}
