#include "Format/Ifc/Model/PropertyDefinitions.h"

#include "Format/Ifc/Schema/Pset/PropertySetDef.h"
#include "Format/Ifc/Schema/Qto/QuantitySetDef.h"
#include "Format/Ifc/Schema/SchemaLoader.h"
#include "FoundationClasses/Core/Kernel/FcPropertySet.h"
#include "FoundationClasses/Core/ProductExtension/FcElementQuantity.h"
#include "FoundationClasses/Data.h"
#include "FoundationClasses/Resource/Property/FcExtendedProperties.h"
#include "FoundationClasses/Resource/Property/FcProperty.h"
#include "FoundationClasses/Resource/Property/SetsOfProperty.h"

#include <algorithm>
#include <functional>

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

using NameVisitor = std::function<bool(std::string const&)>;

/// False when \p visit ended the work.
bool visitName(std::optional<std::string> const& name, NameVisitor const& visit)
{
    return !name || visit(*name);
}

/// The standard has no inverse attribute for the properties of materials and profiles.
void visitNamesOfExtendedProperties(FcProperty const& property, NameVisitor const& visit)
{
    static unsigned int const slot =
        fc::slotFromName(FcExtendedProperties::staticEntityClass(), "Properties");
    fc::Data const* const data = property.getData();
    if (!data)
        return;
    for (auto const index : data->relating(property.getIndex(), FcExtendedProperties::idFirst,
                                           FcExtendedProperties::idLast, slot)) {
        auto const holder = fc::entityCast<FcExtendedProperties>(data->entity(index));
        if (holder && !visitName(holder->Name.get(), visit))
            return;
    }
}

/// Shows \p visit the names of all sets that have the property, until it answers false.
void visitSetNames(FcProperty const& property, NameVisitor const& visit)
{
    bool goesOn = true;
    fc::resource::property::visitSetsOf(property, [&](FcPropertySet const& set) {
        goesOn = visitName(set.Name.get(), visit);
        return goesOn;
    });
    if (goesOn)
        visitNamesOfExtendedProperties(property, visit);
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
    Def const* found = nullptr;
    visitSetNames(property, [&](std::string const& setName) {
        SetDef const* const set = definitionOfSet(setName);
        found = set ? set->findEntry(property.Name.get()) : nullptr;
        return !found;
    });
    return found;
}

std::optional<std::pair<std::string, std::string>> getPsetAndPropertyName(FcProperty const& property)
{
    std::optional<std::pair<std::string, std::string>> names;
    visitSetNames(property, [&](std::string const& setName) {
        names.emplace(setName, property.Name.get());
        return false;
    });
    return names;
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
