// The plain texts of a statement page.
#pragma once

#include "settings/companyinfo.h"
#include "statement/statementdata.h"

/// The shop's own block: names and site, address, ways to reach it, as far as they are printed. A
/// value that was never entered leaves its line, or its label, empty.
QString companyText(const CompanyInfo &company, const CompanyFlags &printed);

/// The block that shows in the window of an envelope: post code, address, name.
QString customerText(const StatementRecord &record, const StatementFlags &printed);
