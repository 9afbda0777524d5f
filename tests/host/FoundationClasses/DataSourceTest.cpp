#include "FoundationClasses/Core/Kernel/FcProduct.h"
#include "FoundationClasses/Core/Kernel/FcPropertySet.h"
#include "FoundationClasses/Core/Kernel/FcRelDefinesByProperties.h"
#include "FoundationClasses/Data.h"
#include "FoundationClasses/Resource/Property/FcComplexProperty.h"
#include "FoundationClasses/Resource/Property/FcPropertySingleValue.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWall.h"
#include "host/FoundationClasses/FakeSource.h"
#include "kit/ModelBuilder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace qev;
using namespace qev::test;
using fc::Data;
using fc::EntityIndex;
using fc::core::kernel::FcPropertySet;
using fc::core::kernel::FcRelDefinesByProperties;
using fc::resource::property::FcComplexProperty;
using fc::resource::property::FcPropertySingleValue;
using fc::shared::sharedbldgelements::FcWall;
using step::StepValue;
using testing::ElementsAre;
using testing::IsEmpty;

StepValue references(std::vector<step::InstanceId> const& ids)
{
    std::vector<StepValue> items;
    for (step::InstanceId const id : ids)
        items.push_back(StepValue::reference(id));
    return StepValue::list(std::move(items));
}

StepValue text(char const* value) { return StepValue::text(value); }

/// Two walls that share a set with one property.
struct ReadModel : testing::Test
{
    FakeSource* source = nullptr;
    std::shared_ptr<Data> data;

    ReadModel()
    {
        auto records = std::make_unique<FakeSource>(std::vector<FakeSource::Record>{
            {FcWall::idFirst, {{"Name", text("W1")}}},
            {FcRelDefinesByProperties::idFirst,
             {{"RelatedObjects", references({1, 5})},
              {"RelatingPropertyDefinition", StepValue::reference(3)}}},
            {FcPropertySet::idFirst, {{"Name", text("Pset_X")}, {"HasProperties", references({4})}}},
            {FcPropertySingleValue::idFirst,
             {{"Name", text("FireRating")}, {"NominalValue", StepValue::typed("IFCLABEL", text("F30"))}}},
            {FcWall::idFirst, {{"Name", text("W2")}}},
            {0, {}},
            {fc::core::kernel::FcProduct::idFirst, {}},
        });
        source = records.get();
        data = Data::create(std::move(records));
    }

    template <class T>
    std::shared_ptr<T> at(EntityIndex index) const
    {
        return fc::entityCast<T>(data->entity(index));
    }
};

TEST_F(ReadModel, MakesNoObjectsAtFirst)
{
    EXPECT_EQ(data->entityCount(), 7u);
    EXPECT_EQ(data->objectCount(), 0u);
    EXPECT_EQ(data->countFromId(FcWall::idFirst, FcWall::idLast), 2u);
    EXPECT_THAT(source->reads(), ElementsAre(0, 0, 0, 0, 0, 0, 0));
    EXPECT_FALSE(data->changes().isModified());
}

TEST_F(ReadModel, MakesAnObjectWhenItIsFirstAskedFor)
{
    auto const wall = at<FcWall>(0);
    ASSERT_NE(wall, nullptr);
    EXPECT_EQ(wall->Name.get(), "W1");
    EXPECT_EQ(wall->getIndex(), 0u);
    EXPECT_EQ(at<FcWall>(0), wall);
    EXPECT_THAT(source->reads(), ElementsAre(1, 0, 0, 0, 0, 0, 0));
    EXPECT_EQ(data->existingObject(0), wall.get());
    EXPECT_EQ(data->existingObject(1), nullptr);
}

TEST_F(ReadModel, WhatIsReadIsNoChange)
{
    auto const wall = at<FcWall>(0);
    EXPECT_EQ(wall->changedSlots(), 0u);
    EXPECT_FALSE(data->changes().isModified());
    EXPECT_THAT(data->touchedEntities(), IsEmpty());
    EXPECT_FALSE(data->isCreated(0));
}

TEST_F(ReadModel, FollowsReferencesWhenTheyAreUsed)
{
    auto const wall = at<FcWall>(0);
    auto const set = wall->getPropertySetDefinitionNonConst<FcPropertySet>("Pset_X");
    ASSERT_NE(set, nullptr);
    EXPECT_THAT(source->reads(), ElementsAre(1, 1, 1, 0, 0, 0, 0));
    auto const property = fc::entityCast<FcPropertySingleValue>(set->HasProperties.getProperties().at(0));
    EXPECT_EQ(property->NominalValue->getAsString(true), "IfcLabel(F30)");
    EXPECT_THAT(source->reads(), ElementsAre(1, 1, 1, 1, 0, 0, 0));
}

TEST_F(ReadModel, FindsRelationsWithoutMakingObjectsOfAll)
{
    EXPECT_THAT(
        data->relating(4, FcRelDefinesByProperties::idFirst, FcRelDefinesByProperties::idLast,
                       fc::slotFromName(FcRelDefinesByProperties::staticEntityClass(), "RelatedObjects")),
        ElementsAre(1u));
    EXPECT_EQ(data->objectCount(), 0u);
}

/// More targets than are looked for one by one: each of forty walls has a relation of its own to the same
/// set.
struct ManyRelations : testing::Test
{
    static constexpr EntityIndex wallCount = 40;
    std::shared_ptr<Data> data;

    ManyRelations()
    {
        std::vector<FakeSource::Record> records;
        for (EntityIndex i = 0; i < wallCount; ++i)
            records.push_back({FcWall::idFirst, {}});
        records.push_back({FcPropertySet::idFirst, {{"Name", text("Pset_X")}}});
        for (EntityIndex i = 0; i < wallCount; ++i)
            records.push_back({FcRelDefinesByProperties::idFirst,
                               {{"RelatedObjects", references({i + 1})},
                                {"RelatingPropertyDefinition", StepValue::reference(wallCount + 1)}}});
        data = Data::create(std::make_unique<FakeSource>(std::move(records)));
    }

    static EntityIndex relationOf(EntityIndex wall) { return wallCount + 1 + wall; }

    std::vector<EntityIndex> relating(EntityIndex wall) const
    {
        return data->relating(
            wall, FcRelDefinesByProperties::idFirst, FcRelDefinesByProperties::idLast,
            fc::slotFromName(FcRelDefinesByProperties::staticEntityClass(), "RelatedObjects"));
    }

    std::shared_ptr<FcRelDefinesByProperties> relation(EntityIndex wall) const
    {
        return fc::entityCast<FcRelDefinesByProperties>(data->entity(relationOf(wall)));
    }

    void relateAlso(EntityIndex wall, EntityIndex other) const
    {
        relation(wall)->RelatedObjects.edit(
            [&](auto& objects) { objects.push_back(fc::entityCast<FcWall>(data->entity(other))); });
    }
};

TEST_F(ManyRelations, AreFoundForTheFirstTargetAndForAll)
{
    for (EntityIndex wall = 0; wall < wallCount; ++wall)
        EXPECT_THAT(relating(wall), ElementsAre(relationOf(wall)));
    EXPECT_EQ(data->objectCount(), 0u);
}

/// Asks for the relations of some walls, so that fewer or more of them are known before something changes.
struct ManyRelationsAfterQuestions : ManyRelations, testing::WithParamInterface<EntityIndex>
{
    ManyRelationsAfterQuestions()
    {
        for (EntityIndex wall = 0; wall < GetParam(); ++wall)
            static_cast<void>(relating(wall));
    }
};

INSTANTIATE_TEST_SUITE_P(Questions, ManyRelationsAfterQuestions, testing::Values(0, 1, 20));

TEST_P(ManyRelationsAfterQuestions, FollowEditsOfWhatIsKnownAndOfWhatIsNot)
{
    EXPECT_THAT(relating(7), ElementsAre(relationOf(7)));
    relateAlso(9, 7);
    relateAlso(9, 8);
    EXPECT_THAT(relating(7), ElementsAre(relationOf(7), relationOf(9)));
    EXPECT_THAT(relating(8), ElementsAre(relationOf(8), relationOf(9)));

    data->changes().undo();
    data->changes().undo();
    EXPECT_THAT(relating(7), ElementsAre(relationOf(7)));
    EXPECT_THAT(relating(8), ElementsAre(relationOf(8)));

    data->changes().redo();
    EXPECT_THAT(relating(7), ElementsAre(relationOf(7), relationOf(9)));
}

TEST_P(ManyRelationsAfterQuestions, FollowDeletionsAndAdditions)
{
    EXPECT_THAT(relating(7), ElementsAre(relationOf(7)));
    data->entityDelete(relation(7));
    data->entityDelete(relation(8));
    EXPECT_THAT(relating(7), IsEmpty());
    EXPECT_THAT(relating(8), IsEmpty());
    data->changes().undo();
    EXPECT_THAT(relating(8), ElementsAre(relationOf(8)));
    data->changes().redo();
    EXPECT_THAT(relating(8), IsEmpty());

    auto const created = std::make_shared<FcRelDefinesByProperties>();
    created->RelatedObjects.edit(
        [this](auto& objects) { objects.push_back(fc::entityCast<FcWall>(data->entity(9))); });
    data->entityAdd(created, false);
    EXPECT_THAT(relating(9), ElementsAre(relationOf(9), created->getIndex()));

    data->changes().undo();
    EXPECT_THAT(relating(9), ElementsAre(relationOf(9)));
    data->entityAdd(created, false);
    EXPECT_THAT(relating(9), ElementsAre(relationOf(9), created->getIndex()));

    auto const wall = std::make_shared<FcWall>();
    data->entityAdd(wall, false);
    EXPECT_THAT(relating(wall->getIndex()), IsEmpty());
}

TEST_P(ManyRelationsAfterQuestions, IncludeThoseThatComeTogetherWithTheirTargets)
{
    auto const wall = std::make_shared<FcWall>();
    auto const created = std::make_shared<FcRelDefinesByProperties>();
    created->RelatedObjects.edit([&wall](auto& objects) { objects.push_back(wall); });
    data->entityAdd(created, false);
    EXPECT_THAT(relating(wall->getIndex()), ElementsAre(created->getIndex()));
    EXPECT_TRUE(data->isReferenced(wall->getIndex()));
}

TEST_P(ManyRelationsAfterQuestions, AreRightAfterQuestionsDuringAnEdit)
{
    relation(9)->RelatedObjects.edit([this](auto& objects) {
        static_cast<void>(relating(9));
        static_cast<void>(relating(8));
        objects.erase(fc::entityCast<FcWall>(data->entity(9)));
        objects.push_back(fc::entityCast<FcWall>(data->entity(8)));
        static_cast<void>(relating(8));
    });
    EXPECT_THAT(relating(9), IsEmpty());
    EXPECT_THAT(relating(8), ElementsAre(relationOf(8), relationOf(9)));
}

TEST_P(ManyRelationsAfterQuestions, AreGoneWhenTheyAreDeletedDuringAnEdit)
{
    EXPECT_THAT(relating(9), ElementsAre(relationOf(9)));
    auto const deleted = relation(9);
    deleted->RelatedObjects.edit([&](auto& objects) {
        objects.erase(fc::entityCast<FcWall>(data->entity(9)));
        data->entityDelete(deleted);
    });
    EXPECT_THAT(relating(9), IsEmpty());
}

TEST_P(ManyRelationsAfterQuestions, AreThereWhenTheyAreAddedDuringAnEdit)
{
    auto const created = std::make_shared<FcRelDefinesByProperties>();
    created->RelatedObjects.edit([&](auto& objects) {
        data->entityAdd(created, false);
        objects.push_back(fc::entityCast<FcWall>(data->entity(9)));
    });
    EXPECT_THAT(relating(9), ElementsAre(relationOf(9), created->getIndex()));
}

TEST_F(ManyRelations, AreFoundAgainAfterObjectsWereLetGo)
{
    EXPECT_THAT(relating(7), ElementsAre(relationOf(7)));
    relateAlso(9, 7);
    static_cast<void>(relation(8));
    data->releaseUnused();
    data->clearInverseIndexes();
    EXPECT_THAT(relating(7), ElementsAre(relationOf(7), relationOf(9)));
    EXPECT_THAT(relating(8), ElementsAre(relationOf(8)));
}

unsigned int nameSlot() { return fc::slotFromName(FcPropertySet::staticEntityClass(), "Name"); }

std::vector<EntityIndex> relatedObjects(Data const& data)
{
    std::vector<EntityIndex> places;
    data.visitReferences(1, fc::slotFromName(FcRelDefinesByProperties::staticEntityClass(), "RelatedObjects"),
                         [&places](EntityIndex place) { places.push_back(place); });
    return places;
}

TEST_F(ReadModel, TellsReferencesAndTextsWithoutMakingObjects)
{
    EXPECT_THAT(relatedObjects(*data), ElementsAre(0u, 4u));
    EXPECT_EQ(data->attributeText(2, nameSlot()), "Pset_X");
    EXPECT_EQ(data->attributeText(1, nameSlot()), std::nullopt);
    EXPECT_EQ(data->objectCount(), 0u);
}

TEST_F(ReadModel, TellsReferencesAndTextsThatWereChanged)
{
    at<FcRelDefinesByProperties>(1)->RelatedObjects.edit([this](auto& objects) {
        objects.erase(at<FcWall>(0));
        objects.push_back(at<FcWall>(0));
    });
    at<FcPropertySet>(2)->Name = "Pset_Y";
    EXPECT_THAT(relatedObjects(*data), ElementsAre(4u, 0u));
    EXPECT_EQ(data->attributeText(2, nameSlot()), "Pset_Y");

    data->changes().undo();
    data->changes().undo();
    EXPECT_THAT(relatedObjects(*data), ElementsAre(0u, 4u));
    EXPECT_EQ(data->attributeText(2, nameSlot()), "Pset_X");
}

TEST_F(ReadModel, TellsTextsOfWhatIsPresentOnly)
{
    auto const created = std::make_shared<FcPropertySet>();
    created->Name = "Pset_New";
    data->entityAdd(created, false);
    EXPECT_EQ(data->attributeText(created->getIndex(), nameSlot()), "Pset_New");

    data->entityDelete(created);
    data->entityDelete(at<FcPropertySet>(2));
    EXPECT_EQ(data->attributeText(created->getIndex(), nameSlot()), std::nullopt);
    EXPECT_EQ(data->attributeText(2, nameSlot()), std::nullopt);
    EXPECT_EQ(data->attributeText(5, nameSlot()), std::nullopt);
    EXPECT_EQ(data->attributeText(fc::noEntity, nameSlot()), std::nullopt);

    data->changes().undo();
    EXPECT_EQ(data->attributeText(2, nameSlot()), "Pset_X");
}

std::vector<std::string> namesOfSets(FcWall const& wall)
{
    std::vector<std::string> names;
    wall.forEachAttachedSetName([&names](unsigned int, std::optional<std::string> const& name) {
        names.push_back(name.value_or("-"));
        return true;
    });
    return names;
}

TEST_F(ReadModel, TellsTheNamesOfSetsWithoutMakingObjectsOfThem)
{
    auto const wall = at<FcWall>(0);
    EXPECT_THAT(namesOfSets(*wall), ElementsAre("Pset_X"));
    EXPECT_EQ(data->objectCount(), 1u);

    at<FcPropertySet>(2)->Name = "Pset_Y";
    EXPECT_THAT(namesOfSets(*wall), ElementsAre("Pset_Y"));
    EXPECT_TRUE(wall->deletePropertySetDefinition("Pset_Y"));
    EXPECT_THAT(namesOfSets(*wall), IsEmpty());
    EXPECT_THAT(namesOfSets(*at<FcWall>(4)), ElementsAre("Pset_Y"));

    data->changes().undo();
    data->changes().undo();
    EXPECT_THAT(namesOfSets(*wall), ElementsAre("Pset_X"));
}

TEST_F(ReadModel, RecordsWithoutAClassThatHasObjectsAreNobody)
{
    EXPECT_EQ(data->entity(5), nullptr);
    EXPECT_EQ(data->entity(6), nullptr);
    EXPECT_EQ(data->entity(7), nullptr);
    EXPECT_EQ(data->entity(fc::noEntity), nullptr);
    for (auto const& product : data->entities<fc::core::kernel::FcProduct>())
        EXPECT_NE(product, nullptr);
    EXPECT_EQ(data->countFromId(0, fc::FcBase::idLast), 5u);
    for (auto const& entity : data->entities<fc::FcBase>())
        EXPECT_NE(entity, nullptr);
}

TEST_F(ReadModel, ReleasesObjectsThatNobodyUses)
{
    auto const held = at<FcWall>(0);
    (void)at<FcWall>(4)
        ->getPropertySetDefinitionNonConst<FcPropertySet>("Pset_X")
        ->HasProperties.getProperties();
    EXPECT_EQ(data->objectCount(), 5u);
    data->releaseUnused();
    EXPECT_EQ(data->objectCount(), 1u);
    EXPECT_EQ(data->existingObject(0), held.get());
    EXPECT_EQ(at<FcWall>(4)->Name.get(), "W2");
    EXPECT_THAT(source->reads(), ElementsAre(1, 1, 1, 1, 2, 0, 0));
}

TEST_F(ReadModel, KeepsChangedCreatedAndDeletedObjects)
{
    at<FcWall>(0)->Name = "Changed";
    data->entityAdd(std::make_shared<FcWall>(), false);
    data->entityDelete(at<FcWall>(4));
    data->releaseUnused();
    EXPECT_EQ(data->objectCount(), 3u);
    EXPECT_EQ(at<FcWall>(0)->Name.get(), "Changed");
    EXPECT_THAT(data->touchedEntities(), ElementsAre(0u, 4u, 7u));
    data->changes().undo();
    EXPECT_EQ(at<FcWall>(4)->Name.get(), "W2");
}

TEST_F(ReadModel, KnowsWhichAttributesAnEditChanged)
{
    auto const wall = at<FcWall>(0);
    unsigned int const slot = wall->Name.slot();
    wall->Name = "W1";
    EXPECT_EQ(wall->changedSlots(), 0u);
    wall->Name = "Other";
    EXPECT_EQ(wall->changedSlots(), std::uint64_t{1} << slot);
    EXPECT_THAT(data->touchedEntities(), ElementsAre(0u));
    data->changes().undo();
    EXPECT_EQ(wall->changedSlots(), 0u);
    EXPECT_THAT(data->touchedEntities(), IsEmpty());
    data->changes().redo();
    EXPECT_EQ(wall->changedSlots(), std::uint64_t{1} << slot);
}

TEST_F(ReadModel, SharedSetsAreDetachedFromOneObjectAlone)
{
    EXPECT_TRUE(at<FcWall>(0)->deletePropertySetDefinition("Pset_X"));
    EXPECT_EQ(at<FcWall>(0)->getPropertySetDefinitionNonConst<FcPropertySet>("Pset_X"), nullptr);
    EXPECT_NE(at<FcWall>(4)->getPropertySetDefinitionNonConst<FcPropertySet>("Pset_X"), nullptr);
    EXPECT_THAT(data->touchedEntities(), ElementsAre(1u));
}

TEST_F(ReadModel, HeldObjectsOutliveIt)
{
    auto const wall = at<FcWall>(0);
    auto const set = wall->getPropertySetDefinitionNonConst<FcPropertySet>("Pset_X");
    data.reset();
    EXPECT_EQ(wall->Name.get(), "W1");
    EXPECT_TRUE(set->HasProperties.getProperties().empty());
    EXPECT_TRUE(wall->IsDefinedBy().empty());
}

TEST(BrokenRecords, ReferencesOfTheWrongKindAreLeftOutAndTold)
{
    auto records = std::make_unique<FakeSource>(std::vector<FakeSource::Record>{
        {FcPropertySet::idFirst,
         {{"Name", StepValue::integer(7)}, {"HasProperties", references({2, 1, 99})}}},
        {FcPropertySingleValue::idFirst, {{"Name", text("A")}, {"NominalValue", StepValue::integer(1)}}},
    });
    auto const& source = *records;
    auto const data = Data::create(std::move(records));
    auto const set = fc::entityCast<FcPropertySet>(data->entity(0));
    EXPECT_EQ(set->Name.get(), std::nullopt);
    ASSERT_EQ(set->HasProperties.getProperties().size(), 1u);
    EXPECT_TRUE(fc::entityCast<FcPropertySingleValue>(data->entity(1))->NominalValue->isEmpty());
    EXPECT_THAT(source.mismatches(),
                ElementsAre("HasProperties: a reference to IfcProperty",
                            "HasProperties: a reference to an existing record", "Name: a text",
                            "NominalValue: a typed value such as IFCLABEL('text')"));
}

TEST(BrokenRecords, ATextThatIsNoneIsWhatTheObjectMakesOfIt)
{
    auto const data = Data::create(std::make_unique<FakeSource>(std::vector<FakeSource::Record>{
        {FcPropertySet::idFirst, {{"Name", StepValue::integer(7)}}},
    }));
    EXPECT_EQ(data->attributeText(0, nameSlot()), std::nullopt);
    EXPECT_EQ(data->objectCount(), 1u);
}

TEST(BrokenRecords, WhatIsNoSetIsNoneOfAnObject)
{
    auto const data = Data::create(std::make_unique<FakeSource>(std::vector<FakeSource::Record>{
        {FcWall::idFirst, {{"Name", text("W1")}}},
        {FcRelDefinesByProperties::idFirst,
         {{"RelatedObjects", references({1})}, {"RelatingPropertyDefinition", StepValue::reference(1)}}},
        {FcRelDefinesByProperties::idFirst,
         {{"RelatedObjects", references({1})}, {"RelatingPropertyDefinition", StepValue::reference(99)}}},
    }));
    EXPECT_THAT(namesOfSets(*fc::entityCast<FcWall>(data->entity(0))), IsEmpty());
}

TEST(BrokenRecords, APropertyThatHoldsItselfIsReadAndFreed)
{
    std::weak_ptr<fc::FcBase> watched;
    {
        auto const data = Data::create(std::make_unique<FakeSource>(std::vector<FakeSource::Record>{
            {FcComplexProperty::idFirst, {{"Name", text("A")}, {"HasProperties", references({1})}}},
        }));
        auto const property = fc::entityCast<FcComplexProperty>(data->entity(0));
        EXPECT_EQ(property->HasProperties->get().at(0), property);
        watched = property;
    }
    EXPECT_TRUE(watched.expired());
}

} // namespace
