#pragma once

#include "reference-reader/ReferenceProperty.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace qev::test::reference {

/// A set of properties or of quantities.
struct ReferenceSet
{
    enum class Kind
    {
        Properties,
        Quantities,
        Predefined
    };

    std::uint64_t id = 0;
    Kind kind = Kind::Properties;
    std::string keyword;
    std::string globalId;
    std::optional<std::string> name;

    /// In the order of the file. A predefined set (a door's lining) has none: its attributes are its content.
    std::vector<ReferenceProperty> properties;
};

} // namespace qev::test::reference
