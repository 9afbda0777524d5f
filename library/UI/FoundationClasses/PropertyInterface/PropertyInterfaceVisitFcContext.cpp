#include "FoundationClasses/Core/Kernel/FcContext.h"
#include "FoundationClasses/Localize.h"
#include "FoundationClasses/Resource/Measure/FcUnitAssignment.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"

namespace qev::fc::ui::propertyinterface {

using core::kernel::FcContext;

namespace {

constexpr char unitsId[] = "Units";

} // namespace

bool GetProperties::visit(FcContext const& context)
{
    context.FcObjectDefinition::accept(*this);
    auto const assignment = context.UnitsInContext->get();
    if (auto const group = assignment ? groupOf(*this) : nullptr) {
        auto list = makeList(unitsId, context);
        for (auto const& unit : assignment->Units.get())
            appendPropertiesOf(unit.entity(), *list);
        group->children.push_back(std::move(list));
    }
    return false;
}

bool GetPropertyName::visit(FcContext const&)
{
    if (id.text() != unitsId)
        return true;
    name = localizeWithFallback("IfcProject::UnitsInContext", unitsId);
    return false;
}

bool GetPropertyDescription::visit(FcContext const&)
{
    if (id.text() != unitsId)
        return true;
    description = fc::localize("IfcProject::UnitsInContext_Description");
    return false;
}

} // namespace qev::fc::ui::propertyinterface
