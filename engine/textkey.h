// Texts as keys: order and hash.
#pragma once

#include <QStringView>
#include <cstring>
#include <functional>
#include <string_view>

/// Negative, zero or positive, as `a` comes before, equals or comes after `b`. Shorter texts come
/// first, so that running numbers rise with and without leading zeros; among texts of one length
/// any fixed order does, and that of their bytes is the cheapest.
inline int compareTexts(QStringView a, QStringView b)
{
    if (a.size() != b.size())
        return a.size() < b.size() ? -1 : 1;
    if (a.isEmpty())
        return 0;
    return std::memcmp(a.data(), b.data(), size_t(a.size()) * sizeof(QChar));
}

inline uint textHash(QStringView text)
{
    return uint(std::hash<std::u16string_view>()(
        std::u16string_view(reinterpret_cast<const char16_t *>(text.data()), size_t(text.size()))));
}
