// Entries of the editor of mapped values are dragged to another place. Only a display has drags.
#include "editor/editoutputitemsdialog.h"
#include "tests/editor/dialogtest.h"

#include <QThread>
#include <QWindow>

class TestEditOutputItemsDrag : public DialogTest
{
    Q_OBJECT

private slots:
    void mouseArrangesTheItem_data();
    void mouseArrangesTheItem();

private:
    QListWidget *list() const { return find<QListWidget>("listWidget"); }
    void dragRow(int from, int to, int yPercent);
};

void TestEditOutputItemsDrag::mouseArrangesTheItem_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");       // onto this row,
    QTest::addColumn<int>("yPercent"); // there within it
    QTest::addColumn<Columns>("positions");
    QTest::newRow("to the start") << 3 << 0 << 5 << Columns{3, 0, 1, 2};
    QTest::newRow("to the end") << 0 << 3 << 95 << Columns{1, 2, 3, 0};
    QTest::newRow("down by one") << 1 << 2 << 95 << Columns{0, 2, 1, 3};
    QTest::newRow("up by one") << 2 << 1 << 5 << Columns{0, 2, 1, 3};
    QTest::newRow("onto another entry it goes beside that") << 0 << 2 << 60 << Columns{1, 2, 0, 3};
    QTest::newRow("onto itself it stays") << 1 << 1 << 60 << Columns{0, 1, 2, 3};
}

void TestEditOutputItemsDrag::mouseArrangesTheItem()
{
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(int, yPercent);
    QFETCH(Columns, positions);
    setItem(repeatedItem());
    open(new EditOutputItemsDialog(&m_model, m_model.index(OutputModeModel::OutputRow, column)));
    dragRow(from, to, yPercent);
    click("okButton");
    QCOMPARE(item(), arranged(repeatedItem(), positions));
}

// The second movement starts the drag, whose own event loop then serves the timer. The test
// library's own movements are of no use here: they hold no button.
void TestEditOutputItemsDrag::dragRow(int from, int to, int yPercent)
{
    const auto mouse = [window = m_dialog->windowHandle(), viewport = list()->viewport()](
                           QEvent::Type type, const QPoint &place, Qt::MouseButtons held) {
        const QPoint inWindow = viewport->mapTo(viewport->window(), place);
        const bool moves = type == QEvent::MouseMove;
        qt_handleMouseEvent(window, inWindow, viewport->mapToGlobal(place), held,
                            moves ? Qt::NoButton : Qt::LeftButton, type, Qt::NoModifier,
                            ++QTest::lastMouseTimestamp);
        QCoreApplication::processEvents();
    };
    const QPoint start = list()->visualItemRect(list()->item(from)).center();
    const QRect onto = list()->visualItemRect(list()->item(to));
    const QPoint end(start.x() + 40, onto.y() + onto.height() * yPercent / 100);
    bool dropped = false;
    mouse(QEvent::MouseButtonPress, start, Qt::LeftButton);
    mouse(QEvent::MouseMove, start + QPoint(20, 0), Qt::LeftButton);
    QTimer timer;
    const int outside = QThread::currentThread()->loopLevel();
    connect(&timer, &QTimer::timeout, this, [&] {
        if (QThread::currentThread()->loopLevel() == outside)
            return; // not yet
        timer.stop();
        mouse(QEvent::MouseMove, end - QPoint(1, 0), Qt::LeftButton);
        mouse(QEvent::MouseMove, end, Qt::LeftButton);
        mouse(QEvent::MouseButtonRelease, end, Qt::NoButton);
        dropped = true;
    });
    timer.start(0);
    mouse(QEvent::MouseMove, start + QPoint(30, 0), Qt::LeftButton);
    QTRY_VERIFY_WITH_TIMEOUT(dropped, 1000);
}

QTEST_MAIN(TestEditOutputItemsDrag)
#include "tst_editoutputitemsdrag.moc"
