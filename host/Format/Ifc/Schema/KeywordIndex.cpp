#include "Format/Ifc/Schema/KeywordIndex.h"

#include <bit>
#include <cstring>

namespace qev::ifc {

namespace {

std::uint64_t load(char const* bytes, std::size_t count)
{
    std::uint64_t word = 0;
    std::memcpy(&word, bytes, count);
    return word;
}

// Both ends of the keyword and its length. Keywords begin alike, so that the end counts as much as the start.
std::size_t hashOf(std::string_view keyword)
{
    if (keyword.empty())
        return 0;
    constexpr std::size_t wordSize = sizeof(std::uint64_t);
    std::size_t const count = keyword.size() < wordSize ? keyword.size() : wordSize;
    std::uint64_t const start = load(keyword.data(), count);
    std::uint64_t const end = load(keyword.data() + keyword.size() - count, count);
    std::uint64_t hash = (start ^ (keyword.size() << 56U)) * 0x9E3779B97F4A7C15U;
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
