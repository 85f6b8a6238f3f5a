#include "tests/help/examplerows.h"

#include "help/maker/helppage.h"

#include <QFile>
#include <QXmlStreamReader>

namespace {

class RowReader
{
public:
    RowReader(QIODevice *device, QString path) : m_reader(device), m_path(std::move(path)) {}

    QList<ExampleRow> read()
    {
        while (!m_reader.atEnd()) {
            m_reader.readNext();
            if (!m_reader.isStartElement() || m_reader.name() != QLatin1String("tr"))
                continue;
            const QXmlStreamAttributes attributes = m_reader.attributes();
            if (attributes.hasAttribute(QLatin1String("data-rule"))
                || attributes.hasAttribute(QLatin1String("data-condition")))
                readRow(attributes);
        }
        return m_rows;
    }

private:
    void readRow(const QXmlStreamAttributes &attributes)
    {
        ExampleRow row;
        row.place = QStringLiteral("%1:%2").arg(m_path).arg(m_reader.lineNumber());
        row.rule = attributes.value(QLatin1String("data-rule")).toString();
        row.condition = attributes.value(QLatin1String("data-condition")).toString();
        row.holds = attributes.value(QLatin1String("data-holds")).toString();
        QStringList cells;
        while (m_reader.readNextStartElement()) {
            const QString kind = m_reader.attributes().value(QLatin1String("class")).toString();
            const QString text = readCell();
            if (!kind.isEmpty())
                cells.append(kind);
            if (kind == QLatin1String("before"))
                row.before = text;
            else if (kind == QLatin1String("after"))
                row.after = text;
            else if (kind == QLatin1String("value"))
                row.value = text;
        }
        const QString kinds = cells.join(QLatin1Char(' '));
        if (kinds != (row.rule.isEmpty() ? QLatin1String("value") : QLatin1String("before after")))
            row.problem = QStringLiteral("cells: ") + kinds;
        m_rows.append(row);
    }

    /// The text of the cell as it stands; a break element is a line feed.
    QString readCell()
    {
        QString text;
        for (int depth = 1; depth > 0 && !m_reader.atEnd();) {
            m_reader.readNext();
            if (m_reader.isStartElement()) {
                ++depth;
                if (m_reader.name() == QLatin1String("br"))
                    text += QLatin1Char('\n');
            } else if (m_reader.isEndElement()) {
                --depth;
            } else if (m_reader.isCharacters()) {
                text += m_reader.text();
            }
        }
        return text;
    }

    QXmlStreamReader m_reader;
    const QString m_path;
    QList<ExampleRow> m_rows;
};

} // namespace

QList<ExampleRow> exampleRows(const QString &helpFolder, const QString &language)
{
    QList<ExampleRow> rows;
    for (const QString &name : helpPageNames(helpFolder)) {
        const QString path = language + QLatin1Char('/') + name;
        QFile file(helpFolder + QLatin1Char('/') + path);
        if (file.open(QIODevice::ReadOnly))
            rows += RowReader(&file, path).read();
    }
    return rows;
}
