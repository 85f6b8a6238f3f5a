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
