#include "UI/FoundationClasses/Property/Factory/FcPropertyValueFactory.h"

#include "Core/Assert/Assert.h"
#include "Format/Ifc/Schema/Pset/PropertyDef.h"
#include "UI/FoundationClasses/Property/Factory/FcPropertySingleValueFactory.h"
#include "UI/FoundationClasses/Property/Types/FcPropertyBoundedValue.h"
#include "UI/FoundationClasses/Property/Types/FcPropertyEnumeratedValue.h"
#include "UI/FoundationClasses/Property/Types/FcPropertyListValue.h"

#include <string_view>

namespace qev::fc::ui {

namespace {

constexpr char path[] = "UI/FoundationClasses/Property/Factory/FcPropertyValueFactory";

constexpr unsigned int brokenRule = 0;
constexpr unsigned int notImplemented = 1;

/// Empty for a definition that says nothing of the value.
std::string entityNameOf(ifc::def::pset::PropertyDef const& definition)
{
    return definition.propertyType ? definition.propertyType->sEntityName() : std::string();
}

void reportNotImplemented(std::string_view entityName, unsigned int kind)
{
    assert::report(std::string(entityName) + " not implemented.",
                   "qev::fc::ui::FcPropertyValueFactory::create", path, kind);
}

} // namespace

std::unique_ptr<PropertyInterface> FcPropertyValueFactory::create(ifc::def::pset::PropertyDef& definition,
                                                                  PropertySet& set,
                                                                  std::vector<std::string> const& contexts)
{
    auto const entityName = entityNameOf(definition);
    if (entityName == "IfcPropertySingleValue")
        return FcPropertySingleValueFactory::create(definition, set, contexts);
    if (entityName == "IfcPropertyEnumeratedValue")
        return std::make_unique<FcPropertyEnumeratedValue>(definition, set, contexts);
    if (entityName == "IfcPropertyBoundedValue")
        return std::make_unique<FcPropertyBoundedValue>(definition, set, contexts);
    if (entityName == "IfcPropertyListValue")
        return std::make_unique<FcPropertyListValue>(definition, set, contexts);
    if (entityName == "IfcPropertyReferenceValue" || entityName == "IfcPropertyTableValue")
        reportNotImplemented(entityName, notImplemented);
    if (entityName == "IfcComplexProperty")
        reportNotImplemented(entityName, brokenRule);
    return nullptr;
}

std::unique_ptr<PropertyInterface>
FcPropertyValueFactory::createWithToggleProperty(ifc::def::pset::PropertyDef& valueDefinition,
                                                 ifc::def::pset::PropertyDef& toggleDefinition,
                                                 PropertySet& set, std::vector<std::string> const& contexts)
{
    if (entityNameOf(valueDefinition) == "IfcPropertySingleValue")
        return FcPropertySingleValueFactory::createWithToggleProperty(valueDefinition, toggleDefinition, set,
                                                                      contexts);
    assert::report("Only single value properties support being accompanied by a boolean toggle property.",
                   "qev::fc::ui::FcPropertyValueFactory::createWithToggleProperty", path);
    return nullptr;
}

} // namespace qev::fc::ui
