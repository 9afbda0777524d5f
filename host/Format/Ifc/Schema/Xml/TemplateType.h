#pragma once

#include "HostIfcSchemaExport.h"

#include <string_view>

namespace qev::ifc::def::xml {

/// Whether a set belongs to types, to occurrences or to both. The numbers are fixed.
enum class TemplateType : unsigned int
{
    PsetTypeDrivenOnly = 0,
    PsetTypeDrivenOverride = 1,
    PsetOccurrenceDriven = 2,
    PsetPerformanceDriven = 3,
    QtoTypeDrivenOnly = 4,
    QtoTypeDrivenOverride = 5,
    QtoOccurrenceDriven = 6,
    NotDefined = 7
};

/// The template type of a name such as "PSET_TYPEDRIVENOVERRIDE". A name without a number of its own,
/// for example "PSET_MATERIALDRIVEN", gives `NotDefined`.
HOSTIFCSCHEMA_EXPORT TemplateType templateTypeFromName(std::string_view name);

} // namespace qev::ifc::def::xml
