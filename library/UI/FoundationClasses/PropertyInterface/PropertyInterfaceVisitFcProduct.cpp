#include "FoundationClasses/Core/Kernel/FcProduct.h"
#include "FoundationClasses/Core/ProductExtension/FcBuilding.h"
#include "FoundationClasses/Core/ProductExtension/FcBuildingStorey.h"
#include "FoundationClasses/Core/ProductExtension/FcPort.h"
#include "FoundationClasses/Core/ProductExtension/FcSite.h"
#include "FoundationClasses/Localize.h"
#include "FoundationClasses/Resource/GeometricConstraint/FcLocalPlacement.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyAccess.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"
#include "UI/FoundationClasses/PropertyInterface/StructureRows.h"

namespace qev::fc::ui::propertyinterface {

using core::kernel::FcProduct;
using core::productextension::FcBuilding;
using core::productextension::FcBuildingStorey;
using core::productextension::FcPort;
using core::productextension::FcSite;
using resource::geometricconstraint::FcLocalPlacement;

namespace {

constexpr char locationId[] = "Location";

using Products = std::vector<std::shared_ptr<FcProduct>>;

template <class T>
std::shared_ptr<FcProduct> firstOf(Products const& products)
{
    for (auto const& product : products) {
        if (isOfClass<T>(*product))
            return product;
    }
    return nullptr;
}

/// What the placement of \p product is relative to.
Products placedByOuterPlacement(FcProduct const& product)
{
    auto const placement = entityCast<FcLocalPlacement>(product.ObjectPlacement->get());
    auto const outer = placement ? placement->PlacementRelTo->get() : nullptr;
    return outer ? liveOnes(outer->PlacesObject()) : Products();
}

std::string locationName(FcProduct const& product)
{
    auto const outer = placedByOuterPlacement(product);
    if (auto const storey = firstOf<FcBuildingStorey>(outer))
        return withQuotedName(
            localizeWithFallback("Placement-relative-to-floor", "Placement relative to floor"), *storey);
    if (auto const building = firstOf<FcBuilding>(outer))
        return withQuotedName(
            localizeWithFallback("Placement-relative-to-building", "Placement relative to building"),
            *building);
    if (auto const site = firstOf<FcSite>(outer))
        return withQuotedName(
            localizeWithFallback("Placement-relative-to-site", "Placement relative to site"), *site);
    return localize("Placement");
}

} // namespace

bool GetProperties::visit(FcProduct const& product)
{
    product.FcObject::accept(*this);
    auto const group = groupOf(*this);
    if (group && product.ObjectPlacement->isSet() && !isOfClass<FcPort>(product))
        group->children.push_back(makePlacementRow(locationId, product));
    return false;
}

bool GetValue::visit(FcProduct const& product)
{
    product.FcObject::accept(*this);
    bool const isAnswered = value.kind() != object::PropertyValue::Kind::Nothing;
    auto const placement = isAnswered ? nullptr : product.ObjectPlacement->get();
    if (placement)
        value = getValue(data, *placement, id, setName);
    return false;
}

bool GetPropertyName::visit(FcProduct const& product)
{
    if (id.text() != locationId)
        return true;
    name = locationName(product);
    return false;
}

bool GetPropertyDescription::visit(FcProduct const&)
{
    if (id.text() != locationId)
        return true;
    description.clear();
    return false;
}

} // namespace qev::fc::ui::propertyinterface
