#include "tests/drive/userhands.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QProcess>
#include <QStandardPaths>
#include <algorithm>

namespace {

bool xdotool(const QStringList &arguments)
{
    return QProcess::execute(QStringLiteral("xdotool"), arguments) == 0;
}

QStringList movement(const QPoint &position)
{
    return {QStringLiteral("mousemove"), QString::number(position.x()),
            QString::number(position.y())};
}

bool isAscii(const QString &text)
{
    return std::all_of(text.begin(), text.end(),
                       [](QChar character) { return character.unicode() < 0x80; });
}

} // namespace

QString UserHands::whatIsMissing()
{
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        return QStringLiteral("an X display (the platform is \"%1\")")
            .arg(QGuiApplication::platformName());
    if (QStandardPaths::findExecutable(QStringLiteral("xdotool")).isEmpty())
        return QStringLiteral("the program xdotool");
    return QString();
}

bool UserHands::moveTo(const QPoint &position)
{
    return xdotool(movement(position));
}

bool UserHands::clickAt(const QPoint &position)
{
    return xdotool(movement(position) + QStringList{QStringLiteral("click"), QStringLiteral("1")});
}

bool UserHands::doubleClickAt(const QPoint &position)
{
    return xdotool(movement(position)
                   + QStringList{QStringLiteral("click"), QStringLiteral("--repeat"),
                                 QStringLiteral("2"), QStringLiteral("--delay"),
                                 QStringLiteral("20"), QStringLiteral("1")});
}

bool UserHands::holdAt(const QPoint &position)
{
    return xdotool(movement(position)
                   + QStringList{QStringLiteral("mousedown"), QStringLiteral("1")});
}

bool UserHands::release()
{
    return xdotool({QStringLiteral("mouseup"), QStringLiteral("1")});
}

bool UserHands::wheelAt(const QPoint &position, int notches, Qt::Orientation direction)
{
    // The wheel is four more buttons: up, down, left and right.
    const int firstButton = direction == Qt::Vertical ? 4 : 6;
    return xdotool(movement(position)
                   + QStringList{QStringLiteral("click"), QStringLiteral("--repeat"),
                                 QString::number(qAbs(notches)), QStringLiteral("--delay"),
                                 QStringLiteral("5"),
                                 QString::number(firstButton + (notches > 0 ? 1 : 0))});
}

bool UserHands::press(const QStringList &keys)
{
    return xdotool(QStringList{QStringLiteral("key")} + keys);
}

bool UserHands::paste(const QString &text)
{
    return onGui([&] {
               QGuiApplication::clipboard()->setText(text);
               return true;
           })
        && press({QStringLiteral("ctrl+v")});
}

bool UserHands::type(const QString &text)
{
    return isAscii(text) ? xdotool({QStringLiteral("type"), QStringLiteral("--"), text})
                         : paste(text);
}
