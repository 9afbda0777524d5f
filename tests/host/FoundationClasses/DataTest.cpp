#include "FoundationClasses/Data.h"

#include "FoundationClasses/Core/Kernel/FcObject.h"
#include "FoundationClasses/Core/Kernel/FcPropertySet.h"
#include "FoundationClasses/Core/Kernel/FcRelAggregates.h"
#include "FoundationClasses/Core/Kernel/FcRelDefinesByProperties.h"
#include "FoundationClasses/Core/Kernel/FcRelDefinesByType.h"
#include "FoundationClasses/Core/Kernel/FcTypeObject.h"
#include "FoundationClasses/Core/ProductExtension/FcBuilding.h"
#include "FoundationClasses/Core/ProductExtension/FcBuildingStorey.h"
#include "FoundationClasses/Resource/Property/FcComplexProperty.h"
#include "FoundationClasses/Resource/Utility/FcOwnerHistory.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcDoor.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWall.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWallStandardCase.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWallType.h"
#include "kit/ModelBuilder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace qev;
using namespace qev::test;
using namespace fc::shared::sharedbldgelements;
using fc::Data;
using fc::EntityIndex;
using fc::FcBase;
using fc::noEntity;
using fc::core::kernel::FcObjectDefinition;
using fc::core::kernel::FcPropertySet;
using fc::core::kernel::FcRelAggregates;
using fc::core::kernel::FcRelDefinesByType;
using fc::resource::property::FcComplexProperty;
using fc::resource::utility::FcOwnerHistory;
using testing::ElementsAre;
using testing::IsEmpty;

template <class Range>
std::vector<std::string> namesOf(Range const& range)
{
    std::vector<std::string> names;
    for (auto const& entity : range)
        names.push_back(entity->Name->value_or("-"));
    return names;
}

TEST(EntityAdd, ANewEntityIsUnknownUntilItIsAdded)
{
    Model model;
    auto const wall = std::make_shared<FcWall>();
    EXPECT_EQ(wall->getData(), nullptr);
    EXPECT_EQ(wall->getIndex(), noEntity);
    EXPECT_TRUE(model.data()->entities<FcWall>().empty());
    model.data()->entityAdd(wall, false);
    EXPECT_EQ(wall->getData(), model.data().get());
    EXPECT_EQ(model.data()->entity(wall->getIndex()), wall);
    EXPECT_TRUE(model.data()->isCreated(wall->getIndex()));
}

TEST(EntityAdd, TakesAlongWhatTheEntityRefersTo)
{
    Model model;
    auto const wall = std::make_shared<FcWall>();
    auto const relation = std::make_shared<FcRelAggregates>();
    auto const history = std::make_shared<FcOwnerHistory>();
    wall->OwnerHistory = history;
    relation->RelatingObject = wall;
    model.data()->entityAdd(relation, false);
    EXPECT_EQ(wall->getData(), model.data().get());
    EXPECT_EQ(history->getData(), model.data().get());
    EXPECT_EQ(model.data()->entityCount(), 3u);
}

TEST(EntityAdd, TwiceIsOnce)
{
    Model model;
    auto const wall = model.wall("W1");
    model.data()->entityAdd(wall, false);
    model.data()->entityAdd(nullptr, false);
    EXPECT_EQ(model.data()->entityCount(), 1u);
}

TEST(EntityAdd, WhatAnEntityOfTheModelIsMadeToReferToComesIn)
{
    Model model;
    auto const wall = model.wall("W1");
    auto const history = std::make_shared<FcOwnerHistory>();
    wall->OwnerHistory = history;
    EXPECT_EQ(history->getData(), model.data().get());
    model.data()->changes().undo();
    EXPECT_TRUE(model.data()->isDeleted(history->getIndex()));
    EXPECT_FALSE(wall->OwnerHistory->isSet());
}

TEST(EntityAdd, AnEntityOfAnotherModelStaysThere)
{
    Model one;
    Model two;
    auto const wall = one.wall("W1");
    two.data()->entityAdd(wall, false);
    EXPECT_EQ(wall->getData(), one.data().get());
    EXPECT_EQ(two.data()->entityCount(), 0u);
}

TEST(EntityDelete, TellsWhetherTheEntityWasInTheModel)
{
    Model model;
    Model other;
    auto const wall = model.wall("W1");
    EXPECT_FALSE(other.data()->entityDelete(wall));
    EXPECT_FALSE(model.data()->entityDelete(nullptr));
    EXPECT_FALSE(model.data()->entityDelete(std::make_shared<FcWall>()));
    EXPECT_TRUE(model.data()->entityDelete(wall));
    EXPECT_FALSE(model.data()->entityDelete(wall));
}

TEST(EntityDelete, TheEntityIsGoneFromLookUpsAndRanges)
{
    Model model;
    auto const wall = model.wall("W1");
    auto const place = wall->getIndex();
    model.data()->entityDelete(wall);
    EXPECT_TRUE(model.data()->isDeleted(place));
    EXPECT_EQ(model.data()->entity(place), nullptr);
    EXPECT_TRUE(model.data()->entities<FcWall>().empty());
}

TEST(EntityDelete, ReferencesToTheEntityLeadNowhere)
{
    Model model;
    auto const wall = model.wall("W1");
    auto const storey = model.storey("S1");
    model.aggregate(storey, {wall, model.door("D1")});
    auto const relation = storey->IsDecomposedBy()[0].lock();
    model.data()->entityDelete(wall);
    ASSERT_EQ(relation->RelatedObjects->size(), 2u);
    EXPECT_EQ(relation->RelatedObjects->get().size(), 1u);
    model.data()->entityDelete(storey);
    EXPECT_FALSE(relation->RelatingObject->isSet());
    EXPECT_EQ(relation->RelatingObject->get(), nullptr);
}

TEST(EntityDelete, ADeletedEntityComesBackToItsPlace)
{
    Model model;
    auto const wall = model.wall("W1");
    auto const place = wall->getIndex();
    model.data()->entityDelete(wall);
    model.data()->entityAdd(wall, false);
    EXPECT_EQ(wall->getIndex(), place);
    EXPECT_EQ(model.data()->entity(place), wall);
    EXPECT_EQ(model.data()->entityCount(), 1u);
}

TEST(EntityRanges, HoldAClassAndItsSubclasses)
{
    Model model;
    model.wall("W1");
    model.door("D1");
    model.add<FcWallStandardCase>("W2");
    model.wall("W3");
    EXPECT_THAT(namesOf(model.data()->entities<FcWall>()), ElementsAre("W1", "W3", "W2"));
    EXPECT_THAT(namesOf(model.data()->entities<FcWallStandardCase>()), ElementsAre("W2"));
    EXPECT_EQ(model.data()->countFromId(FcWall::idFirst, FcWall::idLast), 3u);
    EXPECT_EQ(model.data()->countFromId(1, FcBase::idLast), 4u);
}

TEST(EntityRanges, OfAConstModelGiveConstEntities)
{
    Model model;
    model.wall("W1");
    Data const& data = *model.data();
    for (auto const& wall : data.entities<FcWall>())
        static_assert(std::is_same_v<decltype(wall), std::shared_ptr<FcWall const> const&>);
    EXPECT_THAT(namesOf(data.entities<FcWall>()), ElementsAre("W1"));
}

TEST(EntityRanges, AreEmptyWhereThereIsNothing)
{
    Model model;
    EXPECT_TRUE(model.data()->entities<FcWall>().empty());
    EXPECT_THAT(model.data()->indicesFromId(1, FcBase::idLast), IsEmpty());
    EXPECT_THAT(model.data()->indicesFromId(9999, 10000), IsEmpty());
}

TEST(EntityRanges, AWalkGoesOnWhileEntitiesAreAdded)
{
    Model model;
    model.wall("W1");
    for (auto const& wall : model.data()->entities<FcWall>())
        model.wall(*wall->Name.get() + "'");
    EXPECT_EQ(model.data()->countFromId(FcWall::idFirst, FcWall::idLast), 2u);
}

// --- Relations from both ends --------------------------------------------------------------------

struct Relations : testing::Test
{
    Model model;
    std::shared_ptr<FcWall> wall = model.wall("W1");
    std::shared_ptr<FcWall> other = model.wall("W2");
    std::shared_ptr<FcWallType> type = model.wallType("T1");
    std::shared_ptr<FcRelDefinesByType> relation = model.add<FcRelDefinesByType>("");

    [[nodiscard]] bool isTyped(FcWall const& object) const { return !object.IsTypedBy().empty(); }
};

TEST_F(Relations, AreSeenFromBothEnds)
{
    EXPECT_FALSE(isTyped(*wall));
    relation->RelatingType = type;
    relation->RelatedObjects.edit([this](auto& objects) { objects.push_back(wall); });
    ASSERT_TRUE(isTyped(*wall));
    EXPECT_EQ(wall->IsTypedBy()[0].lock(), relation);
    ASSERT_EQ(type->Types().size(), 1u);
    EXPECT_EQ(type->Types()[0].lock(), relation);
}

TEST_F(Relations, FollowChangesUndoAndRedo)
{
    relation->RelatedObjects.edit([this](auto& objects) { objects.push_back(wall); });
    ASSERT_TRUE(isTyped(*wall));
    relation->RelatedObjects.edit([this](auto& objects) {
        objects.erase(wall);
        objects.push_back(other);
    });
    EXPECT_FALSE(isTyped(*wall));
    EXPECT_TRUE(isTyped(*other));
    model.data()->changes().undo();
    EXPECT_TRUE(isTyped(*wall));
    EXPECT_FALSE(isTyped(*other));
    model.data()->changes().redo();
    EXPECT_FALSE(isTyped(*wall));
    EXPECT_TRUE(isTyped(*other));
}

TEST_F(Relations, EndWithTheRelationAndComeBackWithIt)
{
    relation->RelatedObjects.edit([this](auto& objects) { objects.push_back(wall); });
    model.data()->entityDelete(relation);
    EXPECT_FALSE(isTyped(*wall));
    model.data()->changes().undo();
    EXPECT_TRUE(isTyped(*wall));
    model.data()->changes().redo();
    EXPECT_FALSE(isTyped(*wall));
}

TEST_F(Relations, OfARelationThatIsAddedWholeAreThereAtOnce)
{
    EXPECT_FALSE(isTyped(*wall));
    auto const added = std::make_shared<FcRelDefinesByType>();
    added->RelatedObjects.edit([this](auto& objects) { objects.push_back(wall); });
    model.data()->entityAdd(added, false);
    EXPECT_TRUE(isTyped(*wall));
    model.data()->changes().undo();
    EXPECT_FALSE(isTyped(*wall));
}

TEST_F(Relations, AChangeOfADeletedRelationShowsOnceItIsBack)
{
    relation->RelatedObjects.edit([this](auto& objects) { objects.push_back(wall); });
    ASSERT_TRUE(isTyped(*wall));
    model.data()->entityDelete(relation);
    relation->RelatedObjects.edit([this](auto& objects) { objects.push_back(other); });
    EXPECT_FALSE(isTyped(*other));
    EXPECT_FALSE(model.data()->isReferenced(other->getIndex()));
    model.data()->entityAdd(relation, false);
    EXPECT_TRUE(isTyped(*wall));
    EXPECT_TRUE(isTyped(*other));
}

TEST_F(Relations, AreBuiltAgainAfterTheyWereForgotten)
{
    relation->RelatedObjects.edit([this](auto& objects) { objects.push_back(wall); });
    EXPECT_TRUE(isTyped(*wall));
    wall->clearInverseAttributes();
    EXPECT_TRUE(isTyped(*wall));
}

TEST_F(Relations, AnObjectThatIsRelatedTwiceHasTheRelationOnce)
{
    relation->RelatedObjects.edit([this](auto& objects) {
        objects.push_back(wall);
        objects.push_back(wall);
    });
    EXPECT_EQ(wall->IsTypedBy().size(), 1u);
    relation->RelatedObjects.edit([this](auto& objects) { objects.erase(wall); });
    EXPECT_EQ(wall->IsTypedBy().size(), 1u);
}

TEST_F(Relations, TellWhatIsReferenced)
{
    EXPECT_FALSE(model.data()->isReferenced(wall->getIndex()));
    relation->RelatedObjects.edit([this](auto& objects) { objects.push_back(wall); });
    EXPECT_TRUE(model.data()->isReferenced(wall->getIndex()));
    EXPECT_FALSE(model.data()->deleteIfUnreferenced(wall));
    model.data()->entityDelete(relation);
    EXPECT_FALSE(model.data()->isReferenced(wall->getIndex()));
    EXPECT_TRUE(model.data()->deleteIfUnreferenced(wall));
    EXPECT_FALSE(model.data()->isReferenced(noEntity));
}

// --- What lives longer than the model ------------------------------------------------------------

TEST(EndOfTheModel, EntitiesThatAreStillHeldStandAlone)
{
    std::shared_ptr<FcWall> wall;
    std::shared_ptr<FcPropertySet> set;
    std::shared_ptr<fc::core::kernel::FcRelDefinesByProperties> relation;
    {
        Model model;
        wall = model.wall("W1");
        set = model.addSet(wall, "Pset_X", {{"A", label("1")}});
        relation = set->DefinesOccurrence()[0].lock();
    }
    EXPECT_EQ(wall->getData(), nullptr);
    EXPECT_EQ(wall->getIndex(), noEntity);
    EXPECT_EQ(wall->Name.get(), "W1");
    EXPECT_TRUE(wall->IsDefinedBy().empty());
    EXPECT_EQ(wall->getPropertySetDefinitionNonConst<FcPropertySet>("Pset_X"), nullptr);
    (void)set->HasProperties.getProperties();
    (void)relation->RelatedObjects->get();
    wall->Name = "W2";
    EXPECT_EQ(wall->Name.get(), "W2");
}

TEST(EndOfTheModel, AnEntityMayJoinAnotherModel)
{
    std::shared_ptr<FcWall> wall;
    {
        Model model;
        wall = model.wall("W1");
    }
    Model next;
    next.data()->entityAdd(wall, false);
    EXPECT_THAT(namesOf(next.data()->entities<FcWall>()), ElementsAre("W1"));
}

TEST(EndOfTheModel, APropertyThatHoldsItselfIsFreed)
{
    std::weak_ptr<FcBase> watched;
    {
        Model model;
        auto const property = std::make_shared<FcComplexProperty>();
        model.data()->entityAdd(property, false);
        property->HasProperties.edit([&property](auto& list) { list.push_back(property); });
        EXPECT_EQ(property->HasProperties->get().at(0), property);
        watched = property;
    }
    EXPECT_TRUE(watched.expired());
}

TEST(EndOfTheModel, APropertyThatHeldItselfBeforeItWasAddedIsFreed)
{
    std::weak_ptr<FcBase> watched;
    {
        Model model;
        auto const property = std::make_shared<FcComplexProperty>();
        property->HasProperties.edit([&property](auto& list) { list.push_back(property); });
        model.data()->entityAdd(property, false);
        watched = property;
    }
    EXPECT_TRUE(watched.expired());
}

} // namespace
