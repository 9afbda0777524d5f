#include "Format/Ifc/Schema/KeywordIndex.h"

#include <bit>
#include <cstring>

namespace qev::ifc {

namespace {

template <class Word>
std::uint64_t load(char const* bytes)
{
    Word word = 0;
    std::memcpy(&word, bytes, sizeof(Word));
    return word;
}

// Both ends of the keyword and its length. Keywords begin alike, so that the end counts as much as the start.
std::size_t hashOf(std::string_view keyword)
{
    char const* const first = keyword.data();
    char const* const last = first + keyword.size();
    std::uint64_t start = 0;
    std::uint64_t end = 0;
    if (keyword.size() >= 8) {
        start = load<std::uint64_t>(first);
        end = load<std::uint64_t>(last - 8);
    } else if (keyword.size() >= 4) {
        start = load<std::uint32_t>(first);
        end = load<std::uint32_t>(last - 4);
    } else if (!keyword.empty()) {
        start = load<std::uint8_t>(first);
        end = load<std::uint8_t>(last - 1);
    }
    std::uint64_t hash = (start ^ (std::uint64_t(keyword.size()) << 56U)) * 0x9E3779B97F4A7C15U;
    hash = (hash ^ (hash >> 32U) ^ end) * 0xD6E8FEB86659FD93U;
    return static_cast<std::size_t>(hash >> 32U);
}

std::uint16_t tagOf(std::size_t hash) { return static_cast<std::uint16_t>(hash >> 16U); }

} // namespace

KeywordIndex::KeywordIndex(std::size_t count)
    : m_cells(std::bit_ceil(4 * count + 1))
    , m_mask(m_cells.size() - 1)
{
}

bool KeywordIndex::add(std::string_view keyword, std::uint16_t position)
{
    if (find(keyword) != notFound)
        return false;
    std::size_t const hash = hashOf(keyword);
    std::size_t place = hash & m_mask;
    while (m_cells[place].position != notFound)
        place = (place + 1) & m_mask;
    m_cells[place] = {tagOf(hash), position};
    if (m_keywords.size() <= position)
        m_keywords.resize(position + 1U);
    m_keywords[position] = keyword;
    return true;
}

std::uint16_t KeywordIndex::find(std::string_view keyword) const
{
    std::size_t const hash = hashOf(keyword);
    std::uint16_t const tag = tagOf(hash);
    std::size_t place = hash & m_mask;
    while (m_cells[place].position != notFound) {
        Cell const& cell = m_cells[place];
        if (cell.tag == tag && m_keywords[cell.position] == keyword)
            return cell.position;
        place = (place + 1) & m_mask;
    }
    return notFound;
}

} // namespace qev::ifc
