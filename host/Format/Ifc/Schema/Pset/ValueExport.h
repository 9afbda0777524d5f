#pragma once

#include "Format/Ifc/Schema/Xml/Element.h"

#include <string>
#include <vector>

namespace qev::ifc::def::pset {

/// Appends the type of values and, where there is one, their unit.
void exportDataType(qev::xml::Element& parent, std::string const& type, std::string const& unit);

/// Appends a list of values; nothing when there are none.
void exportValues(qev::xml::Element& parent, std::vector<std::string> const& values);

} // namespace qev::ifc::def::pset
