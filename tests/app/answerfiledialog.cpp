#include "tests/app/answerfiledialog.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QtTest>

AnswerFileDialog::AnswerFileDialog(const QStringList &paths) : m_paths(paths)
{
    connect(&m_timer, &QTimer::timeout, this, &AnswerFileDialog::answer);
    m_timer.start(0);
}

void AnswerFileDialog::answer()
{
    auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
    if (dialog == nullptr)
        return; // not yet
    m_timer.stop();
    ++m_count;
    m_seen = look(*dialog);
    if (m_paths.isEmpty()) {
        QTest::keyClick(dialog, Qt::Key_Escape);
        return;
    }
    auto *nameEdit = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    if (m_paths.size() == 1)
        nameEdit->setText(m_paths.first());
    else
        nameEdit->setText(QLatin1Char('"') + m_paths.join(QLatin1String("\" \""))
                          + QLatin1Char('"'));
    QTest::keyClick(nameEdit, Qt::Key_Return);
}

SeenFileDialog AnswerFileDialog::look(const QFileDialog &dialog)
{
    SeenFileDialog seen;
    seen.title = dialog.windowTitle();
    seen.folder = dialog.directory().absolutePath();
    seen.nameFilters = dialog.nameFilters();
    seen.saves = dialog.acceptMode() == QFileDialog::AcceptSave;
    seen.takesSeveral = dialog.fileMode() == QFileDialog::ExistingFiles;
    return seen;
}
