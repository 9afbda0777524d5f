#include "FoundationClasses/Localize.h"
#include "FoundationClasses/Resource/GeometricConstraint/FcObjectPlacement.h"
#include "FoundationClasses/Shared/SharedBldgServiceElements/FcDistributionPort.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"
#include "UI/FoundationClasses/PropertyInterface/StructureRows.h"

namespace qev::fc::ui::propertyinterface {

using shared::sharedbldgserviceelements::FcDistributionPort;

namespace {

constexpr char positionId[] = "Position";

} // namespace

bool GetProperties::visit(FcDistributionPort const& port)
{
    port.FcObject::accept(*this);
    auto const group = groupOf(*this);
    if (group && port.ObjectPlacement->isSet())
        group->children.push_back(makePlacementRow(positionId, port));
    return false;
}

bool GetPropertyName::visit(FcDistributionPort const&)
{
    if (id.text() != positionId)
        return true;
    name = localize("Placement");
    return false;
}

} // namespace qev::fc::ui::propertyinterface
