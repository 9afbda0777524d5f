#pragma once

#include "Format/Ifc/Schema/Schema.h"
#include "Format/Ifc/Schema/Xml/XmlSetErrors.h"

namespace qev::ifc::def::pset {

/// True when \p schema has a type of that name; otherwise an entry is added to \p errors.
bool checkValueType(std::string_view valueType, schema::Schema const& schema, xml::XmlSetErrors& errors);

} // namespace qev::ifc::def::pset
