#include "FoundationClasses/Core/ProductExtension/FcBuilding.h"
#include "FoundationClasses/Resource/Actor/FcPostalAddress.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"
#include "UI/FoundationClasses/PropertyInterface/StructureRows.h"

namespace qev::fc::ui::propertyinterface {

using core::productextension::FcBuilding;

bool GetProperties::visit(FcBuilding const& building)
{
    building.FcSpatialStructureElement::accept(*this);
    if (auto const group = groupOf(*this))
        insertAddress("BuildingAddress", building.BuildingAddress->get(), building, *group);
    return false;
}

} // namespace qev::fc::ui::propertyinterface
