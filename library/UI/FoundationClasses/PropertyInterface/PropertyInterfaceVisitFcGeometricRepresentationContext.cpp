#include "Core/Math/Matrix.h"
#include "Core/Math/Vector2d.h"
#include "FoundationClasses/Data.h"
#include "FoundationClasses/Localize.h"
#include "FoundationClasses/Resource/Geometry/FcDirection.h"
#include "FoundationClasses/Resource/Representation/FcCoordinateOperation.h"
#include "FoundationClasses/Resource/Representation/FcGeometricRepresentationContext.h"
#include "UI/FoundationClasses/PropertyInterface/CoordinateRows.h"
#include "UI/FoundationClasses/PropertyInterface/CreateQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/HasQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/NorthDirection.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"

#include <algorithm>

namespace qev::fc::ui::propertyinterface {

using resource::geometry::FcDirection;
using resource::representation::FcCoordinateOperation;
using resource::representation::FcGeometricRepresentationContext;

namespace {

constexpr char worldCoordinateSystem[] = "WorldCoordinateSystem";
constexpr char trueNorth[] = "TrueNorth";
constexpr char hasCoordinateOperation[] = "HasCoordinateOperation";

void addRowIfMissing(char const* id, FcGeometricRepresentationContext const& context, Property& group)
{
    bool const isThere = std::any_of(group.children.begin(), group.children.end(),
                                     [id](auto const& child) { return child->id.text() == id; });
    if (!isThere)
        group.children.push_back(makeRow(id, context));
}

std::shared_ptr<FcCoordinateOperation> coordinateOperation(FcGeometricRepresentationContext const& context)
{
    auto const operations = liveOnes(context.HasCoordinateOperation());
    return operations.empty() ? nullptr : operations.front();
}

std::optional<double> northAngle(FcGeometricRepresentationContext const& context)
{
    auto const north = northDirection(context);
    return north ? std::optional(northAxis.counterClockwiseAngle(*north)) : std::nullopt;
}

} // namespace

bool GetProperties::visit(FcGeometricRepresentationContext const& context)
{
    context.FcRepresentationContext::accept(*this);
    auto const group = groupOf(*this);
    if (!group)
        return false;
    addRowIfMissing("CoordinateSpaceDimension", context, *group);
    addRowIfMissing("Precision", context, *group);
    group->children.push_back(makeRow(worldCoordinateSystem, context));
    group->children.push_back(makeRow(trueNorth, context));
    if (auto const operation = coordinateOperation(context))
        group->children.push_back(makeGroup(hasCoordinateOperation, context, operation));
    return false;
}

bool GetValue::visit(FcGeometricRepresentationContext const& context)
{
    if (id.text() == worldCoordinateSystem) {
        value = context.WorldCoordinateSystem->transformationGet().translation().toString();
        return false;
    }
    if (id.text() == trueNorth) {
        auto const angle = northAngle(context);
        value = angle ? object::PropertyValue(*angle) : object::PropertyValue(std::optional<double>());
        return false;
    }
    return true;
}

bool SetValue::visit(FcGeometricRepresentationContext& context)
{
    if (id.text() != trueNorth)
        return true;
    if (value->isNullopt()) {
        context.TrueNorth = nullptr;
        return false;
    }
    auto const plain = value->getUnwrappedOptionalValue();
    double const angle = plain->get<double>();
    if (northAngle(context) == angle)
        return false;
    auto const north = northAxis.rotate(angle);
    auto direction = std::make_shared<FcDirection>();
    direction->DirectionRatios = std::vector{north.x, north.y};
    data.entityAdd(direction, false);
    context.TrueNorth = direction;
    return false;
}

bool GetPropertyName::visit(FcGeometricRepresentationContext const& context)
{
    if (id.text() != hasCoordinateOperation)
        return true;
    name = referenceLabel(localizeWithFallback("IfcGeometricRepresentationContext.HasCoordinateOperation",
                                               hasCoordinateOperation),
                          coordinateOperation(context).get());
    return false;
}

bool HasQuantityPresentation::visit(FcGeometricRepresentationContext const&)
{
    result = id.text() == trueNorth;
    return !result;
}

bool CreateQuantityPresentation::visit(FcGeometricRepresentationContext const&)
{
    if (id.text() != trueNorth)
        return true;
    presentation = makePlaneAnglePresentation();
    return false;
}

} // namespace qev::fc::ui::propertyinterface
