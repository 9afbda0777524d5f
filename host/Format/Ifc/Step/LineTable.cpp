#include "Format/Ifc/Step/LineTable.h"

#include <algorithm>

namespace qev::step {

namespace {

/// Ends of lines in a range: LF, and CR where no LF follows.
std::uint64_t countLineEnds(std::string_view text, std::size_t begin, std::size_t end)
{
    std::uint64_t count = 0;
    for (std::size_t i = begin; i < end; ++i)
        count += text[i] == '\n' || (text[i] == '\r' && (i + 1 == text.size() || text[i + 1] != '\n'));
    return count;
}

} // namespace

void LineTable::extendTo(std::string_view text, std::size_t position)
{
    while (m_before.size() <= position / step) {
        std::size_t const begin = (m_before.size() - 1) * step;
        m_before.push_back(m_before.back() + countLineEnds(text, begin, begin + step));
    }
}

std::uint64_t LineTable::lineOf(std::string_view text, std::size_t position)
{
    position = std::min(position, text.size());
    extendTo(text, position);
    std::size_t const before = position / step;
    return 1 + m_before[before] + countLineEnds(text, before * step, position);
}

} // namespace qev::step
