#include "resources/icons.h"

#include <QtGlobal>

// Q_INIT_RESOURCE must not stand in a namespace.
void initIcons()
{
    Q_INIT_RESOURCE(icons);
}
