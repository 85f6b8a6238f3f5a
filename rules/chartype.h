// The rule charType: letter case and Japanese character kinds of a value.
#pragma once

#include <QString>

class WorkingText;

/// Converts a value; chosen once by the name of the kind.
using CharTypeConversion = void (*)(WorkingText &value);

/// The conversion to "lowerCase", "upperCase", "fullWidth", "halfWidth", "hirakana" (hiragana,
/// spelt so in stored settings) or "katakana"; null for any other kind. Characters outside code
/// page 932 pass unchanged.
CharTypeConversion charTypeConversion(const QString &kind);
