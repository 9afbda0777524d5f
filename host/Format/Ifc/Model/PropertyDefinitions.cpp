#include "Format/Ifc/Model/PropertyDefinitions.h"

#include "Format/Ifc/Schema/Pset/PropertySetDef.h"
#include "Format/Ifc/Schema/Qto/QuantitySetDef.h"
#include "Format/Ifc/Schema/SchemaLoader.h"
#include "FoundationClasses/Core/Kernel/FcPropertySet.h"
#include "FoundationClasses/Core/ProductExtension/FcElementQuantity.h"
#include "FoundationClasses/Data.h"
#include "FoundationClasses/Resource/Property/FcExtendedProperties.h"
#include "FoundationClasses/Resource/Property/FcProperty.h"

#include <algorithm>

namespace qev::ifc {

using def::xml::Def;
using def::xml::SetDef;
using fc::core::kernel::FcPropertySet;
using fc::core::kernel::FcPropertySetDefinition;
using fc::core::productextension::FcElementQuantity;
using fc::resource::property::FcExtendedProperties;
using fc::resource::property::FcProperty;

namespace {

SetDef const* definitionOfSet(std::string const& setName)
{
    auto const* const schema = SchemaLoader::curr().pSchemaFromName(SchemaLoader::modelVersion);
    return schema ? schema->pXmlSetFromName(setName) : nullptr;
}

void appendName(std::vector<std::string>& names, std::optional<std::string> const& name)
{
    if (name)
        names.push_back(*name);
}

/// The standard has no inverse attribute for the properties of materials and profiles.
void appendExtendedProperties(std::vector<std::string>& names, FcProperty const& property)
{
    static unsigned int const slot =
        fc::slotFromName(FcExtendedProperties::staticEntityClass(), "Properties");
    fc::Data const* const data = property.getData();
    if (!data)
        return;
    for (auto const index : data->relating(property.getIndex(), FcExtendedProperties::idFirst,
                                           FcExtendedProperties::idLast, slot)) {
        if (auto const holder = fc::entityCast<FcExtendedProperties>(data->entity(index)))
            appendName(names, holder->Name.get());
    }
}

/// The names of all sets that have the property.
std::vector<std::string> setNamesOf(FcProperty const& property)
{
    std::vector<std::string> names;
    for (auto const& reference : property.PartOfPset()) {
        if (auto const set = reference.lock())
            appendName(names, set->Name.get());
    }
    appendExtendedProperties(names, property);
    return names;
}

bool isOfKind(FcPropertySetDefinition const& set, SetDef const& definition)
{
    if (dynamic_cast<def::pset::PropertySetDef const*>(&definition))
        return fc::isOfClass<FcPropertySet>(set);
    return dynamic_cast<def::qto::QuantitySetDef const*>(&definition) &&
           fc::isOfClass<FcElementQuantity>(set);
}

} // namespace

Def const* findSchemaDefForProperty(FcProperty const& property)
{
    for (std::string const& setName : setNamesOf(property)) {
        SetDef const* const set = definitionOfSet(setName);
        if (Def const* const entry = set ? set->findEntry(property.Name.get()) : nullptr)
            return entry;
    }
    return nullptr;
}

std::optional<std::pair<std::string, std::string>> getPsetAndPropertyName(FcProperty const& property)
{
    auto const setNames = setNamesOf(property);
    if (setNames.empty())
        return std::nullopt;
    return std::pair(setNames.front(), property.Name.get());
}

bool hasAllProperties(FcPropertySetDefinition const& set)
{
    auto const& name = set.Name.get();
    SetDef const* const definition = name ? definitionOfSet(*name) : nullptr;
    if (!definition || !isOfKind(set, *definition))
        return true;
    auto const entries = definition->entries();
    return std::all_of(entries.begin(), entries.end(),
                       [&set](Def const* entry) { return set.hasProperty(entry->name); });
}

} // namespace qev::ifc
