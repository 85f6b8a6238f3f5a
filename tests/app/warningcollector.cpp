#include "tests/app/warningcollector.h"

#include <QtGlobal>

namespace {

QStringList collected;
QtMessageHandler previousHandler = nullptr;

// Said by the platform plugin for tests without a display, about itself.
const char offscreenRemark[] = "This plugin does not support ";

void collect(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (message.startsWith(QLatin1String(offscreenRemark)))
        return;
    if (type != QtDebugMsg && type != QtInfoMsg)
        collected.append(message);
    previousHandler(type, context, message);
}

} // namespace

WarningCollector::WarningCollector()
{
    previousHandler = qInstallMessageHandler(collect);
}

WarningCollector::~WarningCollector()
{
    qInstallMessageHandler(previousHandler);
}

QStringList WarningCollector::take()
{
    QStringList result;
    result.swap(collected);
    return result;
}
