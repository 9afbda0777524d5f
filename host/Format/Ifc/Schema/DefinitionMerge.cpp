#include "Format/Ifc/Schema/DefinitionMerge.h"

#include "Format/Ifc/Schema/Pset/PropertySetDef.h"
#include "Format/Ifc/Schema/Pset/TypeComplexProperty.h"
#include "Format/Ifc/Schema/Pset/TypePropertyEnumeratedValue.h"
#include "Format/Ifc/Schema/Qto/QuantitySetDef.h"

#include <algorithm>
#include <unordered_map>

namespace qev::ifc::def {

namespace {

void mergeBase(xml::DefBase& known, xml::DefBase const& other)
{
    if (!other.description.empty())
        known.description = other.description;
    known.definitionAliases.merge(other.definitionAliases);
}

void mergeEnumeration(pset::TypePropertyEnumeratedValue& known,
                      pset::TypePropertyEnumeratedValue const& other)
{
    for (auto const& [value, item] : other.items) {
        if (std::find(known.values.begin(), known.values.end(), value) == known.values.end())
            continue;
        pset::EnumerationItem& knownItem = known.items[value];
        if (!item.description.empty())
            knownItem.description = item.description;
        knownItem.definitionAliases.merge(item.definitionAliases);
    }
    for (pset::EnumerationItemAliases const& aliases : other.valueAliases) {
        if (std::find(known.values.begin(), known.values.end(), aliases.value) == known.values.end())
            continue;
        auto const sameValue = [&aliases](auto const& record) { return record.value == aliases.value; };
        auto const found = std::find_if(known.valueAliases.begin(), known.valueAliases.end(), sameValue);
        if (found == known.valueAliases.end())
            known.valueAliases.push_back(aliases);
        else
            found->nameAliases.merge(aliases.nameAliases);
    }
}

template <class Entry>
void mergeEntry(Entry& known, Entry const& other)
{
    mergeBase(known, other);
    known.nameAliases.merge(other.nameAliases);
}

template <class Entry, class MergeOne>
void mergeEntries(std::vector<std::unique_ptr<Entry>>& known,
                  std::vector<std::unique_ptr<Entry>> const& others, MergeOne mergeOne)
{
    std::unordered_map<std::string_view, Entry*> byName;
    for (auto const& entry : known)
        byName.emplace(entry->name, entry.get());
    for (auto const& other : others) {
        auto const found = byName.find(other->name);
        if (found != byName.end())
            mergeOne(*found->second, *other);
    }
}

void mergeProperty(pset::PropertyDef& known, pset::PropertyDef const& other)
{
    mergeEntry(known, other);
    auto* const knownItems = dynamic_cast<pset::TypePropertyEnumeratedValue*>(known.propertyType.get());
    auto const* const otherItems = dynamic_cast<pset::TypePropertyEnumeratedValue*>(other.propertyType.get());
    if (knownItems && otherItems)
        mergeEnumeration(*knownItems, *otherItems);
    auto* const knownMembers = dynamic_cast<pset::TypeComplexProperty*>(known.propertyType.get());
    auto const* const otherMembers = dynamic_cast<pset::TypeComplexProperty*>(other.propertyType.get());
    if (knownMembers && otherMembers)
        mergeEntries(knownMembers->members, otherMembers->members, mergeProperty);
}

} // namespace

void mergeTexts(xml::SetDef& known, xml::SetDef const& other)
{
    mergeBase(known, other);
    auto* const knownProperties = dynamic_cast<pset::PropertySetDef*>(&known);
    auto const* const otherProperties = dynamic_cast<pset::PropertySetDef const*>(&other);
    if (knownProperties && otherProperties)
        mergeEntries(knownProperties->propertyDefs, otherProperties->propertyDefs, mergeProperty);
    auto* const knownQuantities = dynamic_cast<qto::QuantitySetDef*>(&known);
    auto const* const otherQuantities = dynamic_cast<qto::QuantitySetDef const*>(&other);
    if (knownQuantities && otherQuantities)
        mergeEntries(knownQuantities->quantityDefs, otherQuantities->quantityDefs,
                     mergeEntry<qto::QuantityDef>);
}

} // namespace qev::ifc::def
