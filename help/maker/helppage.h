// One page of the help as its readers and its links see it. Pages are HTML that is also well-formed
// XML.
#pragma once

#include <QList>
#include <QStringList>

struct HelpHeading {
    int level; ///< 1 to 3
    QString id;
    QString text;
    QStringList indexWords; ///< under which the index leads here
};

struct HelpPage {
    QString path;    ///< in the folder of the help, such as "ko/first.html"
    QString problem; ///< why the page cannot be read; empty for a page that can
    QString language;
    QString charset;
    QString title;
    QList<HelpHeading> headings;
    QStringList ids;
    QStringList links;       ///< as written
    QStringList pictures;    ///< as written
    QStringList styleSheets; ///< as written
    int picturesWithoutText = 0;

    /// The text of the first h1.
    QString heading() const;
    /// Where a reference of this page leads: a path in the folder of the help, with "#" and the id
    /// if it has one.
    QString target(const QString &reference) const;
};

HelpPage readHelpPage(const QString &helpFolder, const QString &path);

/// The folders of the languages, in the order of the contents: "ko", "ja".
QStringList helpLanguages();
/// The page that leads to both languages.
QString startPage();
/// The file names of a language's pages, in the order of contents.txt. Empty when it cannot be
/// read.
QStringList helpPageNames(const QString &helpFolder);
/// The start page, then every language's pages in their order.
QList<HelpPage> readHelp(const QString &helpFolder);
/// The pictures and style sheets that the pages show, each once, as paths in the folder of the
/// help.
QStringList filesOfPages(const QList<HelpPage> &pages);
