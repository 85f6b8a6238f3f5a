// Searches for single code units in text, eight at a time where the processor can.
#pragma once

#include <QStringView>
#include <cstring>

#if defined(__SSE2__) || defined(_M_X64)
#define QUORIN_SCAN_SSE2
#include <QtAlgorithms>
#include <emmintrin.h>
#endif

namespace UnitScan {

/// The first unit of [position, end) that equals `unit`; `end` without one.
inline const char16_t *find(const char16_t *position, const char16_t *end, char16_t unit)
{
#ifdef QUORIN_SCAN_SSE2
    const __m128i wanted = _mm_set1_epi16(short(unit));
    for (; end - position >= 8; position += 8) {
        const __m128i units = _mm_loadu_si128(reinterpret_cast<const __m128i *>(position));
        const uint mask = uint(_mm_movemask_epi8(_mm_cmpeq_epi16(units, wanted)));
        if (mask != 0)
            return position + qCountTrailingZeroBits(mask) / 2;
    }
#endif
    while (position < end && *position != unit)
        ++position;
    return position;
}

/// Where `part`, which is not empty, begins in `text` at `from` or behind it; -1 where it does not.
inline qsizetype indexOf(QStringView text, QStringView part, qsizetype from)
{
    const auto *begin = reinterpret_cast<const char16_t *>(text.data());
    const auto *wanted = reinterpret_cast<const char16_t *>(part.data());
    const char16_t *end = begin + text.size();
    const qsizetype rest = part.size() - 1;
    for (const char16_t *position = begin + from; end - position > rest; ++position) {
        position = find(position, end - rest, *wanted);
        if (position == end - rest)
            return -1;
        if (std::memcmp(position, wanted, size_t(part.size()) * sizeof(char16_t)) == 0)
            return position - begin;
    }
    return -1;
}

} // namespace UnitScan
