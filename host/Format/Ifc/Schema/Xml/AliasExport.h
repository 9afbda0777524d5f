#pragma once

#include "Format/Ifc/Schema/Xml/Aliases.h"
#include "Format/Ifc/Schema/Xml/Element.h"

namespace qev::ifc::def::xml {

/// Appends an element \p listName with one \p itemName for each language.
void exportAliases(Aliases const& aliases, qev::xml::Element& parent, std::string_view listName,
                   std::string_view itemName);

} // namespace qev::ifc::def::xml
