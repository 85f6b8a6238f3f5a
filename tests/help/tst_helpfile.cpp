// The compiled help file, taken apart again: everything is inside, as it was put in, and everything
// leads somewhere.
#include "help/maker/sitemap.h"

#include <QDir>
#include <QDirIterator>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {

QByteArray content(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString run(const QString &program, const QStringList &arguments, int *status)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    const bool finished = process.waitForFinished();
    *status = finished && process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    return QString::fromLatin1(process.readAll().replace('\0', QByteArray()));
}

/// The files of the tree that are not the format's own.
QStringList filesIn(const QString &folder)
{
    QStringList files;
    QDirIterator walk(folder, QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const QString name = QDir(folder).relativeFilePath(walk.next());
        if (!name.startsWith(QLatin1Char('#')) && !name.startsWith(QLatin1Char('$'))
            && !name.startsWith(QLatin1String("_#_")))
            files.append(name);
    }
    files.sort();
    return files;
}

/// Where the entries of a contents tree or an index lead.
QStringList targets(const QByteArray &sitemap)
{
    QStringList found;
    const QRegularExpression local(QStringLiteral("\"Local\" value=\"([^\"]*)\""));
    auto match = local.globalMatch(QString::fromLatin1(sitemap));
    while (match.hasNext())
        found.append(match.next().captured(1));
    return found;
}

} // namespace

class TestHelpFile : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyFileIsInside();
    void filesAreAsTheyWere();
    void linksLeadSomewhere();
    void contentsLeadToEveryPage();
    void indexLeadsSomewhere();
    void opensWithTheStartPageInKoreanLetters();
    void missingFileFailsTheBuild();

private:
    QString unpacked(const QString &name) const { return m_folder.filePath(name); }
    /// Whether the tree has this page, and the page the id behind "#".
    bool leadsSomewhere(const QString &target) const;

    const QString m_staged = QStringLiteral(QUORIN_HELP_FOLDER);
    const QString m_file = m_staged + QLatin1String("/quorinConverter.chm");
    QTemporaryDir m_folder;
    QList<HelpPage> m_pages; ///< of the unpacked tree
};

void TestHelpFile::initTestCase()
{
    int status;
    const QString output = run(QStringLiteral(QUORIN_CHMLS),
                               {QStringLiteral("extractall"), m_file, m_folder.path()}, &status);
    QVERIFY2(status == 0, qPrintable(output));
    QVERIFY(QFile::copy(QStringLiteral(QUORIN_SOURCE_DIR "/help/contents.txt"),
                        unpacked(QStringLiteral("contents.txt"))));
    m_pages = readHelp(m_folder.path());
    QVERIFY(QFile::remove(unpacked(QStringLiteral("contents.txt"))));
    QVERIFY(m_pages.size() > 2);
}

void TestHelpFile::everyFileIsInside()
{
    const QList<HelpPage> written = readHelp(QStringLiteral(QUORIN_SOURCE_DIR "/help"));
    QStringList expected = filesOfPages(written);
    for (const HelpPage &page : written)
        expected.append(page.path);
    for (const char *extension : {".hhc", ".hhk"})
        expected.append(helpFileName() + QLatin1String(extension));
    expected.sort();
    QCOMPARE(filesIn(m_folder.path()), expected);
}

void TestHelpFile::filesAreAsTheyWere()
{
    for (const QString &name : filesIn(m_folder.path())) {
        QVERIFY2(!content(unpacked(name)).isEmpty(), qPrintable(name));
        QVERIFY2(content(unpacked(name)) == content(m_staged + QLatin1Char('/') + name),
                 qPrintable(name));
    }
}

bool TestHelpFile::leadsSomewhere(const QString &target) const
{
    const QString id = target.section(QLatin1Char('#'), 1);
    for (const HelpPage &page : m_pages) {
        if (page.path == target.section(QLatin1Char('#'), 0, 0))
            return page.problem.isEmpty() && (id.isEmpty() || page.ids.contains(id));
    }
    return false;
}

void TestHelpFile::linksLeadSomewhere()
{
    for (const HelpPage &page : m_pages) {
        QCOMPARE(page.problem, QString());
        for (const QString &link : page.links)
            QVERIFY2(leadsSomewhere(page.target(link)),
                     qPrintable(page.path + QLatin1Char(' ') + link));
        for (const QString &reference : page.pictures + page.styleSheets)
            QVERIFY2(QFileInfo(unpacked(page.target(reference))).isFile(), qPrintable(reference));
        // What old viewers need in order to show the letters.
        QVERIFY2(content(unpacked(page.path)).contains("content=\"text/html; charset=utf-8\""),
                 qPrintable(page.path));
    }
}

void TestHelpFile::contentsLeadToEveryPage()
{
    const QStringList found = targets(content(unpacked(helpFileName() + QLatin1String(".hhc"))));
    for (const QString &target : found)
        QVERIFY2(leadsSomewhere(target), qPrintable(target));
    for (const HelpPage &page : m_pages)
        QVERIFY2(found.contains(page.path), qPrintable(page.path));
}

void TestHelpFile::indexLeadsSomewhere()
{
    const QStringList found = targets(content(unpacked(helpFileName() + QLatin1String(".hhk"))));
    QCOMPARE(found.size(), indexEntries(m_pages).size());
    QVERIFY(found.size() > m_pages.size());
    for (const QString &target : found)
        QVERIFY2(target.contains(QLatin1Char('#')) && leadsSomewhere(target), qPrintable(target));
}

void TestHelpFile::opensWithTheStartPageInKoreanLetters()
{
    int status;
    const QString output =
        run(QStringLiteral(QUORIN_CHMLS), {QStringLiteral("printsystem"), m_file}, &status);
    QCOMPARE(status, 0);
    const QStringList lines = output.split(QLatin1Char('\n'));
    const auto value = [&lines](const char *label) {
        for (const QString &line : lines) {
            if (line.contains(QLatin1String(label)))
                return line.section(QLatin1Char(':'), 1).trimmed();
        }
        return QString();
    };
    QCOMPARE(value("LCID"), QString::number(0x0412));
    QCOMPARE(value("Default topic"), startPage());
    QCOMPARE(value("Contents file"), helpFileName() + QLatin1String(".hhc"));
    QCOMPARE(value("Index file"), helpFileName() + QLatin1String(".hhk"));
}

// The compiler itself would leave the file out and say nothing.
void TestHelpFile::missingFileFailsTheBuild()
{
    const QTemporaryDir folder;
    const QString project = helpFileName() + QLatin1String(".hhp");
    QVERIFY(QFile::copy(m_staged + QLatin1Char('/') + project, folder.filePath(project)));
    for (const QString &name : filesIn(m_folder.path())) {
        QVERIFY(QDir().mkpath(QFileInfo(folder.filePath(name)).path()));
        QVERIFY(QFile::copy(unpacked(name), folder.filePath(name)));
    }
    const QStringList compile{QStringLiteral("-DCOMPILER=" QUORIN_CHMCMD),
                              QStringLiteral("-DFOLDER=") + folder.path(),
                              QStringLiteral("-DPROJECT=") + helpFileName(), QStringLiteral("-P"),
                              QStringLiteral(QUORIN_SOURCE_DIR "/help/maker/compile.cmake")};
    const QString made = folder.filePath(helpFileName() + QLatin1String(".chm"));
    int status;
    const QString output = run(QStringLiteral(QUORIN_CMAKE), compile, &status);
    QVERIFY2(status == 0 && QFile::exists(made), qPrintable(output));

    for (const char *name : {"ko/pictures/keys.png", "quorinConverter.hhc"}) {
        const QString missing = folder.filePath(QLatin1String(name));
        QVERIFY(QFile::rename(missing, missing + QLatin1String(".away")));
        run(QStringLiteral(QUORIN_CMAKE), compile, &status);
        QVERIFY2(status != 0 && !QFile::exists(made), name);
        QVERIFY(QFile::rename(missing + QLatin1String(".away"), missing));
    }
}

QTEST_APPLESS_MAIN(TestHelpFile)
#include "tst_helpfile.moc"
