#include "FoundationClasses/Localize.h"
#include "FoundationClasses/Resource/Measure/FcDerivedUnit.h"
#include "FoundationClasses/Resource/Measure/FcDerivedUnitElement.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"

namespace qev::fc::ui::propertyinterface {

using resource::measure::FcDerivedUnit;

namespace {

constexpr char elementsId[] = "Elements";

} // namespace

bool GetProperties::visit(FcDerivedUnit const& unit)
{
    unit.FcBase::accept(*this);
    if (auto const group = groupOf(*this))
        group->children.push_back(makeList(elementsId, unit, unit.Elements->get()));
    return false;
}

bool GetPropertyName::visit(FcDerivedUnit const&)
{
    if (id.text() != elementsId)
        return true;
    name = localizeWithFallback("IfcDerivedUnit::Elements", elementsId);
    return false;
}

bool GetPropertyDescription::visit(FcDerivedUnit const&)
{
    if (id.text() != elementsId)
        return true;
    description = fc::localize("IfcDerivedUnit::Elements_Description");
    return false;
}

} // namespace qev::fc::ui::propertyinterface
