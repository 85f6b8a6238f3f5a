#include "help/maker/sitemap.h"

#include "help/maker/codepage949.h"

#include <QHash>
#include <algorithm>

namespace {

const char head[] = "<!DOCTYPE HTML PUBLIC \"-//IETF//DTD HTML//EN\">\n"
                    "<HTML>\n<HEAD></HEAD>\n<BODY>\n";
const char foot[] = "</BODY>\n</HTML>\n";

QByteArray parameter(const char *name, const QByteArray &value)
{
    return QByteArray("<param name=\"") + name + "\" value=\"" + value + "\">\n";
}

QByteArray entry(const QString &name, const QString &target)
{
    const QByteArray nearest = nearestLetters(name);
    const QByteArray exact = exactLetters(name);
    QByteArray bytes = "<LI><OBJECT type=\"text/sitemap\">\n" + parameter("Name", nearest);
    if (exact != nearest)
        bytes += parameter("Name", exact);
    return bytes + parameter("Local", target.toUtf8()) + "</OBJECT>\n";
}

QByteArray sections(const HelpPage &page)
{
    QByteArray bytes;
    for (const HelpHeading &heading : page.headings) {
        if (heading.level == 2)
            bytes += entry(heading.text, page.path + QLatin1Char('#') + heading.id);
    }
    return bytes.isEmpty() ? bytes : "<UL>\n" + bytes + "</UL>\n";
}

QString languageName(const QString &language)
{
    return language == QLatin1String("ja") ? QStringLiteral("日本語") : QStringLiteral("한국어");
}

} // namespace

QByteArray contentsFile(const QList<HelpPage> &pages)
{
    QByteArray bytes = head;
    bytes += "<OBJECT type=\"text/site properties\">\n" + parameter("ImageType", "Folder")
        + "</OBJECT>\n<UL>\n";
    for (const HelpPage &page : pages) {
        if (page.path == startPage())
            bytes += entry(page.heading(), page.path);
    }
    for (const QString &language : helpLanguages()) {
        const QString folder = language + QLatin1Char('/');
        bytes += entry(languageName(language), folder + startPage()) + "<UL>\n";
        for (const HelpPage &page : pages) {
            if (page.path.startsWith(folder))
                bytes += entry(page.heading(), page.path) + sections(page);
        }
        bytes += "</UL>\n";
    }
    return bytes + "</UL>\n" + foot;
}

QList<IndexEntry> indexEntries(const QList<HelpPage> &pages)
{
    QList<IndexEntry> entries;
    QHash<QString, int> targets; // of each word
    for (const HelpPage &page : pages) {
        for (const HelpHeading &heading : page.headings) {
            for (const QString &word : heading.indexWords) {
                entries.append({word, heading.text, page.path + QLatin1Char('#') + heading.id});
                ++targets[word];
            }
        }
    }
    for (IndexEntry &entry : entries) {
        if (targets.value(entry.word) > 1)
            entry.word += QLatin1String(" - ") + entry.heading;
    }
    std::stable_sort(entries.begin(), entries.end(),
                     [](const IndexEntry &left, const IndexEntry &right) {
                         return left.word.toCaseFolded() < right.word.toCaseFolded();
                     });
    return entries;
}

QByteArray indexFile(const QList<IndexEntry> &entries)
{
    QByteArray bytes = QByteArray(head) + "<UL>\n";
    for (const IndexEntry &indexEntry : entries)
        bytes += entry(indexEntry.word, indexEntry.target);
    return bytes + "</UL>\n" + foot;
}

QString helpFileName()
{
    return QStringLiteral("quorinConverter");
}

QByteArray projectFile(const QList<HelpPage> &pages)
{
    const QByteArray name = helpFileName().toUtf8();
    const QByteArray start = startPage().toUtf8();
    const QByteArray title = pages.isEmpty() ? QByteArray() : nearestLetters(pages.first().title);
    // A binary contents tree or index knows no number references, and the search knows no words in
    // texts without blanks. The window's panes are the contents, the index and the favourites.
    QByteArray bytes = "[OPTIONS]\n"
                       "Compatibility=1.1 or later\n"
                       "Compiled file="
        + name
        + ".chm\n"
          "Contents file="
        + name
        + ".hhc\n"
          "Index file="
        + name
        + ".hhk\n"
          "Default topic="
        + start
        + "\n"
          "Default Window=main\n"
          "Title="
        + title
        + "\n"
          "Language=0x0412 Korean\n"
          "Binary TOC=No\n"
          "Binary Index=No\n"
          "Full-text search=No\n"
          "\n[WINDOWS]\n"
          "main=\""
        + title + "\",\"" + name + ".hhc\",\"" + name + ".hhk\",\"" + start + "\",\"" + start
        + "\",,,,,0x43120,260,0x304e,[40,40,1100,760],,,,,,,0\n"
          "\n[FILES]\n";
    for (const HelpPage &page : pages)
        bytes += page.path.toUtf8() + '\n';
    for (const QString &file : filesOfPages(pages))
        bytes += file.toUtf8() + '\n';
    return bytes;
}
