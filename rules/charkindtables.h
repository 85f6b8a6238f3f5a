// The pairs of Japanese character kinds, as code page 932 codes. Several symbol pairs are not the
// usual ones (the percent sign goes with the division sign, the number sign with the sharp sign, the
// right brace with the ideographic space): stored settings rely on these.
#pragma once

#include <QtGlobal>

namespace CharKindTables {

struct SymbolRow {
    quint8 half;
    quint16 full;
};

struct KanaRow {
    quint8 half;
    quint16 hiragana;
    quint16 katakana;
};

/// A half-width katakana with its sound mark, which is one character in full width.
struct SoundMarkRow {
    quint8 half;
    quint8 mark;
    quint16 hiragana;
    quint16 katakana;
};

extern const SymbolRow symbols[42];
extern const KanaRow kana[55];
extern const SoundMarkRow soundMarks[26];

} // namespace CharKindTables
