#include "editor/columnlabel.h"

QString columnLabel(int column)
{
    if (column < 0)
        return QString();
    return columnLabel(column / 26 - 1) + QChar('A' + column % 26);
}
