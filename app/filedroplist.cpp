#include "app/filedroplist.h"

#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

namespace {

QStringList droppedFiles(const QMimeData *data)
{
    QStringList files;
    const QList<QUrl> urls = data->urls();
    for (const QUrl &url : urls) {
        const QString path = url.toLocalFile();
        if (!path.isEmpty() && !QFileInfo(path).isDir())
            files.append(path);
    }
    return files;
}

// Always a copy: when it agrees to a move, the file manager deletes the shop's own export.
bool acceptFiles(QDropEvent *event)
{
    if (droppedFiles(event->mimeData()).isEmpty()) {
        event->ignore();
        return false;
    }
    event->setDropAction(Qt::CopyAction);
    event->accept();
    return true;
}

} // namespace

FileDropList::FileDropList(QWidget *parent) : QListWidget(parent)
{
    setDragDropMode(QAbstractItemView::DropOnly);
}

void FileDropList::dragEnterEvent(QDragEnterEvent *event)
{
    acceptFiles(event);
}

void FileDropList::dragMoveEvent(QDragMoveEvent *event)
{
    acceptFiles(event);
}

void FileDropList::dropEvent(QDropEvent *event)
{
    if (acceptFiles(event))
        emit filesDropped(droppedFiles(event->mimeData()));
}
