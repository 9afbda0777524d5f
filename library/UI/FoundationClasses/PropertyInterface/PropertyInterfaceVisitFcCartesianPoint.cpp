#include "FoundationClasses/Resource/Geometry/FcCartesianPoint.h"
#include "UI/FoundationClasses/PropertyInterface/CoordinateRows.h"
#include "UI/FoundationClasses/PropertyInterface/CreateQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/HasQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"

namespace qev::fc::ui::propertyinterface {

using resource::geometry::FcCartesianPoint;

namespace {

constexpr std::size_t dimensionOfSpace = 3;

} // namespace

bool GetProperties::visit(FcCartesianPoint const& point)
{
    for (auto const* const coordinateId : coordinateIds)
        properties.push_back(makeRow(coordinateId, point));
    return false;
}

bool GetValue::visit(FcCartesianPoint const& point)
{
    auto const axis = coordinateAxis(id);
    if (!axis)
        return true;
    auto const& coordinates = point.Coordinates.get();
    auto const position = static_cast<std::size_t>(*axis);
    value = position < coordinates.size() ? coordinates[position] : 0.0;
    return false;
}

bool SetValue::visit(FcCartesianPoint& point)
{
    auto const axis = coordinateAxis(id);
    if (!axis)
        return true;
    if (!value->is<double>())
        return false;
    auto coordinates = point.Coordinates.get();
    coordinates.resize(dimensionOfSpace);
    coordinates[static_cast<std::size_t>(*axis)] = value->get<double>();
    point.Coordinates = std::move(coordinates);
    return false;
}

bool GetPropertyName::visit(FcCartesianPoint const&)
{
    auto const axis = coordinateAxis(id);
    if (!axis)
        return true;
    name = coordinateName(*axis);
    return false;
}

bool GetPropertyDescription::visit(FcCartesianPoint const&)
{
    auto const axis = coordinateAxis(id);
    if (!axis)
        return true;
    description = coordinateDescription(*axis);
    return false;
}

bool HasQuantityPresentation::visit(FcCartesianPoint const&)
{
    result = coordinateAxis(id).has_value();
    return !result;
}

bool CreateQuantityPresentation::visit(FcCartesianPoint const&)
{
    if (!coordinateAxis(id))
        return true;
    presentation = makeLengthPresentation();
    return false;
}

} // namespace qev::fc::ui::propertyinterface
