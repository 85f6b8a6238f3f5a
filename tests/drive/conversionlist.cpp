#include "tests/drive/conversionlist.h"

#include <QDir>
#include <QFile>

namespace {

QString absolutePath(const QString &path)
{
    return QDir::current().absoluteFilePath(path.trimmed());
}

} // namespace

QList<Conversion> readConversions(const QString &fileName, QString *problem)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        *problem = QStringLiteral("cannot read %1: %2").arg(fileName, file.errorString());
        return {};
    }

    QList<Conversion> conversions;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        if (line.trimmed().isEmpty() || line.startsWith(QLatin1Char('#')))
            continue;
        const QStringList fields = line.split(QLatin1Char('\t'));
        if (fields.size() != 3) {
            *problem = QStringLiteral("%1: not three fields: %2").arg(fileName, line);
            return {};
        }
        Conversion conversion{fields.at(0), absolutePath(fields.at(1)), {}};
        const QStringList inputs = fields.at(2).split(QLatin1Char(';'), Qt::SkipEmptyParts);
        for (const QString &input : inputs)
            conversion.inputFiles.append(absolutePath(input));
        conversions.append(conversion);
    }
    if (conversions.isEmpty())
        *problem = QStringLiteral("%1 names no conversion").arg(fileName);
    return conversions;
}
