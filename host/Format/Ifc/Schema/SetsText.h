#pragma once

#include "Format/Ifc/Schema/SchemaPropertySetDefinitions.h"
#include "Format/Ifc/Schema/SchemaPropertySetDefinitionsContext.h"
#include "Format/Ifc/Schema/TextError.h"

namespace qev::ifc::def {

/// The sets of one release, as read from the notation of `data/README.md`.
struct SetsTextResult
{
    /// Carries the release as its name.
    SchemaPropertySetDefinitionsContext context;
    SchemaPropertySetDefinitions definitions;
    /// Lines that were left out, with the reason.
    std::vector<TextError> errors;
};

/// Reads property and quantity sets; what is wrong is left out and told.
[[nodiscard]] HOSTIFCSCHEMA_EXPORT SetsTextResult parseSets(std::string_view text);

} // namespace qev::ifc::def
