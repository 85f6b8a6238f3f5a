// The labels of the company fields: a press on one starts a drag that carries its field, a press
// beside them starts nothing; the keyboard copies the same.
#include "common/dragpayload.h"
#include "editor/draggroupbox.h"
#include "tests/app/warningcollector.h"

#include <QAccessible>
#include <QClipboard>
#include <QDrag>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QtTest>
#include <memory>
#include <optional>

namespace {

struct Field {
    const char *label;
    const char *text;
};

// By field number.
const Field fields[] = {{"companyName", "회사명"},   {"storeName", "판매처명"},
                        {"storeSite", "판매사이트"}, {"postCode", "우편번호"},
                        {"address", "주소"},         {"phone", "전화번호"},
                        {"fax", "팩스번호"},         {"email", "전자우편"}};
const int fieldCount = 8;

/// Presses the mouse and looks at the drag that this starts, which it ends. A display with drags
/// serves a timer meanwhile; without a display there is only the beginning of one.
class Press : public QObject
{
public:
    explicit Press(QObject *source) : m_source(source)
    {
        connect(&m_timer, &QTimer::timeout, this, [this] {
            if (look())
                QDrag::cancel();
        });
        m_timer.start(0);
    }

    void at(QWidget *widget, const QPoint &point, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mousePress(widget, button, Qt::NoModifier, point);
        look();
        QTest::mouseRelease(widget, button, Qt::NoModifier, point);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    void at(QWidget *widget) { at(widget, widget->rect().center()); }

    bool hasDragged = false;
    QStringList formats;
    QList<DragItem> items;
    Qt::DropActions actions;
    bool hadPicture = false;

private:
    bool look()
    {
        const auto *drag = m_source->findChild<QDrag *>();
        if (drag == nullptr || hasDragged)
            return false;
        hasDragged = true;
        formats = drag->mimeData()->formats();
        items = decodeDragItems(*drag->mimeData());
        actions = drag->supportedActions();
        hadPicture = !drag->pixmap().isNull();
        return true;
    }

    QObject *const m_source;
    QTimer m_timer;
};

} // namespace

class TestDragGroupBox : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void aPressOnALabelDragsItsField_data();
    void aPressOnALabelDragsItsField();
    void everyPlaceOfALabelDrags();
    void aLabelWithTheFocusDrags();
    void theTextOfTheLabelTravels();
    void aPressElsewhereStartsNothing_data();
    void aPressElsewhereStartsNothing();
    void otherMouseButtonsStartNothing_data();
    void otherMouseButtonsStartNothing();
    void aMoveWithoutAPressStartsNothing();

    void theCursorIsAnOpenHand();
    void labelsCanTakeTheFocus();
    void theFocusIsVisibleAndMovesNothing();
    void tabGoesFromLabelToLabel();
    void arrowsGoFromLabelToLabel_data();
    void arrowsGoFromLabelToLabel();
    void copyTakesTheFieldWithTheFocus_data();
    void copyTakesTheFieldWithTheFocus();
    void copyElsewhereTakesNothing();
    void screenReadersHearTheTexts();
    void aBoxWithFewerLabelsWorks();

private:
    QLabel *label(int field) const
    {
        return m_window->findChild<QLabel *>(QLatin1String(fields[field].label));
    }
    QLabel *otherLabel() const { return m_window->findChild<QLabel *>("other"); }
    void addFieldRows() const;
    /// Whether the clipboard holds this field.
    static bool isCopied(int field)
    {
        const QMimeData *data = QGuiApplication::clipboard()->mimeData();
        return data != nullptr
            && decodeDragItems(*data) == QList<DragItem>{{0, field, fields[field].text}};
    }

    std::unique_ptr<QWidget> m_window;
    DragGroupBox *m_box = nullptr;
    QLineEdit *m_before = nullptr;
    QLineEdit *m_after = nullptr;
    std::optional<WarningCollector> m_warnings; ///< of the test that runs now
};

void TestDragGroupBox::init()
{
    m_warnings.emplace();
    m_window = std::make_unique<QWidget>();
    auto *layout = new QHBoxLayout(m_window.get());
    m_before = new QLineEdit;
    m_box = new DragGroupBox;
    layout->addWidget(m_before);
    layout->addWidget(m_box);
    m_box->setTitle("회사정보");
    m_box->setStyleSheet("QLabel{border:1px solid #999;}");
    auto *labels = new QHBoxLayout(m_box);
    for (const Field &field : fields) {
        auto *label = new QLabel(field.text);
        label->setObjectName(field.label);
        labels->addWidget(label);
    }
    auto *other = new QLabel("다른");
    other->setObjectName("other");
    labels->addWidget(other);
    m_after = new QLineEdit;
    layout->addWidget(m_after);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QGuiApplication::clipboard()->clear();
}

void TestDragGroupBox::cleanup()
{
    m_window.reset();
    const QStringList warnings = m_warnings->take();
    m_warnings.reset();
    QCOMPARE(warnings, QStringList());
}

void TestDragGroupBox::addFieldRows() const
{
    QTest::addColumn<int>("field");
    for (int field = 0; field < fieldCount; ++field)
        QTest::newRow(fields[field].label) << field;
}

void TestDragGroupBox::aPressOnALabelDragsItsField_data()
{
    addFieldRows();
}

void TestDragGroupBox::aPressOnALabelDragsItsField()
{
    QFETCH(int, field);
    Press drag(m_box);
    drag.at(label(field));
    QVERIFY(drag.hasDragged);
    QCOMPARE(drag.formats, QStringList("application/x-qabstractitemmodeldatalist"));
    QVERIFY(drag.items == (QList<DragItem>{{0, field, fields[field].text}}));
    QCOMPARE(drag.actions, Qt::DropActions(Qt::CopyAction));
    QVERIFY(drag.hadPicture);
    QVERIFY(label(field)->isVisible()); // stays where it is
}

void TestDragGroupBox::everyPlaceOfALabelDrags()
{
    const QRect place = label(3)->rect();
    for (const QPoint &point : {place.topLeft(), place.bottomRight(), place.center()}) {
        Press drag(m_box);
        drag.at(label(3), point);
        QVERIFY(drag.items == (QList<DragItem>{{0, 3, "우편번호"}}));
    }
}

void TestDragGroupBox::aLabelWithTheFocusDrags()
{
    label(6)->setFocus();
    Press drag(m_box);
    drag.at(label(6));
    QVERIFY(drag.items == (QList<DragItem>{{0, 6, "팩스번호"}}));
}

void TestDragGroupBox::theTextOfTheLabelTravels()
{
    label(5)->setText("会社の電話");
    Press drag(m_box);
    drag.at(label(5));
    QVERIFY(drag.items == (QList<DragItem>{{0, 5, "会社の電話"}}));
}

void TestDragGroupBox::aPressElsewhereStartsNothing_data()
{
    QTest::addColumn<QString>("place");
    QTest::newRow("title") << "title";
    QTest::newRow("gap between two labels") << "gap";
    QTest::newRow("another label") << "other";
}

void TestDragGroupBox::aPressElsewhereStartsNothing()
{
    QFETCH(QString, place);
    Press drag(m_box);
    if (place == "other")
        drag.at(otherLabel());
    else if (place == "title")
        drag.at(m_box, QPoint(8, 4));
    else
        drag.at(m_box, label(0)->geometry().topRight() + QPoint(2, 2));
    QVERIFY(!drag.hasDragged);
}

void TestDragGroupBox::otherMouseButtonsStartNothing_data()
{
    QTest::addColumn<int>("button");
    QTest::newRow("right") << int(Qt::RightButton);
    QTest::newRow("middle") << int(Qt::MiddleButton);
}

void TestDragGroupBox::otherMouseButtonsStartNothing()
{
    QFETCH(int, button);
    Press drag(m_box);
    drag.at(label(0), QPoint(2, 2), Qt::MouseButton(button));
    QVERIFY(!drag.hasDragged);
}

void TestDragGroupBox::aMoveWithoutAPressStartsNothing()
{
    QTest::mouseMove(label(0));
    QTest::mouseMove(label(1));
    QVERIFY(m_box->findChild<QDrag *>() == nullptr);
}

// --- without a mouse --------------------------------------------------------------------------

void TestDragGroupBox::theCursorIsAnOpenHand()
{
    for (int field = 0; field < fieldCount; ++field)
        QCOMPARE(label(field)->cursor().shape(), Qt::OpenHandCursor);
    QCOMPARE(otherLabel()->cursor().shape(), Qt::ArrowCursor);
    QCOMPARE(m_box->cursor().shape(), Qt::ArrowCursor);
}

void TestDragGroupBox::labelsCanTakeTheFocus()
{
    for (int field = 0; field < fieldCount; ++field)
        QCOMPARE(label(field)->focusPolicy(), Qt::StrongFocus);
    QCOMPARE(otherLabel()->focusPolicy(), Qt::NoFocus);
}

void TestDragGroupBox::theFocusIsVisibleAndMovesNothing()
{
    m_before->setFocus();
    const QImage without = label(2)->grab().toImage();
    const QRect place = label(2)->geometry();
    const QSize hint = label(2)->sizeHint();
    label(2)->setFocus();
    QCoreApplication::processEvents();
    QVERIFY(label(2)->grab().toImage() != without);
    QCOMPARE(label(2)->geometry(), place);
    QCOMPARE(label(2)->sizeHint(), hint);
    m_before->setFocus();
    QCOMPARE(label(2)->grab().toImage(), without);
}

void TestDragGroupBox::tabGoesFromLabelToLabel()
{
    m_before->setFocus();
    for (int field = 0; field < fieldCount; ++field) {
        QTest::keyClick(m_window->focusWidget(), Qt::Key_Tab);
        QCOMPARE(m_window->focusWidget(), label(field));
    }
    QTest::keyClick(m_window->focusWidget(), Qt::Key_Tab);
    QCOMPARE(m_window->focusWidget(), m_after);
}

void TestDragGroupBox::arrowsGoFromLabelToLabel_data()
{
    QTest::addColumn<int>("forth");
    QTest::addColumn<int>("back");
    QTest::newRow("left and right") << int(Qt::Key_Right) << int(Qt::Key_Left);
    QTest::newRow("up and down") << int(Qt::Key_Down) << int(Qt::Key_Up);
}

void TestDragGroupBox::arrowsGoFromLabelToLabel()
{
    QFETCH(int, forth);
    QFETCH(int, back);
    label(0)->setFocus();
    for (int field = 1; field < fieldCount; ++field) {
        QTest::keyClick(m_window->focusWidget(), Qt::Key(forth));
        QCOMPARE(m_window->focusWidget(), label(field));
    }
    QTest::keyClick(m_window->focusWidget(), Qt::Key(forth)); // ends there
    QCOMPARE(m_window->focusWidget(), label(7));
    for (int field = 6; field >= 0; --field) {
        QTest::keyClick(m_window->focusWidget(), Qt::Key(back));
        QCOMPARE(m_window->focusWidget(), label(field));
    }
    QTest::keyClick(m_window->focusWidget(), Qt::Key(back));
    QCOMPARE(m_window->focusWidget(), label(0));
}

void TestDragGroupBox::copyTakesTheFieldWithTheFocus_data()
{
    addFieldRows();
}

void TestDragGroupBox::copyTakesTheFieldWithTheFocus()
{
    QFETCH(int, field);
    label(field)->setFocus();
    QTest::keyClick(label(field), Qt::Key_C);
    QVERIFY(!isCopied(field));
    QTest::keyClick(label(field), Qt::Key_C, Qt::ControlModifier);
    QVERIFY(isCopied(field));
    QCOMPARE(QGuiApplication::clipboard()->mimeData()->formats(),
             QStringList("application/x-qabstractitemmodeldatalist"));
}

void TestDragGroupBox::copyElsewhereTakesNothing()
{
    QTest::keyClick(otherLabel(), Qt::Key_C, Qt::ControlModifier);
    QTest::keyClick(m_box, Qt::Key_C, Qt::ControlModifier);
    QTest::keyClick(m_box, Qt::Key_Right);
    for (int field = 0; field < fieldCount; ++field)
        QVERIFY(!isCopied(field));
}

void TestDragGroupBox::screenReadersHearTheTexts()
{
    for (int field = 0; field < fieldCount; ++field) {
        QAccessibleInterface *reader = QAccessible::queryAccessibleInterface(label(field));
        QCOMPARE(reader->text(QAccessible::Name), QString(fields[field].text));
        QVERIFY(reader->state().focusable);
    }
}

void TestDragGroupBox::aBoxWithFewerLabelsWorks()
{
    delete label(1);
    label(0)->setFocus();
    QTest::keyClick(label(0), Qt::Key_Right);
    QCOMPARE(m_window->focusWidget(), label(2));
    Press drag(m_box);
    drag.at(label(2));
    QVERIFY(drag.items == (QList<DragItem>{{0, 2, "판매사이트"}}));
}

QTEST_MAIN(TestDragGroupBox)
#include "tst_draggroupbox.moc"
