#include "Core/Math/Matrix.h"
#include "FoundationClasses/Core/ProductExtension/FcBuilding.h"
#include "FoundationClasses/Core/ProductExtension/FcBuildingStorey.h"
#include "FoundationClasses/Core/ProductExtension/FcSite.h"
#include "FoundationClasses/Resource/GeometricConstraint/FcLocalPlacement.h"
#include "UI/FoundationClasses/PropertyInterface/CoordinateRows.h"
#include "UI/FoundationClasses/PropertyInterface/CreateQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/HasQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"

#include <algorithm>

namespace qev::fc::ui::propertyinterface {

using core::kernel::FcProduct;
using core::productextension::FcBuilding;
using core::productextension::FcBuildingStorey;
using core::productextension::FcSite;
using math::Matrix;
using math::Vector;
using resource::geometricconstraint::FcLocalPlacement;
using resource::geometricconstraint::FcObjectPlacement;

namespace {

double& component(Vector& vector, int axis) { return axis == 0 ? vector.x : axis == 1 ? vector.y : vector.z; }

// --- The frame of the structure ---------------------------------------------------------------------

/// A storey is told relative to its building, everything else relative to its storey or the site.
bool isOfStorey(FcLocalPlacement const& placement)
{
    auto const placed = placement.PlacesObject();
    auto const product = placed.size() == 1 ? placed.front().lock() : nullptr;
    return product && isOfClass<FcBuildingStorey>(*product);
}

bool isFrame(FcProduct const& product, bool ofStorey)
{
    return ofStorey ? isOfClass<FcBuilding>(product)
                    : isOfClass<FcBuildingStorey>(product) || isOfClass<FcSite>(product);
}

bool placesFrame(FcObjectPlacement const& placement, bool ofStorey)
{
    auto const products = liveOnes(placement.PlacesObject());
    return std::any_of(products.begin(), products.end(),
                       [ofStorey](auto const& product) { return isFrame(*product, ofStorey); });
}

Matrix referenceMatrix(FcLocalPlacement const& placement)
{
    bool const ofStorey = isOfStorey(placement);
    // In a broken file placements may be relative to each other in a circle.
    std::vector<std::shared_ptr<FcObjectPlacement>> seen;
    auto current = placement.PlacementRelTo->get();
    while (current && std::find(seen.begin(), seen.end(), current) == seen.end()) {
        if (placesFrame(*current, ofStorey))
            return current->absoluteMatrix();
        seen.push_back(current);
        auto const local = entityCast<FcLocalPlacement>(current);
        current = local ? local->PlacementRelTo->get() : nullptr;
    }
    return {};
}

Matrix matrixInStructure(FcLocalPlacement const& placement)
{
    return referenceMatrix(placement).inverse() * placement.absoluteMatrix();
}

// --- Writing ----------------------------------------------------------------------------------------

Matrix withCoordinate(Matrix matrix, int axis, double coordinate)
{
    Vector translation = matrix.translation();
    component(translation, axis) = coordinate;
    matrix.setTranslation(translation);
    return matrix;
}

Matrix withRotation(Matrix const& matrix, int axis, double rotation)
{
    Vector rotations = matrix.getRotations();
    component(rotations, axis) = rotation;
    Matrix result = Matrix::createZRotate(rotations.z) * Matrix::createXRotate(rotations.x) *
                    Matrix::createYRotate(rotations.y);
    result.setTranslation(matrix.translation());
    return result;
}

} // namespace

bool GetProperties::visit(FcLocalPlacement const& placement)
{
    for (auto const* const coordinateId : coordinateIds)
        properties.push_back(makeRow(coordinateId, placement));
    for (auto const* const rotationId : rotationIds)
        properties.push_back(makeRow(rotationId, placement));
    return false;
}

bool GetValue::visit(FcLocalPlacement const& placement)
{
    if (auto const axis = coordinateAxis(id)) {
        Vector translation = matrixInStructure(placement).translation();
        value = component(translation, *axis);
        return false;
    }
    if (auto const axis = rotationAxis(id)) {
        Vector rotations = matrixInStructure(placement).getRotations();
        value = component(rotations, *axis);
        return false;
    }
    return true;
}

bool SetValue::visit(FcLocalPlacement& placement)
{
    auto const coordinate = coordinateAxis(id);
    auto const rotation = rotationAxis(id);
    if (!coordinate && !rotation)
        return true;
    double const number = value->get<double>();
    Matrix const before = placement.RelativePlacement->transformationGet();
    Vector parts = coordinate ? before.translation() : before.getRotations();
    // New points and directions only where something moves.
    if (component(parts, coordinate ? *coordinate : *rotation) == number)
        return false;
    Matrix const after =
        coordinate ? withCoordinate(before, *coordinate, number) : withRotation(before, *rotation, number);
    placement.RelativePlacement.edit([&after](auto& relative) { relative.setTransformation(after); });
    return false;
}

bool GetPropertyName::visit(FcLocalPlacement const&)
{
    if (auto const axis = coordinateAxis(id))
        name = coordinateName(*axis);
    else if (auto const rotation = rotationAxis(id))
        name = rotationName(*rotation);
    else
        return true;
    return false;
}

bool GetPropertyDescription::visit(FcLocalPlacement const&)
{
    if (auto const axis = coordinateAxis(id))
        description = coordinateDescription(*axis);
    else if (auto const rotation = rotationAxis(id))
        description = rotationDescription(*rotation);
    else
        return true;
    return false;
}

bool HasQuantityPresentation::visit(FcLocalPlacement const&)
{
    result = coordinateAxis(id) || rotationAxis(id);
    return !result;
}

bool CreateQuantityPresentation::visit(FcLocalPlacement const&)
{
    if (coordinateAxis(id))
        presentation = makeLengthPresentation();
    else if (rotationAxis(id))
        presentation = makePlaneAnglePresentation();
    return !presentation;
}

} // namespace qev::fc::ui::propertyinterface
