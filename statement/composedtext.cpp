#include "statement/composedtext.h"

#include <QRegularExpression>

QString composed(const QString &text)
{
    // Hangul letters, also behind a syllable that lacks its last one; anything with combining
    // accents or the sound marks of kana behind it.
    static const QRegularExpression pieces(
        QStringLiteral("[\\x{AC00}-\\x{D7A3}]?[\\x{1100}-\\x{11FF}]+"
                       "|.[\\x{0300}-\\x{036F}\\x{3099}\\x{309A}]+"));
    QString result;
    int copied = 0;
    QRegularExpressionMatchIterator matches = pieces.globalMatch(text);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        result += text.midRef(copied, match.capturedStart() - copied);
        result += match.captured().normalized(QString::NormalizationForm_C);
        copied = match.capturedEnd();
    }
    return copied == 0 ? text : result + text.midRef(copied);
}
