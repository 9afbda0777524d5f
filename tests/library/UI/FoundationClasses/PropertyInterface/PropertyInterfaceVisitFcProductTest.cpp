#include "FoundationClasses/Core/Kernel/FcProduct.h"

#include "FoundationClasses/Core/ProductExtension/FcBuilding.h"
#include "FoundationClasses/Core/ProductExtension/FcBuildingStorey.h"
#include "FoundationClasses/Core/ProductExtension/FcSite.h"
#include "FoundationClasses/Core/ProductExtension/FcSpace.h"
#include "FoundationClasses/Resource/GeometricConstraint/FcGridPlacement.h"
#include "FoundationClasses/Resource/GeometricConstraint/FcLocalPlacement.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWall.h"
#include "FoundationClasses/Shared/SharedBldgServiceElements/FcDistributionPort.h"
#include "kit/ModelBuilder.h"
#include "library/kit/PropertyTree.h"
#include "library/kit/TranslationScope.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyAccess.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace qev;
using namespace qev::test;
using namespace fc::ui::propertyinterface;
using fc::core::kernel::FcProduct;
using fc::resource::geometricconstraint::FcGridPlacement;
using fc::resource::geometricconstraint::FcLocalPlacement;
using fc::resource::geometricconstraint::FcObjectPlacement;
using fc::shared::sharedbldgserviceelements::FcDistributionPort;
using object::PropertyId;
using object::PropertyValue;

struct ProductRows : testing::Test
{
    TranslationScope texts;
    Model model;
    std::shared_ptr<fc::shared::sharedbldgelements::FcWall> wall = model.wall("W1");

    std::shared_ptr<FcLocalPlacement> place(FcProduct& product,
                                            std::shared_ptr<FcObjectPlacement> const& outer = nullptr)
    {
        auto placement = std::make_shared<FcLocalPlacement>();
        placement->PlacementRelTo = outer;
        model.data()->entityAdd(placement, false);
        product.ObjectPlacement = placement;
        return placement;
    }
    std::string name(fc::FcBase const& entity, std::string const& id) const
    {
        return getPropertyName(*model.data(), entity, PropertyId(id), std::nullopt);
    }
};

// --- Location ---------------------------------------------------------------------------------------

TEST_F(ProductRows, HaveALocationWhereTheProductHasAPlacement)
{
    EXPECT_EQ(nodeAt(getProperties(*wall), "Wall/Location"), nullptr);
    auto const placement = place(*wall);

    auto const location = nodeAt(getProperties(*wall), "Wall/Location");

    ASSERT_TRUE(location);
    EXPECT_TRUE(location->isGroup);
    EXPECT_FALSE(location->isList);
    EXPECT_EQ(location->object, wall);
    auto const rows = getProperties(*placement);
    ASSERT_EQ(location->children.size(), rows.size());
    EXPECT_EQ(location->children.front()->object, placement);
    EXPECT_EQ(getProperties(*wall).front()->children.back()->id.text(), "Location");
}

TEST_F(ProductRows, OfAPortHaveAPositionInstead)
{
    auto const port = model.add<FcDistributionPort>("P1");
    EXPECT_EQ(nodeAt(getProperties(*port), "DistributionPort/Position"), nullptr);
    auto const placement = place(*port);

    auto const tree = getProperties(*port);
    auto const position = nodeAt(tree, "DistributionPort/Position");

    ASSERT_TRUE(position);
    EXPECT_TRUE(position->isGroup);
    EXPECT_EQ(position->object, port);
    EXPECT_EQ(position->children.size(), getProperties(*placement).size());
    auto const ids = childIds(*tree.front());
    EXPECT_THAT(std::vector(ids.end() - 3, ids.end()),
                testing::ElementsAre("Classifications", "PropertySets", "Position"));
    EXPECT_EQ(nodeAt(tree, "DistributionPort/Location"), nullptr);
    EXPECT_EQ(name(*port, "Position"), "Placement");
    texts.add("Placement", "Place");
    EXPECT_EQ(name(*port, "Position"), "Place");
}

TEST_F(ProductRows, ReadFromThePlacementWhatTheProductDoesNotKnow)
{
    auto const placement = place(*wall);
    for (auto const& row : getProperties(*placement)) {
        auto const id = row->mappedId.value_or(row->id);
        EXPECT_EQ(getValue(*model.data(), *wall, id, std::nullopt),
                  getValue(*model.data(), *placement, id, std::nullopt))
            << id.text();
    }
    EXPECT_EQ(getValue(*model.data(), *wall, PropertyId("Name"), std::nullopt),
              PropertyValue(std::optional<std::string>("W1")));
    EXPECT_EQ(getValue(*model.data(), *wall, PropertyId("NoSuchId"), std::nullopt), PropertyValue());
}

TEST_F(ProductRows, NameALocationByItselfWhereItIsRelativeToNothingKnown)
{
    EXPECT_EQ(name(*wall, "Location"), "Placement");
    place(*wall);
    EXPECT_EQ(name(*wall, "Location"), "Placement");
    place(*wall, place(*model.space("Room")));
    EXPECT_EQ(name(*wall, "Location"), "Placement");
    auto const grid = std::make_shared<FcGridPlacement>();
    grid->PlacementRelTo = place(*model.storey("S1"));
    wall->ObjectPlacement = grid;
    EXPECT_EQ(name(*wall, "Location"), "Placement");
    texts.add("Placement", "Place");
    EXPECT_EQ(name(*wall, "Location"), "Place");
    EXPECT_EQ(getPropertyDescription(*wall, PropertyId("Location")), "");
}

TEST_F(ProductRows, NameALocationByTheStoreyBeforeTheBuildingBeforeTheSite)
{
    auto const site = model.site("Site");
    auto const placement = place(*site);
    place(*wall, placement);
    EXPECT_EQ(name(*wall, "Location"), "Placement relative to site \"Site\"");

    auto const building = model.building("Building");
    building->ObjectPlacement = placement;
    EXPECT_EQ(name(*wall, "Location"), "Placement relative to building \"Building\"");

    auto const storey = model.storey("Storey");
    storey->ObjectPlacement = placement;
    EXPECT_EQ(name(*wall, "Location"), "Placement relative to floor \"Storey\"");

    storey->Name = std::nullopt;
    EXPECT_EQ(name(*wall, "Location"), "Placement relative to floor");
    model.data()->entityDelete(storey);
    EXPECT_EQ(name(*wall, "Location"), "Placement relative to building \"Building\"");
}

TEST_F(ProductRows, NameALocationByTheTextsOfItsKeys)
{
    texts.add("Placement-relative-to-floor", "in the storey");
    texts.add("Placement-relative-to-building", "in the building");
    texts.add("Placement-relative-to-site", "on the site");
    place(*wall, place(*model.storey("S")));
    EXPECT_EQ(name(*wall, "Location"), "in the storey \"S\"");
    place(*wall, place(*model.building("B")));
    EXPECT_EQ(name(*wall, "Location"), "in the building \"B\"");
    place(*wall, place(*model.site("T")));
    EXPECT_EQ(name(*wall, "Location"), "on the site \"T\"");
}

} // namespace
