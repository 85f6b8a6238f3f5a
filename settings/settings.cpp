#include "settings/settings.h"

// The name is relative on purpose: users keep one working folder for each shop.
Settings::Settings(QObject *parent)
    : QSettings(QStringLiteral("quorinConverter.dat"), QSettings::IniFormat, parent)
{
}
