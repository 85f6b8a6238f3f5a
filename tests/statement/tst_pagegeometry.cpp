// Where things stand on the page, by the corners of their boxes: the corners belong to the boxes.
#include "statement/pagegeometry.h"

#include <QtTest>

namespace {

QRect corners(int left, int top, int right, int bottom)
{
    return QRect(QPoint(left, top), QPoint(right, bottom));
}

// The positions in words, from the size of the page; `evenW` is the width without its odd dot.
struct Positions {
    Positions(int W, int H, int C)
        : evenW(W % 2 == 0 ? W : W - 1), title(corners(0, 0, W - 1, 39)),
          company(corners(W / 2 + 25, 150, evenW - 51, 319)),
          customer(corners(50, 80, W / 2 - 26, 189)), message(corners(50, 210, W / 2 - 26, 319)),
          order(10, C, W - 20, H - C - 80), comment(corners(0, H - 80, W - 1, H - 1))
    {
    }

    int evenW;
    QRect title;
    QRect company;
    QRect customer;
    QRect message;
    QRect order;
    QRect comment;
};

} // namespace

class TestPageGeometry : public QObject
{
    Q_OBJECT

private slots:
    void cuttingLineIsOneThirdDownThePaper_data();
    void cuttingLineIsOneThirdDownThePaper();
    void boxesOfPages_data();
    void boxesOfPages();
    void boxesOfAnyPage();
    void boxesDoNotOverlapOnPaper();
    void resolutionIsThatOfAScreen();
};

void TestPageGeometry::cuttingLineIsOneThirdDownThePaper_data()
{
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("paperHeight");
    QTest::addColumn<int>("cuttingLine");

    QTest::newRow("A4 with a margin of ten points") << 1096 << 1123 << 374 - 13 + 2;
    QTest::newRow("A4 without a margin") << 1123 << 1123 << 374 + 2;
    QTest::newRow("margin of one dot above and below") << 298 << 300 << 100 - 1 + 2;
    QTest::newRow("a third is cut to whole dots") << 302 << 302 << 100 + 2;
    QTest::newRow("half of an odd difference is cut to whole dots") << 297 << 300 << 100 - 1 + 2;
    QTest::newRow("third and half are cut each for itself") << 298 << 301 << 100 - 1 + 2;
    QTest::newRow("a page higher than its paper: cut towards zero") << 303 << 300 << 100 + 1 + 2;
    QTest::newRow("nothing") << 0 << 0 << 2;
}

void TestPageGeometry::cuttingLineIsOneThirdDownThePaper()
{
    QFETCH(int, height);
    QFETCH(int, paperHeight);
    for (const int width : {0, 700, 767}) {
        const PageGeometry page(width, height, paperHeight);
        QTEST(page.cuttingLine(), "cuttingLine");
    }
}

void TestPageGeometry::boxesOfPages_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("paperHeight");
    QTest::addColumn<QRect>("title");
    QTest::addColumn<QRect>("company");
    QTest::addColumn<QRect>("customer");
    QTest::addColumn<QRect>("message");
    QTest::addColumn<QRect>("order");
    QTest::addColumn<QRect>("comment");

    // The order's box ends above the comment's: its height is what lies between.
    QTest::newRow("even width") << 768 << 1096 << 1123 << corners(0, 0, 767, 39)
                                << corners(409, 150, 717, 319) << corners(50, 80, 358, 189)
                                << corners(50, 210, 358, 319) << corners(10, 363, 757, 1015)
                                << corners(0, 1016, 767, 1095);
    QTest::newRow("odd width: the company's box ends where it ended with a dot less")
        << 769 << 1096 << 1123 << corners(0, 0, 768, 39) << corners(409, 150, 717, 319)
        << corners(50, 80, 358, 189) << corners(50, 210, 358, 319) << corners(10, 363, 758, 1015)
        << corners(0, 1016, 768, 1095);
    QTest::newRow("odd width, one dot less")
        << 767 << 1096 << 1123 << corners(0, 0, 766, 39) << corners(408, 150, 715, 319)
        << corners(50, 80, 357, 189) << corners(50, 210, 357, 319) << corners(10, 363, 756, 1015)
        << corners(0, 1016, 766, 1095);
    QTest::newRow("another height moves the comment and the order's end")
        << 768 << 1000 << 1123 << corners(0, 0, 767, 39) << corners(409, 150, 717, 319)
        << corners(50, 80, 358, 189) << corners(50, 210, 358, 319) << corners(10, 315, 757, 919)
        << corners(0, 920, 767, 999);
}

void TestPageGeometry::boxesOfPages()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(int, paperHeight);
    const PageGeometry page(width, height, paperHeight);
    QCOMPARE(page.width(), width);
    QCOMPARE(page.height(), height);
    QCOMPARE(PageGeometry::titleLine, 40);
    QCOMPARE(page.footerLine(), height - 80);
    QTEST(page.titleBox(), "title");
    QTEST(page.companyBox(), "company");
    QTEST(page.customerBox(), "customer");
    QTEST(page.messageBox(), "message");
    QTEST(page.orderBox(), "order");
    QTEST(page.commentBox(), "comment");
}

void TestPageGeometry::boxesOfAnyPage()
{
    for (int width = 150; width < 2000; ++width) {
        const int height = 500 + width % 700;
        const PageGeometry page(width, height, height + width % 31);
        const Positions expected(width, height, page.cuttingLine());
        QCOMPARE(page.titleBox(), expected.title);
        QCOMPARE(page.companyBox(), expected.company);
        QCOMPARE(page.customerBox(), expected.customer);
        QCOMPARE(page.messageBox(), expected.message);
        QCOMPARE(page.orderBox(), expected.order);
        QCOMPARE(page.commentBox(), expected.comment);
    }
}

void TestPageGeometry::boxesDoNotOverlapOnPaper()
{
    for (const int width : {767, 768}) {
        const PageGeometry page(width, 1096, 1123);
        const QList<QRect> boxes = {page.titleBox(),   page.companyBox(), page.customerBox(),
                                    page.messageBox(), page.orderBox(),   page.commentBox()};
        for (int i = 0; i < boxes.size(); ++i) {
            QVERIFY(QRect(0, 0, width, 1096).contains(boxes.at(i)));
            for (int j = 0; j < i; ++j)
                QVERIFY2(!boxes.at(i).intersects(boxes.at(j)), qPrintable(QString::number(i)));
        }
    }
}

void TestPageGeometry::resolutionIsThatOfAScreen()
{
    QCOMPARE(PageGeometry::resolution, 96);
}

QTEST_GUILESS_MAIN(TestPageGeometry)
#include "tst_pagegeometry.moc"
