#include "FoundationClasses/Core/Kernel/FcObject.h"
#include "FoundationClasses/Core/Kernel/FcTypeObject.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/GetReference.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"
#include "UI/FoundationClasses/PropertyInterface/PropertySetsRow.h"

namespace qev::fc::ui::propertyinterface {

using core::kernel::FcObject;

namespace {

constexpr std::string_view isTypedBy = "IsTypedBy";

} // namespace

bool GetProperties::visit(FcObject const& object)
{
    object.FcObjectDefinition::accept(*this);
    auto const group = groupOf(*this);
    if (!group)
        return false;
    if (object.getTypeObject())
        group->children.insert(group->children.begin(), makeRow(isTypedBy, object));
    group->children.push_back(makePropertySetsRow(object, object.attachedSets()));
    return false;
}

bool GetValue::visit(FcObject const& object)
{
    if (id.text() != isTypedBy)
        return true;
    auto const type = object.getTypeObject();
    value = type ? type->getEntityName() : "";
    return false;
}

bool GetReference::visit(FcObject const& object)
{
    if (id.text() != isTypedBy)
        return true;
    if (auto type = object.getTypeObject())
        reference = std::move(type);
    return false;
}

bool GetPropertyName::visit(FcObject const&)
{
    if (id.text() != propertySetsId)
        return true;
    name = propertySetsName();
    return false;
}

bool GetPropertyDescription::visit(FcObject const&)
{
    if (id.text() != propertySetsId)
        return true;
    description = propertySetsDescription();
    return false;
}

} // namespace qev::fc::ui::propertyinterface
