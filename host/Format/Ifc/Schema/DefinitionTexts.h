#pragma once

#include "HostIfcSchemaExport.h"

#include <string>

namespace qev::localization {
class LocalizationAdmin;
}

namespace qev::ifc::def {

class SchemaPropertySetDefinitions;

/// Hands the names and descriptions of \p definitions in all their languages to the dictionaries, under the
/// keys by which sets and properties are looked up. Descriptions without a language count as English.
HOSTIFCSCHEMA_EXPORT void addTexts(SchemaPropertySetDefinitions const& definitions,
                                   std::string const& context, localization::LocalizationAdmin& dictionaries);

} // namespace qev::ifc::def
