// Letters that come in pieces, made whole.
#pragma once

#include <QString>

/// Some systems write a syllable or an accented letter as several characters. Statement pages are
/// printed without putting such pieces together, so they are composed here. Everything else stays
/// as it is, also where Unicode knows another character for the same thing: names are written with
/// the one or with the other.
QString composed(const QString &text);
