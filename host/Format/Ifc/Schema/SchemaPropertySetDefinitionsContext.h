#pragma once

#include <string>

namespace qev::ifc::def {

/// Where definitions come from.
struct SchemaPropertySetDefinitionsContext
{
    /// The release for those of the standard ("IFC4X3"), else a name the host gave, a company's for example.
    std::string name;
    /// True for the definitions that the program itself holds.
    bool isStandard = false;
};

} // namespace qev::ifc::def
