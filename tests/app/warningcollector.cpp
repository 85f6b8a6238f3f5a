#include "tests/app/warningcollector.h"

#include <QtGlobal>

namespace {

QStringList collected;
QtMessageHandler previousHandler = nullptr;

// Said by the platform plugin for tests without a display, about itself.
const char *const offscreenRemarks[] = {
    "This plugin does not support propagateSizeHints()",
    "This plugin does not support raise()",
};

void collect(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    // A display answers late: about a list of a combo box that has closed meanwhile, for instance.
    if (qstrcmp(context.category, "qt.qpa.xcb") == 0)
        return;
    for (const char *remark : offscreenRemarks) {
        if (message == QLatin1String(remark))
            return;
    }
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
