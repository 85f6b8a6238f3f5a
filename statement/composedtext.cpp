#include "statement/composedtext.h"

namespace {

bool isBetween(QChar character, ushort first, ushort last)
{
    return character.unicode() >= first && character.unicode() <= last;
}

bool isHangulLetter(QChar character)
{
    return isBetween(character, 0x1100, 0x11FF);
}

// A combining accent, or one of the two sound marks of kana.
bool isAccent(QChar character)
{
    return isBetween(character, 0x0300, 0x036F) || isBetween(character, 0x3099, 0x309A);
}

bool isPiece(QChar character)
{
    return isHangulLetter(character) || isAccent(character);
}

} // namespace

QString composed(const QString &text)
{
    QString result;
    int copied = 0;
    for (int i = 0; i < text.size(); ++i) {
        if (!isPiece(text.at(i)))
            continue;
        // Together with what it stands on, which may be half of a syllable already.
        const int begin = qMax(copied, i - 1);
        int end = i + 1;
        while (end < text.size() && isPiece(text.at(end)))
            ++end;
        result += text.midRef(copied, begin - copied);
        result += text.mid(begin, end - begin).normalized(QString::NormalizationForm_C);
        copied = end;
        i = end - 1;
    }
    return copied == 0 ? text : result + text.midRef(copied);
}
