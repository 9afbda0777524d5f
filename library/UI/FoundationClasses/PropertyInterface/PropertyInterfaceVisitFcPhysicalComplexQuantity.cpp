#include "Core/Unit/QuantityPresentation.h"
#include "FoundationClasses/Resource/Quantity/FcPhysicalComplexQuantity.h"
#include "FoundationClasses/Resource/Quantity/FcPhysicalSimpleQuantity.h"
#include "UI/FoundationClasses/PropertyInterface/CreateQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/HasQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"
#include "UI/FoundationClasses/PropertyInterface/QuantityMembers.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"
#include "UI/FoundationClasses/PropertyInterface/VisitReports.h"
#include "UI/FoundationClasses/PsetSorting.h"

namespace qev::fc::ui::propertyinterface {

using resource::quantity::FcPhysicalComplexQuantity;

bool GetProperties::visit(FcPhysicalComplexQuantity const& quantity)
{
    quantity.FcPhysicalQuantity::accept(*this);
    if (auto const group = groupOf(*this))
        appendMemberRows(quantity.HasQuantities->get(), PropertyCompareLess(), quantity, *group);
    return false;
}

bool GetValue::visit(FcPhysicalComplexQuantity const& quantity)
{
    auto const member = memberOfName(quantity.HasQuantities->get(), id);
    if (!member)
        return true;
    if (auto const simple = asSimpleQuantity(member))
        value = std::optional(simple->getValue());
    else
        reportInVisit("GetValue not implemented for FcPhysicalComplexQuantity", "GetValue",
                      "FcPhysicalComplexQuantity");
    return false;
}

bool SetValue::visit(FcPhysicalComplexQuantity&) { return false; }

bool GetPropertyName::visit(FcPhysicalComplexQuantity const& quantity)
{
    auto const member = memberOfName(quantity.HasQuantities->get(), id);
    if (!member)
        return true;
    name = member->Name.get();
    return false;
}

bool GetPropertyDescription::visit(FcPhysicalComplexQuantity const& quantity)
{
    auto const member = memberOfName(quantity.HasQuantities->get(), id);
    if (!member)
        return true;
    description = member->Description->value_or("");
    return false;
}

bool HasQuantityPresentation::visit(FcPhysicalComplexQuantity const&)
{
    result = true;
    return false;
}

bool CreateQuantityPresentation::visit(FcPhysicalComplexQuantity const& quantity)
{
    auto const member = memberOfName(quantity.HasQuantities->get(), id);
    if (!member)
        return true;
    if (auto const simple = asSimpleQuantity(member))
        presentation = simple->createQuantityPresentation();
    return false;
}

} // namespace qev::fc::ui::propertyinterface
