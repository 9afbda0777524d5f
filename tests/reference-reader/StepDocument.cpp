#include "reference-reader/StepDocument.h"

#include "reference-reader/StepParser.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace qev::test::reference {

StepDocument StepDocument::fromText(std::string_view text) { return StepParser(text).parse(); }

StepDocument StepDocument::fromFile(std::string const& path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file)
        throw std::runtime_error("cannot read " + path);
    std::string const text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    return fromText(text);
}

StepRecord const* StepDocument::find(std::uint64_t id) const
{
    auto const found = m_positions.find(id);
    return found == m_positions.end() ? nullptr : &m_records[found->second];
}

} // namespace qev::test::reference
