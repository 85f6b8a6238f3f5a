#include "common/dragpayload.h"

#include "settings/companyinfo.h"
#include "settings/outputitem.h"

#include <QDataStream>
#include <QMimeData>

// The layout of other item views is two numbers and a map. Read as ours, its parts shift against
// each other, so that sooner or later a number is none of these or the data ends within an item.
static bool canBeOurs(const DragItem &item)
{
    switch (item.source) {
    case CompanySource:
        return item.number >= 0 && item.number < CompanyInfo::FieldCount;
    case InputSource:
        return item.number >= 0;
    default:
        return false;
    }
}

QString dragItemsMimeType()
{
    return QStringLiteral("application/x-qabstractitemmodeldatalist");
}

QMimeData *encodeDragItems(const QList<DragItem> &items)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    for (const DragItem &item : items)
        stream << item.source << item.number << item.text;
    auto *data = new QMimeData;
    data->setData(dragItemsMimeType(), bytes);
    return data;
}

QList<DragItem> decodeDragItems(const QMimeData &data)
{
    const QByteArray bytes = data.data(dragItemsMimeType());
    QDataStream stream(bytes);
    QList<DragItem> items;
    while (!stream.atEnd()) {
        DragItem item;
        stream >> item.source >> item.number >> item.text;
        if (stream.status() != QDataStream::Ok || !canBeOurs(item))
            return {};
        items.append(item);
    }
    return items;
}
