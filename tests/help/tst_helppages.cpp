// The pages of the help as they are written: every reference leads somewhere, and both languages
// say the same in the same places.
#include "help/maker/codepage949.h"
#include "help/maker/sitemap.h"

#include <QDir>
#include <QSet>
#include <QtTest>

class TestHelpPages : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void contentsNamesEveryPage_data();
    void contentsNamesEveryPage();
    void isWellFormed_data() { addPages(); }
    void isWellFormed();
    void hasOneHeading_data() { addPages(); }
    void hasOneHeading();
    void sectionsHaveTextAndId_data() { addPages(); }
    void sectionsHaveTextAndId();
    void languageAndLettersAreDeclared_data() { addPages(); }
    void languageAndLettersAreDeclared();
    void linksLeadSomewhere_data() { addPages(); }
    void linksLeadSomewhere();
    void styleSheetsAreThere_data() { addPages(); }
    void styleSheetsAreThere();
    void picturesAreTakenAndHaveText_data() { addPages(); }
    void picturesAreTakenAndHaveText();
    void nothingRunsInAPage_data() { addPages(); }
    void nothingRunsInAPage();
    void leadsToItsNeighbours_data() { addPages(); }
    void leadsToItsNeighbours();
    void isTheSameInBothLanguages_data();
    void isTheSameInBothLanguages();
    void startPageLeadsToBothLanguages();
    void contentsAndIndexCanBeShown_data() { addPages(); }
    void contentsAndIndexCanBeShown();
    void bothLanguagesAreInTheIndex();

private:
    void addPages() const;
    const HelpPage &page(const QString &path) const;
    /// The page of the current row.
    const HelpPage &page() const;

    const QString m_folder = QStringLiteral(QUORIN_SOURCE_DIR "/help");
    QList<HelpPage> m_pages;
};

void TestHelpPages::initTestCase()
{
    m_pages = readHelp(m_folder);
    QVERIFY(helpPageNames(m_folder).size() > 1);
}

void TestHelpPages::addPages() const
{
    QTest::addColumn<QString>("path");
    for (const HelpPage &page : m_pages)
        QTest::newRow(qPrintable(page.path)) << page.path;
}

const HelpPage &TestHelpPages::page(const QString &path) const
{
    static const HelpPage none;
    for (const HelpPage &page : m_pages) {
        if (page.path == path)
            return page;
    }
    return none;
}

const HelpPage &TestHelpPages::page() const
{
    return page(*static_cast<QString *>(QTest::qData("path", qMetaTypeId<QString>())));
}

void TestHelpPages::contentsNamesEveryPage_data()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : helpLanguages())
        QTest::newRow(qPrintable(language)) << language;
}

void TestHelpPages::contentsNamesEveryPage()
{
    QFETCH(QString, language);
    QStringList named = helpPageNames(m_folder);
    QCOMPARE(named.first(), startPage()); // where the book of the language begins
    named.sort();
    QCOMPARE(QDir(m_folder + QLatin1Char('/') + language)
                 .entryList({QStringLiteral("*.html")}, QDir::Files, QDir::Name),
             named);
}

void TestHelpPages::isWellFormed()
{
    QCOMPARE(page().problem, QString());
}

void TestHelpPages::hasOneHeading()
{
    int count = 0;
    for (const HelpHeading &heading : page().headings)
        count += heading.level == 1;
    QCOMPARE(count, 1);
    QVERIFY(!page().heading().isEmpty());
    QVERIFY(!page().title.isEmpty());
}

void TestHelpPages::sectionsHaveTextAndId()
{
    for (const HelpHeading &heading : page().headings) {
        QVERIFY(!heading.text.isEmpty());
        QVERIFY2(!heading.id.isEmpty(), qPrintable(heading.text));
        for (const QString &word : heading.indexWords)
            QVERIFY2(!word.isEmpty(), qPrintable(heading.text));
    }
    QSet<QString> seen;
    for (const QString &id : page().ids) {
        QVERIFY2(!seen.contains(id), qPrintable(id));
        seen.insert(id);
    }
}

void TestHelpPages::languageAndLettersAreDeclared()
{
    const QString folder = page().path.section(QLatin1Char('/'), 0, -2);
    QCOMPARE(page().language, folder.isEmpty() ? helpLanguages().first() : folder);
    QCOMPARE(page().charset, QStringLiteral("utf-8"));

    QFile file(m_folder + QLatin1Char('/') + page().path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    QCOMPARE(QString::fromUtf8(bytes).toUtf8(), bytes);
    // make_help says it once more for old viewers, and knows it in this form.
    QCOMPARE(bytes.count("<meta charset=\"utf-8\" />"), 1);
}

void TestHelpPages::linksLeadSomewhere()
{
    for (const QString &link : page().links) {
        const QString target = page().target(link);
        const HelpPage &other = page(target.section(QLatin1Char('#'), 0, 0));
        QVERIFY2(!other.path.isEmpty(), qPrintable(link));
        const QString id = target.section(QLatin1Char('#'), 1);
        QVERIFY2(!target.contains(QLatin1Char('#')) || other.ids.contains(id), qPrintable(link));
    }
}

void TestHelpPages::styleSheetsAreThere()
{
    QCOMPARE(page().styleSheets.size(), 1);
    const QString sheet = page().target(page().styleSheets.first());
    QVERIFY2(QFileInfo(m_folder + QLatin1Char('/') + sheet).isFile(), qPrintable(sheet));
}

void TestHelpPages::picturesAreTakenAndHaveText()
{
    const QStringList taken =
        QStringLiteral(QUORIN_HELP_PICTURES).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    QVERIFY(taken.size() > 1);
    for (const QString &picture : page().pictures) {
        const QString name = picture.section(QLatin1Char('/'), -1).section(QLatin1Char('.'), 0, 0);
        QCOMPARE(picture, QStringLiteral("pictures/%1.png").arg(name));
        QVERIFY2(taken.contains(name), qPrintable(picture));
    }
    QCOMPARE(page().picturesWithoutText, 0);
}

void TestHelpPages::nothingRunsInAPage()
{
    QFile file(m_folder + QLatin1Char('/') + page().path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(file.readAll());
    QVERIFY(!text.contains(QLatin1String("<script"), Qt::CaseInsensitive));
    QVERIFY(!text.contains(QRegularExpression(QStringLiteral("<[^>]* on[a-z]+ *="))));
}

// The foot of a page leads one page back and one on.
void TestHelpPages::leadsToItsNeighbours()
{
    if (page().path == startPage())
        QSKIP("belongs to no language");
    const QStringList names = helpPageNames(m_folder);
    const int position = int(names.indexOf(page().path.section(QLatin1Char('/'), -1)));
    if (position > 0)
        QVERIFY(page().links.contains(names.at(position - 1)));
    if (position + 1 < names.size())
        QVERIFY(page().links.contains(names.at(position + 1)));
}

void TestHelpPages::isTheSameInBothLanguages_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : helpPageNames(m_folder))
        QTest::newRow(qPrintable(name)) << name;
}

void TestHelpPages::isTheSameInBothLanguages()
{
    QFETCH(QString, name);
    const HelpPage &korean = page(QLatin1String("ko/") + name);
    const HelpPage &japanese = page(QLatin1String("ja/") + name);
    QCOMPARE(japanese.ids, korean.ids);
    QCOMPARE(japanese.pictures, korean.pictures);
    QCOMPARE(japanese.headings.size(), korean.headings.size());
    for (int i = 0; i < korean.headings.size(); ++i) {
        QCOMPARE(japanese.headings.at(i).id, korean.headings.at(i).id);
        QCOMPARE(japanese.headings.at(i).level, korean.headings.at(i).level);
        QCOMPARE(japanese.headings.at(i).indexWords.isEmpty(),
                 korean.headings.at(i).indexWords.isEmpty());
    }
}

void TestHelpPages::startPageLeadsToBothLanguages()
{
    for (const QString &language : helpLanguages())
        QVERIFY(page(startPage()).links.contains(language + QLatin1String("/index.html")));
}

// A letter that this finds needs a row in help/maker/codepage949.cpp.
void TestHelpPages::contentsAndIndexCanBeShown()
{
    for (const HelpHeading &heading : page().headings) {
        QCOMPARE(lettersWithoutShape(heading.text), QString());
        for (const QString &word : heading.indexWords)
            QCOMPARE(lettersWithoutShape(word), QString());
    }
    QCOMPARE(lettersWithoutShape(page().title), QString());
}

void TestHelpPages::bothLanguagesAreInTheIndex()
{
    const QList<IndexEntry> entries = indexEntries(m_pages);
    for (const QString &language : helpLanguages()) {
        int count = 0;
        for (const IndexEntry &entry : entries)
            count += entry.target.startsWith(language);
        QVERIFY2(count > helpPageNames(m_folder).size(), qPrintable(language));
    }
}

QTEST_APPLESS_MAIN(TestHelpPages)
#include "tst_helppages.moc"
