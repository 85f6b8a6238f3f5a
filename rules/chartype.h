// The rule charType: letter case and Japanese character kinds of a value.
#pragma once

#include <QString>

class WorkingText;

/// Converts the value to "lowerCase", "upperCase", "fullWidth", "halfWidth", "hirakana" (hiragana,
/// spelt so in stored settings) or "katakana"; any other kind leaves it as it is. Characters outside
/// code page 932 pass unchanged.
void applyCharType(const QString &kind, WorkingText &value);
