// Searches that only the reader and the rows it makes need: whole lines, and fields of a text that
// has spare units behind its end.
#pragma once

#include "rules/unitscan.h"

namespace UnitScan {

/// How many units a text must have behind its end for findPadded().
constexpr int padding = 8;

/// As find(), for a text with `padding` readable units behind `end`.
inline const char16_t *findPadded(const char16_t *position, const char16_t *end, char16_t unit)
{
#ifdef QUORIN_SCAN_SSE2
    const __m128i wanted = _mm_set1_epi16(short(unit));
    for (; position < end; position += 8) {
        const __m128i units = _mm_loadu_si128(reinterpret_cast<const __m128i *>(position));
        const uint mask = uint(_mm_movemask_epi8(_mm_cmpeq_epi16(units, wanted)));
        if (mask != 0) {
            position += qCountTrailingZeroBits(mask) / 2;
            break;
        }
    }
    return position < end ? position : end;
#else
    return find(position, end, unit);
#endif
}

/// What a line holds.
struct Line {
    const char16_t *end; ///< at its line feed, or at the end of the text without one
    qint64 commas;
    bool hasQuote;
};

/// Scans the line that begins at `position`.
inline Line scanLine(const char16_t *position, const char16_t *end)
{
    Line line{end, 0, false};
#ifdef QUORIN_SCAN_SSE2
    const __m128i lineFeeds = _mm_set1_epi16(u'\n');
    const __m128i commas = _mm_set1_epi16(u',');
    const __m128i quotes = _mm_set1_epi16(u'"');
    for (; end - position >= 8; position += 8) {
        const __m128i units = _mm_loadu_si128(reinterpret_cast<const __m128i *>(position));
        uint commaMask = uint(_mm_movemask_epi8(_mm_cmpeq_epi16(units, commas)));
        uint quoteMask = uint(_mm_movemask_epi8(_mm_cmpeq_epi16(units, quotes)));
        const uint lineFeedMask = uint(_mm_movemask_epi8(_mm_cmpeq_epi16(units, lineFeeds)));
        if (lineFeedMask != 0) {
            const uint before = (lineFeedMask & (0u - lineFeedMask)) - 1;
            commaMask &= before;
            quoteMask &= before;
        }
        for (commaMask &= 0x5555; commaMask != 0; commaMask &= commaMask - 1)
            ++line.commas;
        line.hasQuote |= quoteMask != 0;
        if (lineFeedMask != 0) {
            line.end = position + qCountTrailingZeroBits(lineFeedMask) / 2;
            return line;
        }
    }
#endif
    for (; position < end && *position != u'\n'; ++position) {
        line.commas += *position == u',';
        line.hasQuote |= *position == u'"';
    }
    line.end = position;
    return line;
}

} // namespace UnitScan
