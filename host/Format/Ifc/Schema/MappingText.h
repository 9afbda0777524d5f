#pragma once

#include "Format/Ifc/Schema/ClassMapping.h"
#include "Format/Ifc/Schema/TextError.h"

#include <map>
#include <unordered_map>

namespace qev::ifc {

/// What the classes and attributes of one version are called in the model, where that differs.
struct MappingTable
{
    struct NearestClass
    {
        /// Empty when the model has no counterpart.
        std::string_view name;
        ClassMapping::Grade grade = ClassMapping::Grade::None;
    };

    /// By the class name of the version.
    std::unordered_map<std::string_view, NearestClass> nearestClasses;
    /// By the class that has the attribute: old attribute name, new attribute name.
    std::unordered_map<std::string_view, std::map<std::string_view, std::string_view>> renamedAttributes;
    std::vector<def::TextError> errors;
};

/// Reads a table in the notation of `data/README.md`. The table refers to \p text, which has to outlive it.
[[nodiscard]] MappingTable parseMapping(std::string_view text);

} // namespace qev::ifc
