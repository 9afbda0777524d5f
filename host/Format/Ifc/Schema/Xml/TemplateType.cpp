#include "Format/Ifc/Schema/Xml/TemplateType.h"

#include <algorithm>
#include <array>

namespace qev::ifc::def::xml {

TemplateType templateTypeFromName(std::string_view name)
{
    static constexpr std::array<std::string_view, 7> names{
        "PSET_TYPEDRIVENONLY", "PSET_TYPEDRIVENOVERRIDE", "PSET_OCCURRENCEDRIVEN", "PSET_PERFORMANCEDRIVEN",
        "QTO_TYPEDRIVENONLY",  "QTO_TYPEDRIVENOVERRIDE",  "QTO_OCCURRENCEDRIVEN"};
    auto const position = std::find(names.begin(), names.end(), name) - names.begin();
    return static_cast<TemplateType>(position);
}

} // namespace qev::ifc::def::xml
