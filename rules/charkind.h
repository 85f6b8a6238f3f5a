// Conversion between the Japanese character kinds: half and full width, hiragana and katakana.
// The functions work on code page 932 bytes: each code unit of a text is one byte (0x00 to 0xFF),
// a double-byte character is two units. Units above 0xFF are copied.
#pragma once

#include <QString>
#include <QStringView>

enum CharKind {
    UnknownKind = -1,
    HalfDigit = 0,
    FullDigit = 1,
    HalfLetter = 2,
    FullLetter = 3,
    HalfSymbol = 4,
    FullSymbol = 5,
    HalfKatakana = 6,
    HalfKatakanaWithMark = 7, ///< two units: the katakana and its sound mark
    FullKatakana = 8,
    Hiragana = 9,
    OtherDoubleByte = 10
};

/// The kind of the character at `position`, which looks at one unit more.
CharKind charKind(QStringView units, int position);

QString toFullWidth(const QString &units);
/// Hiragana and other double-byte characters stay as they are.
QString toHalfWidth(const QString &units);
/// Half-width katakana stay as they are.
QString toKatakana(const QString &units);
QString toHiragana(const QString &units);
