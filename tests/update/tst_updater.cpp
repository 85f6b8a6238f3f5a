// The check for a newer version against a real web server on this machine.
#include "tests/update/httpserver.h"
#include "update/updater.h"

#include <QNetworkAccessManager>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QSignalSpy>
#include <QTimer>
#include <QtTest>
#include <memory>

using Manner = HttpServer::Manner;

class TestUpdater : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void addressIsThePathOnTheMakersSite();
    void slotsAndSignalsKeepTheirNames();
    void answers_data();
    void answers();
    void questionIsAPlainGet();
    void broken_data();
    void broken();
    void nobodyAnswers();
    void failedParseIsADebugLine();
    void externalEntityIsNeverFetched();
    void checkReturnsAtOnceAndNothingFollows();
    void openCheckEndsWithItsOwner();
    void endlessReplyIsCutOff();
    void packedReplyIsCutOff();
    void fiftyMegabytesAreRead();
    void windowIsServedMeanwhile();
};

/// What a check of this document says, as "current latest", one line for each time.
static QStringList announcements(const QUrl &document, int waitMilliseconds = 10000)
{
    Updater updater(nullptr, document);
    QStringList lines;
    QObject::connect(&updater, &Updater::updateAvailable, &updater,
                     [&](const QString &current, const QString &latest) {
                         lines.append(current + QLatin1Char(' ') + latest);
                     });
    bool finished = false;
    updater.check();
    QObject::connect(updater.findChild<QNetworkAccessManager *>(), &QNetworkAccessManager::finished,
                     &updater, [&] { finished = true; });
    if (!QTest::qWaitFor([&] { return finished; }, waitMilliseconds))
        lines.append(QStringLiteral("(not finished)"));
    return lines;
}

static QStringList announcements(const HttpServer &server, int waitMilliseconds = 10000)
{
    return announcements(server.url(QStringLiteral("/products/QuorinConverter/latest")),
                         waitMilliseconds);
}

void TestUpdater::initTestCase()
{
    QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
}

void TestUpdater::addressIsThePathOnTheMakersSite()
{
    QCOMPARE(latestVersionUrl().toString(),
             makerSite().toString() + QLatin1String("/products/QuorinConverter/latest"));
    // A name that nobody can own; the maker puts the real one in its place.
    QVERIFY(makerSite().host().endsWith(QLatin1String(".example")));
}

void TestUpdater::slotsAndSignalsKeepTheirNames()
{
    const QMetaObject &meta = Updater::staticMetaObject;
    QVERIFY(meta.indexOfSlot("readXML(QNetworkReply*)") >= 0);
    QVERIFY(meta.indexOfSignal("updateAvailable(QString,QString)") >= 0);
}

void TestUpdater::answers_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<QString>("announced");
    const auto row = [](const char *name, const QByteArray &body, const char *announced,
                        const QByteArray &status = "200 OK") {
        QTest::newRow(name) << HttpServer::reply(body, status) << QString::fromLatin1(announced);
    };
    row("newer", "<p><version>1.01</version></p>", "1.00 1.01");
    row("newer as a number, not as text", "<version>1.1</version>", "1.00 1.1");
    row("nested element", "<a><b><c><version>12</version></c></b></a>", "1.00 12");
    row("equal", "<version>1.00</version>", "");
    row("equal as a number", "<version>1</version>", "");
    row("older", "<version>0.9</version>", "");
    row("2.0 beta is no number", "<version>2.0 beta</version>", "");
    row("no element", "<p><latest>2.0</latest></p>", "");
    row("empty element", "<p><version></version></p>", "");
    row("not XML", "2.0", "");
    row("empty", "", "");
    row("error page that is not XML", "<h1>404<p>version 2.0", "", "404 Not Found");
    row("error page without the element", "<html><body>404</body></html>", "", "404 Not Found");
    row("the status is not asked", "<version>2.0</version>", "1.00 2.0", "500 Internal Error");
    row("the text as the web site writes it", "<version> 01.010\n</version>", "1.00  01.010\n");
    QTest::newRow("redirection is not followed")
        << HttpServer::reply("", "302 Found", "Location: /elsewhere\r\n") << QString();
}

void TestUpdater::answers()
{
    QFETCH(QByteArray, reply);
    const HttpServer server(Manner::Answer, reply);
    QTEST(announcements(server).join(QLatin1Char('|')), "announced");
    QCOMPARE(server.requests().size(), 1);
}

void TestUpdater::questionIsAPlainGet()
{
    const HttpServer server(Manner::Answer, HttpServer::reply("<version>1</version>"));
    announcements(server);
    QVERIFY2(
        server.requests().value(0).startsWith("GET /products/QuorinConverter/latest HTTP/1.1\r\n"),
        server.requests().value(0).constData());
}

void TestUpdater::broken_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::newRow("closed without a word") << QByteArray();
    QTest::newRow("closed within the headers") << QByteArray("HTTP/1.1 200 OK\r\nContent-Le");
    QTest::newRow("closed within the body")
        << HttpServer::reply("<p><version>2.0</version></p>").chopped(5);
    QTest::newRow("not HTTP") << QByteArray("220 mail.example ESMTP\r\n");
}

void TestUpdater::broken()
{
    QFETCH(QByteArray, reply);
    const HttpServer server(Manner::HangUp, reply);
    QCOMPARE(announcements(server), QStringList());
}

void TestUpdater::nobodyAnswers()
{
    HttpServer server(Manner::Answer);
    const QUrl url = server.url(QStringLiteral("/latest"));
    server.close();
    QCOMPARE(announcements(url), QStringList());
}

void TestUpdater::failedParseIsADebugLine()
{
    const HttpServer server(Manner::Answer, HttpServer::reply("<p>\n</q>\n"));
    QTest::ignoreMessage(
        QtDebugMsg, QRegularExpression(QStringLiteral("^load xml failed\\. Line 2, Column \\d+$")));
    announcements(server);
}

void TestUpdater::externalEntityIsNeverFetched()
{
    const HttpServer bait(Manner::Answer, HttpServer::reply("2.0"));
    const QByteArray address = bait.url(QStringLiteral("/bait")).toEncoded();
    const HttpServer server(Manner::Answer,
                            HttpServer::reply("<!DOCTYPE v SYSTEM '" + address
                                              + "' [<!ENTITY n SYSTEM '" + address
                                              + "'>]><version>&n;</version>"));
    QCOMPARE(announcements(server), QStringList());
    QTest::qWait(200);
    QCOMPARE(bait.requests().size(), 0);
}

void TestUpdater::checkReturnsAtOnceAndNothingFollows()
{
    const HttpServer server(Manner::NeverEnd);
    Updater updater(nullptr, server.url(QStringLiteral("/latest")));
    const QSignalSpy available(&updater, &Updater::updateAvailable);
    updater.check();
    QCOMPARE(server.requests().size(), 0); // the question leaves with the event loop
    QTRY_COMPARE(server.requests().size(), 1);
    QTest::qWait(300);
    QCOMPARE(available.count(), 0);
    QCOMPARE(server.requests().size(), 1);
}

void TestUpdater::openCheckEndsWithItsOwner()
{
    // A body that is never complete: the promised length is not reached.
    const HttpServer server(Manner::NeverEnd,
                            HttpServer::reply("<version>2.0</version>").chopped(1));
    auto updater = std::make_unique<Updater>(nullptr, server.url(QStringLiteral("/latest")));
    updater->check();
    QTRY_COMPARE(server.openConnections(), 1);
    QTRY_VERIFY(server.bytesSent() > 0);
    updater.reset();
    QTRY_COMPARE(server.openConnections(), 0);
}

void TestUpdater::endlessReplyIsCutOff()
{
    const HttpServer server(Manner::SendForever, "HTTP/1.1 200 OK\r\n\r\n<version>2.0</version>");
    Updater updater(nullptr, server.url(QStringLiteral("/latest")));
    const QSignalSpy available(&updater, &Updater::updateAvailable);
    updater.check();
    QTRY_COMPARE(server.openConnections(), 1);
    QTRY_COMPARE_WITH_TIMEOUT(server.openConnections(), 0, 60000);
    QVERIFY2(server.bytesSent() < 4 * Updater::largestReply,
             qPrintable(QString::number(server.bytesSent())));
    QCOMPARE(available.count(), 0);
}

void TestUpdater::packedReplyIsCutOff()
{
    // 200 MB, packed to 200 kB. Before the packed bytes the library puts four of its own.
    const QByteArray packed =
        qCompress("<version>2.0</version>" + QByteArray(200 << 20, ' '), 9).mid(4);
    const HttpServer server(Manner::Answer,
                            HttpServer::reply(packed, "200 OK", "Content-Encoding: deflate\r\n"));
    Updater updater(nullptr, server.url(QStringLiteral("/latest")));
    const QSignalSpy available(&updater, &Updater::updateAvailable);
    updater.check();
    QTRY_COMPARE(server.requests().size(), 1);
    QTRY_VERIFY_WITH_TIMEOUT(updater.findChildren<QNetworkReply *>().isEmpty(), 60000);
    QCOMPARE(available.count(), 0);
}

void TestUpdater::fiftyMegabytesAreRead()
{
    const HttpServer server(
        Manner::Answer,
        HttpServer::reply("<p>" + QByteArray(50 << 20, ' ') + "<version>1.01</version></p>"));
    QCOMPARE(announcements(server, 60000), QStringList{QStringLiteral("1.00 1.01")});
}

// A long reply is read in parts, with the user's events in between.
void TestUpdater::windowIsServedMeanwhile()
{
    const HttpServer server(Manner::Answer,
                            HttpServer::reply("<p>" + QByteArray("<a/>").repeated(3 << 20)
                                              + "<version>1.01</version></p>"));
    int served = 0;
    QTimer events;
    connect(&events, &QTimer::timeout, [&served] { ++served; });
    events.start(0);
    QCOMPARE(announcements(server, 60000), QStringList{QStringLiteral("1.00 1.01")});
    QVERIFY2(served > 20, qPrintable(QString::number(served)));
}

QTEST_GUILESS_MAIN(TestUpdater)

#include "tst_updater.moc"
