#include "UI/FoundationClasses/PropertyInterface/PropertySetsRow.h"

#include "FoundationClasses/Core/Kernel/FcObjectDefinition.h"
#include "FoundationClasses/Core/Kernel/FcPropertySetDefinition.h"
#include "FoundationClasses/Localize.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"
#include "UI/FoundationClasses/PsetSorting.h"

#include <algorithm>

namespace qev::fc::ui::propertyinterface {

using core::kernel::FcPropertySetDefinition;

std::shared_ptr<Property> makePropertySetsRow(core::kernel::FcObjectDefinition const& object,
                                              std::vector<std::shared_ptr<FcBase>> const& sets)
{
    std::vector<std::shared_ptr<FcPropertySetDefinition const>> sorted;
    for (auto const& set : sets) {
        if (auto definition = entityCast<FcPropertySetDefinition>(set))
            sorted.push_back(std::move(definition));
    }
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](auto const& a, auto const& b) { return psetCompareLess(a, b); });
    auto row = makeGroup(propertySetsId, object);
    for (auto const& set : sorted)
        appendPropertiesOf(set, *row);
    return row;
}

std::string propertySetsName()
{
    return localizeWithFallback("Property-Quantity-sets", "Property/Quantity sets");
}

std::string propertySetsDescription()
{
    return localizeWithFallback("Property-Quantity-sets_Description", "Property sets and quantity sets");
}

} // namespace qev::fc::ui::propertyinterface
