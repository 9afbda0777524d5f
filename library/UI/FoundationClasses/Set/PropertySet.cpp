#include "UI/FoundationClasses/Set/PropertySet.h"

#include "Core/Assert/Assert.h"
#include "Format/Ifc/Schema/Pset/PropertySetDef.h"
#include "FoundationClasses/Core/Kernel/FcObjectDefinition.h"
#include "FoundationClasses/Core/Kernel/FcPropertySet.h"
#include "UI/FoundationClasses/Controls/Formatters/PropertyFormatterInterface.h"
#include "UI/FoundationClasses/Controls/PropertySetDefinitionFilterInterface.h"
#include "UI/FoundationClasses/Property/Factory/FcPropertyValueFactory.h"
#include "UI/FoundationClasses/Set/IfcXmlPropertySetDefFromFcPropertySet.h"

#include <set>
#include <string_view>
#include <utility>

namespace qev::fc::ui {

using core::kernel::FcObjectDefinition;
using core::kernel::FcPropertySet;
using ifc::def::pset::PropertyDef;
using ifc::def::pset::PropertySetDef;

namespace {

void reportFrom(std::string_view operation, std::string_view text)
{
    assert::report(text, "qev::fc::ui::PropertySet::" + std::string(operation),
                   "UI/FoundationClasses/Set/PropertySet");
}

} // namespace

PropertySet::PropertySet(
    PropertySetDefinitionInfo const& info, ObjectsGetter const& objectsGetter,
    std::shared_ptr<PropertyFormatterInterface> const& formatter,
    std::shared_ptr<PropertySetDefinitionFilterInterface> const& filter,
    std::vector<std::string> const& contexts,
    std::shared_ptr<PropertyTypePropertySetAndPropertyNameQppOverrideInterface> const& qppOverride)
    : PropertySetDefinition(info, objectsGetter, formatter, filter, contexts, qppOverride)
{
    if (!info.definition)
        m_ownDefinition = definitionFromObjects();
    auto const* const usedDefinition = info.definition ? info.definition : m_ownDefinition.get();
    auto const* const definition = dynamic_cast<PropertySetDef const*>(usedDefinition);
    if (!definition || !getFilter() || !getFilter()->isSetIncluded(definition->name))
        return;
    if (getFormatter())
        populatePropertiesByQueryingFormatterAndFilter(*definition);
    else
        populateProperties(*definition);
}

PropertySet::~PropertySet() = default;

std::unique_ptr<PropertySetDef> PropertySet::definitionFromObjects() const
{
    std::unique_ptr<PropertySetDef> first;
    for (auto const& entity : getObjects()) {
        // Further sets change nothing; there is only something to report of them.
        if (first && !assert::Assert::isEnabled())
            break;
        auto const object = entityCast<FcObjectDefinition>(entity);
        auto const set =
            object ? object->getPropertySetDefinitionNonConst<FcPropertySet>(getName()) : nullptr;
        if (!set || !set->Name.get())
            continue;
        auto definition = IfcXmlPropertySetDefFromFcPropertySet::get(set.get());
        if (first)
            reportFrom("PropertySet", "Not implemented: Need to merge with existing values.");
        else
            first = std::move(definition);
    }
    return first;
}

bool PropertySet::isIncluded(PropertySetDef const& definition, PropertyDef const& property) const
{
    return getFilter()->isPropertyIncluded(definition.name, property.name);
}

void PropertySet::populateProperties(PropertySetDef const& definition)
{
    for (auto const& property : definition.propertyDefs) {
        if (isIncluded(definition, *property))
            appendProperty(FcPropertyValueFactory::create(*property, *this, getContexts()));
    }
}

void PropertySet::populatePropertiesByQueryingFormatterAndFilter(PropertySetDef const& definition)
{
    std::vector<PropertyDef*> included;
    std::map<std::string, PropertyDef*> definitionsByName;
    std::map<std::string, std::string> related;
    std::set<std::string> relatedValues;
    for (auto const& property : definition.propertyDefs) {
        if (!isIncluded(definition, *property))
            continue;
        included.push_back(property.get());
        definitionsByName.emplace(property->name, property.get());
        auto const value = getFormatter()->getRelatedValueProperty(getName(), property->name);
        if (!value)
            continue;
        related.emplace(property->name, *value);
        relatedValues.insert(*value);
        relate(property->name, *value);
    }
    for (auto* const property : included) {
        if (auto const relation = related.find(property->name); relation != related.end())
            appendProperty(createToggleProperty(definitionsByName[relation->second],
                                                definitionsByName[relation->first]));
        else if (!relatedValues.contains(property->name))
            appendProperty(FcPropertyValueFactory::create(*property, *this, getContexts()));
    }
}

std::unique_ptr<PropertyInterface> PropertySet::createToggleProperty(PropertyDef* value, PropertyDef* toggle)
{
    constexpr std::string_view operation = "populatePropertiesByQueryingFormatterAndFilter";
    if (!toggle)
        reportFrom(operation, "Toggle property definition not found.");
    if (!value)
        reportFrom(operation,
                   "Definition for property that uses another property for toggling on/off not found.");
    if (!toggle || !value)
        return nullptr;
    return FcPropertyValueFactory::createWithToggleProperty(*value, *toggle, *this, getContexts());
}

} // namespace qev::fc::ui
