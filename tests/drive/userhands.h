// Mouse and keyboard of an imagined user: real events of the X server, sent by xdotool.
//
// Everything here runs in a thread beside the window's, because a dialog's own event loop would
// otherwise hold up the hands that are to answer it. The window is only looked at through onGui().
#pragma once

#include <QCoreApplication>
#include <QPoint>
#include <QStringList>

/// Looks at the window: runs the function in the window's thread and returns its result.
template <typename Function> auto onGui(Function function)
{
    decltype(function()) result{};
    QMetaObject::invokeMethod(
        QCoreApplication::instance(), [&] { result = function(); }, Qt::BlockingQueuedConnection);
    return result;
}

namespace UserHands {

/// Empty when the hands can work here, else what is missing.
QString whatIsMissing();

/// Each returns whether the X server took the events. Positions are in pixels of the real screen.
bool moveTo(const QPoint &position);
bool clickAt(const QPoint &position);
bool doubleClickAt(const QPoint &position);
/// Presses the mouse button and keeps it down.
bool holdAt(const QPoint &position);
bool release();
/// Turns the mouse wheel by some notches: to the right and down, or with less than 0 to the left
/// and up.
bool wheelAt(const QPoint &position, int notches, Qt::Orientation direction);
/// Keys by their X names, such as "Return" or "ctrl+a", one after the other.
bool press(const QStringList &keys);
bool paste(const QString &text);
/// Types a text; one that a keyboard cannot hold is pasted.
bool type(const QString &text);

} // namespace UserHands
