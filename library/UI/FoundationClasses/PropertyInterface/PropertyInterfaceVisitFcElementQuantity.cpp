#include "Core/Unit/QuantityPresentation.h"
#include "FoundationClasses/Core/ProductExtension/FcElementQuantity.h"
#include "FoundationClasses/Data.h"
#include "FoundationClasses/Localize.h"
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

using core::productextension::FcElementQuantity;

namespace {

void removeMember(FcElementQuantity& set, std::string const& name, Data& data)
{
    ChangeLog::Step const step(data.changes(), "Remove quantity");
    if (set.removeQuantity(name))
        set.deletePset(data);
}

} // namespace

bool GetProperties::visit(FcElementQuantity const& set)
{
    set.FcPropertySetDefinition::accept(*this);
    auto const group = groupOf(*this);
    if (!group)
        return false;
    auto const& members = set.Quantities->get();
    appendMemberRows(members, PropertyCompareLess(set), set, *group);
    if (members.empty())
        group->children.push_back(makeRow(emptyPropertyId, set));
    return false;
}

bool GetValue::visit(FcElementQuantity const& set)
{
    auto const member = memberOfName(set.Quantities->get(), id);
    if (!member)
        return true;
    if (auto const simple = asSimpleQuantity(member))
        value = std::optional(simple->getValue());
    else
        reportInVisit("GetValue not implemented for FcPhysicalComplexQuantity", "GetValue",
                      "FcElementQuantity");
    return false;
}

bool SetValue::visit(FcElementQuantity& set)
{
    auto const member = memberOfName(set.Quantities->get(), id);
    if (!member)
        return true;
    auto const quantity = asSimpleQuantity(member);
    if (!quantity) {
        reportInVisit("SetValue not implemented for FcPhysicalComplexQuantity", "SetValue",
                      "FcElementQuantity");
        return false;
    }
    if (auto const number = value->get<std::optional<double>>())
        quantity->setValue(*number);
    else
        removeMember(set, id.text(), data);
    return false;
}

bool GetPropertyName::visit(FcElementQuantity const& set)
{
    if (id.text() == emptyPropertyId) {
        name = "Empty quantity set";
        return false;
    }
    auto const member = memberOfName(set.Quantities->get(), id);
    if (!member)
        return true;
    auto const& memberName = member->Name.get();
    name = localizeWithFallback(set.Name->value_or("") + '.' + memberName, memberName);
    return false;
}

bool GetPropertyDescription::visit(FcElementQuantity const& set)
{
    auto const member = memberOfName(set.Quantities->get(), id);
    if (!member)
        return true;
    description = member->Description->value_or("");
    return false;
}

bool HasQuantityPresentation::visit(FcElementQuantity const&)
{
    result = true;
    return false;
}

bool CreateQuantityPresentation::visit(FcElementQuantity const& set)
{
    auto const member = memberOfName(set.Quantities->get(), id);
    if (!member)
        return true;
    if (auto const quantity = asSimpleQuantity(member))
        presentation = set.createQuantityPresentationFor(*quantity);
    return false;
}

} // namespace qev::fc::ui::propertyinterface
