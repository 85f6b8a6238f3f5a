// Builds the output items of a convert setting in the dialog that is open.
#pragma once

#include "settings/outputitem.h"
#include "tests/drive/itemviewhands.h"

class OutputModeModel;
class Walk;

class ItemWalk
{
public:
    /// The convert setting dialog is in front.
    explicit ItemWalk(Walk &walk);

    /// Adds an item and gives it everything that the plan has.
    bool add(const OutputItem &plan);

private:
    bool addNamed(const QString &name);
    bool addMappings(const OutputItem &plan);
    bool addConditions(const OutputItem &plan);
    bool fillCondition(const OutputItem &plan, int position);
    bool setSeparator(const QString &separator);
    bool addRules(const OutputItem &plan);
    bool setFlags(const OutputItem &plan);

    /// What the item that is being built holds now. For the window's thread.
    OutputItem item() const;
    int column() const;

    Walk &m_walk;
    ItemViewHands m_cells;
    const OutputModeModel *m_model;
};
