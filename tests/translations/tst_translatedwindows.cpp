// Every window in both languages: each text has the room that it needs, and none is left in another
// language. With QUORIN_KEEP_PICTURES=folder, pictures of the windows are saved there, to be looked
// at.
#include "app/mainwindow.h"
#include "app/startup.h"
#include "engine/runtexts.h"
#include "tests/app/answermessagebox.h"
#include "tests/app/nonetwork.h"
#include "tests/editor/dialogtest.h"
#include "tests/translations/everywindow.h"
#include "tests/translations/shownwindow.h"
#include "tests/translations/tsfile.h"

#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QSettings>
#include <QStatusBar>
#include <QTabBar>
#include <QTableWidget>
#include <QTranslator>
#include <optional>

namespace {

/// Asks what the tests of the dialogs ask.
struct SmallDialog : DialogTest {
    using DialogTest::cutTexts;
    using DialogTest::m_dialog;
};

} // namespace

class TestTranslatedWindows : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_warnings.emplace(); }
    void cleanup();

    void everyTextHasRoom_data() { addWindows(ours()); }
    void everyTextHasRoom();
    void everyTextHasRoomInSmallDialogs_data() { addWindows(ours().mid(1)); }
    void everyTextHasRoomInSmallDialogs();
    void noTextIsInAnotherLanguage_data() { addWindows(EveryWindow::names()); }
    void noTextIsInAnotherLanguage();
    void statusesHaveRoomBesideTheProgress_data() { addLanguages(); }
    void statusesHaveRoomBesideTheProgress();
    void emptyAmountsAreComputed_data() { addLanguages(); }
    void emptyAmountsAreComputed();
    void theUpdateQuestion_data() { addLanguages(); }
    void theUpdateQuestion();
    void whatIsCutIsSeen();
    void whatIsForeignIsSeen();

private:
    static void addLanguages()
    {
        QTest::addColumn<bool>("inKorean");
        QTest::newRow("Korean") << true;
        QTest::newRow("Japanese") << false;
    }
    /// Without the toolkit's windows, which see to their size themselves; the main window first.
    static QStringList ours() { return EveryWindow::names().mid(0, EveryWindow::toolkitsFirst); }
    static void addWindows(const QStringList &names)
    {
        QTest::addColumn<bool>("inKorean");
        QTest::addColumn<QString>("name");
        for (const bool inKorean : {true, false}) {
            for (const QString &name : names) {
                const char *language = inKorean ? "Korean" : "Japanese";
                QTest::addRow("%s in %s", qPrintable(name), language) << inKorean << name;
            }
        }
    }
    static Language language()
    {
        QFETCH(bool, inKorean);
        return inKorean ? korean() : japanese();
    }
    /// Loads the translation as the start of the program does.
    void speak()
    {
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(QUORIN_BUILD_DIR));
        installTranslation(m_translator.emplace(), language().name);
        QVERIFY(QDir::setCurrent(before));
        QVERIFY(!m_translator->isEmpty());
    }
    /// Makes and shows the window of the row.
    void openWindow()
    {
        QFETCH(QString, name);
        speak();
        m_windows.emplace(language().isKorean() ? "택배 송장 (한국)" : "宅配送り状 (日本)");
        m_window = m_windows->make(name);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        QCoreApplication::processEvents();
    }
    void keepPicture() const
    {
        const QString folder = qEnvironmentVariable("QUORIN_KEEP_PICTURES");
        static int number = 0;
        if (!folder.isEmpty())
            m_window->grab().save(QStringLiteral("%1/%2 %3.png")
                                      .arg(folder, QString(QTest::currentDataTag()))
                                      .arg(++number, 3, 10, QChar('0')));
    }

    std::optional<WarningCollector> m_warnings; ///< of the test that runs now
    std::optional<QTranslator> m_translator;
    std::optional<EveryWindow> m_windows;
    std::unique_ptr<QWidget> m_window;
};

void TestTranslatedWindows::cleanup()
{
    m_window.reset();
    m_windows.reset();
    m_translator.reset(); // which takes it from the application, too
    const QStringList warnings = m_warnings->take();
    m_warnings.reset();
    QCOMPARE(warnings, QStringList());
}

void TestTranslatedWindows::everyTextHasRoom()
{
    openWindow();
    QStringList cut;
    forEachPage(*m_window, [&] {
        keepPicture();
        cut += cutTexts(*m_window);
    });
    cut.removeDuplicates();
    QVERIFY2(cut.isEmpty(), qPrintable(cut.join('\n')));
}

void TestTranslatedWindows::everyTextHasRoomInSmallDialogs()
{
    openWindow();
    SmallDialog small;
    small.m_dialog.reset(qobject_cast<QDialog *>(m_window.release()));
    QVERIFY(small.m_dialog != nullptr);
    QStringList cut;
    forEachPage(*small.m_dialog, [&] { cut.append(small.cutTexts()); });
    QCOMPARE(cut.join(' ').simplified(), QString());
}

void TestTranslatedWindows::noTextIsInAnotherLanguage()
{
    openWindow();
    QStringList foreign;
    const QList<ShownText> texts = shownTexts(*m_window);
    QVERIFY(texts.size() > 2);
    for (const ShownText &shown : texts) {
        const QString part = foreignPart(shown.text, language());
        if (!part.isEmpty())
            foreign.append(shown.where + ": " + shown.text + " [" + part + "]");
    }
    QVERIFY2(foreign.isEmpty(), qPrintable(foreign.join('\n')));
}

void TestTranslatedWindows::statusesHaveRoomBesideTheProgress()
{
    speak();
    const EveryWindow windows("택배 송장 (한국)");
    MainWindow window;
    auto *progress = window.findChild<QProgressBar *>("progressBar");
    progress->show();
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const auto *statusBar = window.findChild<QStatusBar *>();
    QStringList cut;
    for (const QString &status :
         {RunTexts::checkingFields(), RunTexts::loadingSettings(), RunTexts::processingInput(),
          RunTexts::generatingOutput(), RunTexts::startConverting(), RunTexts::deletingDuplicates(),
          RunTexts::creatingPdf(), RunTexts::savingPdf(), RunTexts::succeeded(),
          MainWindow::tr("An error has occurred")}) {
        if (statusBar->fontMetrics().horizontalAdvance(status) + 12 > progress->x())
            cut.append(status);
    }
    QVERIFY2(cut.isEmpty(), qPrintable(cut.join('\n')));
}

void TestTranslatedWindows::emptyAmountsAreComputed()
{
    speak();
    const PdfSetModel fields;
    QCOMPARE(
        fields.index(PdfSetModel::OutputRow, StatementFields::Sum).data(Qt::DisplayRole).toString(),
        QString(language().isKorean() ? "[자동]" : "[自動]"));
}

void TestTranslatedWindows::theUpdateQuestion()
{
    speak();
    const EveryWindow windows("택배 송장 (한국)");
    MainWindow window;
    AnswerMessageBox no(Qt::Key_Escape);
    QMetaObject::invokeMethod(&window, "updateAlert", Q_ARG(QString, "1.00"),
                              Q_ARG(QString, "2.5"));
    QCOMPARE(no.title, QString(language().isKorean() ? "업데이트 안내" : "アップデートのお知らせ"));
    QCOMPARE(no.text,
             QString(language().isKorean()
                         ? "새 버전이 있습니다.\n지금 업데이트하시겠습니까?\n"
                           "(쿼린 컨버터를 다시 시작해야 합니다.)\n\n"
                           "현재 버전 : 1.00\n최신 버전 : 2.5"
                         : "新しいバージョンがあります。\n今すぐアップデートしますか?\n"
                           "(クォリンコンバーターの再起動が必要です。)\n\n"
                           "現在のバージョン : 1.00\n最新のバージョン : 2.5"));
}

// What the tests above rely on.
void TestTranslatedWindows::whatIsCutIsSeen()
{
    QWidget window;
    window.resize(300, 300);
    const QString text("a text that is wider than the place for it");
    const auto place = [&window](QWidget *widget, const char *name) {
        widget->setObjectName(name);
        widget->setGeometry(0, 30 * window.findChildren<QWidget *>().size(), 60, 40);
    };
    place(new QLabel(text, &window), "label");
    place(new QPushButton(text, &window), "button");
    place(new QGroupBox(text, &window), "group");
    auto *box = new QComboBox(&window);
    box->addItem(text);
    place(box, "box");
    auto *tabs = new QTabBar(&window);
    tabs->addTab(text);
    place(tabs, "tabs");
    auto *edit = new QLineEdit(&window);
    edit->setPlaceholderText(text);
    place(edit, "edit");
    auto *table = new QTableWidget(1, 1, &window);
    table->setHorizontalHeaderLabels({text});
    table->horizontalHeader()->setObjectName("header");
    place(table, "table");
    auto *beyond = new QLabel("short", &window);
    beyond->setObjectName("beyond the edge");
    beyond->setGeometry(290, 0, 100, 30);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    QStringList names;
    const QStringList cut = cutTexts(window);
    for (const QString &line : cut)
        names.append(line.section(" has ", 0, 0));
    names.sort();
    QCOMPARE(names.join(", "),
             QString("beyond the edge, box, button, edit, group, header, label, "
                     "tabs"));
}

void TestTranslatedWindows::whatIsForeignIsSeen()
{
    QCOMPARE(foreignPart("입력 파일", japanese()), QString("hangul"));
    QCOMPARE(foreignPart("入力ファイル", korean()), QString("kana"));
    QCOMPARE(foreignPart("Error", korean()), QString("Error"));
    QCOMPARE(foreignPart("Error", japanese()), QString("Error"));
    QCOMPARE(foreignPart("OK", korean()), QString("OK"));
    for (const char *text : {"CSV 파일", "1", "LF(\\n)", "파일"})
        QCOMPARE(foreignPart(text, korean()), QString());
    for (const char *text : {"CSVファイル", "1", "OK", "追加"})
        QCOMPARE(foreignPart(text, japanese()), QString());
}

int main(int argc, char *argv[])
{
    prepareApplication();
    const QTemporaryDir userSettings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, userSettings.path());
    const QApplication application(argc, argv);
    stayOffTheNetwork();
    TestTranslatedWindows test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_translatedwindows.moc"
