// Stands in for the desktop: takes the files that the program asks it to show.
#pragma once

#include <QObject>
#include <QStringList>

/// May be made and asked in any thread; the files come in the window's.
class OpenedFiles : public QObject
{
    Q_OBJECT

public:
    OpenedFiles();
    ~OpenedFiles() override;

    bool contains(const QString &file) const { return m_files.contains(file); }

public slots:
    void open(const QUrl &url);

private:
    QStringList m_files;
};
