// Takes the pictures: a window as it stands after everything has been laid out and drawn, and a
// page of a PDF. Whatever prevents a picture ends the program.
#pragma once

#include <QDir>

class QWidget;

class Camera
{
public:
    explicit Camera(const QDir &folder) : m_folder(folder) {}

    /// Shows the window and saves its picture as NAME.png.
    void take(QWidget &window, const char *name) const;
    /// Makes the window no wider than a page of the help first.
    void takeNarrow(QWidget &window, const char *name) const;
    /// Saves the picture of the first page as NAME.png.
    void takePage(const QString &pdfFile, const char *name) const;

private:
    const QDir m_folder;
};
