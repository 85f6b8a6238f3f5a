// The entries of a translation source file, and what the tests ask about their texts.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

struct TranslationEntry {
    QString context;
    QString source;
    QString comment;
    QString translation;
    QString
        state; ///< empty for a finished entry, else what the file says: unfinished, vanished ...
    bool numerus = false;
};

/// One of the two languages that the program speaks.
struct Language {
    QString name;      ///< as the toolkit calls it in English
    QString country;   ///< in the names of our files
    QString catalogue; ///< in the name of the toolkit's file

    bool isKorean() const { return country == QLatin1String("kr"); }
    QString file() const { return QStringLiteral("languages/lang_") + country; }
};

Language korean();
Language japanese();

/// Fails the running test and returns nothing when the file cannot be read.
QList<TranslationEntry> readTranslations(const QString &path);

/// "Context | source", for messages.
QString label(const TranslationEntry &entry);

bool hasHangul(const QString &text);
/// Kana or Chinese characters.
bool hasJapanese(const QString &text);
/// Words of at least two Latin letters, in their order.
QStringList latinWords(const QString &text);

/// Why this text cannot be one of that language's; empty when it can. Names, addresses and marks
/// that are the same in every language pass, and so do the words that the language shares.
QString foreignPart(const QString &text, const Language &language);
