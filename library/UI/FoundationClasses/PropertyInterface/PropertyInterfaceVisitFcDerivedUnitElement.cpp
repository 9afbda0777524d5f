#include "FoundationClasses/Localize.h"
#include "FoundationClasses/Resource/Measure/FcDerivedUnitElement.h"
#include "FoundationClasses/Resource/Measure/FcNamedUnit.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"

namespace qev::fc::ui::propertyinterface {

using resource::measure::FcDerivedUnitElement;

namespace {

constexpr char unitId[] = "Unit";

} // namespace

bool GetProperties::visit(FcDerivedUnitElement const& element)
{
    element.FcBase::accept(*this);
    if (auto const group = groupOf(*this))
        group->children.push_back(makeGroup(unitId, element, element.Unit->get()));
    return false;
}

bool GetPropertyName::visit(FcDerivedUnitElement const&)
{
    if (id.text() != unitId)
        return true;
    name = localizeWithFallback("IfcDerivedUnitElement::Unit", unitId);
    return false;
}

bool GetPropertyDescription::visit(FcDerivedUnitElement const&)
{
    if (id.text() != unitId)
        return true;
    description = fc::localize("IfcDerivedUnitElement::Unit_Description");
    return false;
}

} // namespace qev::fc::ui::propertyinterface
