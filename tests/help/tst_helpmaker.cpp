// What the viewers read beside the pages: the letters of contents and index, and their entries.
#include "help/maker/codepage949.h"
#include "help/maker/sitemap.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QtTest>

namespace {

/// A help of three pages: the start page and one for each language.
class SmallHelp
{
public:
    SmallHelp()
    {
        const QString start = QStringLiteral("<h1 id=\"top\">%1</h1>");
        write("contents.txt", QStringLiteral("index.html\n"));
        write("index.html", page(start.arg(QStringLiteral("도움말"))));
        write("ko/index.html",
              page(QStringLiteral("<h1 id=\"top\" data-index=\"처음, CSV\">첫 변환</h1>"
                                  "<h2 id=\"a\" data-index=\"CSV\">파일 <b>고르기</b></h2>"
                                  "<h3 id=\"b\" data-index=\"나\">작은 제목</h3>"
                                  "<p><img src=\"pictures/keys.png\" alt=\"x\" /></p>")));
        write("ja/index.html", page(start.arg(QStringLiteral("はじめての変換"))));
    }

    QString path() const { return m_folder.path(); }
    QList<HelpPage> pages() const { return readHelp(path()); }

private:
    static QString page(const QString &body)
    {
        return QStringLiteral("<!DOCTYPE html>\n<html lang=\"ko\"><head><title>제목</title>"
                              "<link rel=\"stylesheet\" href=\"../style.css\" /></head>"
                              "<body>%1</body></html>")
            .arg(body);
    }
    void write(const char *name, const QString &text) const
    {
        QFile file(m_folder.filePath(QLatin1String(name)));
        QDir().mkpath(QFileInfo(file).path());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text.toUtf8());
    }

    const QTemporaryDir m_folder;
};

QString decoded(const QByteArray &bytes)
{
    return QTextCodec::codecForName("CP949")->toUnicode(bytes);
}

/// The entries of a contents tree or an index, "name [name] > target" each, deeper ones behind
/// dots.
QStringList entries(const QByteArray &bytes)
{
    QStringList lines;
    int depth = -1;
    QStringList names;
    for (const QString &line : decoded(bytes).split(QLatin1Char('\n'))) {
        const QString value =
            line.section(QLatin1String("value=\""), 1).section(QLatin1Char('"'), 0, 0);
        if (line == QLatin1String("<UL>"))
            ++depth;
        else if (line == QLatin1String("</UL>"))
            --depth;
        else if (line.contains(QLatin1String("\"Name\"")))
            names.append(value);
        else if (line.contains(QLatin1String("\"Local\""))) {
            lines.append(QString(depth, QLatin1Char('.')) + names.join(QLatin1String(" | "))
                         + QLatin1String(" > ") + value);
            names.clear();
        }
    }
    return lines;
}

} // namespace

class TestHelpMaker : public QObject
{
    Q_OBJECT

private slots:
    void letters_data();
    void letters();
    void boxesAreTold();
    void pageIsRead();
    void damagedPageIsTold();
    void contentsAreATree();
    void indexIsSorted();
    void projectNamesEveryFile();
};

void TestHelpMaker::letters_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("exact");
    QTest::addColumn<QString>("nearest");
    const auto row = [](const char *name, const char *text, const char *exact,
                        const char *nearest) {
        QTest::newRow(name) << QString::fromUtf8(text) << QString::fromUtf8(exact)
                            << QString::fromUtf8(nearest);
    };
    row("Korean stays, rare syllables too", "첫 변환 뷁똠", "첫 변환 뷁똠", "첫 변환 뷁똠");
    row("kana stay", "はじめてのファイル", "はじめてのファイル", "はじめてのファイル");
    row("kanji of today become old ones", "変換", "&#22793;換", "變換");
    row("kanji of Japan become kana", "絞り込み", "絞り&#36796;み", "絞りこみ");
    row("long kana become dashes", "データ・キー", "デ&#12540;タ&#12539;キ&#12540;", "デ―タ·キ―");
    row("markup", "a<b & \"c\"", "a&lt;b &amp; &quot;c&quot;", "a＜b ＆ ”c”");
    row("what has no other shape", "雫", "&#38635;", "■");
    row("a letter of two units", "\U00020BB7", "&#134071;", "■■");
}

void TestHelpMaker::letters()
{
    QFETCH(QString, text);
    QFETCH(QString, exact);
    QFETCH(QString, nearest);
    QCOMPARE(decoded(exactLetters(text)), exact);
    QCOMPARE(decoded(nearestLetters(text)), nearest);
}

void TestHelpMaker::boxesAreTold()
{
    QCOMPARE(lettersWithoutShape(QStringLiteral("変換■雫込")), QStringLiteral("雫"));
}

void TestHelpMaker::pageIsRead()
{
    const SmallHelp help;
    const HelpPage page = help.pages().at(1);
    QCOMPARE(page.problem, QString());
    QCOMPARE(page.language, QStringLiteral("ko"));
    QCOMPARE(page.title, QStringLiteral("제목"));
    QCOMPARE(page.heading(), QStringLiteral("첫 변환"));
    QCOMPARE(page.headings.at(1).text, QStringLiteral("파일 고르기"));
    QCOMPARE(page.ids,
             QStringList({QStringLiteral("top"), QStringLiteral("a"), QStringLiteral("b")}));
    QCOMPARE(page.target(QStringLiteral("../ja/index.html#a")), QStringLiteral("ja/index.html#a"));
    QCOMPARE(page.target(QStringLiteral("#a")), QStringLiteral("ko/index.html#a"));
    QCOMPARE(filesOfPages(help.pages()).mid(1),
             QStringList({QStringLiteral("style.css"), QStringLiteral("ko/pictures/keys.png")}));
}

void TestHelpMaker::damagedPageIsTold()
{
    const SmallHelp help;
    QFile file(help.path() + QLatin1String("/ja/index.html"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<html>\n<p>text<br></p></html>");
    file.close();
    QVERIFY(help.pages().at(2).problem.startsWith(QLatin1String("line 2: ")));
    file.remove();
    QVERIFY(!help.pages().at(2).problem.isEmpty());
}

void TestHelpMaker::contentsAreATree()
{
    const QStringList expected = {
        QStringLiteral("도움말 > index.html"),
        QStringLiteral("한국어 > ko/index.html"),
        QStringLiteral(".첫 변환 > ko/index.html"),
        QStringLiteral("..파일 고르기 > ko/index.html#a"),
        QStringLiteral("日本語 > ja/index.html"),
        QStringLiteral(".はじめての變換 | はじめての&#22793;換 > ja/index.html"),
    };
    QCOMPARE(entries(contentsFile(SmallHelp().pages())), expected);
}

void TestHelpMaker::indexIsSorted()
{
    const QStringList expected = {
        QStringLiteral("CSV - 첫 변환 > ko/index.html#top"),
        QStringLiteral("CSV - 파일 고르기 > ko/index.html#a"),
        QStringLiteral("나 > ko/index.html#b"),
        QStringLiteral("처음 > ko/index.html#top"),
    };
    QCOMPARE(entries(indexFile(indexEntries(SmallHelp().pages()))), expected);
}

void TestHelpMaker::projectNamesEveryFile()
{
    const QString project = decoded(projectFile(SmallHelp().pages()));
    QVERIFY(project.contains(QStringLiteral("\nTitle=제목\n")));
    QVERIFY(project.contains(QLatin1String("\nDefault topic=index.html\n")));
    QVERIFY(project.endsWith(QLatin1String("[FILES]\nindex.html\nko/index.html\nja/index.html\n"
                                           "../style.css\nstyle.css\nko/pictures/keys.png\n")));
}

QTEST_APPLESS_MAIN(TestHelpMaker)
#include "tst_helpmaker.moc"
