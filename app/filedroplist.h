// A list that takes files from the desktop's file manager. It does not add them itself: its owner
// decides what becomes of them.
#pragma once

#include <QListWidget>

class FileDropList : public QListWidget
{
    Q_OBJECT

public:
    explicit FileDropList(QWidget *parent = nullptr);

signals:
    /// Local files, not folders, were dropped; at least one.
    void filesDropped(const QStringList &files);

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
};
