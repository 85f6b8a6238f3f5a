// The window's part in the check for a newer version, and the information dialog.
#include "app/startup.h"
#include "tests/app/answermessagebox.h"
#include "tests/app/mainwindowtest.h"
#include "tests/update/httpserver.h"
#include "update/infodialog.h"
#include "update/updater.h"

#include <QAction>
#include <QApplication>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QPointer>
#include <QtTest>

namespace {

/// A reply that has come, with this body.
class FinishedReply : public QNetworkReply
{
public:
    explicit FinishedReply(const QByteArray &body) : m_body(body)
    {
        open(QIODevice::ReadOnly);
        setFinished(true);
    }
    void abort() override {}
    bool isSequential() const override { return true; }
    qint64 bytesAvailable() const override { return m_body.size() + QIODevice::bytesAvailable(); }

protected:
    qint64 readData(char *data, qint64 maximum) override
    {
        const int size = int(qMin(maximum, qint64(m_body.size())));
        memcpy(data, m_body.constData(), size_t(size));
        m_body.remove(0, size);
        return size;
    }

private:
    QByteArray m_body;
};

} // namespace

class TestMainWindowUpdate : public MainWindowTest
{
    Q_OBJECT

private slots:
    void checkIsStartedOnceAndDisturbsNobody();
    void windowClosesWhileACheckIsOpen();
    void newerVersionIsOffered();
    void sameVersionIsNotOffered();
    void informationIsShown();
    void informationIsShownOnce();
};

void TestMainWindowUpdate::checkIsStartedOnceAndDisturbsNobody()
{
    // The way to every web site leads through this server, which takes the question and is silent.
    const HttpServer server(HttpServer::NeverEnd);
    QNetworkProxy::setApplicationProxy(
        {QNetworkProxy::HttpProxy, QStringLiteral("127.0.0.1"), server.serverPort()});
    openWindow();
    QTRY_COMPARE(server.requests().size(), 1);
    QVERIFY2(server.requests().first().startsWith("CONNECT www.velmora.example:443 "),
             server.requests().first().constData());

    add({path("one.csv")});
    click("convertButton");
    QCOMPARE(readFile(path("one_output.csv")), QByteArray("second,first\n2,1\n4,3\n"));
    QCOMPARE(server.requests().size(), 1);
    QCOMPARE(server.openConnections(), 1);
}

void TestMainWindowUpdate::windowClosesWhileACheckIsOpen()
{
    const HttpServer server(HttpServer::NeverEnd);
    QNetworkProxy::setApplicationProxy(
        {QNetworkProxy::HttpProxy, QStringLiteral("127.0.0.1"), server.serverPort()});
    openWindow();
    QTRY_COMPARE(server.openConnections(), 1);
    QVERIFY(m_window->close());
    m_window.reset();
    QTRY_COMPARE(server.openConnections(), 0);
}

void TestMainWindowUpdate::newerVersionIsOffered()
{
    auto *updater = m_window->findChild<Updater *>();
    QVERIFY(updater != nullptr);
    const AnswerMessageBox box(Qt::Key_Escape);
    QNetworkReply *reply = new FinishedReply("<latest><version>1.01</version></latest>");
    QVERIFY(QMetaObject::invokeMethod(updater, "readXML", Q_ARG(QNetworkReply *, reply)));
    QCOMPARE(box.title, QStringLiteral("Update available"));
    QVERIFY(box.text.endsWith(QStringLiteral("Current version : 1.00\nLatest version : 1.01")));
    QVERIFY(m_window->isVisible());
}

void TestMainWindowUpdate::sameVersionIsNotOffered()
{
    auto *updater = m_window->findChild<Updater *>();
    const QSignalSpy available(updater, &Updater::updateAvailable);
    const QPointer<QNetworkReply> reply = new FinishedReply("<version>1.00</version>");
    QVERIFY(QMetaObject::invokeMethod(updater, "readXML", Q_ARG(QNetworkReply *, reply.data())));
    QCOMPARE(available.count(), 0);
    QTRY_VERIFY(reply.isNull());
}

void TestMainWindowUpdate::informationIsShown()
{
    find<QAction>("action_info")->trigger();
    const QPointer<InfoDialog> dialog = m_window->findChild<InfoDialog *>();
    QVERIFY(!dialog.isNull());
    QVERIFY(QTest::qWaitForWindowActive(dialog.data()));
    QCOMPARE(dialog->parentWidget(), m_window.get());
    // Beside it the window goes on working.
    add({path("one.csv")});
    QCOMPARE(listed(), QStringList{path("one.csv")});
    QTest::keyClick(dialog.data(), Qt::Key_Return);
    QTRY_VERIFY(dialog.isNull());
}

void TestMainWindowUpdate::informationIsShownOnce()
{
    find<QAction>("action_info")->trigger();
    const QPointer<InfoDialog> dialog = m_window->findChild<InfoDialog *>();
    find<QAction>("action_info")->trigger();
    QCOMPARE(m_window->findChildren<InfoDialog *>().size(), 1);
    dialog->close();
    QTRY_VERIFY(dialog.isNull());
    find<QAction>("action_info")->trigger();
    QVERIFY(m_window->findChild<InfoDialog *>()->isVisible());
}

int main(int argc, char *argv[])
{
    prepareApplication();
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    TestMainWindowUpdate test;
    return MainWindowTest::run(test, argc, argv);
}

#include "tst_mainwindowupdate.moc"
