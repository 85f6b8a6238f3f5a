// make_help HELPFOLDER OUTPUTFOLDER
// Makes the folder from which the help file is compiled: the pages and their style sheets, and the
// project with its contents tree and its index, which come from the pages themselves. The pictures
// are put there by take_pictures.
#include "help/maker/sitemap.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QTextStream>

namespace {

bool fail(const QString &file, const QString &problem)
{
    QTextStream(stderr) << file << ": " << problem << '\n';
    return false;
}

bool write(const QDir &folder, const QString &name, const QByteArray &content)
{
    QDir().mkpath(QFileInfo(folder.filePath(name)).path());
    QSaveFile file(folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.commit())
        return fail(file.fileName(), file.errorString());
    return true;
}

/// Old viewers know no other way to say what a page's letters are.
QByteArray withOldCharset(QByteArray page)
{
    return page.replace(
        "<meta charset=\"utf-8\" />",
        "<meta http-equiv=\"Content-Type\" content=\"text/html; charset=utf-8\" />");
}

bool copy(const QDir &from, const QString &name, const QDir &to)
{
    QFile file(from.filePath(name));
    if (!file.open(QIODevice::ReadOnly))
        return fail(file.fileName(), file.errorString());
    const QByteArray content = file.readAll();
    return write(to, name,
                 name.endsWith(QLatin1String(".html")) ? withOldCharset(content) : content);
}

bool makeHelp(const QDir &from, const QDir &to)
{
    const QList<HelpPage> pages = readHelp(from.path());
    if (pages.size() < 2)
        return fail(from.path(), QStringLiteral("contents.txt names no page"));
    for (const HelpPage &page : pages) {
        if (!page.problem.isEmpty())
            return fail(from.filePath(page.path), page.problem);
        if (!copy(from, page.path, to))
            return false;
    }
    for (const QString &name : filesOfPages(pages)) {
        if (name.endsWith(QLatin1String(".css")) && !copy(from, name, to))
            return false;
    }
    const QString name = helpFileName();
    return write(to, name + QLatin1String(".hhc"), contentsFile(pages))
        && write(to, name + QLatin1String(".hhk"), indexFile(indexEntries(pages)))
        && write(to, name + QLatin1String(".hhp"), projectFile(pages));
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        QTextStream(stderr) << "usage: make_help HELPFOLDER OUTPUTFOLDER\n";
        return 2;
    }
    return makeHelp(QDir(arguments.at(1)), QDir(arguments.at(2))) ? 0 : 1;
}
