#include "FoundationClasses/Core/ProductExtension/FcRelSpaceBoundary.h"

#include "FoundationClasses/Core/ProductExtension/FcExternalSpatialElement.h"
#include "FoundationClasses/Core/ProductExtension/FcRelSpaceBoundary1stLevel.h"
#include "FoundationClasses/Core/ProductExtension/FcSpace.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWall.h"
#include "kit/ModelBuilder.h"
#include "kit/ReportRecorder.h"
#include "library/kit/PropertyTree.h"
#include "library/kit/TranslationScope.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyAccess.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace qev;
using namespace qev::test;
using namespace fc::core::productextension;
using namespace fc::ui::propertyinterface;
using object::PropertyId;
using object::PropertyValue;

struct SpaceBoundaryRows : testing::Test
{
    TranslationScope texts;
    Model model;
    std::shared_ptr<FcRelSpaceBoundary1stLevel> boundary = model.add<FcRelSpaceBoundary1stLevel>("B1");
    std::shared_ptr<FcSpace> space = model.space("101");
    std::shared_ptr<fc::shared::sharedbldgelements::FcWall> wall = model.wall("W1");

    PropertyValue value(std::string const& id) const
    {
        return getValue(*model.data(), *boundary, PropertyId(id), std::nullopt);
    }
    std::string name(std::string const& id) const
    {
        return getPropertyName(*model.data(), *boundary, PropertyId(id), std::nullopt);
    }
};

TEST_F(SpaceBoundaryRows, EndWithTheSpaceAndTheElement)
{
    auto const rows = getProperties(*boundary);
    EXPECT_EQ(treeText(rows), "RelSpaceBoundary1stLevel = FcBaseGroupProperty [group]\n"
                              "  GlobalId\n"
                              "  Name\n"
                              "  Description\n"
                              "  PhysicalOrVirtualBoundary\n"
                              "  InternalOrExternalBoundary\n"
                              "  RelatingSpace\n"
                              "  RelatedBuildingElement\n");
    EXPECT_EQ(rows.front()->children.back()->object, boundary);
}

TEST_F(SpaceBoundaryRows, ShowASpaceByItsNames)
{
    EXPECT_EQ(value("RelatingSpace"), PropertyValue());
    boundary->RelatingSpace = FcSpaceBoundarySelect(space);
    EXPECT_EQ(value("RelatingSpace"), PropertyValue("IfcSpace - 101"));
    texts.add("IfcSpace", "Space");
    space->LongName = "Kitchen";
    EXPECT_EQ(value("RelatingSpace"), PropertyValue("Space - 101 - Kitchen"));
    space->Name = std::nullopt;
    EXPECT_EQ(value("RelatingSpace"), PropertyValue("Space - Kitchen"));
    boundary->RelatingSpace = FcSpaceBoundarySelect(model.add<FcExternalSpatialElement>("Outside"));
    EXPECT_EQ(value("RelatingSpace"), PropertyValue("IfcExternalSpatialElement - Outside"));
}

TEST_F(SpaceBoundaryRows, ShowAnElementByItsOwnType)
{
    EXPECT_EQ(value("RelatedBuildingElement"), PropertyValue());
    boundary->RelatedBuildingElement = wall;
    EXPECT_EQ(value("RelatedBuildingElement"), PropertyValue("IfcWall"));
    texts.add("IfcWall", "Wall");
    wall->ObjectType = "Brick";
    EXPECT_EQ(value("RelatedBuildingElement"), PropertyValue("Wall - Brick"));
}

TEST_F(SpaceBoundaryRows, LeadToBoth)
{
    EXPECT_EQ(getReference(*boundary, PropertyId("RelatingSpace")), EntityReference());
    EXPECT_EQ(getReference(*boundary, PropertyId("RelatedBuildingElement")), EntityReference());
    boundary->RelatingSpace = FcSpaceBoundarySelect(space);
    boundary->RelatedBuildingElement = wall;
    using Entity = std::shared_ptr<fc::FcBase const>;
    EXPECT_EQ(std::get<Entity>(getReference(*boundary, PropertyId("RelatingSpace"))), space);
    EXPECT_EQ(std::get<Entity>(getReference(*boundary, PropertyId("RelatedBuildingElement"))), wall);
    EXPECT_EQ(getReference(*boundary, PropertyId("Name")), EntityReference());
}

TEST_F(SpaceBoundaryRows, CannotBeWritten)
{
    setValue(*model.data(), *boundary, PropertyId("Name"), std::optional<std::string>("B2"));

    EXPECT_EQ(boundary->Name.get(), "B1");
    expectReport("Not implemented", "qev::fc::ui::propertyinterface::SetValue::visit",
                 "UI/FoundationClasses/PropertyInterface/PropertyInterfaceVisitFcRelSpaceBoundary");
}

TEST_F(SpaceBoundaryRows, AreLabelledByKeyOrFallback)
{
    EXPECT_EQ(name("RelatingSpace"), "RelatingSpace");
    EXPECT_EQ(name("RelatedBuildingElement"), "RelatedBuildingElement");
    texts.add("IfcRelSpaceBoundary.RelatingSpace", "Space");
    texts.add("IfcRelSpaceBoundary.RelatedBuildingElement", "Element");
    EXPECT_EQ(name("RelatingSpace"), "Space");
    EXPECT_EQ(name("RelatedBuildingElement"), "Element");
}

TEST_F(SpaceBoundaryRows, LeaveOtherIdsToTheBaseClass)
{
    EXPECT_EQ(value("Name"), PropertyValue(std::optional<std::string>("B1")));
    EXPECT_EQ(name("Name"), "Name");
}

} // namespace
