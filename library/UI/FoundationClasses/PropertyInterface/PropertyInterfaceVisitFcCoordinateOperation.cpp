#include "FoundationClasses/Localize.h"
#include "FoundationClasses/Resource/Representation/FcCoordinateOperation.h"
#include "FoundationClasses/Resource/Representation/FcCoordinateReferenceSystem.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"

namespace qev::fc::ui::propertyinterface {

using resource::representation::FcCoordinateOperation;

namespace {

constexpr char targetId[] = "TargetCRS";

} // namespace

bool GetProperties::visit(FcCoordinateOperation const& operation)
{
    operation.FcBase::accept(*this);
    auto const target = operation.TargetCRS->get();
    if (auto const group = target ? groupOf(*this) : nullptr)
        group->children.push_back(makeGroup(targetId, operation, target));
    return false;
}

bool GetPropertyName::visit(FcCoordinateOperation const& operation)
{
    if (id.text() != targetId)
        return true;
    name = referenceLabel(localizeWithFallback("IfcCoordinateOperation.TargetCRS", targetId),
                          operation.TargetCRS->get().get());
    return false;
}

} // namespace qev::fc::ui::propertyinterface
