#include "help/pictures/camera.h"

#include <QCoreApplication>
#include <QProcess>
#include <QThread>
#include <QWidget>

namespace {

const int pageWidth = 900; // in pixels
const char pageResolution[] = "96";

} // namespace

void Camera::take(QWidget &window, const char *name) const
{
    window.show();
    window.activateWindow();
    for (int i = 0; i < 10; ++i) {
        QCoreApplication::processEvents();
        QThread::msleep(5);
    }
    const QString file = m_folder.filePath(QLatin1String(name) + QLatin1String(".png"));
    if (!window.grab().save(file))
        qFatal("cannot save %s", qUtf8Printable(file));
}

void Camera::takeNarrow(QWidget &window, const char *name) const
{
    window.resize(qMin(window.width(), pageWidth), window.height());
    take(window, name);
}

void Camera::takePage(const QString &pdfFile, const char *name) const
{
    const QString file = m_folder.filePath(QLatin1String(name));
    const int status = QProcess::execute(QStringLiteral("pdftoppm"),
                                         {QStringLiteral("-r"), QLatin1String(pageResolution),
                                          QStringLiteral("-gray"), QStringLiteral("-png"),
                                          QStringLiteral("-singlefile"), pdfFile, file});
    if (status != 0)
        qFatal("pdftoppm cannot paint %s", qUtf8Printable(pdfFile));
}
