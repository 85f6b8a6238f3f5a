#include "app/platform.h"

#include <QDesktopServices>
#include <QDir>
#include <QProcess>
#include <QUrl>

QUrl localFileUrl(const QString &path)
{
    QUrl url;
    url.setScheme(QStringLiteral("file"));
    url.setHost(QStringLiteral(""));
    // Decoded: a file may be called "100%.pdf" or "#1.pdf".
    url.setPath(QLatin1Char('/') + path, QUrl::DecodedMode);
    return url;
}

QUrl desktopFileUrl(const QUrl &url)
{
    QUrl result = url;
#ifndef Q_OS_WIN // there two slashes begin the name of another computer
    QString path = url.path(QUrl::FullyDecoded);
    while (path.startsWith(QLatin1String("//")))
        path.remove(0, 1);
    result.setPath(path, QUrl::DecodedMode);
#endif
    return result;
}

FileUrlOpener::FileUrlOpener()
{
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "open");
}

FileUrlOpener::~FileUrlOpener()
{
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
}

void FileUrlOpener::open(const QUrl &url)
{
    // Within a handler the toolkit goes on to the desktop.
    QDesktopServices::openUrl(desktopFileUrl(url));
}

void browseFolder(const QString &folder, QObject *owner)
{
    auto *explorer = new QProcess(owner);
    QObject::connect(explorer, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), explorer,
                     &QObject::deleteLater);
    QObject::connect(explorer, &QProcess::errorOccurred, explorer,
                     [explorer, folder](QProcess::ProcessError error) {
                         if (error != QProcess::FailedToStart)
                             return;
                         // Not Windows: there the desktop knows which program shows a folder.
                         QDesktopServices::openUrl(QUrl::fromLocalFile(folder));
                         explorer->deleteLater();
                     });
    explorer->start(QStringLiteral("explorer.exe"), {QDir::toNativeSeparators(folder)});
}

void startUpdater()
{
    // With its full path, or Unix would look for it along PATH only.
    QProcess::startDetached(QDir::current().absoluteFilePath(QStringLiteral("Updater.exe")), {});
}
