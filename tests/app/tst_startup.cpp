// The start of the program: its identity, and which translation it takes from where.
#include "app/mainwindow.h"
#include "app/platform.h"
#include "app/startup.h"
#include "tests/app/nonetwork.h"
#include "tests/app/warningcollector.h"

#include <QApplication>
#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QTranslator>
#include <QtTest>
#include <cstdio>
#include <optional>

namespace {

const char windowTitle[] = "쿼린 컨버터";

/// The hash under which the toolkit's translator finds a text (the classic ELF symbol hash).
quint32 elfHash(const QByteArray &text)
{
    quint32 hash = 0;
    for (const char byte : text) {
        hash = (hash << 4) + static_cast<uchar>(byte);
        const quint32 top = hash & 0xf0000000U;
        hash ^= top >> 24;
        hash &= ~top;
    }
    return hash == 0 ? 1 : hash;
}

/// A compiled translation with a single text of the main window: its title.
QByteArray compiledTranslation(const QString &translatedTitle)
{
    enum Tag : quint8 { End = 1, Translation = 3, SourceText = 6, Context = 7 };
    enum Section : quint8 { Hashes = 0x42, Messages = 0x69 };
    const QByteArray source(windowTitle);

    QByteArray message;
    QDataStream messageStream(&message, QIODevice::WriteOnly);
    messageStream << quint8(Translation) << translatedTitle // as length and UTF-16, big endian
                  << quint8(SourceText) << quint32(source.size());
    messageStream.writeRawData(source.constData(), source.size());
    messageStream << quint8(Context) << quint32(10);
    messageStream.writeRawData("MainWindow", 10);
    messageStream << quint8(End);

    const QByteArray magic = QByteArray::fromHex("3cb86418caef9c95cd211cbf60a1bddd");
    QByteArray file;
    QDataStream fileStream(&file, QIODevice::WriteOnly);
    fileStream.writeRawData(magic.constData(), magic.size());
    fileStream << quint8(Hashes) << quint32(8) << elfHash(source) << quint32(0);
    fileStream << quint8(Messages) << message; // as length and bytes
    return file;
}

void writeFile(const QString &name, const QByteArray &content)
{
    QVERIFY(QDir().mkpath(QFileInfo(name).path()));
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

} // namespace

class TestStartup : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void warningsAreSeen();
    void identityIsSetBeforeTheApplicationObject();
    void highResolutionScreensAreServed();
    void desktopsFindTheMenuEntry();
    void filesHaveAddressesThatViewersUnderstand_data();
    void filesHaveAddressesThatViewersUnderstand();
    void languageIsTheSystems_data();
    void languageIsTheSystems();
    void translationFileFollowsTheLanguage_data();
    void translationFileFollowsTheLanguage();
    void translationIsLoadedFromTheWorkingFolder_data();
    void translationIsLoadedFromTheWorkingFolder();
    void translatorIsInstalledInAnyCase_data();
    void translatorIsInstalledInAnyCase();

private:
    std::optional<WarningCollector> m_warnings; ///< of the test that runs now
    QTemporaryDir m_workFolder;
};

void TestStartup::init()
{
    m_warnings.emplace();
    QVERIFY(m_workFolder.isValid());
    QVERIFY(QDir::setCurrent(m_workFolder.path()));
    QDir(QStringLiteral("languages")).removeRecursively();
}

void TestStartup::cleanup()
{
    const QStringList warnings = m_warnings->take();
    m_warnings.reset();
    QCOMPARE(warnings, QStringList());
}

void TestStartup::warningsAreSeen()
{
    // Or every other test would pass in silence.
    qWarning("a warning to be seen");
    QCOMPARE(m_warnings->take(), QStringList{QStringLiteral("a warning to be seen")});
}

void TestStartup::identityIsSetBeforeTheApplicationObject()
{
    // main() below has called prepareApplication() and nothing else.
    QCOMPARE(QCoreApplication::organizationName(), QStringLiteral("Velmora"));
    QCOMPARE(QCoreApplication::organizationDomain(), QStringLiteral("https://www.velmora.example"));
    QCOMPARE(QCoreApplication::applicationName(), QStringLiteral("Quorin Converter"));
    QCOMPARE(QSettings().organizationName(), QStringLiteral("Velmora"));
    QCOMPARE(QSettings().applicationName(), QStringLiteral("Quorin Converter"));
}

void TestStartup::highResolutionScreensAreServed()
{
    QVERIFY(QCoreApplication::testAttribute(Qt::AA_EnableHighDpiScaling));
    QVERIFY(QCoreApplication::testAttribute(Qt::AA_UseHighDpiPixmaps));
    QVERIFY(QGuiApplication::highDpiScaleFactorRoundingPolicy()
            == Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
}

void TestStartup::desktopsFindTheMenuEntry()
{
    QCOMPARE(QGuiApplication::desktopFileName(), QStringLiteral("quorin-converter"));
}

void TestStartup::filesHaveAddressesThatViewersUnderstand_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("address");
#ifdef Q_OS_WIN
    QTest::newRow("drive") << "C:/shop/a.pdf"
                           << "file:///C:/shop/a.pdf";
#else
    QTest::newRow("plain") << "/home/shop/quorinConverter.chm"
                           << "file:///home/shop/quorinConverter.chm";
    QTest::newRow("every character counts") << "/home/a b/100%#1?.pdf"
                                            << "file:///home/a b/100%25%231%3F.pdf";
    QTest::newRow("an escape in a name is part of the name") << "/home/%41.pdf"
                                                             << "file:///home/%2541.pdf";
#endif
}

void TestStartup::filesHaveAddressesThatViewersUnderstand()
{
    QFETCH(QString, path);
    const QUrl url = desktopFileUrl(localFileUrl(path));
    QTEST(url.toString(), "address");
    QCOMPARE(url.toLocalFile(), path);
}

void TestStartup::languageIsTheSystems_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("languageName");
    QTest::newRow("Korea") << "ko_KR.UTF-8"
                           << "Korean";
    QTest::newRow("Japan") << "ja_JP.UTF-8"
                           << "Japanese";
    QTest::newRow("Korean in an old code page") << "ko_KR.EUC-KR"
                                                << "Korean";
    QTest::newRow("United States") << "en_US.UTF-8"
                                   << "English";
    QTest::newRow("no locale") << "C"
                               << "C";
}

void TestStartup::languageIsTheSystems()
{
    QFETCH(QString, locale);
    QFETCH(QString, languageName);
    // A process reads its locale once, so each row takes a new one.
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("LANGUAGE"));
    environment.insert(QStringLiteral("LC_ALL"), locale);
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--print-language")});
    QVERIFY(process.waitForFinished());
    QCOMPARE(QString::fromUtf8(process.readAllStandardOutput()).trimmed(), languageName);
}

void TestStartup::translationFileFollowsTheLanguage_data()
{
    QTest::addColumn<QString>("languageName");
    QTest::addColumn<QString>("fileName");
    QTest::newRow("Korean") << "Korean"
                            << "languages/lang_kr";
    QTest::newRow("Japanese") << "Japanese"
                              << "languages/lang_jp";
    QTest::newRow("English has none") << "English"
                                      << "";
    QTest::newRow("the C locale has none") << "C"
                                           << "";
    QTest::newRow("Chinese has none") << "Chinese"
                                      << "";
    QTest::newRow("case matters") << "korean"
                                  << "";
    QTest::newRow("case matters in every letter") << "JAPANESE"
                                                  << "";
    QTest::newRow("a blank matters") << "Korean "
                                     << "";
    QTest::newRow("a code is not a name") << "ja"
                                          << "";
    QTest::newRow("nothing") << ""
                             << "";
}

void TestStartup::translationFileFollowsTheLanguage()
{
    QFETCH(QString, languageName);
    QTEST(translationFile(languageName), "fileName");
}

void TestStartup::translationIsLoadedFromTheWorkingFolder_data()
{
    QTest::addColumn<QString>("languageName");
    QTest::addColumn<QString>("presentFile");
    QTest::addColumn<QString>("shownTitle");
    const QString builtIn = QString::fromUtf8(windowTitle);
    QTest::newRow("Korean") << "Korean"
                            << "languages/lang_kr.qm"
                            << "translated";
    QTest::newRow("Japanese") << "Japanese"
                              << "languages/lang_jp.qm"
                              << "translated";
    QTest::newRow("a name without suffix") << "Korean"
                                           << "languages/lang_kr"
                                           << "translated";
    QTest::newRow("a name cut at the underscore") << "Korean"
                                                  << "languages/lang.qm"
                                                  << "translated";
    QTest::newRow("the other language's file") << "Korean"
                                               << "languages/lang_jp.qm" << builtIn;
    QTest::newRow("English loads nothing") << "English"
                                           << "languages/lang.qm" << builtIn;
    QTest::newRow("a file beside the folder") << "Korean"
                                              << "lang_kr.qm" << builtIn;
    QTest::newRow("a file in another working folder") << "Korean"
                                                      << "other/languages/lang_kr.qm" << builtIn;
}

void TestStartup::translationIsLoadedFromTheWorkingFolder()
{
    QFETCH(QString, languageName);
    QFETCH(QString, presentFile);
    QFETCH(QString, shownTitle);
    writeFile(presentFile, compiledTranslation(QStringLiteral("translated")));

    QTranslator translator;
    installTranslation(translator, languageName);
    const MainWindow window;
    QCOMPARE(window.windowTitle(), shownTitle);
    QVERIFY(QFile::remove(presentFile));
}

void TestStartup::translatorIsInstalledInAnyCase_data()
{
    QTest::addColumn<QString>("languageName");
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("nothing to load") << "English" << QByteArray();
    QTest::newRow("a damaged file") << "Korean" << QByteArray("no translation");
    QTest::newRow("an empty file") << "Japanese" << QByteArray("");
}

void TestStartup::translatorIsInstalledInAnyCase()
{
    QFETCH(QString, languageName);
    QFETCH(QByteArray, content);
    writeFile(QStringLiteral("languages/lang_kr.qm"), content);
    writeFile(QStringLiteral("languages/lang_jp.qm"), content);

    QTranslator translator;
    installTranslation(translator, languageName);
    // Removing succeeds for a translator that is installed only.
    QVERIFY(QCoreApplication::removeTranslator(&translator));
    QVERIFY(translator.isEmpty());
}

int main(int argc, char *argv[])
{
    if (argc == 2 && qstrcmp(argv[1], "--print-language") == 0) {
        std::puts(qPrintable(systemLanguageName()));
        return 0;
    }
    const QTemporaryDir userSettings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, userSettings.path());
    prepareApplication();
    QApplication application(argc, argv);
    stayOffTheNetwork();
    TestStartup test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_startup.moc"
