#pragma once

#include <string>

namespace qev::ifc::def::xml {

/// What an exported definition carries beside its own contents.
struct ExtraExportInfo
{
    /// The version of the standard to name, "IFC4X3"; empty leaves the element out.
    std::string ifcVersion;
};

} // namespace qev::ifc::def::xml
