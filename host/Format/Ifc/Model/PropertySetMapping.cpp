#include "Format/Ifc/Model/PropertySetMapping.h"

#include "Format/Ifc/Model/PropertyValueMapping.h"
#include "Format/Ifc/Schema/Pset/PropertySetDef.h"
#include "Format/Ifc/Schema/Pset/TypeComplexProperty.h"
#include "Format/Ifc/Schema/Qto/QuantitySetDef.h"
#include "Format/Ifc/Schema/SchemaLoader.h"
#include "FoundationClasses/Core/Kernel/FcObjectDefinition.h"
#include "FoundationClasses/Core/Kernel/FcPropertySet.h"
#include "FoundationClasses/Core/ProductExtension/FcElementQuantity.h"
#include "FoundationClasses/Data.h"
#include "FoundationClasses/Resource/Property/FcComplexProperty.h"
#include "FoundationClasses/Resource/Property/FcPropertySingleValue.h"
#include "FoundationClasses/Resource/Quantity/FcPhysicalQuantity.h"

#include <algorithm>
#include <optional>

namespace qev::ifc {

using def::pset::PropertyDef;
using def::pset::PropertySetDef;
using def::pset::TypeComplexProperty;
using def::qto::QuantityDef;
using def::qto::QuantitySetDef;
using fc::FcBase;
using fc::core::kernel::FcObjectDefinition;
using fc::core::kernel::FcPropertySet;
using fc::core::kernel::FcPropertySetDefinition;
using fc::core::productextension::FcElementQuantity;
using fc::resource::measure::FcValue;
using fc::resource::property::FcComplexProperty;
using fc::resource::property::FcProperty;
using fc::resource::property::FcPropertySingleValue;
using fc::resource::quantity::FcPhysicalQuantity;

namespace {

/// A new object of the class that a type of a definition names; null for a class that has no objects.
std::shared_ptr<FcBase> newEntity(std::string const& className)
{
    auto const* const classes = SchemaLoader::curr().classesFromName(SchemaLoader::modelVersion);
    auto const* const entity = classes ? classes->findEntityByName(className) : nullptr;
    auto const* const modelClass = entity ? fc::entityClassFromNumber(entity->firstNumber()) : nullptr;
    return modelClass && modelClass->create ? modelClass->create() : nullptr;
}

std::shared_ptr<FcProperty> newProperty(PropertyDef const& definition);

void addMembers(FcComplexProperty& property, TypeComplexProperty const& type)
{
    property.UsageName = type.usageName;
    for (auto const& member : type.members) {
        if (auto const added = newProperty(*member))
            property.HasProperties.edit([&added](auto& list) { list.push_back(added); });
    }
}

std::shared_ptr<FcProperty> newProperty(PropertyDef const& definition)
{
    if (!definition.propertyType)
        return nullptr;
    auto const property = fc::entityCast<FcProperty>(newEntity(definition.propertyType->sEntityName()));
    if (!property)
        return nullptr;
    property->Name = definition.name;
    if (auto const single = fc::entityCast<FcPropertySingleValue>(property))
        single->NominalValue.edit([&definition](FcValue& value) { setCorrectValueType(definition, value); });
    auto const* const complexType = dynamic_cast<TypeComplexProperty const*>(definition.propertyType.get());
    if (auto const complex = fc::entityCast<FcComplexProperty>(property); complex && complexType)
        addMembers(*complex, *complexType);
    return property;
}

std::shared_ptr<FcPhysicalQuantity> newQuantity(QuantityDef const& definition)
{
    if (!definition.quantityType)
        return nullptr;
    auto quantity = fc::entityCast<FcPhysicalQuantity>(newEntity(definition.quantityType->sEntityName()));
    if (quantity)
        quantity->Name = definition.name;
    return quantity;
}

/// The entry of that name; null when there is none.
template <class T>
std::shared_ptr<T> findEntry(std::vector<std::shared_ptr<T>> const& entries, std::string const& name)
{
    auto const found = std::find_if(entries.begin(), entries.end(),
                                    [&name](auto const& entry) { return entry->Name.get() == name; });
    return found == entries.end() ? nullptr : *found;
}

std::shared_ptr<FcBase> addProperty(PropertyDef const& definition, FcPropertySet& set)
{
    if (auto existing = findEntry(set.HasProperties.getProperties(), definition.name))
        return existing;
    auto const property = newProperty(definition);
    if (property)
        set.HasProperties.addProperty(property);
    return property;
}

std::shared_ptr<FcBase> addQuantity(QuantityDef const& definition, FcElementQuantity& set)
{
    if (auto existing = findEntry(set.Quantities->get(), definition.name))
        return existing;
    auto const quantity = newQuantity(definition);
    if (quantity)
        set.Quantities.edit([&quantity](auto& list) { list.push_back(quantity); });
    return quantity;
}

} // namespace

std::shared_ptr<FcPropertySetDefinition> addXmlSetDefToFcObjectDefinition(def::xml::SetDef const& definition,
                                                                          FcObjectDefinition& object)
{
    fc::Data* const data = object.getData();
    if (!data)
        return nullptr;
    if (dynamic_cast<PropertySetDef const*>(&definition))
        return object.getOrCreatePropertySetDefinition<FcPropertySet>(*data, definition.name);
    if (dynamic_cast<QuantitySetDef const*>(&definition))
        return object.getOrCreatePropertySetDefinition<FcElementQuantity>(*data, definition.name);
    return nullptr;
}

std::shared_ptr<FcBase> addSchemaDefToPropertySetDefinition(def::xml::Def const& definition,
                                                            FcPropertySetDefinition& set)
{
    std::optional<fc::ChangeLog::Step> step;
    if (fc::Data* const data = set.getData())
        step.emplace(data->changes(), "Add property");
    auto const* const property = dynamic_cast<PropertyDef const*>(&definition);
    if (property && fc::isOfClass<FcPropertySet>(set))
        return addProperty(*property, static_cast<FcPropertySet&>(set));
    auto const* const quantity = dynamic_cast<QuantityDef const*>(&definition);
    if (quantity && fc::isOfClass<FcElementQuantity>(set))
        return addQuantity(*quantity, static_cast<FcElementQuantity&>(set));
    return nullptr;
}

} // namespace qev::ifc
