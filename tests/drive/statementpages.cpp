#include "tests/drive/statementpages.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>

QString paintPages(const QString &pdfFile, const QString &prefix, QStringList *pictures)
{
    const QFileInfo prefixInfo(prefix);
    const QStringList filter{prefixInfo.fileName() + QLatin1String("-*.png")};
    QDir folder = prefixInfo.dir();
    for (const QString &old : folder.entryList(filter))
        folder.remove(old);
    const int status = QProcess::execute(
        QStringLiteral("pdftoppm"),
        {QStringLiteral("-png"), QStringLiteral("-r"), QStringLiteral("96"), pdfFile, prefix});
    const QStringList painted = folder.entryList(filter, QDir::Files, QDir::Name);
    for (const QString &name : painted)
        pictures->append(folder.absoluteFilePath(name));
    if (status != 0 || painted.isEmpty())
        return QStringLiteral("pdftoppm cannot read %1.").arg(pdfFile);
    return QString();
}
