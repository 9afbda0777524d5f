#include "UI/FoundationClasses/PropertyInterface/CoordinateRows.h"

#include "Core/Unit/Unit.h"
#include "FoundationClasses/Localize.h"

#include <span>

namespace qev::fc::ui::propertyinterface {

namespace {

constexpr char const* coordinateKeys[] = {"Property_X-coordinate", "Property_Y-coordinate",
                                          "Property_Z-coordinate"};
constexpr char const* rotationKeys[] = {"Property_X-rotation", "Property_Y-rotation", "Property_Z-rotation"};

std::optional<int> positionOf(object::PropertyId const& id, std::span<char const* const> ids)
{
    for (std::size_t position = 0; position < ids.size(); ++position) {
        if (id.text() == ids[position])
            return static_cast<int>(position);
    }
    return std::nullopt;
}

std::string descriptionOf(std::string const& key, std::string const& fallback)
{
    return localizeWithFallback(key + "_Description", fallback);
}

} // namespace

std::optional<int> coordinateAxis(object::PropertyId const& id) { return positionOf(id, coordinateIds); }

std::optional<int> rotationAxis(object::PropertyId const& id) { return positionOf(id, rotationIds); }

std::string coordinateName(int axis) { return localize(coordinateKeys[axis]); }

/// All three fall back on the text of the first.
std::string coordinateDescription(int axis) { return descriptionOf(coordinateKeys[axis], coordinateKeys[0]); }

std::string rotationName(int axis) { return localize(rotationKeys[axis]); }

std::string rotationDescription(int axis) { return descriptionOf(rotationKeys[axis], rotationKeys[axis]); }

std::unique_ptr<unit::QuantityPresentationBase> makeLengthPresentation()
{
    using Length = unit::Quantity<1, 1, 0, 0, 0, 0, 0, 0>;
    return unit::makeQuantityPresentation<unit::SiUnit<4, Length>>();
}

std::unique_ptr<unit::QuantityPresentationBase> makePlaneAnglePresentation(double value)
{
    using PlaneAngle = unit::Quantity<5, 0, 0, 0, 0, 0, 0, 0>;
    return unit::makeQuantityPresentation<unit::SiUnit<17, PlaneAngle>>(value);
}

} // namespace qev::fc::ui::propertyinterface
