// Code page 932, one character at a time.
#pragma once

#include <QChar>

namespace Cp932 {

/// The one or two bytes of a character in one number; 0 for a character that the code page cannot
/// hold (and for U+0000).
quint16 encode(QChar character);

/// The character of a one- or two-byte code; 0xA0, which the code page leaves free, is U+00A0.
QChar decode(quint16 code);

/// Whether a byte begins a double-byte character.
bool isLeadByte(uint byte);

} // namespace Cp932
