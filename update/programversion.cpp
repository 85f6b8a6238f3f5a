#include "update/programversion.h"

QString programVersion()
{
    return QStringLiteral(QUORIN_VERSION);
}
