#include "FoundationClasses/Core/Kernel/FcContext.h"

#include "Core/Unit/QuantityPresentation.h"
#include "FoundationClasses/Core/Kernel/FcProject.h"
#include "FoundationClasses/Resource/Geometry/FcAxis2Placement3D.h"
#include "FoundationClasses/Resource/Geometry/FcCartesianPoint.h"
#include "FoundationClasses/Resource/Geometry/FcDirection.h"
#include "FoundationClasses/Resource/Measure/FcDerivedUnit.h"
#include "FoundationClasses/Resource/Measure/FcDerivedUnitElement.h"
#include "FoundationClasses/Resource/Measure/FcMonetaryUnit.h"
#include "FoundationClasses/Resource/Measure/FcSIUnit.h"
#include "FoundationClasses/Resource/Measure/FcUnitAssignment.h"
#include "FoundationClasses/Resource/Representation/FcGeometricRepresentationSubContext.h"
#include "FoundationClasses/Resource/Representation/FcMapConversion.h"
#include "FoundationClasses/Resource/Representation/FcProjectedCRS.h"
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
using namespace fc::resource::measure;
using namespace fc::resource::representation;
using namespace fc::ui::propertyinterface;
using object::PropertyId;
using object::PropertyValue;
using PlaneAngle = unit::SiUnit<17, unit::Quantity<5, 0, 0, 0, 0, 0, 0, 0>>;

constexpr double quarterTurn = std::numbers::pi / 2;

struct ContextRows : testing::Test
{
    TranslationScope texts;
    Model model;
    std::shared_ptr<FcGeometricRepresentationContext> context =
        std::make_shared<FcGeometricRepresentationContext>();
    std::shared_ptr<FcGeometricRepresentationSubContext> subContext =
        std::make_shared<FcGeometricRepresentationSubContext>();

    ContextRows()
    {
        subContext->ParentContext = context;
        model.data()->entityAdd(subContext, false);
    }
    void setNorth(double x, double y)
    {
        auto const north = std::make_shared<FcDirection>();
        north->DirectionRatios = std::vector{x, y};
        context->TrueNorth = north;
    }
    PropertyValue value(fc::FcBase const& entity, std::string const& id) const
    {
        return getValue(*model.data(), entity, PropertyId(id), std::nullopt);
    }
    double number(fc::FcBase const& entity, std::string const& id) const
    {
        return value(entity, id).get<double>();
    }
    void set(fc::FcBase& entity, std::string const& id, PropertyValue const& value)
    {
        setValue(*model.data(), entity, PropertyId(id), value);
    }
    std::string name(fc::FcBase const& entity, std::string const& id) const
    {
        return getPropertyName(*model.data(), entity, PropertyId(id), std::nullopt);
    }
};

// --- Units ------------------------------------------------------------------------------------------

TEST_F(ContextRows, OfAProjectEndWithItsUnits)
{
    auto const project = model.project("P1");
    EXPECT_EQ(nodeAt(getProperties(*project), "Project/Units"), nullptr);
    auto const metre = std::make_shared<FcSIUnit>();
    auto const derived = std::make_shared<FcDerivedUnit>();
    auto const money = std::make_shared<FcMonetaryUnit>();
    auto const assignment = std::make_shared<FcUnitAssignment>();
    assignment->Units = std::vector{FcUnit(std::static_pointer_cast<FcNamedUnit>(metre)), FcUnit(derived),
                                    FcUnit(money), FcUnit()};
    project->UnitsInContext = assignment;

    auto const rows = getProperties(*project);
    auto const units = rows.front()->children.back();

    EXPECT_EQ(units->id.text(), "Units");
    EXPECT_TRUE(units->isGroup);
    EXPECT_TRUE(units->isList);
    EXPECT_EQ(units->object, project);
    ASSERT_EQ(childIds(*units), (std::vector<std::string>{"SIUnit", "DerivedUnit", "MonetaryUnit"}));
    EXPECT_EQ(units->children[0]->object, metre);
    EXPECT_EQ(name(*project, "Units"), "Units");
    EXPECT_EQ(getPropertyDescription(*project, PropertyId("Units")),
              "IfcProject::UnitsInContext_Description");
    texts.add("IfcProject::UnitsInContext", "All units");
    texts.add("IfcProject::UnitsInContext_Description", "What numbers are meant in");
    EXPECT_EQ(name(*project, "Units"), "All units");
    EXPECT_EQ(getPropertyDescription(*project, PropertyId("Units")), "What numbers are meant in");
}

TEST_F(ContextRows, OfADerivedUnitNestItsElementsAndTheirUnits)
{
    auto const unit = std::make_shared<FcDerivedUnit>();
    auto const element = std::make_shared<FcDerivedUnitElement>();
    element->Unit = std::make_shared<FcSIUnit>();
    unit->Elements = fc::ReferenceList<FcDerivedUnitElement>({element});

    auto const rows = getProperties(*unit);
    auto const elements = rows.front()->children.back();
    EXPECT_EQ(elements->id.text(), "Elements");
    EXPECT_TRUE(elements->isGroup && elements->isList);
    EXPECT_EQ(elements->object, unit);
    auto const unitOfElement = nodeAt(elements->children, "DerivedUnitElement/Unit");
    ASSERT_TRUE(unitOfElement);
    EXPECT_TRUE(unitOfElement->isGroup && !unitOfElement->isList);
    EXPECT_EQ(unitOfElement->object, element);
    EXPECT_EQ(childIds(*unitOfElement), std::vector<std::string>{"SIUnit"});
}

TEST_F(ContextRows, OfUnitsAreThereWithoutElementsAndUnits)
{
    auto const unit = std::make_shared<FcDerivedUnit>();
    auto const element = std::make_shared<FcDerivedUnitElement>();

    auto const elements = getProperties(*unit).front()->children.back();
    EXPECT_EQ(elements->id.text(), "Elements");
    EXPECT_TRUE(elements->isGroup && elements->isList);
    EXPECT_TRUE(elements->children.empty());
    auto const unitOfElement = getProperties(*element).front()->children.back();
    EXPECT_EQ(unitOfElement->id.text(), "Unit");
    EXPECT_TRUE(unitOfElement->isGroup && !unitOfElement->isList);
    EXPECT_TRUE(unitOfElement->children.empty());
}

TEST_F(ContextRows, OfUnitsAreLabelledByKeyOrFallback)
{
    auto const unit = std::make_shared<FcDerivedUnit>();
    auto const element = std::make_shared<FcDerivedUnitElement>();
    EXPECT_EQ(name(*unit, "Elements"), "Elements");
    EXPECT_EQ(name(*element, "Unit"), "Unit");
    EXPECT_EQ(getPropertyDescription(*unit, PropertyId("Elements")), "IfcDerivedUnit::Elements_Description");
    EXPECT_EQ(getPropertyDescription(*element, PropertyId("Unit")),
              "IfcDerivedUnitElement::Unit_Description");
    texts.add("IfcDerivedUnit::Elements", "Factors");
    texts.add("IfcDerivedUnitElement::Unit", "Factor");
    texts.add("IfcDerivedUnit::Elements_Description", "about factors");
    texts.add("IfcDerivedUnitElement::Unit_Description", "about a factor");
    EXPECT_EQ(name(*unit, "Elements"), "Factors");
    EXPECT_EQ(name(*element, "Unit"), "Factor");
    EXPECT_EQ(getPropertyDescription(*unit, PropertyId("Elements")), "about factors");
    EXPECT_EQ(getPropertyDescription(*element, PropertyId("Unit")), "about a factor");
}

// --- Geometric contexts -----------------------------------------------------------------------------

TEST_F(ContextRows, OfAGeometricContextEndWithItsCoordinateSystemAndNorth)
{
    EXPECT_EQ(treeText(getProperties(*context)),
              "GeometricRepresentationContext = FcBaseGroupProperty [group]\n"
              "  ContextIdentifier\n"
              "  ContextType\n"
              "  CoordinateSpaceDimension\n"
              "  Precision\n"
              "  WorldCoordinateSystem\n"
              "  TrueNorth\n");
    auto const rows = getProperties(*subContext);
    auto const ids = childIds(*rows.front());
    for (auto const* id : {"CoordinateSpaceDimension", "Precision", "WorldCoordinateSystem", "TrueNorth"})
        EXPECT_EQ(std::count(ids.begin(), ids.end(), id), 1) << id;
    EXPECT_EQ(rows.front()->children.back()->object, subContext);
}

TEST_F(ContextRows, NestTheCoordinateOperationAndItsTarget)
{
    auto const conversion = std::make_shared<FcMapConversion>();
    conversion->SourceCRS = FcCoordinateReferenceSystemSelect(context);
    auto const target = std::make_shared<FcProjectedCRS>();
    conversion->TargetCRS = target;
    EXPECT_EQ(name(*context, "HasCoordinateOperation"), "HasCoordinateOperation");
    model.data()->entityAdd(conversion, false);

    auto const rows = getProperties(*context);
    auto const operation = rows.front()->children.back();

    EXPECT_EQ(operation->id.text(), "HasCoordinateOperation");
    EXPECT_TRUE(operation->isGroup && !operation->isList);
    EXPECT_EQ(operation->object, context);
    ASSERT_EQ(childIds(*operation), std::vector<std::string>{"MapConversion"});
    auto const targetRow = operation->children.front()->children.back();
    EXPECT_EQ(targetRow->id.text(), "TargetCRS");
    EXPECT_TRUE(targetRow->isGroup);
    EXPECT_EQ(targetRow->object, conversion);
    EXPECT_EQ(targetRow->children.front()->object, target);
    EXPECT_EQ(name(*context, "HasCoordinateOperation"), "HasCoordinateOperation(IfcMapConversion)");
    EXPECT_EQ(name(*conversion, "TargetCRS"), "TargetCRS(IfcProjectedCRS)");
    texts.add("IfcGeometricRepresentationContext.HasCoordinateOperation", "Operation ");
    texts.add("IfcCoordinateOperation.TargetCRS", "Target ");
    texts.add("IfcProjectedCRS", "map");
    EXPECT_EQ(name(*context, "HasCoordinateOperation"), "Operation (IfcMapConversion)");
    EXPECT_EQ(name(*conversion, "TargetCRS"), "Target (map)");
}

TEST_F(ContextRows, ShowTheOriginOfTheWorld)
{
    EXPECT_EQ(value(*context, "WorldCoordinateSystem"), PropertyValue("(0.000000, 0.000000, 0.000000)"));
    auto const placement = std::make_shared<FcAxis2Placement3D>();
    auto const origin = std::make_shared<FcCartesianPoint>();
    origin->Coordinates = std::vector{1.5, -2.0, 3.0};
    placement->Location = origin;
    context->WorldCoordinateSystem = FcAxis2Placement(placement);
    EXPECT_EQ(value(*context, "WorldCoordinateSystem"), PropertyValue("(1.500000, -2.000000, 3.000000)"));
    EXPECT_EQ(value(*subContext, "WorldCoordinateSystem"), PropertyValue("(1.500000, -2.000000, 3.000000)"));
}

TEST_F(ContextRows, ShowNorthAsTheAngleFromTheYAxis)
{
    EXPECT_EQ(value(*context, "TrueNorth"), PropertyValue(std::optional<double>()));
    setNorth(0, 2);
    EXPECT_DOUBLE_EQ(number(*context, "TrueNorth"), 0.0);
    setNorth(-1, 0);
    EXPECT_DOUBLE_EQ(number(*context, "TrueNorth"), quarterTurn);
    setNorth(1, 0);
    EXPECT_DOUBLE_EQ(number(*context, "TrueNorth"), 3 * quarterTurn);
    EXPECT_DOUBLE_EQ(number(*subContext, "TrueNorth"), 3 * quarterTurn);
}

TEST_F(ContextRows, TurnNorth)
{
    set(*context, "TrueNorth", quarterTurn);
    auto const north = context->TrueNorth->get();
    ASSERT_TRUE(north);
    EXPECT_EQ(north->getData(), model.data().get());
    EXPECT_NEAR(north->DirectionRatios.get()[0], -1.0, 1e-15);
    EXPECT_NEAR(north->DirectionRatios.get()[1], 0.0, 1e-15);
    EXPECT_DOUBLE_EQ(number(*context, "TrueNorth"), quarterTurn);

    set(*context, "TrueNorth", value(*context, "TrueNorth"));
    EXPECT_EQ(context->TrueNorth->get(), north);
    set(*context, "TrueNorth", std::optional<double>());
    EXPECT_EQ(context->TrueNorth->get(), nullptr);
    set(*context, "Precision", 0.5);
    EXPECT_EQ(context->Precision.get(), 0.5);
}

TEST_F(ContextRows, ReportANorthThatIsNoNumber)
{
    setNorth(1, 0);
    set(*context, "TrueNorth", "north");
    expectReport("Property value doesn't hold the given type.", "qev::object::PropertyValue::get",
                 "Object/PropertyValue");
    EXPECT_DOUBLE_EQ(number(*context, "TrueNorth"), 0.0);
}

TEST_F(ContextRows, PresentNorthAsAPlaneAngle)
{
    setNorth(1, 0);
    for (fc::FcBase const* entity :
         {static_cast<fc::FcBase const*>(context.get()), static_cast<fc::FcBase const*>(subContext.get())}) {
        EXPECT_TRUE(hasQuantityPresentation(*entity, PropertyId("TrueNorth")));
        EXPECT_FALSE(hasQuantityPresentation(*entity, PropertyId("WorldCoordinateSystem")));
        auto const presentation =
            createQuantityPresentation(*model.data(), *entity, PropertyId("TrueNorth"), std::nullopt);
        ASSERT_TRUE(presentation);
        EXPECT_EQ(typeid(presentation->unit()), typeid(PlaneAngle));
        EXPECT_DOUBLE_EQ(presentation->value(), entity == context.get() ? 0.0 : quarterTurn);
    }
}

TEST_F(ContextRows, OfASubContextShowItsParentAndCannotBeWritten)
{
    context->Precision = 0.25;
    context->CoordinateSpaceDimension = 3;
    EXPECT_EQ(value(*subContext, "Precision"), PropertyValue(std::optional<double>(0.25)));
    EXPECT_EQ(value(*subContext, "CoordinateSpaceDimension"), PropertyValue(3));
    subContext->TargetScale = 0.5;
    EXPECT_EQ(value(*subContext, "TargetScale"), PropertyValue(std::optional<double>(0.5)));

    set(*subContext, "TargetScale", std::optional<double>(1));
    EXPECT_EQ(subContext->TargetScale.get(), 0.5);
    expectReport(
        "Not implemented", "qev::fc::ui::propertyinterface::SetValue::visit",
        "UI/FoundationClasses/PropertyInterface/PropertyInterfaceVisitFcGeometricRepresentationSubContext");
}

TEST_F(ContextRows, OfASubContextWithoutAProperParentAreItsOwn)
{
    subContext->ParentContext = subContext;
    EXPECT_EQ(value(*subContext, "TrueNorth"), PropertyValue(std::optional<double>()));
    subContext->ParentContext = nullptr;
    EXPECT_EQ(value(*subContext, "TrueNorth"), PropertyValue(std::optional<double>()));
    EXPECT_EQ(createQuantityPresentation(*model.data(), *subContext, PropertyId("TrueNorth"), std::nullopt)
                  ->value(),
              0.0);
}

} // namespace
