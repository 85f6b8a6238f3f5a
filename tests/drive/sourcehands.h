// Brings an item of the input forms or a field of the company information onto a cell of the output
// side.
#pragma once

#include "tests/drive/itemviewhands.h"

class SourceHands
{
public:
    /// The target view is in the front window.
    SourceHands(Walk &walk, const QString &targetView);

    /// Drags it; the first one of each kind in a program goes the way without a mouse.
    bool bring(int sourceKind, int number, int targetRow, int targetColumn);

private:
    bool drag(int sourceKind, int number, int targetRow, int targetColumn);
    bool copyByKeys(int sourceKind, int number);
    bool pasteByKeys(int targetRow, int targetColumn);
    /// Moves the keyboard's focus on until it is there.
    bool tabTo(const QString &objectName);
    /// Moves the current cell of the view that has the focus.
    bool goTo(const QString &viewName, int row, int column);

    Walk &m_walk;
    const QString m_targetView;
    ItemViewHands m_inputItems;
    ItemViewHands m_targets;
};
