#include "UI/FoundationClasses/PropertyInterface/StructureRows.h"

#include "FoundationClasses/Core/Kernel/FcProduct.h"
#include "FoundationClasses/Resource/GeometricConstraint/FcObjectPlacement.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"

#include <algorithm>

namespace qev::fc::ui::propertyinterface {

std::shared_ptr<Property> makePlacementRow(std::string_view id, core::kernel::FcProduct const& product)
{
    return makeGroup(id, product, product.ObjectPlacement->get());
}

void insertAddress(std::string_view id, std::shared_ptr<FcBase const> const& address, FcBase const& owner,
                   Property& group)
{
    auto const firstHeading = std::find_if(group.children.begin(), group.children.end(),
                                           [](auto const& child) { return child->isGroup; });
    if (address && firstHeading != group.children.end())
        group.children.insert(firstHeading, makeGroup(id, owner, address));
}

} // namespace qev::fc::ui::propertyinterface
