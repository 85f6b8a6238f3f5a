// The classifier and the four conversions on texts whose units are bytes of code page 932, against
// the tables written out with the characters themselves.
#include "rules/charkind.h"
#include "tests/rules/charkindoracle.h"

#include <QRandomGenerator>
#include <QtTest>

namespace {

using Converter = QString (*)(const QString &);
using CharKindOracle::Row;

const struct {
    const char *name;
    Converter convert;
} converters[] = {{"fullWidth", toFullWidth},
                  {"halfWidth", toHalfWidth},
                  {"katakana", toKatakana},
                  {"hirakana", toHiragana}};

// Byte units from hexadecimal digits, two for each; blanks are for the eye.
QString units(const char *hexadecimal)
{
    return QString::fromLatin1(QByteArray::fromHex(hexadecimal));
}

QByteArray hexadecimal(const QString &text)
{
    QByteArray digits;
    for (const QChar unit : text) {
        const int width = unit.unicode() > 0xFF ? 4 : 2;
        digits += QByteArray::number(unit.unicode(), 16).rightJustified(width, '0').toUpper() + ' ';
    }
    return digits.trimmed();
}

QVector<Row> allRows()
{
    using namespace CharKindOracle;
    return digitRows() + letterRows() + kanaRows() + soundMarkRows() + symbolRows();
}

} // namespace

class TestCharKind : public QObject
{
    Q_OBJECT

private slots:
    void hasTablesOfTheRightSize();
    void knowsTheCodesOfTheTables_data();
    void knowsTheCodesOfTheTables();
    void classifies_data();
    void classifies();
    void classifiesEveryPairOfUnits();
    void classifiesAtEveryPosition();
    void convertsDigitsAndLetters_data()
    {
        addRows(CharKindOracle::digitRows() + CharKindOracle::letterRows());
    }
    void convertsDigitsAndLetters();
    void convertsKana_data() { addRows(CharKindOracle::kanaRows()); }
    void convertsKana();
    void convertsSoundMarks_data() { addRows(CharKindOracle::soundMarkRows()); }
    void convertsSoundMarks();
    void convertsSymbols_data() { addRows(CharKindOracle::symbolRows()); }
    void convertsSymbols();
    void converts_data();
    void converts();
    void leavesItsArgumentAlone();
    void convertsEveryPairOfUnits();
    void agreesWithThePlainVersionOnRandomUnits();

private:
    static void addRows(const QVector<Row> &rows);
};

void TestCharKind::hasTablesOfTheRightSize()
{
    QCOMPARE(CharKindOracle::digitRows().size(), 10);
    QCOMPARE(CharKindOracle::letterRows().size(), 52);
    QCOMPARE(CharKindOracle::kanaRows().size(), 55);
    QCOMPARE(CharKindOracle::soundMarkRows().size(), 26);
    QCOMPARE(CharKindOracle::symbolRows().size(), 42);
}

// The codes are computed from the characters; a few known ones show that this is done rightly.
void TestCharKind::knowsTheCodesOfTheTables_data()
{
    QTest::addColumn<QString>("character");
    QTest::addColumn<QString>("bytes");

    QTest::newRow("half-width A") << "ｱ" << units("B1");
    QTest::newRow("hiragana A") << "あ" << units("82A0");
    QTest::newRow("katakana A") << "ア" << units("8341");
    QTest::newRow("half-width N") << "ﾝ" << units("DD");
    QTest::newRow("hiragana N") << "ん" << units("82F1");
    QTest::newRow("katakana N") << "ン" << units("8393");
    QTest::newRow("half-width small TSU") << "ｯ" << units("AF");
    QTest::newRow("hiragana small TSU") << "っ" << units("82C1");
    QTest::newRow("katakana small TSU") << "ッ" << units("8362");
    QTest::newRow("katakana MI, before the gap") << "ミ" << units("837E");
    QTest::newRow("katakana MU, behind the gap") << "ム" << units("8380");
    QTest::newRow("katakana VU") << "ヴ" << units("8394");
    QTest::newRow("half-width GA") << "ｶﾞ" << units("B6DE");
    QTest::newRow("wide zero") << "０" << units("824F");
    QTest::newRow("wide Z") << "Ｚ" << units("8279");
    QTest::newRow("wide a") << "ａ" << units("8281");
}

void TestCharKind::knowsTheCodesOfTheTables()
{
    QFETCH(QString, character);
    QTEST(CharKindOracle::bytesOf(character), "bytes");
}

void TestCharKind::classifies_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("kind");

    QTest::newRow("a blank") << units("20") << int(HalfSymbol);
    QTest::newRow("the last symbol before the digits") << units("2F") << int(HalfSymbol);
    QTest::newRow("zero") << units("30") << int(HalfDigit);
    QTest::newRow("nine") << units("39") << int(HalfDigit);
    QTest::newRow("a colon") << units("3A") << int(HalfSymbol);
    QTest::newRow("an at sign") << units("40") << int(HalfSymbol);
    QTest::newRow("A") << units("41") << int(HalfLetter);
    QTest::newRow("z") << units("7A") << int(HalfLetter);
    QTest::newRow("a tilde") << units("7E") << int(HalfSymbol);
    QTest::newRow("a half-width full stop") << units("A1") << int(HalfSymbol);
    QTest::newRow("a half-width middle dot") << units("A5") << int(HalfSymbol);
    QTest::newRow("a half-width WO") << units("A6") << int(HalfKatakana);
    QTest::newRow("a half-width prolonged sound mark is a katakana")
        << units("B0") << int(HalfKatakana);
    QTest::newRow("a half-width KA") << units("B6") << int(HalfKatakana);
    QTest::newRow("with the voiced mark") << units("B6DE") << int(HalfKatakanaWithMark);
    QTest::newRow("with the semi-voiced mark") << units("B6DF") << int(HalfKatakanaWithMark);
    QTest::newRow("a mark that no row has") << units("B1DE") << int(HalfKatakanaWithMark);
    QTest::newRow("with anything else") << units("B641") << int(HalfKatakana);
    QTest::newRow("a wide blank") << units("8140") << int(FullSymbol);
    QTest::newRow("Greek counts as symbols") << units("839F") << int(FullSymbol);
    QTest::newRow("before the Greek") << units("839E") << int(FullSymbol);
    QTest::newRow("a wide zero") << units("824F") << int(FullDigit);
    QTest::newRow("a wide nine") << units("8258") << int(FullDigit);
    QTest::newRow("a wide A") << units("8260") << int(FullLetter);
    QTest::newRow("a wide z") << units("829A") << int(FullLetter);
    QTest::newRow("a small hiragana A") << units("829F") << int(Hiragana);
    QTest::newRow("a hiragana N") << units("82F1") << int(Hiragana);
    QTest::newRow("a small katakana A") << units("8340") << int(FullKatakana);
    QTest::newRow("a small katakana KE") << units("8396") << int(FullKatakana);
    QTest::newRow("Cyrillic") << units("8440") << int(OtherDoubleByte);
    QTest::newRow("a Chinese character") << units("955C") << int(OtherDoubleByte);
    QTest::newRow("the last lead byte") << units("FCFC") << int(OtherDoubleByte);
    QTest::newRow("required: a mark takes a byte behind it")
        << units("DE41") << int(OtherDoubleByte);
    QTest::newRow("required: 0xA0 takes a byte behind it") << units("A041") << int(OtherDoubleByte);

    QTest::newRow("a control code") << units("0A") << int(UnknownKind);
    QTest::newRow("delete") << units("7F") << int(UnknownKind);
    QTest::newRow("0x80") << units("80") << int(UnknownKind);
    QTest::newRow("0x80 and a byte") << units("8041") << int(UnknownKind);
    QTest::newRow("0xA0 alone") << units("A0") << int(UnknownKind);
    QTest::newRow("the voiced mark alone") << units("DE") << int(UnknownKind);
    QTest::newRow("the semi-voiced mark alone") << units("DF") << int(UnknownKind);
    QTest::newRow("the voiced mark before a small byte") << units("DE30") << int(UnknownKind);
    QTest::newRow("0x82 before a byte of no kind") << units("8240") << int(UnknownKind);
    QTest::newRow("between wide digits and letters") << units("8259") << int(UnknownKind);
    QTest::newRow("between wide letters") << units("8280") << int(UnknownKind);
    QTest::newRow("between wide letters and hiragana") << units("829B") << int(UnknownKind);
    QTest::newRow("behind the hiragana") << units("82F2") << int(UnknownKind);
    QTest::newRow("behind the katakana") << units("8397") << int(UnknownKind);
    QTest::newRow("behind the Greek") << units("83F0") << int(UnknownKind);
    QTest::newRow("a lead byte at the end") << units("82") << int(UnknownKind);
    QTest::newRow("another lead byte at the end") << units("FC") << int(UnknownKind);
    QTest::newRow("a lead byte before a small byte") << units("813F") << int(UnknownKind);
    QTest::newRow("a trail byte too large") << units("81FD") << int(UnknownKind);
    QTest::newRow("0xFD") << units("FD41") << int(UnknownKind);
    QTest::newRow("0xFF") << units("FF") << int(UnknownKind);
    QTest::newRow("a unit beyond the bytes") << "ア" << int(UnknownKind);
    QTest::newRow("a unit whose low byte is a letter")
        << QString(QChar(0x0141)) << int(UnknownKind);
    QTest::newRow("a trail beyond the bytes")
        << QString(QChar(0x82)) + QChar(0x014F) << int(UnknownKind);
    QTest::newRow("a mark beyond the bytes")
        << units("B6") + QStringLiteral("ﾞ") << int(HalfKatakana);
}

void TestCharKind::classifies()
{
    QFETCH(QString, text);
    QFETCH(int, kind);
    QCOMPARE(int(charKind(text, 0)), kind);
}

void TestCharKind::classifiesEveryPairOfUnits()
{
    for (uint unit = 0; unit < 0x110; ++unit) {
        const int alone = charKind(QString(QChar(unit)), 0);
        if (alone != CharKindOracle::kind(unit, 0))
            QFAIL(qPrintable(QStringLiteral("%1 alone is %2").arg(unit, 0, 16).arg(alone)));
        for (uint next = 0; next < 0x110; ++next) {
            const QChar pair[] = {QChar(unit), QChar(next)};
            const int got = charKind(QStringView(pair, 2), 0);
            if (got != CharKindOracle::kind(unit, next))
                QFAIL(qPrintable(QStringLiteral("%1 %2 is %3, not %4")
                                     .arg(unit, 0, 16)
                                     .arg(next, 0, 16)
                                     .arg(got)
                                     .arg(CharKindOracle::kind(unit, next))));
        }
    }
    for (uint unit = 0x110; unit < 0x10000; ++unit)
        QCOMPARE(charKind(QString(QChar(unit)) + QChar(0x41), 0), UnknownKind);
}

void TestCharKind::classifiesAtEveryPosition()
{
    const QString text = units("41 8260 B6DE 82");
    QCOMPARE(charKind(text, 0), HalfLetter);
    QCOMPARE(charKind(text, 1), FullLetter);
    QCOMPARE(charKind(text, 3), HalfKatakanaWithMark);
    QCOMPARE(charKind(text, 5), UnknownKind);
    QCOMPARE(charKind(QStringView(text).left(4), 3),
             HalfKatakana); // looks at nothing behind the end
}

void TestCharKind::addRows(const QVector<Row> &rows)
{
    QTest::addColumn<QString>("half");
    QTest::addColumn<QString>("hiragana");
    QTest::addColumn<QString>("full");
    for (const Row &row : rows)
        QTest::addRow("%s, %s", qPrintable(row.full), hexadecimal(row.halfBytes).constData())
            << row.halfBytes << row.hiraganaBytes << row.fullBytes;
}

void TestCharKind::convertsDigitsAndLetters()
{
    QFETCH(QString, half);
    QFETCH(QString, full);
    QCOMPARE(hexadecimal(toFullWidth(half)), hexadecimal(full));
    QCOMPARE(hexadecimal(toHalfWidth(full)), hexadecimal(half));
    QCOMPARE(toFullWidth(full), full);
    QCOMPARE(toHalfWidth(half), half);
    for (const auto convert : {toKatakana, toHiragana}) {
        QCOMPARE(convert(half), half);
        QCOMPARE(convert(full), full);
    }
}

void TestCharKind::convertsKana()
{
    QFETCH(QString, half);
    QFETCH(QString, hiragana);
    QFETCH(QString, full);
    QCOMPARE(hexadecimal(toFullWidth(half)), hexadecimal(full));
    QCOMPARE(hexadecimal(toHalfWidth(full)), hexadecimal(half));
    QCOMPARE(hexadecimal(toKatakana(hiragana)), hexadecimal(full));
    QCOMPARE(hexadecimal(toHiragana(full)), hexadecimal(hiragana));
    QCOMPARE(hexadecimal(toHiragana(half)), hexadecimal(hiragana));
    QCOMPARE(toFullWidth(full), full);
    QCOMPARE(toFullWidth(hiragana), hiragana);
    QCOMPARE(toHalfWidth(half), half);
    if (hiragana != full) // VU has no hiragana
        QCOMPARE(toHalfWidth(hiragana), hiragana);
    QCOMPARE(toKatakana(half), half);
    QCOMPARE(toKatakana(full), full);
    QCOMPARE(toHiragana(hiragana), hiragana);
}

void TestCharKind::convertsSoundMarks()
{
    convertsKana(); // two units of half width instead of one, otherwise the same
}

void TestCharKind::convertsSymbols()
{
    QFETCH(QString, half);
    QFETCH(QString, full);
    const uint unit = half.at(0).unicode();
    // The classifier keeps these four from the symbol table, in this direction.
    const bool isNoSymbol = unit == 0xA0 || unit == 0xB0 || unit == 0xDE || unit == 0xDF;
    QCOMPARE(hexadecimal(toFullWidth(half)), hexadecimal(isNoSymbol ? half : full));
    // The wide blank stands in three rows, of which the first one wins.
    const bool isWideBlank = full == units("8140");
    QCOMPARE(hexadecimal(toHalfWidth(full)), hexadecimal(isWideBlank ? units("A0") : half));
    QCOMPARE(toFullWidth(full), full);
    QCOMPARE(toHalfWidth(half), half);
    for (const auto convert : {toKatakana, toHiragana}) {
        QCOMPARE(convert(half), half);
        QCOMPARE(convert(full), full);
    }
}

void TestCharKind::converts_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("result");

    const auto row = [](const char *name, const char *kind, const char *text, const char *result) {
        QTest::newRow(name) << kind << units(text) << units(result);
    };
    row("GA absorbs its mark", "fullWidth", "B6DE", "834B");
    row("KA before a letter", "fullWidth", "B6 41", "834A 8260");
    row("HA with either mark", "fullWidth", "CADE CADF CA", "836F 8370 836E");
    row("a percent sign becomes a division sign", "fullWidth", "25", "8180");
    row("a number sign becomes a sharp sign", "fullWidth", "23", "81F2");
    row("a right brace becomes a wide blank", "fullWidth", "7D", "8140");
    row("straight quotes become curved", "fullWidth", "22 27", "8167 8168");
    row("a hyphen becomes a dash", "fullWidth", "2D", "815C");
    row("a telephone number", "fullWidth", "30 33 2D 31", "824F 8252 815C 8250");
    row("mixed with double bytes", "fullWidth", "41 8341 42 955C 43", "8260 8341 8261 955C 8262");

    row("VU becomes two units", "halfWidth", "8394", "B3DE");
    row("PA becomes two units", "halfWidth", "8370", "CADF");
    row("a wide blank becomes 0xA0", "halfWidth", "8140", "A0");
    row("a division sign becomes a percent sign", "halfWidth", "8180", "25");
    row("the wide prolonged sound mark", "halfWidth", "815B", "B0");
    row("the wide sound marks", "halfWidth", "814A 814B", "DE DF");
    row("a word", "halfWidth", "834B 8343 8368", "B6DE B2 C4DE");

    row("hiragana become katakana", "katakana", "82A0 82AA 82CF", "8341 834B 8370");
    row("katakana become hiragana", "hirakana", "8341 834B 8370", "82A0 82AA 82CF");
    row("half-width katakana become hiragana", "hirakana", "B1 B6DE CADF", "82A0 82AA 82CF");
    row("VU keeps its code", "hirakana", "8394", "8394");
    row("half-width VU becomes the katakana", "hirakana", "B3DE", "8394");

    // What no row holds stays as it is, unit by unit or as a whole character.
    row("the prolonged sound mark is a kana without a row", "fullWidth", "B0", "B0");
    row("the prolonged sound mark between kana", "fullWidth", "BA B0 CB B0", "8352 B0 8371 B0");
    row("the prolonged sound mark, hiragana", "hirakana", "BA B0", "82B1 B0");
    row("a mark that fits no row: the kana stays", "fullWidth", "B1DE", "B1DE");
    row("a mark that fits no row, hiragana", "hirakana", "B1DF", "B1DF");
    row("a mark behind the prolonged sound mark", "fullWidth", "B0DE", "B0DE");
    row("a mark alone", "fullWidth", "DE", "DE");
    row("two marks", "fullWidth", "B6DEDE", "834B DE");
    row("required: a mark alone shields a letter", "fullWidth", "DE 41 42", "DE 41 8261");
    row("a mark alone does not shield a digit", "fullWidth", "DE 31", "DE 8250");
    row("required: 0xA0 shields a letter", "fullWidth", "A0 41 42", "A0 41 8261");
    row("a small WA has no half width", "halfWidth", "838E", "838E");
    row("WI and WE have no half width", "halfWidth", "8390 8391", "8390 8391");
    row("small KA and KE have no half width", "halfWidth", "8395 8396", "8395 8396");
    row("a wide percent sign is in no row", "halfWidth", "8193", "8193");
    row("not equal is in no row", "halfWidth", "8182", "8182");
    row("Greek is in no row", "halfWidth", "839F 83B6", "839F 83B6");
    row("no row, then a letter", "halfWidth", "838E 8260", "838E 41");
    row("hiragana are never made half-width", "halfWidth", "82A0 82AA", "82A0 82AA");
    row("a small hiragana WA has no row", "katakana", "82EC", "82EC");
    row("a small katakana WA has no row", "hirakana", "838E 8341", "838E 82A0");
    row("half-width kana are left as they are", "katakana", "B1 B6DE CADF", "B1 B6DE CADF");
    row("a trail byte is no letter", "fullWidth", "8341", "8341");
    row("a trail byte is no backslash", "fullWidth", "955C 835C", "955C 835C");
    row("a trail byte is no half-width kana", "hirakana", "88B1 82B6", "88B1 82B6");
    row("a lead byte at the end", "fullWidth", "41 82", "8260 82");
    row("a lead byte at the end, half width", "halfWidth", "8260 82", "41 82");
    row("a lead byte at the end, katakana", "katakana", "82A0 82", "8341 82");
    row("a lead byte at the end, hiragana", "hirakana", "8341 83", "82A0 83");
    row("0x82 with a foreign trail byte is a single unit", "fullWidth", "82 41 41", "82 8260 8260");
    row("control codes and 0x80", "fullWidth", "00 09 0A 7F 80", "00 09 0A 7F 80");
    row("control codes, half width", "halfWidth", "00 09 0A 7F 80", "00 09 0A 7F 80");

    for (const auto &converter : converters) {
        QTest::addRow("units above 0xFF, %s", converter.name)
            << converter.name << "アｱＡ가\U0001F600"
            << "アｱＡ가\U0001F600";
        QTest::addRow("nothing, %s", converter.name) << converter.name << ""
                                                     << "";
        QTest::addRow("Chinese characters, %s", converter.name)
            << converter.name << units("955C 8E9A 8AA2 FAB1") << units("955C 8E9A 8AA2 FAB1");
    }
    QTest::newRow("units above 0xFF between letters")
        << "fullWidth" << QStringLiteral("A가") + QChar(0x42)
        << units("8260") + QStringLiteral("가") + units("8261");
    QTest::newRow("a lead byte before a unit above 0xFF")
        << "halfWidth" << units("82") + QStringLiteral("가") + units("8260")
        << units("82") + QStringLiteral("가") + units("41");
}

void TestCharKind::converts()
{
    QFETCH(QString, kind);
    QFETCH(QString, text);
    QFETCH(QString, result);
    for (const auto &converter : converters) {
        if (kind == QLatin1String(converter.name))
            QCOMPARE(hexadecimal(converter.convert(text)), hexadecimal(result));
    }
    QCOMPARE(hexadecimal(CharKindOracle::convertBytes(kind, text)), hexadecimal(result));
}

void TestCharKind::leavesItsArgumentAlone()
{
    const QString text = units("41 B6DE 8260 8341 82A0");
    for (const auto &converter : converters) {
        const QString copy = text;
        converter.convert(copy);
        QCOMPARE(copy, units("41 B6DE 8260 8341 82A0"));
    }
}

void TestCharKind::convertsEveryPairOfUnits()
{
    for (const auto &converter : converters) {
        const QString kind = QLatin1String(converter.name);
        for (uint unit = 0; unit <= 0x100; ++unit) {
            for (uint next = 0; next <= 0x100; ++next) {
                const QString text = QString(QChar(unit)) + QChar(next);
                const QString got = converter.convert(text);
                const QString expected = CharKindOracle::convertBytes(kind, text);
                if (got != expected)
                    QCOMPARE(kind + QString::fromLatin1(hexadecimal(text + got)),
                             kind + QString::fromLatin1(hexadecimal(text + expected)));
            }
        }
    }
}

void TestCharKind::agreesWithThePlainVersionOnRandomUnits()
{
    QRandomGenerator random(33001);
    // Mostly what the tables hold, so that converted characters meet all others.
    QStringList pieces;
    for (const Row &row : allRows())
        pieces << row.halfBytes << row.hiraganaBytes << row.fullBytes;
    for (int i = 0; i < 20000; ++i) {
        QString text;
        for (int j = random.bounded(9); j > 0; --j) {
            if (random.bounded(3))
                text.append(pieces.at(random.bounded(pieces.size())));
            else
                text.append(QChar(random.bounded(random.bounded(10) ? 0x100 : 0x10000)));
        }
        for (const auto &converter : converters) {
            const QString kind = QLatin1String(converter.name);
            QCOMPARE(hexadecimal(converter.convert(text)),
                     hexadecimal(CharKindOracle::convertBytes(kind, text)));
        }
    }
}

QTEST_APPLESS_MAIN(TestCharKind)
#include "tst_charkind.moc"
