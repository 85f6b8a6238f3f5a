// The input forms of the convert setting dialog: sample files, keys, and what is dragged or copied
// from them.
#include "editor/keyselectdialog.h"
#include "tests/app/answerfiledialog.h"
#include "tests/app/answermessagebox.h"
#include "tests/editor/convertsettingtest.h"

#include <QClipboard>
#include <QComboBox>
#include <QScrollBar>
#include <QTabWidget>
#include <QTimer>

namespace {

/// Answers the key dialogs that come up, each with one of these: rows to click in its two lists
/// (-1: none), then "선택" or Escape.
class AnswerKeyDialog : public QObject
{
public:
    struct Answer {
        int item;
        int heading;
        bool accepts;
    };

    explicit AnswerKeyDialog(const QList<Answer> &answers) : m_answers(answers)
    {
        connect(&m_timer, &QTimer::timeout, this, &AnswerKeyDialog::answer);
        m_timer.start(0);
    }
    int asked = 0;
    InputModeModel::KeyPair preselected;

private:
    void answer()
    {
        auto *dialog = qobject_cast<KeySelectDialog *>(QApplication::activeModalWidget());
        if (dialog == nullptr || asked >= m_answers.size())
            return;
        const Answer answer = m_answers.at(asked++);
        preselected = dialog->keys();
        click(dialog, "originalDataListWidget", answer.item);
        click(dialog, "newDataListWidget", answer.heading);
        if (answer.accepts)
            QTest::mouseClick(dialog->findChild<QPushButton *>("okButton"), Qt::LeftButton);
        else
            QTest::keyClick(dialog, Qt::Key_Escape);
    }
    static void click(QDialog *dialog, const char *name, int row)
    {
        auto *list = dialog->findChild<QListWidget *>(QLatin1String(name));
        if (row >= 0) {
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                              list->visualItemRect(list->item(row)).center());
        }
    }

    QList<Answer> m_answers;
    QTimer m_timer;
};

} // namespace

class TestConvertSettingForms : public ConvertSettingTest
{
    Q_OBJECT

private slots:
    void filesAreAskedFor();
    void firstFileMakesTheItems();
    void furtherFileIsJoined();
    void furtherFileIsNotAdded_data();
    void furtherFileIsNotAdded();
    void severalFilesAreAddedInTurn();
    void fileThatCannotBeUsed_data();
    void fileThatCannotBeUsed();
    void badFileDoesNotHoldBackTheNext();
    void clearingDropsFormsAndItemsButNoStatementFields();
    void chosenFormIsShown();
    void itemsAreCopiedAndPasted();

private:
    void addFiles(const QStringList &names)
    {
        QStringList paths;
        for (const QString &name : names)
            paths.append(m_folder->path(name));
        const AnswerFileDialog answer(paths);
        click("addInputFileButton");
        QCOMPARE(answer.count(), 1);
    }
    QStringList items() const
    {
        const QAbstractItemModel *model = view("InputModeView")->model();
        QStringList items;
        for (int column = 0; column < model->columnCount(); ++column)
            items.append(model->index(0, column).data().toString());
        return items;
    }
    QStringList formNames() const
    {
        const auto *combo = find<QComboBox>("inputFileComboBox");
        QStringList names;
        for (int row = 0; row < combo->count(); ++row)
            names.append(combo->itemText(row));
        return names;
    }
};

void TestConvertSettingForms::filesAreAskedFor()
{
    openNew();
    QSettings().setValue("last directory", m_folder->path("."));
    {
        const AnswerFileDialog answer;
        click("addInputFileButton");
        QCOMPARE(answer.seen().title, QString("Load File(s)"));
        QCOMPARE(answer.seen().nameFilters, (QStringList{"CSV Files (*.csv)", "All Files (*.*)"}));
        QVERIFY(answer.seen().takesSeveral);
        QCOMPARE(answer.seen().folder, QDir(m_folder->path(".")).canonicalPath());
    }
    QCOMPARE(items(), QStringList());
    QVERIFY(QDir().mkpath("deeper"));
    m_folder->write("deeper/elsewhere.csv", "a,b\n");
    addFiles({"deeper/elsewhere.csv"});
    QCOMPARE(QSettings().value("last directory").toString(), QDir("deeper").canonicalPath());
}

void TestConvertSettingForms::firstFileMakesTheItems()
{
    openNew();
    addFiles({"orders.csv"});
    QCOMPARE(items(), (QStringList{"no", "name"}));
    QCOMPARE(view("InputModeView")->model()->rowCount(), 3); // two examples
    QCOMPARE(formNames(), QStringList{"orders"});
}

void TestConvertSettingForms::furtherFileIsJoined()
{
    openNew();
    addFiles({"orders.csv"});
    AnswerKeyDialog keys({{-1, -1, true}});
    addFiles({"items.csv"});
    QCOMPARE(keys.asked, 1);
    QCOMPARE(keys.preselected.targetKey, 0); // "no" stands in both
    QCOMPARE(keys.preselected.key, 1);
    QCOMPARE(items(), (QStringList{"no", "name", "item"}));
    QCOMPARE(formNames(), (QStringList{"orders", "items"}));
    QCOMPARE(view("InputModeView")->model()->index(1, 2).data().toString(), QString("pen"));
}

void TestConvertSettingForms::furtherFileIsNotAdded_data()
{
    QTest::addColumn<int>("item");
    QTest::addColumn<int>("heading");
    QTest::addColumn<bool>("accepts");
    QTest::addColumn<QString>("message");
    const QString notSelected = "Matching key was not selected";
    QTest::newRow("cancelled") << 0 << 0 << false << QString();
    QTest::newRow("no key") << -1 << -1 << true << notSelected;
    QTest::newRow("only the item") << 0 << -1 << true << notSelected;
    QTest::newRow("only the heading") << -1 << 1 << true << notSelected;
}

void TestConvertSettingForms::furtherFileIsNotAdded()
{
    QFETCH(int, item);
    QFETCH(int, heading);
    QFETCH(bool, accepts);
    QFETCH(QString, message);
    openNew();
    addFiles({"orders.csv"});
    AnswerKeyDialog keys({{item, heading, accepts}});
    const AnswerMessageBox box(Qt::Key_Return);
    addFiles({"other.csv"}); // no heading of it is known
    QCOMPARE(keys.preselected.targetKey, -1);
    QCOMPARE(box.text, message);
    QCOMPARE(box.title, message.isEmpty() ? QString("(no box)") : QString("Error"));
    QCOMPARE(items(), (QStringList{"no", "name"}));
    QCOMPARE(formNames(), QStringList{"orders"});
}

void TestConvertSettingForms::severalFilesAreAddedInTurn()
{
    openNew();
    AnswerKeyDialog keys({{-1, -1, true}, {0, 1, true}});
    addFiles({"orders.csv", "items.csv", "other.csv"});
    QCOMPARE(keys.asked, 2);
    QCOMPARE(formNames().size(), 3);
}

void TestConvertSettingForms::fileThatCannotBeUsed_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("reason");
    QTest::newRow("empty") << QByteArray() << "The first line has no headings";
    QTest::newRow("empty first line") << QByteArray("\n1,2\n") << "The first line has no headings";
    QTest::newRow("commas only") << QByteArray(",,\n1,2,3\n") << "The first line has no headings";
}

void TestConvertSettingForms::fileThatCannotBeUsed()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, reason);
    openNew();
    m_folder->write("bad.csv", content);
    const AnswerMessageBox box(Qt::Key_Return);
    addFiles({"bad.csv"});
    QCOMPARE(box.title, QString("Error"));
    QCOMPARE(box.text,
             QString("Cannot open file '%1':\n%2.").arg(m_folder->path("bad.csv"), reason));
    QCOMPARE(items(), QStringList());
    QCOMPARE(formNames(), QStringList());
}

void TestConvertSettingForms::badFileDoesNotHoldBackTheNext()
{
    openNew();
    m_folder->write("a.csv", "");
    const AnswerMessageBox box(Qt::Key_Return);
    addFiles({"a.csv", "orders.csv"});
    QCOMPARE(box.title, QString("Error"));
    QCOMPARE(formNames(), QStringList{"orders"});
}

void TestConvertSettingForms::clearingDropsFormsAndItemsButNoStatementFields()
{
    openSetting();
    const StatementFieldList before = fields()->fields();
    click("clearInputFileButton");
    QCOMPARE(items(), QStringList());
    QCOMPARE(formNames(), QStringList());
    QCOMPARE(itemNames(), QStringList());
    QVERIFY(fields()->fields() == before);
}

void TestConvertSettingForms::chosenFormIsShown()
{
    openNew();
    QByteArray headings = "no";
    for (int column = 0; column < 60; ++column)
        headings += ",heading" + QByteArray::number(column);
    m_folder->write("wide.csv", headings + '\n');
    AnswerKeyDialog keys({{-1, -1, true}});
    addFiles({"wide.csv", "items.csv"});
    auto *combo = find<QComboBox>("inputFileComboBox");
    ItemTableView *table = view("InputModeView");
    combo->setFocus();
    QTest::keyClick(combo, Qt::Key_Down);
    QCOMPARE(combo->currentIndex(), 1);
    QCOMPARE(table->currentIndex(), table->model()->index(0, 61));
    QVERIFY(table->viewport()->rect().contains(table->visualRect(table->currentIndex())));
    QCOMPARE(m_dialog->focusWidget(), table);
    combo->setFocus();
    QTest::keyClick(combo, Qt::Key_Up);
    QCOMPARE(table->currentIndex(), table->model()->index(0, 0));
    QCOMPARE(table->horizontalScrollBar()->value(), 0);
}

void TestConvertSettingForms::itemsAreCopiedAndPasted()
{
    openSetting();
    QGuiApplication::clipboard()->clear();
    ItemTableView *from = view("InputModeView");
    ItemTableView *to = view("outputModeView");
    from->setCurrentIndex(from->model()->index(1, 1)); // an example stands for its item
    QTest::keyClick(from, Qt::Key_C, Qt::ControlModifier);
    to->setCurrentIndex(output()->index(OutputModeModel::OutputRow, 0));
    QTest::keyClick(to, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(output()->item(0).mappings, (QStringList{"no", "name"}));
    QCOMPARE(output()->item(0).mapNums, (QList<int>{0, 1}));

    to->setCurrentIndex(output()->index(OutputModeModel::RulesRow, 0));
    QTest::keyClick(to, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(output()->item(0).rules, QStringList());

    to->setCurrentIndex(output()->index(OutputModeModel::ConditionsRow, 0));
    QTest::keyClick(to, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(output()->item(0).conditions, QStringList{"name"});
    QCOMPARE(openEditors(), QStringList{"EditConditionsDialog"});
    for (QDialog *editor : m_dialog->findChildren<QDialog *>())
        editor->close();

    find<QTabWidget>("outputTabWidget")->setCurrentIndex(1);
    ItemTableView *statement = view("pdfModelView");
    statement->setCurrentIndex(fields()->index(PdfSetModel::OutputRow, 3));
    QTest::keyClick(statement, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(fields()->fields()[3].mappings, QStringList{"name"});
    QCOMPARE(fields()->fields()[3].mapNums, QList<int>{1});
}

int main(int argc, char *argv[])
{
    return runConvertSettingTest<TestConvertSettingForms>(argc, argv);
}

#include "tst_convertsettingforms.moc"
