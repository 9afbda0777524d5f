#include "FoundationClasses/Core/ProductExtension/FcElement.h"

#include "FoundationClasses/Core/Kernel/FcGroup.h"
#include "FoundationClasses/Core/ProductExtension/FcBuildingStorey.h"
#include "FoundationClasses/Core/ProductExtension/FcRelContainedInSpatialStructure.h"
#include "FoundationClasses/Core/ProductExtension/FcRelReferencedInSpatialStructure.h"
#include "FoundationClasses/Core/ProductExtension/FcSpace.h"
#include "FoundationClasses/Resource/GeometricConstraint/FcLocalPlacement.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcDoor.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWall.h"
#include "kit/ModelBuilder.h"
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
using testing::ElementsAre;

struct StructureRows : testing::Test
{
    TranslationScope texts;
    Model model;
    std::shared_ptr<fc::shared::sharedbldgelements::FcWall> wall = model.wall("W1");
    std::shared_ptr<fc::shared::sharedbldgelements::FcDoor> door = model.door("D1");
    std::shared_ptr<FcBuildingStorey> storey = model.storey("S1");
    std::shared_ptr<FcSpace> space = model.space("Room");

    std::shared_ptr<FcRelReferencedInSpatialStructure>
    reference(std::shared_ptr<FcSpatialElement> const& structure,
              std::vector<FcSpatialReferenceSelect> const& elements)
    {
        auto const relation = model.add<FcRelReferencedInSpatialStructure>("");
        relation->RelatingStructure = structure;
        relation->RelatedElements = elements;
        return relation;
    }
    static FcSpatialReferenceSelect product(std::shared_ptr<fc::core::kernel::FcProduct> const& product)
    {
        return {product};
    }
    PropertyValue value(fc::FcBase const& entity, std::string const& id) const
    {
        return getValue(*model.data(), entity, PropertyId(id), std::nullopt);
    }
    std::string name(fc::FcBase const& entity, std::string const& id) const
    {
        return getPropertyName(*model.data(), entity, PropertyId(id), std::nullopt);
    }
};

// --- Elements ---------------------------------------------------------------------------------------

TEST_F(StructureRows, OfAnElementNestTheStructuresThatReferenceIt)
{
    EXPECT_EQ(nodeAt(getProperties(*wall), "Wall/ReferencedInStructures"), nullptr);
    reference(storey, {product(wall)});
    reference(space, {product(door), product(wall)});
    reference(nullptr, {product(wall)});

    auto const list = nodeAt(getProperties(*wall), "Wall/ReferencedInStructures");

    ASSERT_TRUE(list);
    EXPECT_TRUE(list->isGroup);
    EXPECT_TRUE(list->isList);
    EXPECT_EQ(list->object, wall);
    ASSERT_THAT(childIds(*list), ElementsAre("BuildingStorey", "Space"));
    EXPECT_EQ(list->children[0]->object, storey);
}

TEST_F(StructureRows, OfAnElementHaveNoListForRelationsWithoutAStructure)
{
    reference(nullptr, {product(wall)});
    EXPECT_EQ(nodeAt(getProperties(*wall), "Wall/ReferencedInStructures"), nullptr);
}

TEST_F(StructureRows, OfAnElementEndWithTheStructureItIsIn)
{
    EXPECT_EQ(nodeAt(getProperties(*wall), "Wall/ContainedInStructure"), nullptr);
    EXPECT_EQ(value(*wall, "ContainedInStructure"), PropertyValue());
    EXPECT_EQ(getReference(*wall, PropertyId("ContainedInStructure")), EntityReference());
    wall->ObjectPlacement = std::make_shared<fc::resource::geometricconstraint::FcLocalPlacement>();
    reference(space, {product(wall)});
    model.contain(storey, {wall});

    auto const ids = childIds(*getProperties(*wall).front());
    EXPECT_THAT(std::vector(ids.end() - 3, ids.end()),
                ElementsAre("Location", "ReferencedInStructures", "ContainedInStructure"));
    auto const row = getProperties(*wall).front()->children.back();
    EXPECT_EQ(row->object, wall);
    EXPECT_FALSE(row->isGroup);
    EXPECT_EQ(value(*wall, "ContainedInStructure"), PropertyValue("IfcBuildingStorey \"S1\""));
    EXPECT_EQ(
        std::get<std::shared_ptr<fc::FcBase const>>(getReference(*wall, PropertyId("ContainedInStructure"))),
        storey);
    storey->Name = std::nullopt;
    EXPECT_EQ(value(*wall, "ContainedInStructure"), PropertyValue("IfcBuildingStorey"));
}

TEST_F(StructureRows, OfAnElementLeadNowhereWithoutAStructure)
{
    auto const relation = model.add<FcRelContainedInSpatialStructure>("");
    relation->RelatedElements.edit([this](auto& elements) { elements.push_back(wall); });

    EXPECT_TRUE(nodeAt(getProperties(*wall), "Wall/ContainedInStructure"));
    EXPECT_EQ(value(*wall, "ContainedInStructure"), PropertyValue());
    EXPECT_EQ(getReference(*wall, PropertyId("ContainedInStructure")), EntityReference());
}

// --- Structures -------------------------------------------------------------------------------------

TEST_F(StructureRows, OfAStructureListTheElementsItReferences)
{
    EXPECT_EQ(nodeAt(getProperties(*storey), "BuildingStorey/ReferencedInStructures"), nullptr);
    reference(storey, {product(wall)});
    reference(space, {product(door)});
    reference(storey, {FcSpatialReferenceSelect(model.add<fc::core::kernel::FcGroup>("G")), product(door)});

    auto const list = nodeAt(getProperties(*storey), "BuildingStorey/ReferencedInStructures");

    ASSERT_TRUE(list);
    EXPECT_TRUE(list->isGroup);
    EXPECT_TRUE(list->isList);
    EXPECT_EQ(list->object, storey);
    ASSERT_EQ(list->children.size(), 2u);
    EXPECT_EQ(list->children[0]->mappedId, PropertyId("ReferencedInStructures.0"));
    EXPECT_EQ(list->children[1]->mappedId, PropertyId("ReferencedInStructures.1"));
    EXPECT_EQ(list->children[1]->object, storey);
    EXPECT_FALSE(list->children[1]->isGroup);
    EXPECT_EQ(value(*storey, "ReferencedInStructures.0"), PropertyValue("IfcWall \"W1\""));
    EXPECT_EQ(value(*storey, "ReferencedInStructures.1"), PropertyValue("IfcDoor \"D1\""));
    EXPECT_EQ(name(*storey, "ReferencedInStructures.1"), "IfcDoor");
    texts.add("IfcDoor", "Door");
    EXPECT_EQ(name(*storey, "ReferencedInStructures.1"), "Door");
}

TEST_F(StructureRows, OfAStructureEndWithTheElementsItReferences)
{
    storey->ObjectPlacement = std::make_shared<fc::resource::geometricconstraint::FcLocalPlacement>();
    reference(storey, {product(wall)});

    auto const ids = childIds(*getProperties(*storey).front());

    EXPECT_THAT(std::vector(ids.end() - 3, ids.end()),
                ElementsAre("PropertySets", "Location", "ReferencedInStructures"));
}

TEST_F(StructureRows, OfAStructureLeaveOtherIdsToTheBaseClass)
{
    reference(storey, {product(wall)});
    for (auto const* id : {"ReferencedInStructures.1", "ReferencedInStructures.", "ReferencedInStructures.x",
                           "ReferencedInStructures.0x", "ReferencedInStructures0"}) {
        EXPECT_EQ(value(*storey, id), PropertyValue()) << id;
        EXPECT_EQ(name(*storey, id), id);
    }
}

TEST_F(StructureRows, OfAStructureInNoModelAreNone)
{
    auto const alone = std::make_shared<FcBuildingStorey>();
    EXPECT_EQ(nodeAt(getProperties(*alone), "BuildingStorey/ReferencedInStructures"), nullptr);
}

TEST_F(StructureRows, AreLabelledByKeyOrFallback)
{
    EXPECT_EQ(name(*storey, "ReferencedInStructures"), "ReferencedInStructures");
    EXPECT_EQ(getPropertyDescription(*storey, PropertyId("ReferencedInStructures")), "");
    texts.add("IfcElement::ReferencedInStructures", "Referenced");
    texts.add("IfcElement::ReferencedInStructures_Description", "What it references");
    EXPECT_EQ(name(*storey, "ReferencedInStructures"), "Referenced");
    EXPECT_EQ(getPropertyDescription(*storey, PropertyId("ReferencedInStructures")), "What it references");
}

} // namespace
