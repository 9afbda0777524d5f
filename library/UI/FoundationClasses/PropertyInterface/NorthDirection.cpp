#include "UI/FoundationClasses/PropertyInterface/NorthDirection.h"

#include "FoundationClasses/Resource/Geometry/FcDirection.h"
#include "FoundationClasses/Resource/Representation/FcGeometricRepresentationContext.h"

namespace qev::fc::ui::propertyinterface {

std::optional<math::_2d::Vector>
northDirection(resource::representation::FcGeometricRepresentationContext const& context)
{
    auto const direction = context.TrueNorth->get();
    if (!direction || direction->DirectionRatios->size() < 2)
        return std::nullopt;
    auto const& ratios = direction->DirectionRatios.get();
    return math::_2d::Vector{ratios[0], ratios[1]};
}

} // namespace qev::fc::ui::propertyinterface
