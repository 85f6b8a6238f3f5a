#include "common/lastdirectory.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>

namespace {

QString lastDirectoryKey()
{
    return QStringLiteral("last directory");
}

} // namespace

QString lastDirectory()
{
    const QString folder = QSettings().value(lastDirectoryKey()).toString();
    return folder.isEmpty() ? QDir::homePath() : folder;
}

void rememberDirectory(const QString &file)
{
    // Of the folder, not of the file: an output file need not exist yet, and an input file may be a
    // link to somewhere else.
    QSettings().setValue(lastDirectoryKey(), QFileInfo(file).dir().canonicalPath());
}
