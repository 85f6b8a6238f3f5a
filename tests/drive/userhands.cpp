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
    return xdotool({QStringLiteral("mousemove"), QString::number(position.x()),
                    QString::number(position.y())});
}

bool UserHands::clickAt(const QPoint &position)
{
    return moveTo(position) && xdotool({QStringLiteral("click"), QStringLiteral("1")});
}

bool UserHands::press(const QStringList &keys)
{
    return xdotool(QStringList{QStringLiteral("key")} + keys);
}

bool UserHands::type(const QString &text)
{
    if (isAscii(text))
        return xdotool({QStringLiteral("type"), QStringLiteral("--"), text});
    return onGui([&] {
               QGuiApplication::clipboard()->setText(text);
               return true;
           })
        && press({QStringLiteral("ctrl+v")});
}
