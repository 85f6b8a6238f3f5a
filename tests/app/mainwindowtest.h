// What every test of the main window stands on: a new window, a new working folder with three input
// files and one setting, and user settings of its own, for each test function.
#pragma once

#include "app/mainwindow.h"
#include "tests/app/warningcollector.h"

#include <QTemporaryDir>
#include <QUrl>
#include <initializer_list>
#include <memory>
#include <optional>

void writeFile(const QString &name, const QByteArray &content);
/// The whole file, or "(no file)".
QByteArray readFile(const QString &name);
/// Saves a setting that takes one file with the columns a and b and puts out both, b first.
void saveSwapSetting(const QString &name);

class MainWindowTest : public QObject
{
    Q_OBJECT

public:
    /// Runs a test class as the main function of its program does.
    static int run(MainWindowTest &test, int argc, char *argv[]);

private slots:
    void init();
    void cleanup();

protected:
    void openWindow();
    /// Lets the keys go to the window.
    void activate();
    template <typename Type> Type *find(const char *name) const
    {
        return m_window->findChild<Type *>(QLatin1String(name));
    }
    void click(const char *button);
    /// Rows for the ways to one slot: a button, an action or the keys of one.
    static void addControls(std::initializer_list<const char *> names);
    void use(const char *control);
    /// Adds files through the button and the file dialog; with none, cancels the dialog.
    void add(const QStringList &files);
    /// Drags the addresses over the list and drops them there, with these keys held down.
    bool drop(const QList<QUrl> &urls, Qt::KeyboardModifiers keys, Qt::DropAction *action);
    /// A path in the working folder.
    QString path(const char *name) const;
    QStringList listed() const;
    QString target() const;
    /// The enabled ones of the controls that follow the fields and the runs.
    QString enabledControls() const;

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<MainWindow> m_window;

private:
    std::optional<WarningCollector> m_warnings; ///< of the test that runs now
};
