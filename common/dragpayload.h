// What a drag inside the program carries: for each dragged item where its values come from, and the
// text that the user sees. It travels under the MIME type that every item view of the toolkit uses
// for a layout of its own, so what arrives may come from another program or be damaged.
#pragma once

#include <QList>
#include <QString>

class QMimeData;

struct DragItem {
    int source = 0; ///< SourceKind
    int number = 0; ///< number within its source
    QString text;

    bool operator==(const DragItem &other) const
    {
        return source == other.source && number == other.number && text == other.text;
    }
};

QString dragItemsMimeType();

/// The caller owns the result.
QMimeData *encodeDragItems(const QList<DragItem> &items);

/// The items in their order. Data of which any part cannot be ours yields none.
QList<DragItem> decodeDragItems(const QMimeData &data);
