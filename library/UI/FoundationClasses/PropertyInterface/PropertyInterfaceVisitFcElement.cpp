#include "FoundationClasses/Core/ProductExtension/FcElement.h"
#include "FoundationClasses/Core/ProductExtension/FcRelContainedInSpatialStructure.h"
#include "FoundationClasses/Core/ProductExtension/FcRelReferencedInSpatialStructure.h"
#include "FoundationClasses/Core/ProductExtension/FcSpatialElement.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetReference.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"
#include "UI/FoundationClasses/PropertyInterface/StructureRows.h"

namespace qev::fc::ui::propertyinterface {

using core::productextension::FcElement;
using core::productextension::FcSpatialElement;

namespace {

constexpr char containedInStructureId[] = "ContainedInStructure";

std::shared_ptr<FcSpatialElement> containingStructure(FcElement const& element)
{
    auto const relations = liveOnes(element.ContainedInStructure());
    return relations.empty() ? nullptr : relations.front()->RelatingStructure->get();
}

} // namespace

bool GetProperties::visit(FcElement const& element)
{
    element.FcProduct::accept(*this);
    auto const group = groupOf(*this);
    if (!group)
        return false;
    auto list = makeList(referencedInStructuresId, element);
    for (auto const& relation : liveOnes(element.ReferencedInStructures()))
        appendPropertiesOf(relation->RelatingStructure->get(), *list);
    if (!list->children.empty())
        group->children.push_back(std::move(list));
    if (!liveOnes(element.ContainedInStructure()).empty())
        group->children.push_back(makeRow(containedInStructureId, element));
    return false;
}

bool GetValue::visit(FcElement const& element)
{
    auto const structure = id.text() == containedInStructureId ? containingStructure(element) : nullptr;
    if (!structure)
        return true;
    value = classAndName(*structure);
    return false;
}

bool GetReference::visit(FcElement const& element)
{
    auto structure = id.text() == containedInStructureId ? containingStructure(element) : nullptr;
    if (!structure)
        return true;
    reference = std::move(structure);
    return false;
}

} // namespace qev::fc::ui::propertyinterface
