#pragma once

#include "FoundationClasses/ForwardDeclarations.h"
#include "HostIfcModelExport.h"

#include <optional>
#include <string>
#include <utility>

namespace qev::ifc::def::xml {
class Def;
}

namespace qev::ifc {

/// The definition of a property, by the names of its set and of itself: null when its set or its name is not
/// defined. A member of a complex property has none of its own. Owned by the schema.
[[nodiscard]] HOSTIFCMODEL_EXPORT def::xml::Def const*
findSchemaDefForProperty(fc::resource::property::FcProperty const& property);

/// The name of the first named set that has the property, and the property's own.
///
/// The properties of a material or profile count as a set. Nothing for a property that is in no named set:
/// one that stands alone, or inside a complex property.
[[nodiscard]] HOSTIFCMODEL_EXPORT std::optional<std::pair<std::string, std::string>>
getPsetAndPropertyName(fc::resource::property::FcProperty const& property);

/// Tells whether the set holds every entry of its definition. True as well for a set without a definition,
/// and for one whose definition is of the other kind: there is nothing that could be added.
[[nodiscard]] HOSTIFCMODEL_EXPORT bool hasAllProperties(fc::core::kernel::FcPropertySetDefinition const& set);

} // namespace qev::ifc
