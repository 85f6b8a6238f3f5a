// The rule charType on real text: the conversions through code page 932 and back, with characters
// that the code page cannot hold between them.
#include "rules/rule.h"
#include "tests/rules/charkindoracle.h"

#include <QRandomGenerator>
#include <QtTest>

using CharKindOracle::Row;

namespace {

QString convert(const char *kind, const QString &text)
{
    return applyRule(QStringLiteral("charType(%1)").arg(QLatin1String(kind)), text);
}

// Shows blanks, surrogates and the like by their numbers.
QString readable(const QString &text)
{
    QString result = text;
    for (const QChar unit : text)
        result += QStringLiteral(" %1").arg(unit.unicode(), 4, 16, QLatin1Char('0'));
    return result;
}

const char *const conversions[] = {"fullWidth", "halfWidth", "katakana", "hirakana"};

} // namespace

class TestCharType : public QObject
{
    Q_OBJECT

private slots:
    void knowsTheCodePage();
    void convertsDigitsAndLetters_data()
    {
        addRows(CharKindOracle::digitRows() + CharKindOracle::letterRows());
    }
    void convertsDigitsAndLetters();
    void convertsKana_data() { addRows(CharKindOracle::kanaRows()); }
    void convertsKana();
    void convertsSoundMarks_data() { addRows(CharKindOracle::soundMarkRows()); }
    void convertsSoundMarks() { convertsKana(); }
    void convertsSymbols_data() { addRows(CharKindOracle::symbolRows()); }
    void convertsSymbols();
    void convertsMixedText_data();
    void convertsMixedText();
    void leavesOtherTextAlone_data();
    void leavesOtherTextAlone();
    void leavesEveryCharacterOutsideTheTablesAlone();
    void changesOnlyWhatTheTablesHold();
    void changesLetterCaseAsTheLibraryDoes();
    void agreesWithThePlainVersionOnRandomText();

private:
    static void addRows(const QVector<Row> &rows);
};

// Without this, every row below would fail with a riddle.
void TestCharType::knowsTheCodePage()
{
    QVERIFY2(QTextCodec::codecForName("Windows-31J"), "the library knows no code page 932");
}

void TestCharType::addRows(const QVector<Row> &rows)
{
    QTest::addColumn<QString>("half");
    QTest::addColumn<QString>("hiragana");
    QTest::addColumn<QString>("full");
    for (const Row &row : rows)
        QTest::addRow("%s, %s", qPrintable(row.half), qPrintable(row.full))
            << row.half << row.hiragana << row.full;
}

void TestCharType::convertsDigitsAndLetters()
{
    QFETCH(QString, half);
    QFETCH(QString, full);
    QCOMPARE(convert("fullWidth", half), full);
    QCOMPARE(convert("halfWidth", full), half);
    for (const char *kind : {"fullWidth", "katakana", "hirakana"})
        QCOMPARE(convert(kind, full), full);
    for (const char *kind : {"halfWidth", "katakana", "hirakana"})
        QCOMPARE(convert(kind, half), half);
}

void TestCharType::convertsKana()
{
    QFETCH(QString, half);
    QFETCH(QString, hiragana);
    QFETCH(QString, full);
    QCOMPARE(convert("fullWidth", half), full);
    QCOMPARE(convert("halfWidth", full), half);
    QCOMPARE(convert("katakana", hiragana), full);
    QCOMPARE(convert("hirakana", full), hiragana);
    QCOMPARE(convert("hirakana", half), hiragana);
    QCOMPARE(convert("fullWidth", full), full);
    QCOMPARE(convert("katakana", full), full);
    QCOMPARE(convert("halfWidth", half), half);
    QCOMPARE(convert("katakana", half), half);
    QCOMPARE(convert("fullWidth", hiragana), hiragana);
    QCOMPARE(convert("hirakana", hiragana), hiragana);
    if (hiragana != full) // VU has no hiragana
        QCOMPARE(convert("halfWidth", hiragana), hiragana);
}

void TestCharType::convertsSymbols()
{
    QFETCH(QString, half);
    QFETCH(QString, full);
    // These four are in the table for the way back only.
    const bool isNoSymbol = QStringLiteral("\u00A0ｰﾞﾟ").contains(half);
    QCOMPARE(readable(convert("fullWidth", half)), readable(isNoSymbol ? half : full));
    const bool isWideBlank = full == QStringLiteral("\u3000");
    QCOMPARE(readable(convert("halfWidth", full)),
             readable(isWideBlank ? QStringLiteral("\u00A0") : half));
    QCOMPARE(convert("fullWidth", full), full);
    QCOMPARE(convert("halfWidth", half), half);
    for (const char *kind : {"katakana", "hirakana"}) {
        QCOMPARE(convert(kind, half), half);
        QCOMPARE(convert(kind, full), full);
    }
}

void TestCharType::convertsMixedText_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("result");

    const auto row = [](const char *name, const char *kind, const char *text, const char *result) {
        QTest::newRow(name) << kind << text << result;
    };
    row("a Japanese address", "fullWidth", "東京都港区1-2-3 ABCﾋﾞﾙ",
        "東京都港区１―２―３\u3000ＡＢＣビル");
    row("a Japanese address, half width", "halfWidth", "東京都港区１２３　ビル",
        "東京都港区123\u00A0ﾋﾞﾙ");
    row("a Korean address", "fullWidth", "서울시 12-3 A동", "서울시\u3000１２―３\u3000Ａ동");
    row("a Korean address, half width", "halfWidth", "서울시１２Ａ동", "서울시12A동");
    row("a name in kana", "katakana", "やまだ 太郎", "ヤマダ 太郎");
    row("a name in half-width kana", "hirakana", "ﾔﾏﾀﾞ 太郎", "やまだ 太郎");
    row("a name in wide kana", "hirakana", "ヤマダ　タロウ", "やまだ　たろう");
    row("emoji between letters", "fullWidth", "A\U0001F600B", "Ａ\U0001F600Ｂ");
    row("an accent between letters", "fullWidth", "caf\u00E9s", "ｃａｆ\u00E9ｓ");
    row("a hard blank between letters", "fullWidth", "a\u00A0b", "ａ\u00A0ｂ");
    row("a foreign character parts a kana from its mark", "fullWidth", "ｶ가ﾞ", "カ가ﾞ");
    row("a foreign character at the start", "fullWidth", "가A", "가Ａ");
    row("a foreign character at the end", "fullWidth", "A가", "Ａ가");
    row("characters whose second byte is a letter", "fullWidth", "アAソB表C", "アＡソＢ表Ｃ");
    row("characters whose second byte is a bracket", "fullWidth", "ゼ{構}", "ゼ｛構\u3000");
    row("characters with two letter-like halves", "halfWidth", "能Ａ予Ｂ", "能A予B");
    row("characters of the extension of the code page", "fullWidth", "髙1㈱2①", "髙１㈱２①");
    row("a user-defined character", "fullWidth", "\uE0001\uE757", "\uE000１\uE757");
    row("a small WA stays whole", "halfWidth", "ヮＡゎＢ", "ヮAゎB");
    row("line breaks stay", "fullWidth", "a\r\nb\tc", "ａ\r\nｂ\tｃ");
    row("a prolonged sound mark stays half-width", "fullWidth", "ｺｰﾋｰ", "コｰヒｰ");
    row("a mark that fits no kana", "fullWidth", "ｱﾞ", "ｱﾞ");
    row("required: a mark alone shields a letter", "fullWidth", "ﾞAB", "ﾞAＢ");
    row("required: a mark alone shields a half-width kana", "fullWidth", "ﾞｱｶﾞ", "ﾞｱガ");
    row("a mark alone before a digit", "fullWidth", "ﾞ1", "ﾞ１");

    // A half-width mark that belongs to no kana must not take half of the next character.
    row("a mark alone before a wide letter", "fullWidth", "ﾞＡ", "ﾞＡ");
    row("a mark alone before a wide digit", "fullWidth", "ﾟ１A", "ﾟ１Ａ");
    row("a mark alone before a Chinese character", "fullWidth", "ﾞ表A", "ﾞ表Ａ");
    row("a mark behind hiragana", "fullWidth", "あﾞ表示", "あﾞ表示");
    row("a mark that fits no kana before a Chinese character", "fullWidth", "ｱﾞ表", "ｱﾞ表");
    row("a mark behind the prolonged sound mark", "fullWidth", "ｰﾞ予定", "ｰﾞ予定");
    row("a kana and its mark before a wide digit, half width", "halfWidth", "ｶﾞ１", "ｶﾞ1");
    row("a kana and its mark before katakana, half width", "halfWidth", "ｶﾞモ`", "ｶﾞﾓ`");
    row("a kana and its mark before hiragana, katakana", "katakana", "ｶﾞあ", "ｶﾞア");
    row("a mark alone before a wide letter, half width", "halfWidth", "ﾞＡ", "ﾞA");
    row("a mark alone before katakana, half width", "halfWidth", "ﾞモ`", "ﾞﾓ`");
    row("a mark alone before katakana, hiragana", "hirakana", "ﾞアモ", "ﾞあも");
    row("a mark alone before hiragana, katakana", "katakana", "ﾟあも", "ﾟアモ");

    // Units below 0x100 are characters, never bytes of the code page.
    row("accents that look like half-width kana", "fullWidth", "±¶Þ", "±¶Þ");
    row("accents that look like a lead byte", "halfWidth", "\u0082`\u0083\u0094",
        "\u0082`\u0083\u0094");
    row("accents that look like a lead byte, hiragana", "hirakana", "\u0083A", "\u0083A");
    row("accents that look like a lead byte, katakana", "katakana", "\u0082\u00A0", "\u0082\u00A0");
    row("an accent before a letter is no lead byte", "fullWidth", "\u00E9A", "\u00E9Ａ");
}

void TestCharType::convertsMixedText()
{
    QFETCH(QString, kind);
    QFETCH(QString, text);
    QFETCH(QString, result);
    QCOMPARE(readable(convert(qPrintable(kind), text)), readable(result));
    QCOMPARE(readable(CharKindOracle::charType(kind, text)), readable(result));
}

void TestCharType::leavesOtherTextAlone_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("nothing") << "";
    QTest::newRow("Hangul") << "가나다똠방각하";
    QTest::newRow("e with an accent") << "\u00E9";
    QTest::newRow("every other character of Latin-1") << "¡¢£¤¥¦©ª«­®¯²³µ·¸¹º»¼½¾¿ÀßåæøÿÞ";
    QTest::newRow("a character between 0x80 and 0xA0") << "\u0080\u0082\u0083\u009F";
    QTest::newRow("a hard blank") << "\u00A0";
    QTest::newRow("an emoji") << "\U0001F600";
    QTest::newRow("a wave dash, which the code page has not") << "\u301C";
    QTest::newRow("a yen sign, which the code page has not") << "\u00A5";
    QTest::newRow("half a surrogate pair") << QString(QChar(0xD83D));
    QTest::newRow("the other half") << QString(QChar(0xDE00));
    QTest::newRow("halves in the wrong order") << QString(QChar(0xDE00)) + QChar(0xD83D);
    QTest::newRow("a zero unit") << QString(QChar(0));
    QTest::newRow("control codes") << "\t\r\n\x01\x1A\x1C\x7F";
    QTest::newRow("Chinese characters") << "表示能予構十";
    QTest::newRow("Greek and Cyrillic") << "ΑΩαωЖж";
    QTest::newRow("combining marks") << "\u3099\u309A\u0301";
    QTest::newRow("the replacement character") << "\uFFFD";
    QTest::newRow("the last units") << QString(QChar(0xFFFE)) + QChar(0xFFFF);
}

void TestCharType::leavesOtherTextAlone()
{
    QFETCH(QString, text);
    for (const char *kind : conversions)
        QCOMPARE(readable(convert(kind, text)), readable(text));
}

// One by one, between two letters: a character is converted as a table says or stays as it is, and
// its neighbours do not notice.
void TestCharType::leavesEveryCharacterOutsideTheTablesAlone()
{
    for (const char *kind : conversions) {
        const bool widens = qstrcmp(kind, "fullWidth") == 0;
        const QString before = widens ? QStringLiteral("Ｘ") : QStringLiteral("X");
        const QString behind = widens ? QStringLiteral("１") : QStringLiteral("1");
        for (uint unit = 0; unit <= 0xFFFF; ++unit) {
            const QString converted =
                CharKindOracle::charType(QLatin1String(kind), QString(QChar(unit)));
            const QString text = QStringLiteral("X") + QChar(unit) + QStringLiteral("1");
            const QString got = convert(kind, text);
            if (got != before + converted + behind)
                QCOMPARE(readable(got), readable(before + converted + behind));
        }
    }
}

// The tables say which characters may change, and no other does.
void TestCharType::changesOnlyWhatTheTablesHold()
{
    using namespace CharKindOracle;
    QString halves;
    QString hiragana;
    QString fulls;
    for (const Row &row :
         digitRows() + letterRows() + kanaRows() + soundMarkRows() + symbolRows()) {
        if (row.half.size() == 1)
            halves += row.half;
        hiragana += row.hiragana;
        fulls += row.full;
    }
    for (uint unit = 0; unit <= 0xFFFF; ++unit) {
        const QString text = QString(QChar(unit));
        if (convert("fullWidth", text) != text)
            QVERIFY2(halves.contains(text), qPrintable(readable(text)));
        if (convert("halfWidth", text) != text)
            QVERIFY2(fulls.contains(text), qPrintable(readable(text)));
        if (convert("katakana", text) != text)
            QVERIFY2(hiragana.contains(text), qPrintable(readable(text)));
        if (convert("hirakana", text) != text)
            QVERIFY2(fulls.contains(text) || halves.contains(text), qPrintable(readable(text)));
    }
}

// Each character alone and beside others: some mappings look at their neighbours.
void TestCharType::changesLetterCaseAsTheLibraryDoes()
{
    for (uint unit = 0; unit <= 0xFFFF; ++unit) {
        for (const QString &text :
             {QString(QChar(unit)), QString(QStringLiteral("aZ가") + QChar(unit) + QChar(0xDC00)),
              QString(QChar(0xD801) + QString(QChar(unit)))}) {
            if (convert("lowerCase", text) != text.toLower())
                QCOMPARE(readable(convert("lowerCase", text)), readable(text.toLower()));
            if (convert("upperCase", text) != text.toUpper())
                QCOMPARE(readable(convert("upperCase", text)), readable(text.toUpper()));
        }
    }
}

void TestCharType::agreesWithThePlainVersionOnRandomText()
{
    using namespace CharKindOracle;
    QRandomGenerator random(33002);
    QStringList pieces =
        QStringLiteral("가 é \U0001F600 \u00A0 〜 表 能 予 構 ソ ゎ ヮ ﾞ ﾟ ｰ ー ≠ 髙")
            .split(QLatin1Char(' '));
    for (const Row &row : digitRows() + letterRows() + kanaRows() + soundMarkRows() + symbolRows())
        pieces << row.half << row.hiragana << row.full;
    for (int i = 0; i < 30000; ++i) {
        QString text;
        for (int j = random.bounded(9); j > 0; --j) {
            if (random.bounded(4))
                text.append(pieces.at(random.bounded(random.bounded(2) ? 18 : pieces.size())));
            else
                text.append(QChar(random.bounded(random.bounded(3) ? 0x100 : 0x10000)));
        }
        for (const char *kind : conversions) {
            const QString got = convert(kind, text);
            const QString expected = charType(QLatin1String(kind), text);
            if (got != expected)
                QCOMPARE(QStringList({QLatin1String(kind), readable(text), readable(got)}),
                         QStringList({QLatin1String(kind), readable(text), readable(expected)}));
        }
    }
}

QTEST_APPLESS_MAIN(TestCharType)
#include "tst_chartype.moc"
