#include "statement/statementfont.h"

#include <QFont>
#include <QFontDatabase>
#include <QGuiApplication>

namespace {

// What the systems that shops use come with, plain faces before all others.
const char *const koreanFaces[] = {
    "Malgun Gothic",       "Noto Sans CJK KR", "Noto Sans KR", "Source Han Sans K",
    "Apple SD Gothic Neo", "NanumGothic",      "UnDotum",      "Gulim"};
const char *const japaneseFaces[] = {"Yu Gothic UI",     "Yu Gothic",    "Meiryo",
                                     "Noto Sans CJK JP", "Noto Sans JP", "Source Han Sans",
                                     "Hiragino Sans",    "IPAexGothic",  "TakaoGothic",
                                     "VL Gothic",        "MS Gothic"};

template <size_t Size>
void appendFamilies(QStringList &families, QFontDatabase::WritingSystem writingSystem,
                    const char *const (&preferred)[Size])
{
    const QStringList installed = QFontDatabase().families(writingSystem);
    for (const char *face : preferred) {
        if (installed.contains(QLatin1String(face), Qt::CaseInsensitive))
            families.append(QLatin1String(face));
    }
    families.append(installed);
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
    const QString family = chosen.isEmpty() ? QGuiApplication::font().family() : chosen;
    QStringList substitutes = cjkFamilies(language);
    substitutes.removeAll(family);
    // They would pile up from run to run otherwise.
    QFont::removeSubstitutions(family);
    QFont::insertSubstitutions(family, substitutes);
    return family;
}
