#include "FoundationClasses/Core/Kernel/FcTypeObject.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"
#include "UI/FoundationClasses/PropertyInterface/PropertySetsRow.h"

namespace qev::fc::ui::propertyinterface {

using core::kernel::FcTypeObject;

bool GetProperties::visit(FcTypeObject const& type)
{
    type.FcObjectDefinition::accept(*this);
    if (auto const group = groupOf(*this))
        group->children.push_back(makePropertySetsRow(type, type.attachedSets()));
    return false;
}

bool GetPropertyName::visit(FcTypeObject const&)
{
    if (id.text() != propertySetsId)
        return true;
    name = propertySetsName();
    return false;
}

bool GetPropertyDescription::visit(FcTypeObject const&)
{
    if (id.text() != propertySetsId)
        return true;
    description = propertySetsDescription();
    return false;
}

} // namespace qev::fc::ui::propertyinterface
