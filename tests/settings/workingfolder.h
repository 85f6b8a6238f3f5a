// A temporary folder that is the current one as long as the object lives. The settings file is
// looked for in the current folder, so every test that reads or writes settings stands in one of
// these and never meets the settings of the person who runs it.
#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

class WorkingFolder
{
public:
    WorkingFolder() : m_before(QDir::currentPath()) { enter(); }
    ~WorkingFolder() { QDir::setCurrent(m_before); }
    Q_DISABLE_COPY(WorkingFolder)

    void enter() const { QDir::setCurrent(m_folder.path()); }
    QString path(const QString &fileName) const { return m_folder.filePath(fileName); }

    QString write(const QString &fileName, const QByteArray &bytes) const
    {
        QFile file(path(fileName));
        file.remove(); // some file systems wait for the disk when an old file is written over
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write %s", qPrintable(file.fileName()));
        return file.fileName();
    }
    /// The bytes of a file; null when there is none.
    QByteArray read(const QString &fileName) const
    {
        QFile file(path(fileName));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QStringList fileNames() const { return QDir(m_folder.path()).entryList(QDir::Files); }

private:
    const QString m_before;
    QTemporaryDir m_folder;
};
