// The statement records of a run: one for each output row, made of the same input rows.
#pragma once

#include "statement/statementdata.h"

class OutputRows;
class Table;

/// Builds the records of all output rows that are left and computes their missing amounts. `table`
/// is the one that the rows were made of. A row that was merged into another one gives its record
/// one more product line.
StatementData buildStatementRecords(const StatementSetting &setting, const Table &table,
                                    const OutputRows &rows);
