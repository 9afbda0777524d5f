#pragma once

#include "Format/Ifc/Schema/Xml/SetDef.h"

namespace qev::ifc::def {

/// Takes over into \p known the descriptions and texts in other languages that \p other has: those of the
/// set, of entries with the same name and of enumeration values both have. Where both have a text, that of \p
/// other wins. Nothing else changes.
void mergeTexts(xml::SetDef& known, xml::SetDef const& other);

} // namespace qev::ifc::def
