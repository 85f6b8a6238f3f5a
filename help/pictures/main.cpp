// take_pictures LANGUAGE SAMPLEFOLDER LANGUAGESFOLDER PICTUREFOLDER [SCALE]
// Opens the real windows of the program in one language (ko or ja), in a copy of the samples, and
// saves their pictures for the help. Needs no display; the same program takes the same pictures,
// whatever the desktop and its owner's settings are like. SCALE is for screens with more dots to
// the inch.
#include "app/startup.h"
#include "help/pictures/camera.h"
#include "help/pictures/dialogpictures.h"
#include "help/pictures/shop.h"
#include "help/pictures/windowpictures.h"
#include "tests/app/nonetwork.h"

#include <QApplication>
#include <QDir>
#include <QFontInfo>
#include <QSettings>
#include <QStyle>
#include <QStyleFactory>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTranslator>
#include <cstdlib>

namespace {

void copyFiles(const QDir &from, const QStringList &filters, const QDir &to)
{
    const QStringList names = from.entryList(filters, QDir::Files);
    if (names.isEmpty())
        qFatal("nothing to copy in %s", qUtf8Printable(from.path()));
    to.mkpath(QStringLiteral("."));
    for (const QString &name : names) {
        if (!QFile::copy(from.filePath(name), to.filePath(name)))
            qFatal("cannot copy %s", qUtf8Printable(name));
        // The samples may lie where nobody can write.
        QFile(to.filePath(name)).setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    }
}

/// Leaves out what says nothing about the pictures: that the answer of the web site could not be
/// read, and that a window without a screen has no hints for one.
void printMessage(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtDebugMsg || text.contains(QLatin1String("propagateSizeHints")))
        return;
    QTextStream(stderr) << text << '\n';
    if (type == QtFatalMsg)
        std::exit(1);
}

/// What the toolkit and the system would take from the desktop of whoever builds the help.
void forgetTheDesktop(const char *scale, const QTemporaryDir &home)
{
    for (const char *name : {"QT_STYLE_OVERRIDE", "QT_SCREEN_SCALE_FACTORS",
                             "QT_AUTO_SCREEN_SCALE_FACTOR", "QT_QPA_PLATFORMTHEME", "LANGUAGE"})
        qunsetenv(name);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_FONT_DPI", "96"); // otherwise the windows grow by the platform's own idea of it
    qputenv("QT_SCALE_FACTOR", scale);
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(home.path()));
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, home.path());
}

void setLook(const QString &fontFamily)
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(QApplication::style()->standardPalette());
    QApplication::setCursorFlashTime(0); // a picture would catch it on or off
    const QFont font(fontFamily, 9);
    if (QFontInfo(font).family() != fontFamily)
        qFatal("The font \"%s\" is missing (Debian: fonts-noto-cjk).", qUtf8Printable(fontFamily));
    QApplication::setFont(font);
}

} // namespace

int main(int argc, char *argv[])
{
    qInstallMessageHandler(printMessage);
    const QTemporaryDir home;
    const QTemporaryDir work;
    forgetTheDesktop(argc > 5 ? argv[5] : "1", home);
    prepareApplication();
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 5 || arguments.size() > 6
        || !QStringList{QStringLiteral("ko"), QStringLiteral("ja")}.contains(arguments.at(1))) {
        QTextStream(stderr) << "usage: take_pictures ko|ja SAMPLEFOLDER LANGUAGESFOLDER "
                               "PICTUREFOLDER [SCALE]\n";
        return 2;
    }
    const Camera camera(QDir(QDir(arguments.at(4)).absolutePath()));
    QDir().mkpath(arguments.at(4));
    copyFiles(arguments.at(2), {QStringLiteral("cart_*.csv"), QStringLiteral("*.dat")},
              work.path());
    copyFiles(arguments.at(3), {QStringLiteral("*.qm")},
              work.filePath(QStringLiteral("languages")));
    QDir::setCurrent(work.path());

    const Shop shop = shopOfLanguage(arguments.at(1));
    saveCompanyInfo(shop.company);
    setLook(shop.fontFamily);
    stayOffTheNetwork();
    QTranslator translator;
    installTranslation(translator, shop.languageName);
    if (translator.isEmpty())
        qFatal("There is no translation for %s.", qUtf8Printable(shop.languageName));

    takePicturesOfWindow(shop, camera);
    takePicturesOfDialogs(shop, camera);
    return 0;
}
