#pragma once

#include "FoundationClasses/ForwardDeclarations.h"
#include "FoundationClasses/Resource/Measure/FcValue.h"
#include "HostIfcModelExport.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace qev::ifc::def::pset {
class PropertyDef;
}

namespace qev::ifc {

/// Gives \p value the type that \p definition requires.
///
/// A number or text goes over where the new type can hold it; otherwise, and for the empty value, the new
/// value is the type's default (0, false, the empty text). A value of the right type stays as it is, and so
/// does any value where the definition names no single type: references, tables, complex properties.
HOSTIFCMODEL_EXPORT void setCorrectValueType(def::pset::PropertyDef const& definition,
                                             fc::resource::measure::FcValue& value);

/// The values that the property may take, as texts without blanks at their ends: those of the enumeration it
/// refers to, else those of its definition. Empty when neither says any.
[[nodiscard]] HOSTIFCMODEL_EXPORT std::vector<std::string>
getPossibleEnumValues(fc::resource::property::FcPropertyEnumeratedValue const& property);

/// A new row for the table: a defining and a defined value, each the default of its type.
///
/// A column has the type of the values in it, an empty one that of the property's definition. Nothing when
/// one of the types is not known.
[[nodiscard]] HOSTIFCMODEL_EXPORT
    std::optional<std::pair<fc::resource::measure::FcValue, fc::resource::measure::FcValue>>
    createTableValue(fc::resource::property::FcPropertyTableValue const& property);

/// Appends a value to the list: the default of the type that the values have, in an empty list of the type
/// that the property's definition says. False, and no change, when that is not known.
HOSTIFCMODEL_EXPORT bool addListValue(fc::resource::property::FcPropertyListValue& property);

} // namespace qev::ifc
