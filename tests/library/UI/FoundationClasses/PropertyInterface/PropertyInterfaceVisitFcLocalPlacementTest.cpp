#include "FoundationClasses/Resource/GeometricConstraint/FcLocalPlacement.h"

#include "Core/Math/Matrix.h"
#include "Core/Unit/QuantityPresentation.h"
#include "FoundationClasses/Core/ProductExtension/FcBuilding.h"
#include "FoundationClasses/Core/ProductExtension/FcBuildingStorey.h"
#include "FoundationClasses/Core/ProductExtension/FcSite.h"
#include "FoundationClasses/Resource/GeometricConstraint/FcLinearPlacement.h"
#include "FoundationClasses/Resource/Geometry/FcAxis2Placement3D.h"
#include "FoundationClasses/Resource/Geometry/FcCartesianPoint.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWall.h"
#include "kit/ModelBuilder.h"
#include "kit/ReportRecorder.h"
#include "library/kit/PropertyTree.h"
#include "library/kit/TranslationScope.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyAccess.h"

#include <gtest/gtest.h>

#include <numbers>

namespace {

using namespace qev;
using namespace qev::test;
using namespace fc::resource::geometry;
using namespace fc::ui::propertyinterface;
using fc::resource::geometricconstraint::FcLinearPlacement;
using fc::resource::geometricconstraint::FcLocalPlacement;
using fc::resource::geometricconstraint::FcObjectPlacement;
using math::Matrix;
using object::PropertyId;
using object::PropertyValue;
using Length = unit::SiUnit<4, unit::Quantity<1, 1, 0, 0, 0, 0, 0, 0>>;
using PlaneAngle = unit::SiUnit<17, unit::Quantity<5, 0, 0, 0, 0, 0, 0, 0>>;

constexpr double quarterTurn = std::numbers::pi / 2;

struct GeometryRows : testing::Test
{
    TranslationScope texts;
    Model model;
    std::shared_ptr<FcCartesianPoint> point = std::make_shared<FcCartesianPoint>();

    std::shared_ptr<FcLocalPlacement> place(Matrix const& relative,
                                            std::shared_ptr<FcObjectPlacement> const& outer = nullptr)
    {
        auto placement = std::make_shared<FcLocalPlacement>();
        placement->RelativePlacement.edit([&relative](auto& axes) { axes.setTransformation(relative); });
        placement->PlacementRelTo = outer;
        model.data()->entityAdd(placement, false);
        return placement;
    }
    double number(fc::FcBase const& entity, std::string const& id) const
    {
        return getValue(*model.data(), entity, PropertyId(id), std::nullopt).get<double>();
    }
    void set(fc::FcBase& entity, std::string const& id, PropertyValue const& value)
    {
        setValue(*model.data(), entity, PropertyId(id), value);
    }
    std::string name(fc::FcBase const& entity, std::string const& id) const
    {
        return getPropertyName(*model.data(), entity, PropertyId(id), std::nullopt);
    }
    void expectCoordinates(fc::FcBase const& entity, double x, double y, double z) const
    {
        EXPECT_NEAR(number(entity, "XCoordinate"), x, 1e-12);
        EXPECT_NEAR(number(entity, "YCoordinate"), y, 1e-12);
        EXPECT_NEAR(number(entity, "ZCoordinate"), z, 1e-12);
    }
};

// --- Points -----------------------------------------------------------------------------------------

TEST_F(GeometryRows, OfAPointAreThreeWithoutAHeading)
{
    auto const rows = getProperties(*point);
    EXPECT_EQ(treeText(rows), "XCoordinate\nYCoordinate\nZCoordinate\n");
    EXPECT_EQ(rows.front()->object, point);
    point->Coordinates = std::vector{1.0, 2.0, 3.0};
    expectCoordinates(*point, 1, 2, 3);
    point->Coordinates = std::vector{1.0, 2.0};
    expectCoordinates(*point, 1, 2, 0);
}

TEST_F(GeometryRows, MakeAPointSpatialWhereTheyAreSet)
{
    point->Coordinates = std::vector{1.0, 2.0};
    set(*point, "ZCoordinate", 3.0);
    EXPECT_EQ(point->Coordinates.get(), (std::vector{1.0, 2.0, 3.0}));
    point->Coordinates = std::vector{1.0, 2.0};
    set(*point, "XCoordinate", 1.0);
    EXPECT_EQ(point->Coordinates.get(), (std::vector{1.0, 2.0, 0.0}));
}

TEST_F(GeometryRows, IgnoreWhatIsNoNumberInAPoint)
{
    point->Coordinates = std::vector{1.0, 2.0};
    set(*point, "YCoordinate", "5");
    set(*point, "YCoordinate", std::optional<double>(5));
    set(*point, "YCoordinate", 5);
    EXPECT_EQ(point->Coordinates.get(), (std::vector{1.0, 2.0}));
}

TEST_F(GeometryRows, LabelCoordinatesAndRotations)
{
    auto const placement = place(Matrix());
    for (fc::FcBase const* entity :
         {static_cast<fc::FcBase const*>(point.get()), static_cast<fc::FcBase const*>(placement.get())}) {
        EXPECT_EQ(name(*entity, "XCoordinate"), "Property_X-coordinate");
        EXPECT_EQ(name(*entity, "ZCoordinate"), "Property_Z-coordinate");
        EXPECT_EQ(getPropertyDescription(*entity, PropertyId("XCoordinate")), "Property_X-coordinate");
        EXPECT_EQ(getPropertyDescription(*entity, PropertyId("ZCoordinate")), "Property_X-coordinate");
    }
    EXPECT_EQ(name(*placement, "YAxisRotation"), "Property_Y-rotation");
    EXPECT_EQ(getPropertyDescription(*placement, PropertyId("YAxisRotation")), "Property_Y-rotation");
    texts.add("Property_Y-coordinate", "Y");
    texts.add("Property_Y-coordinate_Description", "about Y");
    texts.add("Property_Z-rotation", "round Z");
    texts.add("Property_Z-rotation_Description", "about Z");
    EXPECT_EQ(name(*point, "YCoordinate"), "Y");
    EXPECT_EQ(getPropertyDescription(*point, PropertyId("YCoordinate")), "about Y");
    EXPECT_EQ(name(*placement, "ZAxisRotation"), "round Z");
    EXPECT_EQ(getPropertyDescription(*placement, PropertyId("ZAxisRotation")), "about Z");
}

TEST_F(GeometryRows, PresentLengthsAndAngles)
{
    auto const placement = place(Matrix());
    auto const unitOf = [this](fc::FcBase const& entity, std::string const& id) -> std::type_info const& {
        EXPECT_TRUE(hasQuantityPresentation(entity, PropertyId(id)));
        auto const presentation =
            createQuantityPresentation(*model.data(), entity, PropertyId(id), std::nullopt);
        EXPECT_EQ(presentation->value(), 0.0);
        return typeid(presentation->unit());
    };
    for (auto const* id : {"XCoordinate", "YCoordinate", "ZCoordinate"}) {
        EXPECT_EQ(unitOf(*point, id), typeid(Length));
        EXPECT_EQ(unitOf(*placement, id), typeid(Length));
    }
    for (auto const* id : {"XAxisRotation", "YAxisRotation", "ZAxisRotation"}) {
        EXPECT_EQ(unitOf(*placement, id), typeid(PlaneAngle));
        EXPECT_FALSE(hasQuantityPresentation(*point, PropertyId(id)));
    }
    EXPECT_FALSE(hasQuantityPresentation(*placement, PropertyId("Name")));
}

// --- Placements -------------------------------------------------------------------------------------

TEST_F(GeometryRows, OfAPlacementAreSixWithoutAHeading)
{
    auto const placement = place(Matrix());
    auto const rows = getProperties(*placement);
    EXPECT_EQ(treeText(rows), "XCoordinate\nYCoordinate\nZCoordinate\n"
                              "XAxisRotation\nYAxisRotation\nZAxisRotation\n");
    EXPECT_EQ(rows.front()->object, placement);
}

TEST_F(GeometryRows, TellAPlacementOfItsOwnFrameAlone)
{
    auto const placement = place(Matrix::createTranslation({1, 2, 3}) * Matrix::createZRotate(quarterTurn));
    expectCoordinates(*placement, 1, 2, 3);
    EXPECT_NEAR(number(*placement, "ZAxisRotation"), quarterTurn, 1e-12);
    EXPECT_NEAR(number(*placement, "XAxisRotation"), 0, 1e-12);
}

TEST_F(GeometryRows, TellAPlacementInTheFrameOfTheStorey)
{
    auto const sitePlacement = place(Matrix::createTranslation({100, 0, 0}));
    model.site("Site")->ObjectPlacement = sitePlacement;
    auto const storeyPlacement =
        place(Matrix::createTranslation({0, 10, 3}) * Matrix::createZRotate(quarterTurn), sitePlacement);
    model.storey("Storey")->ObjectPlacement = storeyPlacement;
    auto const assembly = place(Matrix::createTranslation({1, 0, 0}), storeyPlacement);
    auto const placement = place(Matrix::createTranslation({0, 2, 0}), assembly);

    expectCoordinates(*placement, 1, 2, 0);
    EXPECT_NEAR(number(*placement, "ZAxisRotation"), 0, 1e-12);
}

TEST_F(GeometryRows, TellAPlacementInTheFrameOfTheSiteWithoutAStorey)
{
    auto const sitePlacement = place(Matrix::createTranslation({100, 0, 0}));
    model.site("Site")->ObjectPlacement = sitePlacement;
    auto const buildingPlacement = place(Matrix::createTranslation({0, 10, 0}), sitePlacement);
    model.building("Building")->ObjectPlacement = buildingPlacement;
    auto const placement = place(Matrix::createTranslation({1, 2, 3}), buildingPlacement);

    expectCoordinates(*placement, 1, 12, 3);
    expectCoordinates(*buildingPlacement, 0, 10, 0);
    expectCoordinates(*sitePlacement, 100, 0, 0);
}

TEST_F(GeometryRows, TellAStoreyInTheFrameOfItsBuilding)
{
    auto const sitePlacement = place(Matrix::createTranslation({100, 0, 0}));
    model.site("Site")->ObjectPlacement = sitePlacement;
    auto const buildingPlacement = place(Matrix::createTranslation({0, 10, 0}), sitePlacement);
    model.building("Building")->ObjectPlacement = buildingPlacement;
    auto const storeyPlacement = place(Matrix::createTranslation({1, 2, 3}), buildingPlacement);
    model.storey("Storey")->ObjectPlacement = storeyPlacement;
    expectCoordinates(*storeyPlacement, 1, 2, 3);

    // A placement that places more than the storey is told like any other.
    model.wall("W1")->ObjectPlacement = storeyPlacement;
    expectCoordinates(*storeyPlacement, 1, 12, 3);
}

TEST_F(GeometryRows, TellAPlacementAbsolutelyWhereNoStructureIsFound)
{
    auto const outer = place(Matrix::createTranslation({5, 0, 0}));
    model.wall("W1")->ObjectPlacement = outer;
    expectCoordinates(*place(Matrix::createTranslation({1, 2, 3}), outer), 6, 2, 3);
}

TEST_F(GeometryRows, LookForTheStructureThroughLocalPlacementsOnly)
{
    auto const storeyPlacement = place(Matrix::createTranslation({100, 0, 0}));
    model.storey("Storey")->ObjectPlacement = storeyPlacement;
    auto const along = std::make_shared<FcLinearPlacement>();
    along->PlacementRelTo = storeyPlacement;
    model.data()->entityAdd(along, false);
    auto const placement = place(Matrix::createTranslation({1, 2, 3}), along);
    expectCoordinates(*placement, 101, 2, 3);

    // What such a placement places itself is looked at.
    model.site("Site")->ObjectPlacement = along;
    expectCoordinates(*placement, 1, 2, 3);
}

TEST_F(GeometryRows, LeaveOutStructuresThatAreGone)
{
    auto const sitePlacement = place(Matrix::createTranslation({100, 0, 0}));
    model.site("Site")->ObjectPlacement = sitePlacement;
    auto const storeyPlacement = place(Matrix::createTranslation({0, 10, 0}), sitePlacement);
    auto const storey = model.storey("Storey");
    storey->ObjectPlacement = storeyPlacement;
    auto const placement = place(Matrix::createTranslation({1, 2, 3}), storeyPlacement);
    expectCoordinates(*placement, 1, 2, 3);

    model.data()->entityDelete(storey);
    expectCoordinates(*placement, 1, 12, 3);
}

TEST_F(GeometryRows, EndWherePlacementsGoInACircle)
{
    auto const a = place(Matrix::createTranslation({1, 0, 0}));
    auto const b = place(Matrix::createTranslation({0, 1, 0}), a);
    a->PlacementRelTo = b;
    EXPECT_TRUE(std::isfinite(number(*a, "XCoordinate")));
}

TEST_F(GeometryRows, MoveAPlacementAlongOneAxis)
{
    auto const placement = place(Matrix::createTranslation({1, 2, 3}) * Matrix::createXRotate(0.3));
    set(*placement, "YCoordinate", 7.0);
    expectCoordinates(*placement, 1, 7, 3);
    EXPECT_NEAR(number(*placement, "XAxisRotation"), 0.3, 1e-12);
}

TEST_F(GeometryRows, TurnAPlacementAboutOneAxis)
{
    Matrix const turned =
        Matrix::createZRotate(0.1) * Matrix::createXRotate(0.2) * Matrix::createYRotate(0.3);
    auto const placement = place(Matrix::createTranslation({1, 2, 3}) * turned);
    set(*placement, "XAxisRotation", 0.5);
    EXPECT_NEAR(number(*placement, "ZAxisRotation"), 0.1, 1e-12);
    EXPECT_NEAR(number(*placement, "XAxisRotation"), 0.5, 1e-12);
    EXPECT_NEAR(number(*placement, "YAxisRotation"), 0.3, 1e-12);
    expectCoordinates(*placement, 1, 2, 3);
    Matrix const expected =
        Matrix::createZRotate(0.1) * Matrix::createXRotate(0.5) * Matrix::createYRotate(0.3);
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column)
            EXPECT_NEAR(placement->relativeMatrix().at(row, column), expected.at(row, column), 1e-12);
    }
}

TEST_F(GeometryRows, MoveAPlacementInTheFrameItIsRelativeTo)
{
    auto const sitePlacement = place(Matrix::createTranslation({100, 0, 0}));
    model.site("Site")->ObjectPlacement = sitePlacement;
    auto const buildingPlacement = place(Matrix::createTranslation({20, 10, 0}), sitePlacement);
    model.building("Building")->ObjectPlacement = buildingPlacement;
    auto const placement = place(Matrix::createTranslation({1, 2, 3}), buildingPlacement);

    set(*placement, "YCoordinate", 5.0);

    auto const moved = placement->relativeMatrix().translation();
    EXPECT_NEAR(moved.x, 1, 1e-12);
    EXPECT_NEAR(moved.y, 5, 1e-12);
    EXPECT_NEAR(moved.z, 3, 1e-12);
    expectCoordinates(*placement, 21, 15, 3);
    expectCoordinates(*buildingPlacement, 20, 10, 0);
}

TEST_F(GeometryRows, TurnAPlacementInTheFrameItIsRelativeTo)
{
    auto const sitePlacement = place(Matrix());
    model.site("Site")->ObjectPlacement = sitePlacement;
    auto const turned = place(Matrix::createZRotate(quarterTurn), sitePlacement);
    auto const placement = place(Matrix::createTranslation({1, 2, 3}) * Matrix::createZRotate(0.1), turned);
    EXPECT_NEAR(number(*placement, "ZAxisRotation"), quarterTurn + 0.1, 1e-12);

    set(*placement, "ZAxisRotation", 0.3);

    EXPECT_NEAR(placement->relativeMatrix().getRotations().z, 0.3, 1e-12);
    EXPECT_NEAR(placement->relativeMatrix().translation().x, 1, 1e-12);
    EXPECT_NEAR(number(*placement, "ZAxisRotation"), quarterTurn + 0.3, 1e-12);
}

TEST_F(GeometryRows, KeepThePlacementWhereNothingMoves)
{
    auto const placement = place(Matrix::createTranslation({1, 2, 3}));
    auto const before = placement->RelativePlacement->entity();
    set(*placement, "XCoordinate", 1.0);
    set(*placement, "ZAxisRotation", number(*placement, "ZAxisRotation"));
    EXPECT_EQ(placement->RelativePlacement->entity(), before);
}

TEST_F(GeometryRows, ReportAMoveThatIsNoNumber)
{
    auto const placement = place(Matrix::createTranslation({1, 2, 3}));
    set(*placement, "XCoordinate", "far");
    expectReport("Property value doesn't hold the given type.", "qev::object::PropertyValue::get",
                 "Object/PropertyValue");
    expectCoordinates(*placement, 0, 2, 3);
}

} // namespace
