#include "Format/Ifc/Step/StepKeywordTable.h"

#include "Core/String/Ascii.h"

#include <algorithm>
#include <cstring>

#if defined(__SSE2__) || defined(_M_X64)
#define QEV_STEP_SSE2 1
#include <emmintrin.h>
#endif

namespace qev::step {

namespace {

std::uint64_t wordAt(char const* bytes)
{
    std::uint64_t word = 0;
    std::memcpy(&word, bytes, sizeof(word));
    return word;
}

/// Mixes length, first, middle and last eight bytes; a word at each place tells schema keywords apart well.
std::uint64_t hashOf(char const* keyword, std::size_t length)
{
    constexpr std::uint64_t factor = 0x9e3779b97f4a7c15U;
    std::uint64_t first = 0;
    std::uint64_t middle = 0;
    std::uint64_t last = 0;
    if (length >= 8) {
        first = wordAt(keyword);
        middle = wordAt(keyword + (length - 8) / 2);
        last = wordAt(keyword + length - 8);
    } else {
        std::memcpy(&first, keyword, length);
    }
    std::uint64_t const a = (first ^ length) * factor;
    std::uint64_t const b = (middle + last * 3) * (factor ^ 0x55555555U);
    std::uint64_t const mixed = (a ^ (b >> 7)) * factor;
    return mixed ^ (mixed >> 29);
}

std::uint16_t tagOf(std::uint64_t hash) { return static_cast<std::uint16_t>(hash >> 48); }

/// Both places have 64 readable bytes.
bool equalBytes(char const* a, char const* b, std::size_t length)
{
#if defined(QEV_STEP_SSE2)
    std::uint64_t equal = 0;
    for (unsigned int at = 0; at < 64; at += 16) {
        __m128i const left = _mm_loadu_si128(reinterpret_cast<__m128i const*>(a + at));
        __m128i const right = _mm_loadu_si128(reinterpret_cast<__m128i const*>(b + at));
        equal |= std::uint64_t{static_cast<std::uint32_t>(_mm_movemask_epi8(_mm_cmpeq_epi8(left, right)))}
                 << at;
    }
    std::uint64_t const wanted = (std::uint64_t{1} << length) - 1;
    return (equal & wanted) == wanted;
#else
    return std::memcmp(a, b, length) == 0;
#endif
}

} // namespace

StepKeywordTable::StepKeywordTable()
    : m_slots(64)
{
}

void StepKeywordTable::add(std::string_view keyword, ClassNumber number)
{
    if (keyword.empty() || keyword.size() > inlineLength)
        return;
    Entry entry;
    std::transform(keyword.begin(), keyword.end(), entry.bytes.begin(),
                   [](char c) { return str::toUpper(c); });
    entry.length = static_cast<std::uint32_t>(keyword.size());
    entry.number = number;
    m_classCount = std::max<std::size_t>(m_classCount, std::size_t{number} + 1);
    std::size_t const slot = slotOf(entry.bytes.data(), entry.length);
    if (m_slots[slot].entry != 0) {
        m_entries[m_slots[slot].entry - 1U].number = number;
        return;
    }
    if (m_entries.size() >= 0xfffe)
        return;
    m_entries.push_back(entry);
    m_slots[slot] = {tagOf(hashOf(entry.bytes.data(), entry.length)),
                     static_cast<std::uint16_t>(m_entries.size())};
    if (m_entries.size() * 4 > m_slots.size())
        grow();
}

void StepKeywordTable::grow()
{
    m_slots.assign(m_slots.size() * 4, Slot());
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        Entry const& entry = m_entries[i];
        m_slots[slotOf(entry.bytes.data(), entry.length)] = {tagOf(hashOf(entry.bytes.data(), entry.length)),
                                                             static_cast<std::uint16_t>(i + 1)};
    }
}

std::size_t StepKeywordTable::slotOf(char const* keyword, std::size_t length) const
{
    std::uint64_t const hash = hashOf(keyword, length);
    std::size_t const mask = m_slots.size() - 1;
    std::uint16_t const tag = tagOf(hash);
    auto slot = static_cast<std::size_t>(hash) & mask;
    while (m_slots[slot].entry != 0) {
        if (m_slots[slot].tag == tag) {
            Entry const& entry = m_entries[m_slots[slot].entry - 1U];
            if (entry.length == length && equalBytes(entry.bytes.data(), keyword, length))
                break;
        }
        slot = (slot + 1) & mask;
    }
    return slot;
}

StepKeywordTable::ClassNumber StepKeywordTable::findInBuffer(char const* keyword, std::size_t length) const
{
    if (length == 0 || length > inlineLength)
        return unknown;
    std::uint16_t const found = m_slots[slotOf(keyword, length)].entry;
    return found == 0 ? unknown : m_entries[found - 1U].number;
}

StepKeywordTable::ClassNumber StepKeywordTable::find(std::string_view keyword) const
{
    if (keyword.size() > inlineLength)
        return unknown;
    std::array<char, inlineLength + 1> buffer = {};
    std::transform(keyword.begin(), keyword.end(), buffer.begin(), [](char c) { return str::toUpper(c); });
    return findInBuffer(buffer.data(), keyword.size());
}

} // namespace qev::step
