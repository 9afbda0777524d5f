#include "FoundationClasses/Core/Kernel/FcObject.h"

#include "FoundationClasses/Core/Kernel/FcRelDefinesByProperties.h"
#include "FoundationClasses/Selects/FcPropertySetDefinitionSelect.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWall.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWallType.h"
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
using object::PropertyId;
using object::PropertyValue;
using testing::ElementsAre;

struct ObjectRows : testing::Test
{
    TranslationScope texts;
    Model model;
    std::shared_ptr<fc::shared::sharedbldgelements::FcWall> wall = model.wall("W1");
    std::shared_ptr<fc::shared::sharedbldgelements::FcWallType> type = model.wallType("T1");

    PropertyValue value(std::string const& id) const
    {
        return getValue(*model.data(), *wall, PropertyId(id), std::nullopt);
    }
    std::string name(fc::FcBase const& entity, std::string const& id) const
    {
        return getPropertyName(*model.data(), entity, PropertyId(id), std::nullopt);
    }
};

TEST_F(ObjectRows, BeginWithTheTypeWhereThereIsOne)
{
    EXPECT_EQ(childIds(*getProperties(*wall).front()).front(), "GlobalId");
    model.assignType(type, {wall});

    auto const row = getProperties(*wall).front()->children.front();

    EXPECT_EQ(row->id.text(), "IsTypedBy");
    EXPECT_EQ(row->mappedId, std::nullopt);
    EXPECT_EQ(row->object, wall);
    EXPECT_FALSE(row->isGroup);
}

TEST_F(ObjectRows, LeadToTheType)
{
    EXPECT_EQ(value("IsTypedBy"), PropertyValue(""));
    EXPECT_EQ(getReference(*wall, PropertyId("IsTypedBy")), EntityReference());
    model.assignType(type, {wall});

    EXPECT_EQ(value("IsTypedBy"), PropertyValue("IfcWallType"));
    EXPECT_EQ(std::get<std::shared_ptr<fc::FcBase const>>(getReference(*wall, PropertyId("IsTypedBy"))),
              type);
    EXPECT_EQ(getReference(*wall, PropertyId("Name")), EntityReference());
}

TEST_F(ObjectRows, EndWithTheSetsInTheOrderOfSets)
{
    model.addSet(wall, "Own", {{"A", label("a")}});
    model.addSet(wall, "Pset_WallCommon", {{"A", label("a")}});
    model.addQuantities(wall, "Qto_WallBaseQuantities", {{"Length", 1.0}});
    model.addSet(wall, "Another", {{"A", label("a")}});

    auto const sets = getProperties(*wall).front()->children.back();

    EXPECT_EQ(sets->id.text(), "PropertySets");
    EXPECT_EQ(sets->mappedId, std::nullopt);
    EXPECT_TRUE(sets->isGroup);
    EXPECT_FALSE(sets->isList);
    EXPECT_EQ(sets->object, wall);
    EXPECT_THAT(childIds(*sets), ElementsAre("Pset_WallCommon", "Qto_WallBaseQuantities", "Another", "Own"));
}

TEST_F(ObjectRows, ListEachSetOfARelationToSeveral)
{
    auto const first = model.addSet(model.wall("W2"), "First", {{"A", label("a")}});
    auto const second = model.addSet(model.wall("W3"), "Second", {{"A", label("a")}});
    auto const relation = model.add<fc::core::kernel::FcRelDefinesByProperties>("");
    relation->RelatedObjects.edit([this](auto& objects) { objects.push_back(wall); });
    relation->RelatingPropertyDefinition.edit([&](auto& definition) {
        return definition.setReferences("IfcPropertySetDefinitionSet",
                                        {fc::ReferenceBase(second), fc::ReferenceBase(first)});
    });

    EXPECT_THAT(childIds(*getProperties(*wall).front()->children.back()), ElementsAre("First", "Second"));
}

TEST_F(ObjectRows, OfATypeEndWithItsOwnSets)
{
    model.addSet(type, "Own", {{"A", label("a")}});
    model.addSet(type, "Pset_WallCommon", {{"A", label("a")}});

    auto const sets = getProperties(*type).front()->children.back();

    EXPECT_EQ(sets->id.text(), "PropertySets");
    EXPECT_TRUE(sets->isGroup);
    EXPECT_EQ(sets->object, type);
    EXPECT_THAT(childIds(*sets), ElementsAre("Pset_WallCommon", "Own"));
}

TEST_F(ObjectRows, LabelTheHeadingOfTheSets)
{
    for (fc::FcBase const* entity :
         {static_cast<fc::FcBase const*>(wall.get()), static_cast<fc::FcBase const*>(type.get())}) {
        EXPECT_EQ(name(*entity, "PropertySets"), "Property/Quantity sets");
        EXPECT_EQ(getPropertyDescription(*entity, PropertyId("PropertySets")),
                  "Property sets and quantity sets");
    }
    texts.add("Property-Quantity-sets", "Sets");
    texts.add("Property-Quantity-sets_Description", "All sets");
    EXPECT_EQ(name(*wall, "PropertySets"), "Sets");
    EXPECT_EQ(getPropertyDescription(*type, PropertyId("PropertySets")), "All sets");
}

} // namespace
