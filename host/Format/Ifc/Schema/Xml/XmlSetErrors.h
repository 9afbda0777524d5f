#pragma once

#include <string>
#include <vector>

namespace qev::ifc::def::xml {

/// What does not fit together in definitions, collected by `checkForErrors`.
struct XmlSetErrors
{
    struct Entry
    {
        /// The set, or set and entry, "Pset_WallCommon.Status".
        std::string place;
        std::string message;
    };

    std::vector<Entry> entries;
    /// Where `TypeBase::checkForErrors` puts what it finds; the sets and entries keep it up to date.
    std::string place;

    void add(std::string message) { entries.push_back({place, std::move(message)}); }
};

} // namespace qev::ifc::def::xml
