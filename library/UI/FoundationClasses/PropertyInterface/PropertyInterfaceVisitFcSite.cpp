#include "FoundationClasses/Core/ProductExtension/FcSite.h"
#include "FoundationClasses/Resource/Actor/FcPostalAddress.h"
#include "UI/FoundationClasses/PropertyInterface/CreateQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetReference.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/HasQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"
#include "UI/FoundationClasses/PropertyInterface/StructureRows.h"

namespace qev::fc::ui::propertyinterface {

using core::productextension::FcSite;
using object::PropertyValue;
using resource::measure::FcCompoundPlaneAngleMeasure;

namespace {

using Angle = Attribute<std::optional<FcCompoundPlaneAngleMeasure>>;

/// Null for every other id.
Angle* angleOf(FcSite& site, object::PropertyId const& id)
{
    if (id.text() == "RefLatitude")
        return &site.RefLatitude;
    return id.text() == "RefLongitude" ? &site.RefLongitude : nullptr;
}

Angle const* angleOf(FcSite const& site, object::PropertyId const& id)
{
    return angleOf(const_cast<FcSite&>(site), id);
}

/// A number as it is read from here counts like one that is set.
std::optional<double> optionalNumber(PropertyValue const& value)
{
    return value.is<double>() ? value.get<double>() : value.get<std::optional<double>>();
}

} // namespace

bool GetProperties::visit(FcSite const& site)
{
    site.FcSpatialStructureElement::accept(*this);
    if (auto const group = groupOf(*this))
        insertAddress("SiteAddress", site.SiteAddress->get(), site, *group);
    return false;
}

bool GetValue::visit(FcSite const& site)
{
    auto const* const angle = angleOf(site, id);
    if (!angle)
        return true;
    if (angle->get())
        value = angle->get()->angleMeasure();
    return false;
}

bool SetValue::visit(FcSite& site)
{
    auto* const angle = angleOf(site, id);
    if (!angle)
        return true;
    auto const number = optionalNumber(*value);
    auto const& before = angle->get();
    if (!number)
        *angle = std::nullopt;
    else if (!before || before->angleMeasure() != *number) // The same angle keeps the components it has.
        *angle = FcCompoundPlaneAngleMeasure(*number);
    return false;
}

bool GetReference::visit(FcSite const& site)
{
    if (id.text() != FcBaseGroupProperty)
        return true;
    if (auto url = site.getMapURL())
        reference = std::move(*url);
    return false;
}

bool HasQuantityPresentation::visit(FcSite const& site)
{
    if (!angleOf(site, id))
        return true;
    result = true;
    return false;
}

bool CreateQuantityPresentation::visit(FcSite const& site)
{
    if (!angleOf(site, id))
        return true;
    presentation = unit::makeGeographicAnglePresentation();
    return false;
}

} // namespace qev::fc::ui::propertyinterface
