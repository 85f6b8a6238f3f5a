// What the program asks of the desktop around it: the one place that differs between systems.
#pragma once

class QObject;
class QString;
class QUrl;

/// The address of a local file as the program hands it to the desktop: three slashes, then the path
/// with every character of it taken literally ("#" and "%" too).
QUrl localFileUrl(const QString &path);

/// Shows a folder in the system's file browser, without waiting. `owner` owns the process.
void browseFolder(const QString &folder, QObject *owner);

/// Starts the updater program of the working folder; it goes on when this process has ended.
void startUpdater();
