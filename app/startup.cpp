#include "app/startup.h"

#include "update/makersite.h"

#include <QApplication>
#include <QLocale>
#include <QTranslator>

void prepareApplication()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Velmora"));
    QCoreApplication::setOrganizationDomain(makerSite().toString());
    QCoreApplication::setApplicationName(QStringLiteral("Quorin Converter"));
    // Desktops find the icon of the window by the name of the entry in their menu.
    QGuiApplication::setDesktopFileName(QStringLiteral("quorin-converter"));

    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    // Windows users mostly run at 125 or 150 %; rounding would make the window too large or small.
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
}

QString systemLanguageName()
{
    return QLocale::languageToString(QLocale::system().language());
}

QString translationFile(const QString &languageName)
{
    if (languageName == QLatin1String("Korean"))
        return QStringLiteral("languages/lang_kr");
    if (languageName == QLatin1String("Japanese"))
        return QStringLiteral("languages/lang_jp");
    return QString();
}

void installTranslation(QTranslator &translator, const QString &languageName)
{
    const QString fileName = translationFile(languageName);
    // A file that is missing or damaged leaves the translator empty: the built-in texts show.
    if (!fileName.isEmpty())
        translator.load(fileName);
    QCoreApplication::installTranslator(&translator);
}
