#pragma once

#include "FoundationClasses/ForwardDeclarations.h"
#include "Object/PropertyId.h"

#include <memory>
#include <vector>

namespace qev::fc {
class FcBase;
struct Property;
} // namespace qev::fc
namespace qev::fc::ui {
class PropertyCompareLess;
}

/// What a quantity set and a complex quantity have in common: they answer for their members, each by its
/// name.
namespace qev::fc::ui::propertyinterface {

using QuantityMembers = std::vector<std::shared_ptr<resource::quantity::FcPhysicalQuantity>>;

/// Adds a row for each of \p members, in the order of \p isLess, to the rows of the \p owner that answers for
/// them. A member that has members itself is a list.
void appendMemberRows(QuantityMembers members, PropertyCompareLess const& isLess, FcBase const& owner,
                      Property& group);

/// The first member of that name; null when there is none.
[[nodiscard]] std::shared_ptr<resource::quantity::FcPhysicalQuantity>
memberOfName(QuantityMembers const& members, object::PropertyId const& name);
/// The member as one that has a value; null for other kinds, and for null.
[[nodiscard]] std::shared_ptr<resource::quantity::FcPhysicalSimpleQuantity>
asSimpleQuantity(std::shared_ptr<resource::quantity::FcPhysicalQuantity> const& member);

} // namespace qev::fc::ui::propertyinterface
