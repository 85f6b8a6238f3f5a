// What the program says of itself.
#include "tests/app/warningcollector.h"
#include "update/infodialog.h"
#include "update/makersite.h"
#include "update/programversion.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QtTest>
#include <memory>

class TestInfoDialog : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void dialogIsComplete();
    void labels_data();
    void labels();
    void logoHasItsFrame();
    void noticeNamesWhatIsUsed_data();
    void noticeNamesWhatIsUsed();
    void noticeCannotBeChanged();
    void closes_data();
    void closes();
    void tabKeyReachesEverything();
    void noTextIsCut();

private:
    template <typename Type> Type *find(const char *name) const
    {
        return m_dialog->findChild<Type *>(QLatin1String(name));
    }

    std::unique_ptr<WarningCollector> m_warnings;
    std::unique_ptr<InfoDialog> m_dialog;
};

void TestInfoDialog::init()
{
    m_warnings = std::make_unique<WarningCollector>();
    m_dialog = std::make_unique<InfoDialog>();
    m_dialog->show();
    m_dialog->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
}

void TestInfoDialog::cleanup()
{
    m_dialog.reset();
    QCOMPARE(m_warnings->take(), QStringList());
    m_warnings.reset();
}

void TestInfoDialog::dialogIsComplete()
{
    QCOMPARE(m_dialog->windowTitle(), QStringLiteral("쿼린 컨버터 정보"));
    QCOMPARE(m_dialog->windowIcon().pixmap(24, 24).toImage(),
             QIcon(QStringLiteral(":/icon/images/information.png")).pixmap(24, 24).toImage());
    const auto *tabs = find<QTabWidget>("tabWidget");
    QCOMPARE(tabs->count(), 2);
    QCOMPARE(tabs->currentIndex(), 0);
    QCOMPARE(tabs->widget(0)->objectName(), QStringLiteral("programInfoTab"));
    QCOMPARE(tabs->tabText(0), QStringLiteral("프로그램 정보"));
    QCOMPARE(tabs->widget(1)->objectName(), QStringLiteral("copyrightInfoTab"));
    QCOMPARE(tabs->tabText(1), QStringLiteral("저작권 정보"));
    QVERIFY(find<QPushButton>("okButton")->y() >= tabs->geometry().bottom());
    QVERIFY(!m_dialog->isModal());
}

void TestInfoDialog::labels_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("label") << "쿼린 컨버터";
    QTest::newRow("versionLabel") << "Version : 1.00"; // a translation has another word for it
    QTest::newRow("label_4") << "제작일 : 2011-10-04";
    QTest::newRow("urlLabel") << makerSite().toString();
}

void TestInfoDialog::labels()
{
    const auto *label = find<QLabel>(QTest::currentDataTag());
    QVERIFY(label->isVisible());
    QTEST(label->text(), "text");
    for (const char *maker : {"label_5", "label_6"})
        QVERIFY(find<QLabel>(maker)->text().contains(QStringLiteral("벨모라")));
}

void TestInfoDialog::logoHasItsFrame()
{
    const auto *logo = find<QLabel>("logo");
    QCOMPARE(logo->styleSheet(),
             QStringLiteral("QLabel{\n\tborder:1px solid #AAA;\n\tbackground-color: rgb(239, 239, "
                            "239);\n}"));
    const QImage picture = logo->pixmap(Qt::ReturnByValue).toImage();
    QVERIFY(!picture.isNull());
    QCOMPARE(picture, QPixmap(QStringLiteral(":/icon/images/logo.png")).toImage());
}

void TestInfoDialog::noticeNamesWhatIsUsed_data()
{
    QTest::addColumn<QString>("words");
    QTest::newRow("the terms") << "무료";
    QTest::newRow("no warranty") << "보증";
    QTest::newRow("the library") << "Qt 5.15";
    QTest::newRow("its licence") << "LGPL";
    QTest::newRow("the licence's text") << "LGPL.TXT";
    QTest::newRow("the builder of the package") << "CPack";
    QTest::newRow("the icons") << "아이콘";
}

void TestInfoDialog::noticeNamesWhatIsUsed()
{
    QFETCH(QString, words);
    QVERIFY(find<QPlainTextEdit>("copyrightEdit")->toPlainText().contains(words));
}

void TestInfoDialog::noticeCannotBeChanged()
{
    find<QTabWidget>("tabWidget")->setCurrentIndex(1);
    auto *notice = find<QPlainTextEdit>("copyrightEdit");
    QVERIFY(notice->isReadOnly());
    const QString before = notice->toPlainText();
    notice->setFocus();
    QTest::keyClicks(notice, QStringLiteral("abc"));
    QTest::keyClick(notice, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(notice->toPlainText(), before);
    // From its beginning, although nobody has read to its end.
    QCOMPARE(notice->cursorForPosition(QPoint(5, 5)).blockNumber(), 0);
}

void TestInfoDialog::closes_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("okButton") << 0;
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Escape") << int(Qt::Key_Escape);
}

void TestInfoDialog::closes()
{
    QFETCH(int, key);
    if (key == 0)
        QTest::mouseClick(find<QPushButton>("okButton"), Qt::LeftButton);
    else
        QTest::keyClick(m_dialog.get(), Qt::Key(key));
    QVERIFY(!m_dialog->isVisible());
}

void TestInfoDialog::tabKeyReachesEverything()
{
    QCOMPARE(m_dialog->focusWidget(), find<QPushButton>("okButton"));
    QTest::keyClick(m_dialog.get(), Qt::Key_Tab);
    QVERIFY(find<QTabWidget>("tabWidget")->isAncestorOf(m_dialog->focusWidget()));
    QTest::keyClick(m_dialog->focusWidget(), Qt::Key_Right);
    QCOMPARE(find<QTabWidget>("tabWidget")->currentIndex(), 1);
    QTest::keyClick(m_dialog->focusWidget(), Qt::Key_Tab);
    QCOMPARE(m_dialog->focusWidget(), find<QPlainTextEdit>("copyrightEdit"));
    QTest::keyClick(m_dialog->focusWidget(), Qt::Key_Tab);
    QCOMPARE(m_dialog->focusWidget(), find<QPushButton>("okButton"));
}

void TestInfoDialog::noTextIsCut()
{
    m_dialog->resize(m_dialog->minimumSizeHint());
    const QList<QLabel *> labels = m_dialog->findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        QVERIFY2(label->width() >= label->sizeHint().width(), qPrintable(label->objectName()));
        QVERIFY2(label->height() >= label->sizeHint().height(), qPrintable(label->objectName()));
    }
}

QTEST_MAIN(TestInfoDialog)

#include "tst_infodialog.moc"
