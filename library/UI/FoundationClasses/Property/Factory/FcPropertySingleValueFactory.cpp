#include "UI/FoundationClasses/Property/Factory/FcPropertySingleValueFactory.h"

#include "Core/Assert/Assert.h"
#include "Format/Ifc/Schema/Pset/PropertyDef.h"
#include "Format/Ifc/Schema/Pset/TypePropertySingleValue.h"
#include "UI/FoundationClasses/Property/Types/FcPropertyLogicalType.h"
#include "UI/FoundationClasses/Property/Types/FcPropertySingleValueWithBooleanToggle.h"

namespace qev::fc::ui {

namespace {

/// Empty for a definition that is not of a single value.
std::string valueTypeOf(ifc::def::pset::PropertyDef const& definition)
{
    using SingleType = ifc::def::pset::TypePropertySingleValue;
    auto const* const type = dynamic_cast<SingleType const*>(definition.propertyType.get());
    return type ? type->valueType : std::string();
}

} // namespace

std::unique_ptr<PropertyInterface>
FcPropertySingleValueFactory::create(ifc::def::pset::PropertyDef& definition, PropertySet& set,
                                     std::vector<std::string> const& contexts)
{
    auto const valueType = valueTypeOf(definition);
    if (valueType == "IfcBoolean")
        return std::make_unique<FcPropertyBooleanType>(definition, set, contexts);
    auto value = std::make_unique<FcPropertySingleValue>(definition, set, contexts);
    if (valueType == "IfcLogical")
        return std::make_unique<FcPropertyLogicalType>(std::move(value));
    return value;
}

std::unique_ptr<PropertyInterface> FcPropertySingleValueFactory::createWithToggleProperty(
    ifc::def::pset::PropertyDef& valueDefinition, ifc::def::pset::PropertyDef& toggleDefinition,
    PropertySet& set, std::vector<std::string> const& contexts)
{
    if (valueTypeOf(toggleDefinition) == "IfcBoolean")
        return std::make_unique<FcPropertySingleValueWithBooleanToggle>(valueDefinition, toggleDefinition,
                                                                        set, contexts);
    assert::report("Toggle property must be an IfcBoolean property.",
                   "qev::fc::ui::FcPropertySingleValueFactory::createWithToggleProperty",
                   "UI/FoundationClasses/Property/Factory/FcPropertySingleValueFactory");
    return nullptr;
}

} // namespace qev::fc::ui
