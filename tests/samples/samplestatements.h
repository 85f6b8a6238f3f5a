// The purchase statements of the sample settings.
#pragma once

#include "statement/statementsetting.h"

/// `heads` is the combined item list of the setting; the fields name their columns by it.
StatementSetting koreanStatement(const QStringList &heads);
StatementSetting japaneseStatement(const QStringList &heads);
