// What the program asks of the desktop around it: the one place that differs between systems.
#pragma once

#include <QObject>

class QString;
class QUrl;

/// The address of a local file as the program hands it to the desktop: three slashes, then the path
/// with every character of it taken literally ("#" and "%" too).
QUrl localFileUrl(const QString &path);

/// The same address in the form that the desktop's viewers understand: where paths begin with a slash of
/// their own, localFileUrl() has four, and viewers of help files find nothing there.
QUrl desktopFileUrl(const QUrl &url);

/// While it lives, the desktop is handed the addresses of files in that form.
class FileUrlOpener : public QObject
{
    Q_OBJECT

public:
    FileUrlOpener();
    ~FileUrlOpener() override;

private slots:
    void open(const QUrl &url);
};

/// Shows a folder in the system's file browser, without waiting. `owner` owns the process.
void browseFolder(const QString &folder, QObject *owner);

/// Starts the updater program of the working folder; it goes on when this process has ended.
void startUpdater();
