// The one window of the program: input files on the left, setting and output file on the right.
// It builds, connects and shows; the conversion itself is the engine's work.
//
// The form's fields are the only store: the input files are the rows of `sourceFileList`, the
// output file is the text of `targetFile`. What the user sees is what a run takes.
#pragma once

#include "engine/runreporter.h"

#include <QMainWindow>
#include <memory>

class QProgressBar;
class QStringListModel;

namespace Ui {
class MainWindow;
}

class MainWindow : public QMainWindow, private RunReporter
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget *parent = nullptr);
    ~MainWindow() override;

protected:
    bool event(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private slots:
    void on_action_company_config_triggered();
    void add_file();
    void del_file();
    void set_file();
    void convert_file();
    void info_dialog();
    /// Whether a conversion can start, shown by what is enabled.
    void checkFields();
    void on_printButton_clicked();
    void on_configButton_clicked();
    void on_action_convert_config_triggered();
    void on_action_velmora_triggered();
    void on_openFolderButton_clicked();
    /// Asks whether to update; on Yes the process ends here.
    void updateAlert(const QString &currentVersion, const QString &latestVersion);
    void on_action_help_triggered();

private:
    void connectForm();
    void checkForUpdate();
    void restorePosition();
    void loadSettingNames();
    void createProgressBar();
    void manageSettings();

    QStringList inputFiles() const;
    /// Takes a choice of files, from the dialog or dropped; at least one.
    void addInputFiles(const QStringList &files);
    /// Makes the output file the default one for the first input file.
    void setDefaultOutputFile();
    /// Shows a failure to the user.
    void reportError(const QString &text);

    void status(const QString &text) override;
    void error(const QString &text) override;
    void progress(int value, int maximum) override;
    void statementFinished(const QString &pdfFile) override;
    void finished() override;

    const std::unique_ptr<Ui::MainWindow> ui;
    QStringListModel *m_settingNames = nullptr;
    QProgressBar *m_progressBar = nullptr;
    QString m_statementFile; ///< path of the last statement that was made or tried
    QString m_status;        ///< stays in the status bar whenever no tip covers it
    QString m_runError;      ///< why the last run failed
};
