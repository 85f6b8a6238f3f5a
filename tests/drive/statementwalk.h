// Builds the statement of a convert setting in the dialog that is open.
#pragma once

#include "statement/statementsetting.h"
#include "tests/drive/itemviewhands.h"

class PdfSetModel;
class Walk;

class StatementWalk
{
public:
    /// The convert setting dialog is in front.
    explicit StatementWalk(Walk &walk);

    bool build(const StatementSetting &plan);

private:
    bool fillTexts(const StatementSetting &plan);
    bool buildField(int number, const StatementField &plan);
    bool addRules(int number, const QStringList &rules);

    /// What a field holds now. For the window's thread.
    StatementField field(int number) const;

    Walk &m_walk;
    ItemViewHands m_cells;
    const PdfSetModel *m_model;
};
