// What is dragged arrives as it was; what other programs drag under the same MIME type, and what is
// damaged, arrives as nothing.
#include "common/dragpayload.h"

#include <QDataStream>
#include <QMimeData>
#include <QRandomGenerator>
#include <QStringListModel>
#include <QtTest>
#include <memory>

using DragItems = QList<DragItem>;
Q_DECLARE_METATYPE(DragItem)

char *toString(const DragItem &item)
{
    const QString text =
        QStringLiteral("%1 %2 %3").arg(item.source).arg(item.number).arg(item.text);
    return qstrdup(text.toUtf8().constData());
}

static DragItems decodeBytes(const QByteArray &bytes)
{
    QMimeData data;
    data.setData("application/x-qabstractitemmodeldatalist", bytes);
    return decodeDragItems(data);
}

static QByteArray encodeBytes(const DragItems &items)
{
    const std::unique_ptr<QMimeData> data(encodeDragItems(items));
    return data->data("application/x-qabstractitemmodeldatalist");
}

class TestDragPayload : public QObject
{
    Q_OBJECT

private slots:
    void hasTheMimeTypeOfItemViews();
    void isAStreamOfNumbersAndText();
    void arrivesAsItWas_data();
    void arrivesAsItWas();
    void foreignOrDamagedBytesYieldNothing_data();
    void foreignOrDamagedBytesYieldNothing();
    void otherMimeTypesYieldNothing();
    void aCutPayloadYieldsNothingOrWholeItems();
    void otherItemViewsYieldNothing();
    void anyBytesAreSafe();
};

void TestDragPayload::hasTheMimeTypeOfItemViews()
{
    QCOMPARE(dragItemsMimeType(), QString("application/x-qabstractitemmodeldatalist"));
    const std::unique_ptr<QMimeData> data(encodeDragItems({{1, 0, "주문번호"}}));
    QCOMPARE(data->formats(), QStringList{"application/x-qabstractitemmodeldatalist"});
    QCOMPARE(QStringListModel().mimeTypes(), data->formats());
}

void TestDragPayload::isAStreamOfNumbersAndText()
{
    QByteArray expected;
    QDataStream stream(&expected, QIODevice::WriteOnly);
    stream << int(1) << int(26) << QString("수량") << int(0) << int(5) << QString("전화번호");
    QCOMPARE(encodeBytes({{1, 26, "수량"}, {0, 5, "전화번호"}}), expected);
}

void TestDragPayload::arrivesAsItWas_data()
{
    QTest::addColumn<DragItems>("items");

    QTest::newRow("no item") << DragItems();
    QTest::newRow("an input item") << DragItems{{1, 0, "주문번호"}};
    QTest::newRow("a company field") << DragItems{{0, 7, "전자우편"}};
    QTest::newRow("every field different") << DragItems{{1, 12, "a"}, {0, 3, "b"}, {1, 4, "c"}};
    QTest::newRow("the same item twice") << DragItems{{1, 2, "수량"}, {1, 2, "수량"}};
    QTest::newRow("an item without a text") << DragItems{{1, 3, ""}, {1, 4, "x"}};
    QTest::newRow("an item with a null text") << DragItems{{1, 3, QString()}, {1, 4, "x"}};
    QTest::newRow("line breaks, commas and quotes") << DragItems{{1, 3, "a\r\n,\"b\""}};
    QTest::newRow("a NUL inside") << DragItems{{1, 3, QString("a%1b").arg(QChar(0))}};
    QTest::newRow("beyond the basic plane") << DragItems{{1, 3, "😀住所"}};
    QTest::newRow("a lone surrogate") << DragItems{{1, 3, QString(QChar(0xD800))}};
    QTest::newRow("the last column of a wide file") << DragItems{{1, 9999, "end"}};
    QTest::newRow("the highest number") << DragItems{{1, 0x7FFFFFFF, "end"}};
    QTest::newRow("a long text") << DragItems{{1, 0, QString(3000000, 'x')}, {1, 1, "y"}};
}

void TestDragPayload::arrivesAsItWas()
{
    QFETCH(DragItems, items);

    QCOMPARE(decodeBytes(encodeBytes(items)), items);
}

void TestDragPayload::foreignOrDamagedBytesYieldNothing_data()
{
    QTest::addColumn<QByteArray>("bytes");

    const QByteArray item = encodeBytes({{1, 2, "수량"}});
    const auto numbers = [](const QList<qint32> &values) {
        QByteArray bytes;
        QDataStream stream(&bytes, QIODevice::WriteOnly);
        for (const qint32 value : values)
            stream << value;
        return bytes;
    };
    const qint32 noText = -1;

    QTest::newRow("nothing at all") << QByteArray();
    QTest::newRow("one byte") << QByteArray("\0", 1);
    QTest::newRow("one byte behind an item") << item + '\0';
    QTest::newRow("half an item behind an item") << item + item.left(9);
    QTest::newRow("an item behind one byte") << '\0' + item;
    QTest::newRow("a text of 4 GB") << numbers({1, 2, -2});
    QTest::newRow("a text of 2 GB") << numbers({1, 2, 0x7FFFFFFE, 0});
    QTest::newRow("a text of half a unit") << numbers({1, 2, 3, 0, 0});
    QTest::newRow("a text that ends too early") << numbers({1, 2, 8, 0});
    QTest::newRow("numbers without a text") << numbers({1, 2});
    QTest::newRow("a source that is none") << numbers({2, 0, noText});
    QTest::newRow("a negative source") << numbers({-1, 0, noText});
    QTest::newRow("a negative column") << numbers({1, -1, noText});
    QTest::newRow("a negative company field") << numbers({0, -1, noText});
    QTest::newRow("a company field too many") << numbers({0, 8, noText});
    QTest::newRow("a good item before a bad one") << item + numbers({1, -1, noText});
    QTest::newRow("a good item behind a bad one") << numbers({3, 0, noText}) + item;
    QTest::newRow("text") << QByteArray("주문번호,수량\n1,2\n");
    QTest::newRow("zeros") << QByteArray(1001, '\0');
    QTest::newRow("ones") << QByteArray(1200, '\xFF');
}

void TestDragPayload::foreignOrDamagedBytesYieldNothing()
{
    QFETCH(QByteArray, bytes);

    QCOMPARE(decodeBytes(bytes), DragItems());
}

void TestDragPayload::otherMimeTypesYieldNothing()
{
    QMimeData data;
    QCOMPARE(decodeDragItems(data), DragItems());
    data.setText("수량");
    data.setData("application/x-something", encodeBytes({{1, 2, "수량"}}));
    QCOMPARE(decodeDragItems(data), DragItems());
}

void TestDragPayload::aCutPayloadYieldsNothingOrWholeItems()
{
    const DragItems items{{1, 2, "수량"}, {0, 0, "회사명"}, {1, 3, "판매가"}};
    const QByteArray bytes = encodeBytes(items);
    QList<int> wholeSizes; // of the first item, of the first two and so on
    for (int count = 1; count <= items.size(); ++count)
        wholeSizes.append(encodeBytes(items.mid(0, count)).size());
    for (int size = 0; size <= bytes.size(); ++size)
        QCOMPARE(decodeBytes(bytes.left(size)), items.mid(0, wholeSizes.indexOf(size) + 1));
}

void TestDragPayload::otherItemViewsYieldNothing()
{
    QStringListModel model;
    for (int length = 0; length < 50; ++length) {
        const QString text(length, QChar('0' + length));
        model.setStringList({text, "수량", text, QString()});
        for (int row = 0; row < model.rowCount(); ++row) {
            const std::unique_ptr<QMimeData> one(model.mimeData({model.index(row)}));
            QCOMPARE(decodeDragItems(*one), DragItems());
        }
        const std::unique_ptr<QMimeData> two(model.mimeData({model.index(0), model.index(1)}));
        QCOMPARE(decodeDragItems(*two), DragItems());
    }
}

void TestDragPayload::anyBytesAreSafe()
{
    QRandomGenerator random(20);
    const QByteArray payload = encodeBytes({{1, 2, "수량"}, {0, 0, "회사명"}, {1, 3, "판매가"}});
    for (int round = 0; round < 2000; ++round) {
        QByteArray noise(random.bounded(64), '\0');
        for (char &byte : noise)
            byte = char(random.bounded(256));
        decodeBytes(noise);

        QByteArray damaged = payload;
        for (int i = 0; i < 3; ++i)
            damaged[random.bounded(damaged.size())] = char(random.bounded(256));
        const DragItems items = decodeBytes(damaged);
        QVERIFY(items.size() <= damaged.size() / 12);
        for (const DragItem &item : items) {
            QVERIFY(item.source == 0 || item.source == 1);
            QVERIFY(item.number >= 0);
        }
    }
}

QTEST_GUILESS_MAIN(TestDragPayload)
#include "tst_dragpayload.moc"
