#include "help/pictures/windowpictures.h"

#include "app/filedroplist.h"
#include "app/mainwindow.h"
#include "engine/runtexts.h"
#include "help/pictures/camera.h"
#include "help/pictures/shop.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStatusBar>
#include <QTimer>

namespace {

/// Where the files of the shop lie. The folder that we work in has another name on every computer
/// and is of no use to a reader, so the fields show this one while a picture is taken.
QString shownPath(const QString &fileName)
{
    return QLatin1String("/home/shop/QuorinConverter/sample/") + fileName;
}

class WindowOfShop
{
public:
    WindowOfShop()
        : m_files(m_window.findChild<FileDropList *>(QStringLiteral("sourceFileList"))),
          m_output(m_window.findChild<QLineEdit *>(QStringLiteral("targetFile")))
    {
    }

    void take(const Camera &camera, const char *name)
    {
        const QString output = m_output->text();
        if (m_files->count() > 0)
            show(shownPath(m_inputFile), shownPath(output));
        camera.take(m_window, name);
        if (m_files->count() > 0)
            show(m_inputFile, output);
    }
    void prepare(const Shop &shop)
    {
        m_inputFile = shop.inputFile;
        emit m_files->filesDropped({shop.inputFile});
        m_window.findChild<QComboBox *>(QStringLiteral("convertSetting"))
            ->setCurrentText(shop.settingName);
    }
    void convert()
    {
        // A box with what went wrong would wait for a hand for ever.
        QTimer::singleShot(0, [] {
            if (const auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget()))
                qFatal("%s", qUtf8Printable(box->text()));
        });
        m_window.findChild<QPushButton *>(QStringLiteral("convertButton"))->click();
        if (m_window.statusBar()->currentMessage() != RunTexts::succeeded())
            qFatal("%s", qUtf8Printable(m_window.statusBar()->currentMessage()));
    }
    QString statementFile() const
    {
        return m_output->text().replace(QLatin1String(".csv"), QLatin1String(".pdf"));
    }

private:
    /// Changes what the fields show, and nothing else: a change by the user would hide the
    /// progress.
    void show(const QString &input, const QString &output)
    {
        const QSignalBlocker silence(m_output);
        m_files->item(0)->setText(input);
        m_output->setText(output);
    }

    MainWindow m_window;
    FileDropList *const m_files;
    QLineEdit *const m_output;
    QString m_inputFile;
};

} // namespace

void takePicturesOfWindow(const Shop &shop, const Camera &camera)
{
    WindowOfShop window;
    window.take(camera, "main-empty");
    window.prepare(shop);
    window.take(camera, "main-ready");
    window.convert();
    window.take(camera, "main-converted");
    camera.takePage(window.statementFile(), "statement");
}
