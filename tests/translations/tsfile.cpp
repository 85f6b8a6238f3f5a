#include "tests/translations/tsfile.h"

#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <QtTest>
#include <algorithm>

namespace {

bool hasScript(const QString &text, std::initializer_list<QChar::Script> scripts)
{
    return std::any_of(text.begin(), text.end(), [&scripts](QChar letter) {
        return std::find(scripts.begin(), scripts.end(), letter.script()) != scripts.end();
    });
}

/// Texts that are no words of any language.
bool isTheSameEverywhere(const QString &text)
{
    static const QStringList texts{
        "http://www.example.com", "shop@example.com", "https://www.velmora.example", "LF(\\n)",
        "CRLF(\\r\\n)",
    };
    return texts.contains(text);
}

/// Words in Latin letters that shopkeepers of both countries read as their own.
bool isShared(const QString &word)
{
    static const QStringList words{"CSV", "PDF", "LF", "CRLF", "FAX", "URL"};
    return words.contains(word);
}

} // namespace

Language korean()
{
    return {"Korean", "kr", "ko"};
}

Language japanese()
{
    return {"Japanese", "jp", "ja"};
}

QList<TranslationEntry> readTranslations(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        QTest::qFail(qPrintable(path + ": " + file.errorString()), __FILE__, __LINE__);
        return {};
    }
    QList<TranslationEntry> entries;
    QString context;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == "name") {
            context = xml.readElementText();
        } else if (xml.name() == "message") {
            entries.append(TranslationEntry());
            entries.last().context = context;
            entries.last().numerus = xml.attributes().value("numerus") == "yes";
        } else if (xml.name() == "source") {
            entries.last().source = xml.readElementText();
        } else if (xml.name() == "comment") {
            entries.last().comment = xml.readElementText();
        } else if (xml.name() == "translation") {
            entries.last().state = xml.attributes().value("type").toString();
            entries.last().translation =
                xml.readElementText(QXmlStreamReader::IncludeChildElements);
        }
    }
    if (xml.hasError()) {
        QTest::qFail(qPrintable(path + ": " + xml.errorString()), __FILE__, __LINE__);
        return {};
    }
    return entries;
}

QString label(const TranslationEntry &entry)
{
    return entry.context + " | " + entry.source;
}

bool hasHangul(const QString &text)
{
    return hasScript(text, {QChar::Script_Hangul});
}

bool hasJapanese(const QString &text)
{
    return hasScript(text, {QChar::Script_Hiragana, QChar::Script_Katakana, QChar::Script_Han});
}

QStringList latinWords(const QString &text)
{
    static const QRegularExpression word("[A-Za-z]{2,}");
    QStringList words;
    for (auto matches = word.globalMatch(text); matches.hasNext();)
        words.append(matches.next().captured());
    return words;
}

QString foreignPart(const QString &text, const Language &language)
{
    if (isTheSameEverywhere(text) || (text == "OK" && !language.isKorean()))
        return QString();
    if (language.isKorean() && hasScript(text, {QChar::Script_Hiragana, QChar::Script_Katakana}))
        return QStringLiteral("kana");
    if (!language.isKorean() && hasHangul(text))
        return QStringLiteral("hangul");
    if (language.isKorean() ? hasHangul(text) : hasJapanese(text))
        return QString();
    const QStringList words = latinWords(text);
    const auto foreign = std::find_if_not(words.begin(), words.end(), isShared);
    return foreign == words.end() ? QString() : *foreign;
}
