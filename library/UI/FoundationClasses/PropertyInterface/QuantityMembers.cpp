#include "UI/FoundationClasses/PropertyInterface/QuantityMembers.h"

#include "FoundationClasses/Resource/Quantity/FcPhysicalSimpleQuantity.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"
#include "UI/FoundationClasses/PsetSorting.h"

#include <algorithm>

namespace qev::fc::ui::propertyinterface {

using resource::quantity::FcPhysicalQuantity;
using resource::quantity::FcPhysicalSimpleQuantity;

namespace {

std::shared_ptr<Property> makeMemberRow(std::shared_ptr<FcPhysicalQuantity> const& member,
                                        FcBase const& owner)
{
    if (asSimpleQuantity(member))
        return makeRow(member->Name.get(), owner);
    auto list = makeList(member->Name.get(), owner);
    appendPropertiesOf(member, *list);
    return list;
}

} // namespace

void appendMemberRows(QuantityMembers members, PropertyCompareLess const& isLess, FcBase const& owner,
                      Property& group)
{
    std::stable_sort(members.begin(), members.end(), isLess);
    for (auto const& member : members)
        group.children.push_back(makeMemberRow(member, owner));
}

std::shared_ptr<FcPhysicalQuantity> memberOfName(QuantityMembers const& members,
                                                 object::PropertyId const& name)
{
    auto const found = std::find_if(members.begin(), members.end(), [&name](auto const& member) {
        return member->Name.get() == name.text();
    });
    return found == members.end() ? nullptr : *found;
}

std::shared_ptr<FcPhysicalSimpleQuantity> asSimpleQuantity(std::shared_ptr<FcPhysicalQuantity> const& member)
{
    return entityCast<FcPhysicalSimpleQuantity>(member);
}

} // namespace qev::fc::ui::propertyinterface
