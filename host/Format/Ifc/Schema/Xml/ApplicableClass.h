#pragma once

#include <string>

namespace qev::ifc::def::xml {

/// A class that a set applies to, subclasses included.
struct ApplicableClass
{
    std::string className;
    /// Restricts the set to objects of this predefined type; empty for all.
    std::string predefinedType;

    bool operator==(ApplicableClass const&) const = default;
};

} // namespace qev::ifc::def::xml
