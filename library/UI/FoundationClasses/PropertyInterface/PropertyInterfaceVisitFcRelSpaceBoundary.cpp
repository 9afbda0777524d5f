#include "FoundationClasses/Core/ProductExtension/FcElement.h"
#include "FoundationClasses/Core/ProductExtension/FcRelSpaceBoundary.h"
#include "FoundationClasses/Core/ProductExtension/FcSpatialElement.h"
#include "FoundationClasses/Localize.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/GetReference.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"
#include "UI/FoundationClasses/PropertyInterface/VisitReports.h"

namespace qev::fc::ui::propertyinterface {

using core::productextension::FcElement;
using core::productextension::FcRelSpaceBoundary;
using core::productextension::FcSpatialElement;

namespace {

constexpr char relatingSpace[] = "RelatingSpace";
constexpr char relatedBuildingElement[] = "RelatedBuildingElement";

/// A space, or the space around the building: both are spatial elements.
std::shared_ptr<FcSpatialElement> spaceOf(FcRelSpaceBoundary const& boundary)
{
    return entityCast<FcSpatialElement>(boundary.RelatingSpace->entity());
}

std::string withPart(std::string text, std::optional<std::string> const& part)
{
    if (part)
        text += " - " + *part;
    return text;
}

std::string labelOf(FcSpatialElement const& space)
{
    return withPart(withPart(fc::localize(space.getEntityName()), space.Name.get()), space.LongName.get());
}

std::string labelOf(FcElement const& element)
{
    return withPart(fc::localize(element.getEntityName()), element.userDefinedTypeDerived());
}

} // namespace

bool GetProperties::visit(FcRelSpaceBoundary const& boundary)
{
    boundary.FcRelConnects::accept(*this);
    if (auto const group = groupOf(*this)) {
        group->children.push_back(makeRow(relatingSpace, boundary));
        group->children.push_back(makeRow(relatedBuildingElement, boundary));
    }
    return false;
}

bool GetValue::visit(FcRelSpaceBoundary const& boundary)
{
    if (id.text() == relatingSpace) {
        if (auto const space = spaceOf(boundary))
            value = labelOf(*space);
        return false;
    }
    if (id.text() == relatedBuildingElement) {
        if (auto const element = boundary.RelatedBuildingElement->get())
            value = labelOf(*element);
        return false;
    }
    return true;
}

bool SetValue::visit(FcRelSpaceBoundary&)
{
    reportSetValueNotImplemented("FcRelSpaceBoundary");
    return false;
}

bool GetReference::visit(FcRelSpaceBoundary const& boundary)
{
    std::shared_ptr<FcBase const> entity;
    if (id.text() == relatingSpace)
        entity = spaceOf(boundary);
    else if (id.text() == relatedBuildingElement)
        entity = boundary.RelatedBuildingElement->get();
    if (!entity)
        return true;
    reference = std::move(entity);
    return false;
}

bool GetPropertyName::visit(FcRelSpaceBoundary const&)
{
    if (id.text() != relatingSpace && id.text() != relatedBuildingElement)
        return true;
    name = localizeWithFallback("IfcRelSpaceBoundary." + id.text(), id.text());
    return false;
}

} // namespace qev::fc::ui::propertyinterface
