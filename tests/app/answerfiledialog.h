// Answers the next file dialog as a user would, from a zero timer that its event loop serves.
#pragma once

#include <QObject>
#include <QStringList>
#include <QTimer>

class QFileDialog;

/// What a file dialog looked like when it was answered.
struct SeenFileDialog {
    QString title;
    QString folder;
    QStringList nameFilters;
    bool saves = false;
    bool takesSeveral = false;
};

class AnswerFileDialog : public QObject
{
public:
    /// Types the paths and presses Return; with no paths, presses Escape.
    explicit AnswerFileDialog(const QStringList &paths = {});

    /// How many dialogs came up, and what the last one was like.
    int count() const { return m_count; }
    const SeenFileDialog &seen() const { return m_seen; }

private:
    void answer();
    static SeenFileDialog look(const QFileDialog &dialog);

    const QStringList m_paths;
    QTimer m_timer;
    int m_count = 0;
    SeenFileDialog m_seen;
};
