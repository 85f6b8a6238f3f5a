// A value on its way: whether it is a view of somebody else's text or of its own buffers, it reads
// the same as a plain text that went the same way.
#include "rules/workingtext.h"

#include <QRandomGenerator>
#include <QtTest>

class TestWorkingText : public QObject
{
    Q_OBJECT

private slots:
    void startsEmpty();
    void isAViewOfWhatIsSet();
    void narrowsWithoutCopying();
    void appendsBehindAForeignText();
    void appendsBehindItsOwnText();
    void appendsBehindANarrowedText_data();
    void appendsBehindANarrowedText();
    void appendsToNothing();
    void appendsNothing();
    void readsTheOldTextWhileItBuilds();
    void buildsTheEmptyText();
    void beginsAnewForTheNextValue();
    void keepsItsTextWhileItGrows();
    void agreesWithAPlainTextOnRandomOperations();
};

void TestWorkingText::startsEmpty()
{
    const WorkingText value;
    QVERIFY(value.view().isEmpty());
    QCOMPARE(value.toString(), QString());
}

void TestWorkingText::isAViewOfWhatIsSet()
{
    const QString text = QStringLiteral("abc");
    WorkingText value;
    value.set(text);
    QCOMPARE(value.view().data(), text.constData());
    QCOMPARE(value.toString(), text);
    value.clear();
    QCOMPARE(value.toString(), QString());
    QCOMPARE(text, QStringLiteral("abc"));
}

void TestWorkingText::narrowsWithoutCopying()
{
    const QString text = QStringLiteral("abcdef");
    WorkingText value;
    value.set(text);
    value.set(value.view().mid(1, 4));
    QCOMPARE(value.toString(), QStringLiteral("bcde"));
    value.set(value.view().left(2));
    QCOMPARE(value.toString(), QStringLiteral("bc"));
    QCOMPARE(value.view().data(), text.constData() + 1);
    value.set(value.view().left(0));
    QCOMPARE(value.toString(), QString());
}

void TestWorkingText::appendsBehindAForeignText()
{
    const QString text = QStringLiteral("abcdef");
    WorkingText value;
    value.set(QStringView(text).left(3));
    value.append(QStringView(text).right(2)); // a part of the same text, not of the value
    QCOMPARE(value.toString(), QStringLiteral("abcef"));
    QCOMPARE(text, QStringLiteral("abcdef"));
}

void TestWorkingText::appendsBehindItsOwnText()
{
    WorkingText value;
    QString expected;
    for (int i = 0; i < 100; ++i) {
        const QString number = QString::number(i);
        value.append(number);
        expected += number;
        QCOMPARE(value.toString(), expected);
    }
}

void TestWorkingText::appendsBehindANarrowedText_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("length");
    QTest::addColumn<QString>("result");

    QTest::newRow("the start") << 0 << 3 << "abc!";
    QTest::newRow("the end") << 3 << 3 << "def!";
    QTest::newRow("the middle") << 2 << 2 << "cd!";
    QTest::newRow("everything") << 0 << 6 << "abcdef!";
    QTest::newRow("nothing at the start") << 0 << 0 << "!";
    QTest::newRow("nothing at the end") << 6 << 0 << "!";
}

void TestWorkingText::appendsBehindANarrowedText()
{
    QFETCH(int, position);
    QFETCH(int, length);
    WorkingText value;
    value.set(QStringView(u"abc"));
    value.append(QStringView(u"def")); // built by itself
    value.set(value.view().mid(position, length));
    value.append(QStringView(u"!"));
    QTEST(value.toString(), "result");
}

void TestWorkingText::appendsToNothing()
{
    const QString text = QStringLiteral("abc");
    WorkingText value;
    value.append(text);
    QCOMPARE(value.toString(), text);
    value.append(text);
    QCOMPARE(value.toString(), QStringLiteral("abcabc"));
    value.clear();
    value.append(QStringView(u"x"));
    QCOMPARE(value.toString(), QStringLiteral("x"));
    QCOMPARE(text, QStringLiteral("abc"));
}

void TestWorkingText::appendsNothing()
{
    WorkingText value;
    value.append(QStringView());
    QCOMPARE(value.toString(), QString());
    value.set(QStringView(u"abc"));
    value.append(QStringView());
    value.append(QStringView(u""));
    QCOMPARE(value.toString(), QStringLiteral("abc"));
}

void TestWorkingText::readsTheOldTextWhileItBuilds()
{
    WorkingText value;
    value.set(QStringView(u"ab"));
    for (int i = 0; i < 5; ++i) {
        const QStringView old = value.view();
        value.rebuild([old](auto &out) {
            for (const QChar c : old) {
                out.append(c);
                out.append(c);
            }
        });
    }
    QCOMPARE(value.toString(), QString(32, QLatin1Char('a')) + QString(32, QLatin1Char('b')));
}

void TestWorkingText::buildsTheEmptyText()
{
    WorkingText value;
    value.set(QStringView(u"abc"));
    value.rebuild([](auto &) {});
    QCOMPARE(value.toString(), QString());
    value.append(QStringView(u"x"));
    QCOMPARE(value.toString(), QStringLiteral("x"));
    value.rebuild([](auto &) {});
    value.rebuild([](auto &out) { out.append(QStringLiteral("y")); });
    QCOMPARE(value.toString(), QStringLiteral("y"));
}

void TestWorkingText::beginsAnewForTheNextValue()
{
    WorkingText value;
    for (const char *text : {"a rather long first value", "b", "", "c"}) {
        const QString next = QLatin1String(text);
        value.set(next);
        value.append(QStringView(u"-"));
        value.append(QStringView(u"1"));
        QCOMPARE(value.toString(), QString(next + QStringLiteral("-1")));
    }
}

void TestWorkingText::keepsItsTextWhileItGrows()
{
    WorkingText value;
    QString expected;
    for (int i = 0; i < 5000; ++i) {
        value.append(QStringView(u"0123456789"));
        expected += QStringLiteral("0123456789");
        if (i % 1000 == 999) { // buffers are exchanged, too
            value.set(value.view().mid(1));
            expected.remove(0, 1);
        }
    }
    QCOMPARE(value.toString(), expected);
}

void TestWorkingText::agreesWithAPlainTextOnRandomOperations()
{
    QRandomGenerator random(34001);
    // Short texts and such as no object holds in itself.
    const QStringList sources = {QString(),
                                 QStringLiteral("a"),
                                 QStringLiteral("bcd"),
                                 QStringLiteral("0123456789"),
                                 QStringLiteral("the quick brown fox jumps over the lazy dog"),
                                 QString(300, QLatin1Char('x'))};
    WorkingText value;
    QString expected;
    QStringList steps;
    for (int i = 0; i < 200000; ++i) {
        const QString &source = sources.at(random.bounded(sources.size()));
        const int length = expected.size();
        const int position = random.bounded(length + 1);
        const int count = random.bounded(length - position + 1);
        const int operation = random.bounded(length > 2000 ? 3 : 9);
        switch (operation) {
        case 0:
            value.set(source);
            expected = source;
            break;
        case 1:
            value.clear();
            expected.clear();
            break;
        case 2:
            value.set(value.view().mid(position, count));
            expected = expected.mid(position, count);
            break;
        case 3:
            value.set(value.view().mid(qMin(1, length)));
            expected = expected.mid(qMin(1, length));
            break;
        case 4:
            value.set(value.view().left(qMax(0, length - 1)));
            expected.chop(1);
            break;
        case 5:
        case 6:
            value.append(source);
            expected += source;
            break;
        case 7: {
            const QString old = value.toString();
            value.rebuild([&](auto &out) {
                out.append(source);
                out.append(old);
            });
            expected.prepend(source);
            break;
        }
        case 8: {
            const QStringView old = value.view();
            value.rebuild([&](auto &out) {
                for (int j = 0; j < old.size(); j += 2)
                    out.append(old.at(j));
            });
            QString halved;
            for (int j = 0; j < expected.size(); j += 2)
                halved += expected.at(j);
            expected = halved;
            break;
        }
        }
        steps.append(QString::number(operation));
        if (steps.size() > 10)
            steps.removeFirst();
        if (value.view() != expected)
            QCOMPARE(steps.join(QLatin1Char(' ')) + QLatin1Char(':') + value.toString(),
                     steps.join(QLatin1Char(' ')) + QLatin1Char(':') + expected);
    }
}

QTEST_APPLESS_MAIN(TestWorkingText)
#include "tst_workingtext.moc"
