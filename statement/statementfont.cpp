#include "statement/statementfont.h"

#include <QFont>
#include <QFontDatabase>
#include <QGuiApplication>

namespace {

// What the systems that shops use come with, plain faces before all others. Windows gives some of
// them under their own language's name only.
const char *const koreanFaces[] = {
    "Malgun Gothic",       "맑은 고딕",   "Noto Sans CJK KR", "Noto Sans KR", "Source Han Sans K",
    "Apple SD Gothic Neo", "NanumGothic", "UnDotum",          "Gulim",        "굴림"};
const char *const japaneseFaces[] = {
    "Yu Gothic UI",     "Yu Gothic",    "游ゴシック",      "Meiryo",        "メイリオ",
    "Noto Sans CJK JP", "Noto Sans JP", "Source Han Sans", "Hiragino Sans", "IPAexGothic",
    "TakaoGothic",      "VL Gothic",    "MS Gothic",       "ＭＳ ゴシック"};

template <size_t Size>
void appendFamilies(QStringList &families, QFontDatabase::WritingSystem writingSystem,
                    const char *const (&preferred)[Size])
{
    const QStringList installed = QFontDatabase().families(writingSystem);
    for (const char *face : preferred) {
        const QString name = QString::fromUtf8(face);
        if (installed.contains(name, Qt::CaseInsensitive))
            families.append(name);
    }
    families.append(installed);
}

/// A font of pictures has some at the places of letters.
bool isSymbolFont(const QString &family)
{
    const QList<QFontDatabase::WritingSystem> systems = QFontDatabase().writingSystems(family);
    // Latin is believed of every font.
    return systems.contains(QFontDatabase::Symbol) && systems.size() <= 2;
}

} // namespace

QStringList cjkFamilies(QLocale::Language language)
{
    QStringList families;
    if (language == QLocale::Japanese)
        appendFamilies(families, QFontDatabase::Japanese, japaneseFaces);
    appendFamilies(families, QFontDatabase::Korean, koreanFaces);
    if (language != QLocale::Japanese)
        appendFamilies(families, QFontDatabase::Japanese, japaneseFaces);
    families.removeDuplicates();
    return families;
}

QString prepareStatementFont(const QString &chosen, QLocale::Language language)
{
    const bool isUsable = !chosen.isEmpty() && !isSymbolFont(chosen);
    QString family = isUsable ? chosen : QGuiApplication::font().family();
    QStringList substitutes = cjkFamilies(language);
    substitutes.removeAll(family);
    QFont::insertSubstitutions(family, substitutes); // adds those that are not there yet
    return family;
}
