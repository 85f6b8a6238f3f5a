#include "help/maker/helppage.h"

#include <QDir>
#include <QFile>
#include <QXmlStreamReader>

namespace {

/// Collects what one page holds, element after element.
class PageReader
{
public:
    PageReader(QIODevice *device, HelpPage &page) : m_reader(device), m_page(page) {}

    void read()
    {
        while (!m_reader.atEnd()) {
            m_reader.readNext();
            if (m_reader.isStartElement())
                start();
            else if (m_reader.isEndElement())
                end();
            else if (m_reader.isCharacters() && m_inText)
                m_text += m_reader.text();
        }
        if (m_reader.hasError())
            m_page.problem = QStringLiteral("line %1: %2")
                                 .arg(m_reader.lineNumber())
                                 .arg(m_reader.errorString());
    }

private:
    QString attribute(const char *name) const
    {
        return m_reader.attributes().value(QLatin1String(name)).toString();
    }
    bool isNamed(const char *name) const { return m_reader.name() == QLatin1String(name); }
    /// 0 for what is no heading of the contents.
    int headingLevel() const
    {
        for (int level = 1; level <= 3; ++level) {
            if (m_reader.name() == QLatin1Char('h') + QString::number(level))
                return level;
        }
        return 0;
    }

    void start()
    {
        const QString id = attribute("id");
        if (!id.isEmpty())
            m_page.ids.append(id);
        if (headingLevel() > 0)
            m_page.headings.append({headingLevel(), id, QString(), indexWords()});
        if (headingLevel() > 0 || isNamed("title")) {
            m_inText = true;
            m_text.clear();
        } else if (isNamed("html")) {
            m_page.language = attribute("lang");
        } else if (isNamed("meta") && !attribute("charset").isEmpty()) {
            m_page.charset = attribute("charset");
        } else if (isNamed("link")) {
            m_page.styleSheets.append(attribute("href"));
        } else if (isNamed("a") && m_reader.attributes().hasAttribute(QLatin1String("href"))) {
            m_page.links.append(attribute("href"));
        } else if (isNamed("img")) {
            m_page.pictures.append(attribute("src"));
            m_page.picturesWithoutText += attribute("alt").isEmpty();
        }
    }

    void end()
    {
        if (headingLevel() > 0)
            m_page.headings.last().text = m_text.simplified();
        else if (isNamed("title"))
            m_page.title = m_text.simplified();
        else
            return;
        m_inText = false;
    }

    QStringList indexWords() const
    {
        QStringList words;
        const QStringList parts =
            attribute("data-index").split(QLatin1Char(','), Qt::SkipEmptyParts);
        for (const QString &part : parts)
            words.append(part.simplified());
        return words;
    }

    QXmlStreamReader m_reader;
    HelpPage &m_page;
    bool m_inText = false;
    QString m_text;
};

} // namespace

QString HelpPage::heading() const
{
    for (const HelpHeading &heading : headings) {
        if (heading.level == 1)
            return heading.text;
    }
    return QString();
}

QString HelpPage::target(const QString &reference) const
{
    if (reference.startsWith(QLatin1Char('#')))
        return path + reference;
    const int slash = path.lastIndexOf(QLatin1Char('/'));
    return QDir::cleanPath(path.left(slash + 1) + reference);
}

HelpPage readHelpPage(const QString &helpFolder, const QString &path)
{
    HelpPage page;
    page.path = path;
    QFile file(helpFolder + QLatin1Char('/') + path);
    if (file.open(QIODevice::ReadOnly))
        PageReader(&file, page).read();
    else
        page.problem = file.errorString();
    return page;
}

QStringList helpLanguages()
{
    return {QStringLiteral("ko"), QStringLiteral("ja")};
}

QString startPage()
{
    return QStringLiteral("index.html");
}

QStringList helpPageNames(const QString &helpFolder)
{
    QFile file(helpFolder + QLatin1String("/contents.txt"));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

QList<HelpPage> readHelp(const QString &helpFolder)
{
    QList<HelpPage> pages{readHelpPage(helpFolder, startPage())};
    const QStringList names = helpPageNames(helpFolder);
    for (const QString &language : helpLanguages()) {
        for (const QString &name : names)
            pages.append(readHelpPage(helpFolder, language + QLatin1Char('/') + name));
    }
    return pages;
}

QStringList filesOfPages(const QList<HelpPage> &pages)
{
    QStringList files;
    for (const HelpPage &page : pages) {
        for (const QString &reference : page.styleSheets + page.pictures)
            files.append(page.target(reference));
    }
    files.removeDuplicates();
    return files;
}
