// The pages of a statement in words.
#pragma once

#include <QString>

struct StatementDocument;

/// What the pages say, to be read and compared line by line.
QString pagesAsText(const StatementDocument &document);
