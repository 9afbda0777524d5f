#include "kit/ModelBuilder.h"

#include "Core/Id/Guid.h"
#include "FoundationClasses/Core/Kernel/FcProject.h"
#include "FoundationClasses/Core/Kernel/FcRelAggregates.h"
#include "FoundationClasses/Core/Kernel/FcRelDefinesByProperties.h"
#include "FoundationClasses/Core/Kernel/FcRelDefinesByType.h"
#include "FoundationClasses/Core/Kernel/FcTypeObject.h"
#include "FoundationClasses/Core/ProductExtension/FcBuilding.h"
#include "FoundationClasses/Core/ProductExtension/FcBuildingStorey.h"
#include "FoundationClasses/Core/ProductExtension/FcRelContainedInSpatialStructure.h"
#include "FoundationClasses/Core/ProductExtension/FcSite.h"
#include "FoundationClasses/Core/ProductExtension/FcSpace.h"
#include "FoundationClasses/Resource/Property/FcPropertyBoundedValue.h"
#include "FoundationClasses/Resource/Property/FcPropertyEnumeratedValue.h"
#include "FoundationClasses/Resource/Property/FcPropertyEnumeration.h"
#include "FoundationClasses/Resource/Property/FcPropertyListValue.h"
#include "FoundationClasses/Resource/Property/FcPropertySingleValue.h"
#include "FoundationClasses/Resource/Property/FcPropertyTableValue.h"
#include "FoundationClasses/Resource/Quantity/FcQuantityArea.h"
#include "FoundationClasses/Resource/Quantity/FcQuantityCount.h"
#include "FoundationClasses/Resource/Quantity/FcQuantityLength.h"
#include "FoundationClasses/Resource/Quantity/FcQuantityNumber.h"
#include "FoundationClasses/Resource/Quantity/FcQuantityTime.h"
#include "FoundationClasses/Resource/Quantity/FcQuantityVolume.h"
#include "FoundationClasses/Resource/Quantity/FcQuantityWeight.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcDoor.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcDoorType.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcSlab.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWall.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWallType.h"

#include <stdexcept>

namespace qev::test {

namespace kernel = fc::core::kernel;
namespace productextension = fc::core::productextension;
namespace property = fc::resource::property;
namespace sharedelements = fc::shared::sharedbldgelements;
using fc::resource::measure::FcSimpleValue;

namespace {

FcValue ofType(std::string const& typeName)
{
    FcValue value;
    if (!value.setTypeFromString(typeName))
        throw std::invalid_argument("There is no value type " + typeName);
    return value;
}

FcValue simple(std::string const& schemaName, fc::Payload payload)
{
    FcValue value;
    value.assign(schemaName, std::move(payload));
    return value;
}

std::shared_ptr<fc::resource::quantity::FcPhysicalSimpleQuantity> newQuantity(QuantityKind kind)
{
    using namespace fc::resource::quantity;
    switch (kind) {
    case QuantityKind::Area:
        return std::make_shared<FcQuantityArea>();
    case QuantityKind::Volume:
        return std::make_shared<FcQuantityVolume>();
    case QuantityKind::Weight:
        return std::make_shared<FcQuantityWeight>();
    case QuantityKind::Time:
        return std::make_shared<FcQuantityTime>();
    case QuantityKind::Count:
        return std::make_shared<FcQuantityCount>();
    case QuantityKind::Number:
        return std::make_shared<FcQuantityNumber>();
    default:
        return std::make_shared<FcQuantityLength>();
    }
}

} // namespace

FcValue label(std::string text) { return simple("IfcLabel", std::move(text)); }
FcValue text(std::string text) { return simple("IfcText", std::move(text)); }
FcValue identifier(std::string text) { return simple("IfcIdentifier", std::move(text)); }
FcValue boolean(bool value) { return simple("IfcBoolean", value); }
FcValue logical(fc::Logical value) { return simple("IfcLogical", value); }
FcValue integer(std::int64_t value) { return simple("IfcInteger", value); }
FcValue real(double value) { return simple("IfcReal", value); }
FcValue length(double value) { return number("LengthMeasure", value); }

FcValue number(std::string const& typeName, double value)
{
    FcValue result = ofType(typeName);
    if (!result.setDoubleValue(value))
        throw std::invalid_argument(typeName + " takes no such number");
    return result;
}

FcValue valueOf(std::string const& typeName, std::string const& typed)
{
    FcValue result = ofType(typeName);
    if (!result.setValueOnTypeFromString(typed))
        throw std::invalid_argument(typeName + " takes no " + typed);
    return result;
}

std::shared_ptr<property::FcPropertySingleValue> singleValue(std::string name, FcValue value)
{
    auto result = std::make_shared<property::FcPropertySingleValue>();
    result->Name = std::move(name);
    result->NominalValue = std::move(value);
    return result;
}

std::shared_ptr<property::FcPropertyEnumeratedValue>
enumeratedValue(std::string name, std::vector<FcValue> values, std::vector<FcValue> choices)
{
    auto result = std::make_shared<property::FcPropertyEnumeratedValue>();
    result->Name = name;
    result->EnumerationValues = std::move(values);
    if (!choices.empty()) {
        auto const enumeration = std::make_shared<property::FcPropertyEnumeration>();
        enumeration->Name = "PEnum_" + name;
        enumeration->EnumerationValues = std::move(choices);
        result->EnumerationReference = enumeration;
    }
    return result;
}

std::shared_ptr<property::FcPropertyBoundedValue> boundedValue(std::string name, FcValue lower, FcValue upper,
                                                               FcValue setPoint)
{
    auto result = std::make_shared<property::FcPropertyBoundedValue>();
    result->Name = std::move(name);
    result->LowerBoundValue = std::move(lower);
    result->UpperBoundValue = std::move(upper);
    result->SetPointValue = std::move(setPoint);
    return result;
}

std::shared_ptr<property::FcPropertyListValue> listValue(std::string name, std::vector<FcValue> values)
{
    auto result = std::make_shared<property::FcPropertyListValue>();
    result->Name = std::move(name);
    result->ListValues = std::move(values);
    return result;
}

std::shared_ptr<property::FcPropertyTableValue> tableValue(std::string name,
                                                           std::vector<std::pair<FcValue, FcValue>> rows)
{
    auto result = std::make_shared<property::FcPropertyTableValue>();
    result->Name = std::move(name);
    std::vector<FcValue> defining;
    std::vector<FcValue> defined;
    for (auto& [key, value] : rows) {
        defining.push_back(std::move(key));
        defined.push_back(std::move(value));
    }
    result->DefiningValues = std::move(defining);
    result->DefinedValues = std::move(defined);
    return result;
}

std::shared_ptr<fc::resource::quantity::FcPhysicalSimpleQuantity> quantity(NamedQuantity const& named)
{
    auto result = newQuantity(named.kind);
    result->Name = named.name;
    result->setValue(named.value);
    return result;
}

Model::Model()
    : m_data(fc::Data::create())
{
}

Model::~Model() = default;

void Model::registerRoot(std::shared_ptr<kernel::FcRoot> const& entity, std::string const& name)
{
    entity->setGuid(Guid::generate());
    entity->Name = name;
    m_data->entityAdd(entity, false);
}

std::shared_ptr<sharedelements::FcWall> Model::wall(std::string const& name)
{
    return add<sharedelements::FcWall>(name);
}

std::shared_ptr<sharedelements::FcDoor> Model::door(std::string const& name)
{
    return add<sharedelements::FcDoor>(name);
}

std::shared_ptr<sharedelements::FcSlab> Model::slab(std::string const& name)
{
    return add<sharedelements::FcSlab>(name);
}

std::shared_ptr<sharedelements::FcWallType> Model::wallType(std::string const& name)
{
    return add<sharedelements::FcWallType>(name);
}

std::shared_ptr<sharedelements::FcDoorType> Model::doorType(std::string const& name)
{
    return add<sharedelements::FcDoorType>(name);
}

std::shared_ptr<kernel::FcProject> Model::project(std::string const& name)
{
    return add<kernel::FcProject>(name);
}

std::shared_ptr<productextension::FcSite> Model::site(std::string const& name)
{
    return add<productextension::FcSite>(name);
}

std::shared_ptr<productextension::FcBuilding> Model::building(std::string const& name)
{
    return add<productextension::FcBuilding>(name);
}

std::shared_ptr<productextension::FcBuildingStorey> Model::storey(std::string const& name)
{
    return add<productextension::FcBuildingStorey>(name);
}

std::shared_ptr<productextension::FcSpace> Model::space(std::string const& name)
{
    return add<productextension::FcSpace>(name);
}

std::shared_ptr<kernel::FcPropertySet> Model::addSet(Object const& object, std::string const& name,
                                                     std::vector<NamedValue> const& values)
{
    auto set = object->getOrCreatePropertySetDefinition<kernel::FcPropertySet>(*m_data, name);
    for (NamedValue const& value : values)
        set->HasProperties.addProperty(singleValue(value.name, value.value));
    return set;
}

std::shared_ptr<productextension::FcElementQuantity>
Model::addQuantities(Object const& object, std::string const& name,
                     std::vector<NamedQuantity> const& quantities)
{
    auto set = object->getOrCreatePropertySetDefinition<productextension::FcElementQuantity>(*m_data, name);
    for (NamedQuantity const& named : quantities)
        set->Quantities.edit([&named](auto& list) { list.push_back(quantity(named)); });
    return set;
}

void Model::shareSet(std::shared_ptr<kernel::FcPropertySetDefinition> const& set, Object const& object)
{
    auto const relation = add<kernel::FcRelDefinesByProperties>("");
    relation->RelatedObjects.edit([&object](auto& objects) { objects.push_back(object); });
    relation->RelatingPropertyDefinition = kernel::FcPropertySetDefinitionSelect(set);
}

void Model::joinSet(std::shared_ptr<kernel::FcPropertySetDefinition> const& set, Object const& object)
{
    auto const relation = set->DefinesOccurrence().at(0).lock();
    relation->RelatedObjects.edit([&object](auto& objects) { objects.push_back(object); });
}

void Model::assignType(std::shared_ptr<kernel::FcTypeObject> const& type,
                       std::vector<std::shared_ptr<kernel::FcObject>> const& objects)
{
    auto const relation = add<kernel::FcRelDefinesByType>("");
    relation->RelatingType = type;
    relation->RelatedObjects = fc::ReferenceList<kernel::FcObject>(objects);
}

void Model::aggregate(Object const& whole, Objects const& parts)
{
    auto const relation = add<kernel::FcRelAggregates>("");
    relation->RelatingObject = whole;
    relation->RelatedObjects = fc::ReferenceList<kernel::FcObjectDefinition>(parts);
}

void Model::contain(std::shared_ptr<productextension::FcSpatialElement> const& structure,
                    std::vector<std::shared_ptr<kernel::FcProduct>> const& products)
{
    auto const relation = add<productextension::FcRelContainedInSpatialStructure>("");
    relation->RelatingStructure = structure;
    relation->RelatedElements = fc::ReferenceList<kernel::FcProduct>(products);
}

} // namespace qev::test
