#include "FoundationClasses/Core/Kernel/FcPropertySetDefinition.h"
#include "FoundationClasses/Localize.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"

namespace qev::fc::ui::propertyinterface {

using core::kernel::FcPropertySetDefinition;

namespace {

/// The id by which a set is asked for the texts of its heading.
constexpr char setHeading[] = "PropertySetDefinitionPsets";

} // namespace

bool GetProperties::visit(FcPropertySetDefinition const& set)
{
    auto const& setName = set.Name.get();
    if (!setName)
        return false;
    auto group = makeGroup(*setName, set);
    group->mappedId = object::PropertyId(setHeading);
    properties.push_back(std::move(group));
    return false;
}

bool GetPropertyName::visit(FcPropertySetDefinition const& set)
{
    if (id.text() != setHeading)
        return true;
    if (auto const& key = set.Name.get())
        name = localize(*key);
    return false;
}

bool GetPropertyDescription::visit(FcPropertySetDefinition const& set)
{
    if (id.text() != setHeading)
        return true;
    if (auto const& key = set.Name.get())
        description = localize(*key + "_Description");
    return false;
}

} // namespace qev::fc::ui::propertyinterface
