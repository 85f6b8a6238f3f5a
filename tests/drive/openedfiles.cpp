#include "tests/drive/openedfiles.h"

#include "tests/drive/userhands.h"

#include <QDesktopServices>
#include <QDir>
#include <QUrl>

OpenedFiles::OpenedFiles()
{
    moveToThread(QCoreApplication::instance()->thread());
    onGui([this] {
        QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "open");
        return true;
    });
}

OpenedFiles::~OpenedFiles()
{
    onGui([] {
        QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
        return true;
    });
}

void OpenedFiles::open(const QUrl &url)
{
    // A path that begins with a slash has two of them in the address.
    m_files.append(QDir::cleanPath(url.toLocalFile()));
}
