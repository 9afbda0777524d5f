#include "UI/FoundationClasses/PropertyInterface/StructureRows.h"

#include "FoundationClasses/Core/Kernel/FcProduct.h"
#include "FoundationClasses/Resource/GeometricConstraint/FcObjectPlacement.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"

#include <algorithm>

namespace qev::fc::ui::propertyinterface {

std::shared_ptr<Property> makePlacementRow(std::string_view id, core::kernel::FcProduct const& product)
{
    auto row = makeGroup(id, product);
    appendPropertiesOf(product.ObjectPlacement->get(), *row);
    return row;
}

void insertAddress(std::string_view id, std::shared_ptr<FcBase const> const& address, FcBase const& owner,
                   Property& group)
{
    auto const firstHeading = std::find_if(group.children.begin(), group.children.end(),
                                           [](auto const& child) { return child->isGroup; });
    if (!address || firstHeading == group.children.end())
        return;
    auto row = makeGroup(id, owner);
    appendPropertiesOf(address, *row);
    group.children.insert(firstHeading, std::move(row));
}

} // namespace qev::fc::ui::propertyinterface
