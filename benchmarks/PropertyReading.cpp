#include "PropertyReading.h"

#include "Core/Unit/QuantityPresentation.h"
#include "FoundationClasses/Core/Kernel/FcObject.h"
#include "FoundationClasses/Core/Kernel/FcPropertySet.h"
#include "FoundationClasses/Core/Kernel/FcRelDefinesByType.h"
#include "FoundationClasses/Core/Kernel/FcTypeObject.h"
#include "FoundationClasses/Core/ProductExtension/FcElementQuantity.h"
#include "FoundationClasses/Data.h"
#include "FoundationClasses/Resource/Property/FcComplexProperty.h"
#include "FoundationClasses/Resource/Property/FcPropertySingleValue.h"
#include "FoundationClasses/Resource/Quantity/FcPhysicalSimpleQuantity.h"

#include <memory>
#include <string>
#include <unordered_set>

namespace qev::benchmarks {

namespace {

using fc::core::kernel::FcObject;
using fc::core::kernel::FcObjectDefinition;
using fc::core::kernel::FcPropertySet;
using fc::core::productextension::FcElementQuantity;
using fc::resource::property::FcComplexProperty;
using fc::resource::property::FcProperty;
using fc::resource::property::FcPropertySingleValue;
using fc::resource::quantity::FcPhysicalQuantity;
using fc::resource::quantity::FcPhysicalSimpleQuantity;

constexpr unsigned int deepestProperty = 8;

std::size_t readAttributes(fc::FcBase const& entity)
{
    std::size_t length = 0;
    auto const attributes = entity.getEntityClass().attributes;
    for (unsigned int slot = 0; slot < attributes.size(); ++slot) {
        if (auto const text = attributes[slot]->operations->text(entity.attribute(slot), *attributes[slot]))
            length += text->size();
    }
    return length;
}

/// As a person sees it: numbers in the unit of the screen.
std::size_t readValue(fc::resource::measure::FcValue const& value)
{
    if (auto const number = value.valueAsDoubleGet()) {
        if (auto const presentation = value.createQuantityPresentation()) {
            presentation->setValue(*number);
            return presentation->text().size();
        }
    }
    return value.getAsString(false).value_or("").size();
}

std::size_t readProperty(FcProperty const& property, unsigned int depth)
{
    std::size_t length = 0;
    if (fc::isOfClass<FcPropertySingleValue>(property)) {
        auto const& single = static_cast<FcPropertySingleValue const&>(property);
        length += single.Name->size() + readValue(single.NominalValue);
    } else {
        length += readAttributes(property);
    }
    if (fc::isOfClass<FcComplexProperty>(property) && depth < deepestProperty) {
        for (auto const& part : static_cast<FcComplexProperty const&>(property).HasProperties->get())
            length += readProperty(*part, depth + 1);
    }
    return length;
}

std::size_t readQuantity(FcPhysicalQuantity const& quantity)
{
    std::size_t length = quantity.Name->size();
    if (!fc::isOfClass<FcPhysicalSimpleQuantity>(quantity))
        return length + readAttributes(quantity);
    auto const presentation =
        static_cast<FcPhysicalSimpleQuantity const&>(quantity).createQuantityPresentation();
    return length + (presentation ? presentation->text().size() : readAttributes(quantity));
}

std::size_t readSets(FcObjectDefinition const& object)
{
    std::size_t length = 0;
    for (auto const& set : object.attachedSets()) {
        if (auto const properties = fc::entityCast<FcPropertySet>(set)) {
            for (auto const& property : properties->HasProperties.getProperties())
                length += readProperty(*property, 0);
        } else if (auto const quantities = fc::entityCast<FcElementQuantity>(set)) {
            for (auto const& quantity : quantities->Quantities->get())
                length += readQuantity(*quantity);
        }
    }
    return length;
}

std::size_t readObject(FcObjectDefinition const& object)
{
    std::size_t length = readAttributes(object) + readSets(object);
    if (!fc::isOfClass<FcObject>(object))
        return length;
    for (auto const& reference : static_cast<FcObject const&>(object).IsTypedBy()) {
        auto const relation = reference.lock();
        auto const type = relation ? relation->RelatingType->get() : nullptr;
        if (type)
            length += readAttributes(*type) + readSets(*type);
    }
    return length;
}

std::shared_ptr<FcPropertySingleValue> findSingleValue(FcObjectDefinition const& object)
{
    for (auto const& set : object.attachedSets()) {
        auto const properties = fc::entityCast<FcPropertySet>(set);
        if (!properties)
            continue;
        for (auto const& property : properties->HasProperties.getProperties()) {
            if (auto single = fc::entityCast<FcPropertySingleValue>(property))
                return single;
        }
    }
    return nullptr;
}

} // namespace

std::size_t readAllProperties(fc::Data& data)
{
    // To let go of a few objects only would be to read what they share over and over.
    constexpr std::size_t mostObjects = 50'000;
    std::size_t length = 0;
    for (fc::EntityIndex const index :
         data.indicesFromId(FcObjectDefinition::idFirst, FcObjectDefinition::idLast)) {
        if (auto const object = fc::entityCast<FcObjectDefinition>(data.entity(index)))
            length += readObject(*object);
        if (data.objectCount() > mostObjects)
            data.releaseUnused();
    }
    return length;
}

std::size_t changeProperties(fc::Data& data, std::size_t objectCount)
{
    std::size_t count = 0;
    std::unordered_set<fc::EntityIndex> known;
    for (fc::EntityIndex const index : data.indicesFromId(FcObject::idFirst, FcObject::idLast)) {
        if (count == objectCount)
            break;
        auto const object = fc::entityCast<FcObjectDefinition>(data.entity(index));
        auto const property = object ? findSingleValue(*object) : nullptr;
        if (!property)
            continue;
        ++count;
        // A shared one has changed for all that have it.
        if (!known.insert(property->getIndex()).second)
            continue;
        fc::resource::measure::FcValue value;
        value.assign("IfcLabel", "Changed");
        property->NominalValue = value;
    }
    return count;
}

} // namespace qev::benchmarks
