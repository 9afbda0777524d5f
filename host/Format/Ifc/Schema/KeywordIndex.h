#pragma once

#include "HostIfcSchemaExport.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace qev::ifc {

/// Finds the position of a keyword in a list. Made for millions of look-ups: a few bytes of the keyword
/// decide where to look, one comparison confirms.
class HOSTIFCSCHEMA_EXPORT KeywordIndex
{
public:
    static constexpr std::uint16_t notFound = 0xFFFF;

    /// Room for \p count keywords.
    explicit KeywordIndex(std::size_t count);

    /// Adds a keyword with its position. The bytes of \p keyword have to outlive the index.
    /// \returns false when it is there already.
    bool add(std::string_view keyword, std::uint16_t position);
    [[nodiscard]] std::uint16_t find(std::string_view keyword) const;

private:
    // Small, so that all cells stay in the nearest cache.
    struct Cell
    {
        std::uint16_t tag = 0;
        std::uint16_t position = notFound;
    };

    std::vector<Cell> m_cells;
    std::size_t m_mask;
    // By position.
    std::vector<std::string_view> m_keywords;
};

} // namespace qev::ifc
