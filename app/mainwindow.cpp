#include "app/mainwindow.h"

#include "app/platform.h"
#include "common/lastdirectory.h"
#include "editor/configdialog.h"
#include "editor/convertsettingdialog.h"
#include "engine/conversionrun.h"
#include "resources/icons.h"
#include "settings/convertsettings.h"
#include "statement/statementpdf.h"
#include "ui_mainwindow.h"
#include "update/infodialog.h"
#include "update/makersite.h"
#include "update/updater.h"

#include <QCloseEvent>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QProgressBar>
#include <QSettings>
#include <QShortcut>
#include <QStatusTipEvent>
#include <QStringListModel>
#include <QTextDocument>
#include <cstdlib>

namespace {

QString positionKey()
{
    return QStringLiteral("pos");
}

QString canonicalFolder(const QString &file)
{
    return QFileInfo(file).dir().canonicalPath();
}

/// The output file for an input file: beside it, with "_output.csv" for its extension.
QString defaultOutputFile(const QString &inputFile)
{
    // The last "." of the whole path, as written; -1 keeps all of it.
    return inputFile.left(inputFile.lastIndexOf(QLatin1Char('.'))) + QLatin1String("_output.csv");
}

/// The wait cursor for as long as the object lives.
class WaitCursor
{
public:
    WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QApplication::restoreOverrideCursor(); }
    Q_DISABLE_COPY(WaitCursor)
};

} // namespace

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent), ui(std::make_unique<Ui::MainWindow>())
{
    initIcons();
    ui->setupUi(this);
    checkForUpdate();
    ui->statusBar->setSizeGripEnabled(false);
    // Nothing else keeps the progress bar off the window's edge without the grip.
    ui->statusBar->setContentsMargins(4, 0, 8, 0);
    restorePosition();
    loadSettingNames();
    createProgressBar();
    connectForm();
}

MainWindow::~MainWindow() = default;

void MainWindow::checkForUpdate()
{
    auto *updater = new Updater(this);
    connect(updater, &Updater::updateAvailable, this, &MainWindow::updateAlert);
    updater->check();
}

void MainWindow::restorePosition()
{
    const QSettings settings;
    if (settings.contains(positionKey()))
        move(settings.value(positionKey()).toPoint());
}

void MainWindow::loadSettingNames()
{
    // The names first: the combo chooses its first row when it is given a model.
    m_settingNames = new QStringListModel(settingNames(), this);
    ui->convertSetting->setModel(m_settingNames);
}

void MainWindow::createProgressBar()
{
    m_progressBar = new QProgressBar;
    ui->statusBar->addPermanentWidget(m_progressBar);
    m_progressBar->setObjectName(QStringLiteral("progressBar"));
    m_progressBar->setTextVisible(false);
    m_progressBar->setMaximumWidth(240); // leaves room for the run's texts beside it
    m_progressBar->hide();
}

void MainWindow::connectForm()
{
    ui->action_convert->setShortcuts({QStringLiteral("Ctrl+Return"), QStringLiteral("Ctrl+Enter")});
    connect(ui->action_exit, &QAction::triggered, this, &MainWindow::close);
    connect(ui->action_add, &QAction::triggered, this, &MainWindow::add_file);
    connect(ui->addButton, &QPushButton::clicked, this, &MainWindow::add_file);
    connect(ui->sourceFileList, &FileDropList::filesDropped, this, &MainWindow::addInputFiles);
    connect(ui->removeButton, &QPushButton::clicked, this, &MainWindow::del_file);
    connect(ui->action_set, &QAction::triggered, this, &MainWindow::set_file);
    connect(ui->setButton, &QPushButton::clicked, this, &MainWindow::set_file);
    connect(ui->action_convert, &QAction::triggered, this, &MainWindow::convert_file);
    connect(ui->convertButton, &QPushButton::clicked, this, &MainWindow::convert_file);
    connect(ui->action_info, &QAction::triggered, this, &MainWindow::info_dialog);
    connect(ui->action_print, &QAction::triggered, this, &MainWindow::on_printButton_clicked);
    connect(ui->targetFile, &QLineEdit::textChanged, this, &MainWindow::checkFields);
    connect(ui->convertSetting, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &MainWindow::checkFields);

    // The keyboard's focus makes a row current without marking it; what Delete takes must be seen.
    connect(ui->sourceFileList, &QListWidget::currentRowChanged, ui->sourceFileList,
            [list = ui->sourceFileList](int row) { list->setCurrentRow(row); });

    auto *removeKey = new QShortcut(Qt::Key_Delete, ui->sourceFileList);
    removeKey->setContext(Qt::WidgetShortcut);
    connect(removeKey, &QShortcut::activated, this, &MainWindow::del_file);
}

QStringList MainWindow::inputFiles() const
{
    QStringList files;
    for (int row = 0; row < ui->sourceFileList->count(); ++row)
        files.append(ui->sourceFileList->item(row)->text());
    return files;
}

void MainWindow::add_file()
{
    const QStringList files = QFileDialog::getOpenFileNames(
        this, tr("Input Files"), lastDirectory(), tr("CSV Files (*.csv);;All Files (*.*)"));
    if (!files.isEmpty())
        addInputFiles(files);
}

void MainWindow::addInputFiles(const QStringList &files)
{
    rememberDirectory(files.first());
    QStringList listed = inputFiles();
    for (const QString &file : files) {
        if (listed.contains(file))
            continue;
        listed.append(file);
        auto *item = new QListWidgetItem(file, ui->sourceFileList);
        const QString path = QDir::toNativeSeparators(file);
        item->setToolTip(Qt::mightBeRichText(path) ? path.toHtmlEscaped() : path);
    }
    if (ui->targetFile->text().isEmpty())
        setDefaultOutputFile();
    checkFields();
}

void MainWindow::setDefaultOutputFile()
{
    ui->targetFile->setText(defaultOutputFile(ui->sourceFileList->item(0)->text()));
}

void MainWindow::del_file()
{
    const int row = ui->sourceFileList->currentRow();
    if (row >= 0)
        delete ui->sourceFileList->takeItem(row);
    if (ui->sourceFileList->count() == 0)
        ui->targetFile->clear();
    else if (row == 0)
        setDefaultOutputFile(); // replaces a chosen one too: it belonged to the first file
    checkFields();
}

void MainWindow::set_file()
{
    const QString file = QFileDialog::getSaveFileName(this, tr("Output File"), lastDirectory(),
                                                      tr("CSV File (*.csv)"));
    if (file.isEmpty())
        return;
    rememberDirectory(file);
    ui->targetFile->setText(file);
    checkFields();
}

void MainWindow::checkFields()
{
    m_progressBar->hide();
    const bool ready = ui->sourceFileList->count() > 0 && !ui->targetFile->text().isEmpty()
        && ui->convertSetting->currentIndex() >= 0;
    ui->convertButton->setEnabled(ready);
    ui->action_convert->setEnabled(ready);
    if (ready)
        return;
    // These three never become enabled here: only a finished run has something to show.
    ui->printButton->setEnabled(false);
    ui->action_print->setEnabled(false);
    ui->openFolderButton->setEnabled(false);
}

void MainWindow::convert_file()
{
    const ConversionRequest request{inputFiles(), ui->targetFile->text(),
                                    ui->convertSetting->currentText()};
    bool succeeded = false;
    {
        const WaitCursor waitCursor;
        succeeded = runConversion(request, *this, generateStatementPdf);
    }
    if (succeeded)
        return;
    m_progressBar->hide(); // a full bar would look like success
    // Only now, when the run has closed its files and no wait cursor lies over the box.
    reportError(m_runError);
}

void MainWindow::info_dialog()
{
    auto *dialog = findChild<InfoDialog *>();
    if (dialog == nullptr) {
        dialog = new InfoDialog(this);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
    }
    dialog->show();
    dialog->raise();
    dialog->activateWindow();
}

void MainWindow::reportError(const QString &text)
{
    QMessageBox box(QMessageBox::Warning, tr("Error"), text, QMessageBox::Ok, this);
    box.setTextFormat(Qt::PlainText); // file names may look like markup
    box.exec();
    status(tr("An error has occurred"));
}

void MainWindow::status(const QString &text)
{
    m_status = text;
    ui->statusBar->showMessage(text);
    // No event loop turns while a run is under way, so nothing else would draw the text.
    ui->statusBar->repaint();
}

void MainWindow::error(const QString &text)
{
    m_runError = text;
}

void MainWindow::progress(int value, int maximum)
{
    // A range of 0 to 0 would mean "busy" to the bar and never look finished.
    m_progressBar->setRange(0, qMax(1, maximum));
    m_progressBar->setValue(maximum == 0 ? 1 : value);
    m_progressBar->show();
}

void MainWindow::statementFinished(const QString &pdfFile)
{
    m_statementFile = pdfFile.isEmpty() ? QString() : QFileInfo(pdfFile).absoluteFilePath();
    ui->printButton->setEnabled(true);
    ui->action_print->setEnabled(true);
}

void MainWindow::finished()
{
    ui->openFolderButton->setEnabled(true);
}

bool MainWindow::event(QEvent *event)
{
    // The end of a tip would empty the status bar; the run's last word stays until the next one.
    if (event->type() == QEvent::StatusTip
        && static_cast<QStatusTipEvent *>(event)->tip().isEmpty()) {
        ui->statusBar->showMessage(m_status);
        return true;
    }
    return QMainWindow::event(event);
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (!isMaximized() && !isMinimized())
        QSettings().setValue(positionKey(), pos());
    QMainWindow::closeEvent(event);
}

void MainWindow::on_printButton_clicked()
{
    QDesktopServices::openUrl(localFileUrl(m_statementFile));
}

void MainWindow::on_configButton_clicked()
{
    const int row = ui->convertSetting->currentIndex();
    if (row < 0)
        return;
    auto *dialog = new ConvertSettingDialog(m_settingNames, this);
    dialog->loadSetting(m_settingNames->index(row));
    dialog->showAndForget();
}

void MainWindow::on_action_company_config_triggered()
{
    manageSettings();
}

void MainWindow::on_action_convert_config_triggered()
{
    manageSettings();
}

void MainWindow::manageSettings()
{
    (new ConfigDialog(m_settingNames, this))->showAndForget();
}

void MainWindow::on_openFolderButton_clicked()
{
    browseFolder(canonicalFolder(ui->targetFile->text()), this);
}

void MainWindow::on_action_help_triggered()
{
    QDesktopServices::openUrl(
        localFileUrl(QDir::currentPath() + QLatin1String("/quorinConverter.chm")));
}

void MainWindow::on_action_velmora_triggered()
{
    QDesktopServices::openUrl(makerSite());
}

void MainWindow::updateAlert(const QString &currentVersion, const QString &latestVersion)
{
    // The bracket that never closes is part of the text.
    const QString text = tr("There is newer version available.\n"
                            "Do you want to update now?\n"
                            "(Restart Quorin Converter is required.\n\n"
                            "Current version : %1\n"
                            "Latest version : %2")
                             .arg(currentVersion, latestVersion);
    QMessageBox box(QMessageBox::Question, tr("Update available"), text,
                    QMessageBox::Yes | QMessageBox::No, this);
    box.setDefaultButton(QMessageBox::Yes);
    box.setTextFormat(Qt::PlainText); // the latest version comes from the network
    if (box.exec() != QMessageBox::Yes)
        return;
    startUpdater();
    // At once: the updater replaces this program's files, and nothing of it may run any more.
    std::_Exit(EXIT_SUCCESS);
}
