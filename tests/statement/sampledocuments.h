// Statements to look at and to measure: an ordinary order and what strains a page.
#pragma once

#include "statement/statementdocument.h"

/// Every field printed, full company data, one order of this many lines.
StatementDocument orderOfLines(int lines);
/// Names, address, options and texts far longer than their places.
StatementDocument longTexts();
/// As orderOfLines(5), but for a shop that has not entered its company information.
StatementDocument emptyCompany();
/// No field and no company line is printed.
StatementDocument nothingPrinted();
/// Only the eight amounts are printed.
StatementDocument onlyAmounts();
/// A Japanese order with cash on delivery, coupon and points.
StatementDocument japaneseOrder();
