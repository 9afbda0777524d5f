#include "UI/FoundationClasses/Set/IfcXmlPropertySetDefFromFcPropertySet.h"

#include "Core/Assert/Assert.h"
#include "Format/Ifc/Schema/Pset/TypePropertyBoundedValue.h"
#include "Format/Ifc/Schema/Pset/TypePropertyEnumeratedValue.h"
#include "Format/Ifc/Schema/Pset/TypePropertyListValue.h"
#include "Format/Ifc/Schema/Pset/TypePropertyTableValue.h"
#include "FoundationClasses/Core/Kernel/FcPropertySet.h"
#include "FoundationClasses/Resource/Measure/FcValue.h"
#include "FoundationClasses/Resource/Property/FcProperty.h"
#include "FoundationClasses/Resource/Property/FcPropertyBoundedValue.h"
#include "FoundationClasses/Resource/Property/FcPropertyEnumeratedValue.h"
#include "FoundationClasses/Resource/Property/FcPropertyListValue.h"
#include "FoundationClasses/Resource/Property/FcPropertyReferenceValue.h"
#include "FoundationClasses/Resource/Property/FcPropertySingleValue.h"
#include "FoundationClasses/Resource/Property/FcPropertyTableValue.h"

#include <string_view>
#include <utility>

namespace qev::fc::ui {

using resource::measure::FcValue;
using resource::property::FcProperty;
using namespace ifc::def::pset;

namespace {

void reportFrom(std::string_view operation, std::string_view text)
{
    assert::report(text, "qev::fc::ui::IfcXmlPropertySetDefFromFcPropertySet::" + std::string(operation),
                   "UI/FoundationClasses/Set/IfcXmlPropertySetDefFromFcPropertySet");
}

template <class Value>
std::string schemaName(Value const& value)
{
    return value.type() == Value::noType() ? std::string()
                                           : "Ifc" + std::string(Value::nameFromEnum(value.type()));
}

std::optional<std::string> valueType(resource::property::FcPropertyBoundedValue const& property)
{
    for (auto const* const value :
         {&property.UpperBoundValue.get(), &property.LowerBoundValue.get(), &property.SetPointValue.get()}) {
        if (!value->isEmpty())
            return IfcXmlPropertySetDefFromFcPropertySet::getValueTypeFromValue(*value);
    }
    return std::nullopt;
}

std::unique_ptr<PropertyType> boundedType(resource::property::FcPropertyBoundedValue const& property)
{
    auto const type = valueType(property);
    return type ? std::make_unique<TypePropertyBoundedValue>(*type) : nullptr;
}

std::unique_ptr<PropertyType> singleType(resource::property::FcPropertySingleValue const& property)
{
    auto const type =
        IfcXmlPropertySetDefFromFcPropertySet::getValueTypeFromValue(property.NominalValue.get());
    return type ? std::make_unique<TypePropertySingleValue>(*type) : nullptr;
}

/// Null when nothing is known of the property, and when its class has no definition, which is reported.
std::unique_ptr<PropertyType> typeOf(FcProperty const& property)
{
    namespace model = resource::property;
    if (isOfClass<model::FcPropertyBoundedValue>(property))
        return boundedType(static_cast<model::FcPropertyBoundedValue const&>(property));
    if (isOfClass<model::FcPropertyEnumeratedValue>(property))
        return std::make_unique<TypePropertyEnumeratedValue>();
    if (isOfClass<model::FcPropertyListValue>(property))
        return std::make_unique<TypePropertyListValue>();
    if (isOfClass<model::FcPropertyReferenceValue>(property))
        return std::make_unique<TypePropertyReferenceValue>("IfcObjectReferenceSelect");
    if (isOfClass<model::FcPropertySingleValue>(property))
        return singleType(static_cast<model::FcPropertySingleValue const&>(property));
    if (isOfClass<model::FcPropertyTableValue>(property))
        return std::make_unique<TypePropertyTableValue>();
    reportFrom("get", "Unknown property.");
    return nullptr;
}

} // namespace

std::unique_ptr<PropertySetDef>
IfcXmlPropertySetDefFromFcPropertySet::get(core::kernel::FcPropertySet const* set)
{
    if (!set) {
        reportFrom("get", "Property set not given.");
        return nullptr;
    }
    auto definition = std::make_unique<PropertySetDef>(set->Name.get().value_or(std::string()));
    definition->conceptPrefix.clear();
    for (auto const& property : set->HasProperties.getProperties()) {
        if (!property) {
            reportFrom("get", "Property not set.");
            continue;
        }
        if (auto type = typeOf(*property))
            definition->propertyDefs.push_back(
                std::make_unique<PropertyDef>(*definition, property->Name.get(), std::move(type)));
    }
    return definition;
}

std::optional<std::string> IfcXmlPropertySetDefFromFcPropertySet::getValueTypeFromValue(FcValue const& value)
{
    switch (value.discriminator()) {
    case FcValue::DerivedMeasure:
        return schemaName(value.derivedMeasureValue());
    case FcValue::Measure:
        return schemaName(value.measureValue());
    case FcValue::Simple:
        return schemaName(value.simpleValue());
    case FcValue::Empty:
        return std::nullopt;
    default:
        reportFrom("getValueTypeFromValue", "Unknown type.");
        return std::nullopt;
    }
}

} // namespace qev::fc::ui
