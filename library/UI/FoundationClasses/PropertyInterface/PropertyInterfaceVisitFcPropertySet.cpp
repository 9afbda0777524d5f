#include "FoundationClasses/Core/Kernel/FcPropertySet.h"
#include "FoundationClasses/Resource/Property/FcProperty.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"
#include "UI/FoundationClasses/PsetSorting.h"

#include <algorithm>

namespace qev::fc::ui::propertyinterface {

using core::kernel::FcPropertySet;

bool GetProperties::visit(FcPropertySet const& set)
{
    set.FcPropertySetDefinition::accept(*this);
    auto const group = groupOf(*this);
    if (!group)
        return false;
    auto members = set.HasProperties.getProperties();
    std::stable_sort(members.begin(), members.end(), PropertyCompareLess(set));
    for (auto const& member : members)
        appendPropertiesOf(member, *group);
    if (members.empty())
        group->children.push_back(makeRow(emptyPropertyId, set));
    return false;
}

bool GetPropertyName::visit(FcPropertySet const&)
{
    if (id.text() != emptyPropertyId)
        return true;
    name = "Empty property set";
    return false;
}

} // namespace qev::fc::ui::propertyinterface
