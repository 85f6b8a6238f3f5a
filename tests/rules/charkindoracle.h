// Character kinds once more, for comparison: the classifier as a list of ranges, the tables as
// lists of rows that are searched one by one, written with the characters themselves instead of
// their codes. The code of a kana follows from its place in the character set.
#pragma once

#include <QHash>
#include <QString>
#include <QTextCodec>
#include <QVector>

namespace CharKindOracle {

struct Range {
    uint first;
    uint last;
};

struct KindRow {
    int kind;
    Range unit;
    Range next; // of the unit behind; {0, 0xFFFF} where it does not matter
};

const Range any = {0, 0xFFFF};

// In the order in which the tests are made.
const KindRow kindRows[] = {
    {4, {0x20, 0x2F}, any},          {4, {0x3A, 0x40}, any},
    {4, {0x5B, 0x60}, any},          {4, {0x7B, 0x7E}, any},
    {4, {0xA1, 0xA5}, any},          {0, {0x30, 0x39}, any},
    {2, {0x41, 0x5A}, any},          {2, {0x61, 0x7A}, any},
    {7, {0xA6, 0xDD}, {0xDE, 0xDF}}, {6, {0xA6, 0xDD}, any},
    {5, {0x81, 0x81}, {0x40, 0xFC}}, {5, {0x83, 0x83}, {0x9E, 0xEF}},
    {1, {0x82, 0x82}, {0x4F, 0x58}}, {3, {0x82, 0x82}, {0x60, 0x79}},
    {3, {0x82, 0x82}, {0x81, 0x9A}}, {9, {0x82, 0x82}, {0x9F, 0xF1}},
    {8, {0x83, 0x83}, {0x40, 0x96}}, {10, {0x84, 0xFC}, {0x40, 0xFC}},
};

inline int kind(uint unit, uint next)
{
    for (const KindRow &row : kindRows) {
        if (unit >= row.unit.first && unit <= row.unit.last && next >= row.next.first
            && next <= row.next.last)
            return row.kind;
    }
    return -1;
}

inline bool isPair(int kind)
{
    return kind == 1 || kind == 3 || kind == 5 || kind == 8 || kind == 9 || kind == 10;
}

/// One row of a table: half width, hiragana, full width, as characters and as bytes.
struct Row {
    QString half;
    QString hiragana; // empty where the table has no such column
    QString full;
    QString halfBytes;
    QString hiraganaBytes;
    QString fullBytes;
};

/// The code of a kana or of a half-width character, from its place in the character set.
inline QString bytesOf(const QString &characters)
{
    QString bytes;
    for (const QChar character : characters) {
        const int unicode = character.unicode();
        if (unicode < 0x80) {
            bytes.append(character);
        } else if (unicode >= 0xFF61 && unicode <= 0xFF9F) {
            bytes.append(QChar(unicode - 0xFF61 + 0xA1));
        } else if (unicode >= 0x3041 && unicode <= 0x3093) {
            bytes.append(QChar(0x82)).append(QChar(unicode - 0x3041 + 0x9F));
        } else if (unicode >= 0x30A1 && unicode <= 0x30F6) {
            const int trail = unicode - 0x30A1 + 0x40;
            bytes.append(QChar(0x83)).append(QChar(trail < 0x7F ? trail : trail + 1));
        } else if (unicode >= 0xFF10 && unicode <= 0xFF19) {
            bytes.append(QChar(0x82)).append(QChar(unicode - 0xFF10 + 0x4F));
        } else if (unicode >= 0xFF21 && unicode <= 0xFF3A) {
            bytes.append(QChar(0x82)).append(QChar(unicode - 0xFF21 + 0x60));
        } else if (unicode >= 0xFF41 && unicode <= 0xFF5A) {
            bytes.append(QChar(0x82)).append(QChar(unicode - 0xFF41 + 0x81));
        }
    }
    return bytes;
}

inline QVector<Row> rowsOf(const QString &half, int halfWidth, const QString &hiragana,
                           const QString &full)
{
    QVector<Row> rows;
    for (int i = 0; i < full.size(); ++i) {
        Row row;
        row.half = half.mid(i * halfWidth, halfWidth);
        row.hiragana = hiragana.mid(i, 1);
        row.full = full.mid(i, 1);
        row.halfBytes = bytesOf(row.half);
        row.hiraganaBytes = bytesOf(row.hiragana);
        row.fullBytes = bytesOf(row.full);
        rows.append(row);
    }
    return rows;
}

inline const QVector<Row> &digitRows()
{
    static const QVector<Row> rows =
        rowsOf(QStringLiteral("0123456789"), 1, QString(), QStringLiteral("０１２３４５６７８９"));
    return rows;
}

inline const QVector<Row> &letterRows()
{
    static const QVector<Row> rows =
        rowsOf(QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"), 1, QString(),
               QStringLiteral("ＡＢＣＤＥＦＧＨＩＪＫＬＭＮＯＰＱＲＳＴＵＶＷＸＹＺ"
                              "ａｂｃｄｅｆｇｈｉｊｋｌｍｎｏｐｑｒｓｔｕｖｗｘｙｚ"));
    return rows;
}

inline const QVector<Row> &kanaRows()
{
    static const QVector<Row> rows =
        rowsOf(QStringLiteral("ｧｱｨｲｩｳｪｴｫｵｶｷｸｹｺｻｼｽｾｿﾀﾁｯﾂﾃﾄﾅﾆﾇﾈﾉﾊﾋﾌﾍﾎﾏﾐﾑﾒﾓｬﾔｭﾕｮﾖﾗﾘﾙﾚﾛﾜｦﾝ"), 1,
               QStringLiteral("ぁあぃいぅうぇえぉおかきくけこさしすせそたちっつてとなにぬねの"
                              "はひふへほまみむめもゃやゅゆょよらりるれろわをん"),
               QStringLiteral("ァアィイゥウェエォオカキクケコサシスセソタチッツテトナニヌネノ"
                              "ハヒフヘホマミムメモャヤュユョヨラリルレロワヲン"));
    return rows;
}

/// The first row has no hiragana and keeps the katakana.
inline const QVector<Row> &soundMarkRows()
{
    static const QVector<Row> rows =
        rowsOf(QStringLiteral("ｳﾞｶﾞｷﾞｸﾞｹﾞｺﾞｻﾞｼﾞｽﾞｾﾞｿﾞﾀﾞﾁﾞﾂﾞﾃﾞﾄﾞﾊﾞﾋﾞﾌﾞﾍﾞﾎﾞﾊﾟﾋﾟﾌﾟﾍﾟﾎﾟ"), 2,
               QStringLiteral("ヴがぎぐげござじずぜぞだぢづでどばびぶべぼぱぴぷぺぽ"),
               QStringLiteral("ヴガギグゲゴザジズゼゾダヂヅデドバビブベボパピプペポ"));
    return rows;
}

/// Symbols have their codes written out: their pairing follows no rule.
inline const QVector<Row> &symbolRows()
{
    const auto row = [](uint half, const char16_t *halfText, uint full, const char16_t *fullText) {
        Row result;
        result.half = QString::fromUtf16(halfText);
        result.full = QString::fromUtf16(fullText);
        result.halfBytes = QString(QChar(half));
        result.fullBytes = QString(QChar(full >> 8)) + QChar(full & 0xFF);
        return result;
    };
    static const QVector<Row> rows = {
        row(0xA0, u"\u00A0", 0x8140, u"\u3000"), // the half width of the ideographic space
        row(0xA1, u"｡", 0x8142, u"。"),
        row(0xA2, u"｢", 0x8175, u"「"),
        row(0xA3, u"｣", 0x8176, u"」"),
        row(0xA4, u"､", 0x8141, u"、"),
        row(0xA5, u"･", 0x8145, u"・"),
        row(0xB0, u"ｰ", 0x815B, u"ー"),
        row(0xDE, u"ﾞ", 0x814A, u"゛"),
        row(0xDF, u"ﾟ", 0x814B, u"゜"),
        row(0x20, u" ", 0x8140, u"\u3000"),
        row(0x21, u"!", 0x8149, u"！"),
        row(0x22, u"\"", 0x8167, u"\u201C"), // a curved quote
        row(0x60, u"`", 0x814D, u"｀"),
        row(0x7C, u"|", 0x8162, u"｜"),
        row(0x23, u"#", 0x81F2, u"♯"), // the sharp sign, not the number sign
        row(0x24, u"$", 0x8190, u"＄"),
        row(0x25, u"%", 0x8180, u"÷"), // the division sign, not the percent sign
        row(0x26, u"&", 0x8195, u"＆"),
        row(0x27, u"'", 0x8168, u"\u201D"), // a curved quote
        row(0x28, u"(", 0x8169, u"（"),
        row(0x29, u")", 0x816A, u"）"),
        row(0x2A, u"*", 0x8196, u"＊"),
        row(0x2B, u"+", 0x817B, u"＋"),
        row(0x2C, u",", 0x8143, u"，"),
        row(0x2D, u"-", 0x815C, u"\u2015"), // a dash, not the minus sign
        row(0x2E, u".", 0x8144, u"．"),
        row(0x2F, u"/", 0x815E, u"／"),
        row(0x7D, u"}", 0x8140, u"\u3000"), // the ideographic space, not the right brace
        row(0x3A, u":", 0x8146, u"："),
        row(0x3B, u";", 0x8147, u"；"),
        row(0x3C, u"<", 0x8183, u"＜"),
        row(0x3D, u"=", 0x8181, u"＝"),
        row(0x3E, u">", 0x8184, u"＞"),
        row(0x3F, u"?", 0x8148, u"？"),
        row(0x40, u"@", 0x8197, u"＠"),
        row(0x5B, u"[", 0x816D, u"［"),
        row(0x5C, u"\\", 0x818F, u"￥"),
        row(0x5D, u"]", 0x816E, u"］"),
        row(0x5E, u"^", 0x814F, u"＾"),
        row(0x5F, u"_", 0x8151, u"＿"),
        row(0x7B, u"{", 0x816F, u"｛"),
        row(0x7E, u"~", 0x8150, u"￣"),
    };
    return rows;
}

/// What a table holds for these bytes: the column `to` of the first row whose column `from` they
/// are.
inline QString search(const QVector<Row> &rows, QString Row::*from, QString Row::*to,
                      const QString &bytes)
{
    for (const Row &row : rows) {
        if (row.*from == bytes)
            return row.*to;
    }
    return QString();
}

/// What a conversion puts in the place of the bytes at a position; the empty text where it copies.
inline QString converted(const QString &conversion, int kind, const QString &unit,
                         const QString &pair)
{
    const auto half = &Row::halfBytes;
    const auto hiragana = &Row::hiraganaBytes;
    const auto full = &Row::fullBytes;
    const auto kanaOrSoundMark = [&pair](QString Row::*from, QString Row::*to) {
        const QString kana = search(kanaRows(), from, to, pair);
        return kana.isEmpty() ? search(soundMarkRows(), from, to, pair) : kana;
    };
    if (conversion == QStringLiteral("fullWidth")) {
        switch (kind) {
        case 0:
            return search(digitRows(), half, full, unit);
        case 2:
            return search(letterRows(), half, full, unit);
        case 4:
            return search(symbolRows(), half, full, unit);
        case 6:
            return search(kanaRows(), half, full, unit);
        case 7:
            return search(soundMarkRows(), half, full, pair);
        }
    } else if (conversion == QStringLiteral("halfWidth")) {
        switch (kind) {
        case 1:
            return search(digitRows(), full, half, pair);
        case 3:
            return search(letterRows(), full, half, pair);
        case 5:
            return search(symbolRows(), full, half, pair);
        case 8:
            return kanaOrSoundMark(full, half);
        }
    } else if (conversion == QStringLiteral("katakana")) {
        if (kind == 9)
            return kanaOrSoundMark(hiragana, full);
    } else if (conversion == QStringLiteral("hirakana")) {
        switch (kind) {
        case 8:
            return kanaOrSoundMark(full, hiragana);
        case 6:
            return search(kanaRows(), half, hiragana, unit);
        case 7:
            return search(soundMarkRows(), half, hiragana, pair);
        }
    }
    return QString();
}

/// One of the four conversions of a text of byte units.
inline QString convertBytes(const QString &conversion, const QString &units)
{
    QString result;
    int position = 0;
    while (position < units.size()) {
        const QString unit = units.mid(position, 1);
        const QString pair = units.mid(position, 2);
        const int here = kind(unit.at(0).unicode(), pair.size() > 1 ? pair.at(1).unicode() : 0);
        const QString replacement = converted(conversion, here, unit, pair);
        if (replacement.isEmpty()) {
            // A double-byte character that no row holds stays whole.
            result += isPair(here) ? pair : unit;
            position += isPair(here) ? 2 : 1;
        } else {
            result += replacement;
            position += isPair(here) || here == 7 ? 2 : 1;
        }
    }
    return result;
}

/// Code page 932 by the library's decoder, one code at a time. No table of the product is used.
class CodePage
{
public:
    CodePage()
    {
        m_bytes.resize(0x10000);
        for (int code = 1; code < 0x80; ++code)
            m_bytes[code] = QString(QChar(code));
        for (int code = 0xA1; code <= 0xDF; ++code)
            m_bytes[0xFF61 + code - 0xA1] = QString(QChar(code));
        const QTextCodec *codec = QTextCodec::codecForName("Windows-31J");
        for (int lead = 0x81; codec && lead <= 0xFC; ++lead) {
            if (lead >= 0xA0 && lead < 0xE0)
                continue;
            for (int trail = 0x40; trail <= 0xFC; ++trail) {
                const char bytes[] = {char(lead), char(trail)};
                const QString text = codec->toUnicode(bytes, 2);
                if (text.size() != 1 || text.at(0) == QChar::ReplacementCharacter)
                    continue;
                QString &known = m_bytes[text.at(0).unicode()];
                if (known.isEmpty())
                    known = QString(QChar(lead)) + QChar(trail);
            }
        }
        for (int character = 0; character < m_bytes.size(); ++character)
            m_characters.insert(m_bytes.at(character), QChar(character));
        m_characters.insert(QString(QChar(0xA0)), QChar(0xA0));
    }

    /// The one or two bytes; empty for a character that the code page cannot hold.
    QString encode(QChar character) const { return m_bytes.at(character.unicode()); }

    QString decode(const QString &bytes) const
    {
        QString text;
        for (int i = 0; i < bytes.size();) {
            const uint unit = bytes.at(i).unicode();
            const bool isLead = (unit >= 0x81 && unit <= 0x9F) || (unit >= 0xE0 && unit <= 0xFC);
            text += m_characters.value(bytes.mid(i, isLead ? 2 : 1));
            i += isLead ? 2 : 1;
        }
        return text;
    }

private:
    QVector<QString> m_bytes; // by character
    QHash<QString, QChar> m_characters;
};

inline const CodePage &codePage()
{
    static const CodePage instance;
    return instance;
}

/// The rule charType on real text. Characters that the code page cannot hold stand outside. A
/// half-width sound mark that follows no katakana takes one more byte with it, which must not be
/// the first half of a character: there the text is cut.
inline QString charType(const QString &conversion, const QString &value)
{
    if (conversion == QStringLiteral("lowerCase"))
        return value.toLower();
    if (conversion == QStringLiteral("upperCase"))
        return value.toUpper();
    QString result;
    QString run;
    const auto flush = [&] {
        result += codePage().decode(convertBytes(conversion, run));
        run.clear();
    };
    for (const QChar character : value) {
        const QString bytes = codePage().encode(character);
        const bool followsMark = run.endsWith(QChar(0xDE)) || run.endsWith(QChar(0xDF));
        if (bytes.isEmpty() || (followsMark && bytes.size() == 2))
            flush();
        if (bytes.isEmpty())
            result += character;
        else
            run += bytes;
    }
    flush();
    return result;
}

} // namespace CharKindOracle
