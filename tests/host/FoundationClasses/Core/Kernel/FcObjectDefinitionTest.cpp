#include "FoundationClasses/Core/Kernel/FcObjectDefinition.h"

#include "FoundationClasses/Core/Kernel/FcProject.h"
#include "FoundationClasses/Core/Kernel/FcRelDefinesByProperties.h"
#include "FoundationClasses/Core/Kernel/FcTypeObject.h"
#include "FoundationClasses/Domain/Architecture/FcDoorPanelProperties.h"
#include "FoundationClasses/Resource/Property/FcProperty.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWall.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWallType.h"
#include "kit/ModelBuilder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace qev;
using namespace qev::test;
using fc::core::kernel::FcObjectDefinition;
using fc::core::kernel::FcPropertySet;
using fc::core::kernel::FcPropertySetDefinition;
using fc::core::kernel::FcPropertySetDefinitionSelect;
using fc::core::kernel::FcRelDefinesByProperties;
using fc::core::productextension::FcElementQuantity;
using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> setNames(FcObjectDefinition const& object)
{
    std::vector<std::string> names;
    for (auto const& set : object.getPropertySetDefinitions<FcPropertySetDefinition>())
        names.push_back(set->Name->value_or("-"));
    return names;
}

std::size_t relationCount(Model const& model)
{
    return model.data()->countFromId(FcRelDefinesByProperties::idFirst, FcRelDefinesByProperties::idLast);
}

/// One relation that attaches several sets to several objects.
std::shared_ptr<FcRelDefinesByProperties> attachSets(Model& model, Model::Objects const& objects,
                                                     std::vector<std::shared_ptr<FcPropertySet>> const& sets)
{
    std::vector<fc::ReferenceBase> references(sets.begin(), sets.end());
    FcPropertySetDefinitionSelect definition;
    EXPECT_TRUE(definition.setReferences("IfcPropertySetDefinitionSet", std::move(references)));
    auto relation = model.add<FcRelDefinesByProperties>("");
    relation->RelatedObjects = fc::ReferenceList<FcObjectDefinition>(objects);
    relation->RelatingPropertyDefinition = definition;
    return relation;
}

TEST(ObjectSets, LookingForASetNeverCreatesIt)
{
    Model model;
    auto const wall = model.wall("W1");
    EXPECT_EQ(wall->getPropertySetDefinitionNonConst<FcPropertySet>("Pset_X"), nullptr);
    EXPECT_EQ(wall->getPropertySetDefinitionNonConst<FcElementQuantity>("Pset_X"), nullptr);
    EXPECT_THAT(setNames(*wall), IsEmpty());
}

TEST(ObjectSets, ASetThatIsAbsentIsCreatedAndAttached)
{
    Model model;
    auto const wall = model.wall("W1");
    auto const set = wall->getOrCreatePropertySetDefinition<FcPropertySet>(*model.data(), "Pset_X");
    ASSERT_NE(set, nullptr);
    EXPECT_EQ(set->Name.get(), "Pset_X");
    EXPECT_FALSE(set->getGuid().isNull());
    EXPECT_EQ(set->getData(), model.data().get());
    EXPECT_EQ(wall->getPropertySetDefinitionNonConst<FcPropertySet>("Pset_X"), set);
    ASSERT_EQ(set->DefinesOccurrence().size(), 1u);
    EXPECT_FALSE(set->DefinesOccurrence()[0].lock()->getGuid().isNull());
}

TEST(ObjectSets, ASetThatIsThereIsUsedAgain)
{
    Model model;
    auto const wall = model.wall("W1");
    auto const set = wall->getOrCreatePropertySetDefinition<FcPropertySet>(*model.data(), "Pset_X");
    EXPECT_EQ(wall->getOrCreatePropertySetDefinition<FcPropertySet>(*model.data(), "Pset_X"), set);
    EXPECT_EQ(relationCount(model), 1u);
}

TEST(ObjectSets, ASetAndAQuantitySetMayShareAName)
{
    Model model;
    auto const wall = model.wall("W1");
    auto const set = wall->getOrCreatePropertySetDefinition<FcPropertySet>(*model.data(), "X");
    auto const quantities = wall->getOrCreatePropertySetDefinition<FcElementQuantity>(*model.data(), "X");
    EXPECT_EQ(wall->getPropertySetDefinitionNonConst<FcPropertySet>("X"), set);
    EXPECT_EQ(wall->getPropertySetDefinitionNonConst<FcElementQuantity>("X"), quantities);
}

TEST(ObjectSets, NamesAreComparedExactlyAndTheFirstMatchCounts)
{
    Model model;
    auto const wall = model.wall("W1");
    auto const first = model.addSet(wall, "Pset_X");
    auto const second = model.add<FcPropertySet>("Pset_X");
    model.shareSet(second, wall);
    EXPECT_EQ(wall->getPropertySetDefinitionNonConst<FcPropertySet>("Pset_X"), first);
    EXPECT_EQ(wall->getPropertySetDefinitionNonConst<FcPropertySet>("pset_x"), nullptr);
    EXPECT_EQ(wall->getPropertySetDefinitionNonConst<FcPropertySet>("Pset_X "), nullptr);
}

TEST(ObjectSets, ASetWithoutANameIsNotFoundByTheEmptyOne)
{
    Model model;
    auto const wall = model.wall("W1");
    auto const set = model.addSet(wall, "Pset_X");
    set->Name = std::nullopt;
    EXPECT_EQ(wall->getPropertySetDefinitionNonConst<FcPropertySet>(""), nullptr);
    EXPECT_THAT(setNames(*wall), ElementsAre("-"));
}

TEST(ObjectSets, AreListedByClassInTheOrderOfTheRelations)
{
    Model model;
    auto const wall = model.wall("W1");
    model.addSet(wall, "Pset_B");
    model.addQuantities(wall, "Qto_A");
    model.addSet(wall, "Pset_A");
    EXPECT_THAT(setNames(*wall), ElementsAre("Pset_B", "Qto_A", "Pset_A"));
    EXPECT_EQ(wall->getPropertySetDefinitions<FcPropertySet>().size(), 2u);
    EXPECT_EQ(wall->getPropertySetDefinitions<FcElementQuantity>().size(), 1u);
}

TEST(ObjectSets, PredefinedSetsAreAmongTheDefinitions)
{
    Model model;
    auto const wall = model.wall("W1");
    auto const panel = model.add<fc::domain::architecture::FcDoorPanelProperties>("Panel");
    model.shareSet(panel, wall);
    EXPECT_THAT(setNames(*wall), ElementsAre("Panel"));
    EXPECT_THAT(wall->getPropertySetDefinitions<FcPropertySet>(), IsEmpty());
}

TEST(ObjectSets, BelongToTypesThroughTheirOwnList)
{
    Model model;
    auto const type = model.wallType("T1");
    EXPECT_FALSE(type->HasPropertySets->has_value());
    auto const set = model.addSet(type, "Pset_X", {{"A", label("1")}});
    ASSERT_TRUE(type->HasPropertySets->has_value());
    EXPECT_THAT(type->HasPropertySets.get()->get(), ElementsAre(set));
    EXPECT_EQ(relationCount(model), 0u);
    EXPECT_EQ(type->getPropertySetDefinitionNonConst<FcPropertySet>("Pset_X"), set);
    ASSERT_EQ(set->DefinesType().size(), 1u);
    EXPECT_EQ(set->DefinesType()[0].lock(), type);
}

TEST(ObjectSets, BelongToContextsThroughRelations)
{
    Model model;
    auto const project = model.project("P1");
    model.addSet(project, "Pset_X");
    EXPECT_THAT(setNames(*project), ElementsAre("Pset_X"));
    EXPECT_EQ(relationCount(model), 1u);
}

TEST(ObjectSets, AnObjectDoesNotShowTheSetsOfItsType)
{
    Model model;
    auto const wall = model.wall("W1");
    auto const type = model.wallType("T1");
    model.assignType(type, {wall});
    model.addSet(type, "Pset_X");
    EXPECT_THAT(setNames(*wall), IsEmpty());
}

TEST(ObjectSets, SeveralSetsOfOneRelationAreAllAttached)
{
    Model model;
    auto const wall = model.wall("W1");
    auto const a = model.add<FcPropertySet>("Pset_A");
    auto const b = model.add<FcPropertySet>("Pset_B");
    attachSets(model, {wall}, {a, b});
    EXPECT_THAT(setNames(*wall), ElementsAre("Pset_A", "Pset_B"));
    EXPECT_EQ(wall->getPropertySetDefinitionNonConst<FcPropertySet>("Pset_B"), b);
}

TEST(ObjectSets, AnObjectInNoModelHasNone)
{
    auto const wall = std::make_shared<fc::shared::sharedbldgelements::FcWall>();
    EXPECT_THAT(setNames(*wall), IsEmpty());
    EXPECT_FALSE(wall->deletePropertySetDefinition("Pset_X"));
}

TEST(ObjectSets, AreVisitedInTheirOrderUntilTheVisitorHasEnough)
{
    Model model;
    auto const wall = model.wall("W1");
    auto const type = model.wallType("T1");
    for (Model::Object const& object : {Model::Object(wall), Model::Object(type)}) {
        for (auto const* const name : {"Pset_A", "Pset_B", "Pset_C"})
            model.addSet(object, name);
        std::vector<std::string> visited;
        object->forEachAttachedSet([&visited](std::shared_ptr<fc::FcBase> const& set) {
            visited.push_back(*std::static_pointer_cast<FcPropertySet>(set)->Name.get());
            return visited.size() < 2;
        });
        EXPECT_THAT(visited, ElementsAre("Pset_A", "Pset_B"));
    }
}

std::vector<std::string> namesOfAttachedSets(FcObjectDefinition const& object, std::size_t most = 100)
{
    std::vector<std::string> names;
    object.forEachAttachedSetName([&](unsigned int classNumber, std::optional<std::string> const& name) {
        names.push_back(std::string(fc::entityClassFromNumber(classNumber)->name) + " " + name.value_or("-"));
        return names.size() < most;
    });
    return names;
}

TEST(NamesOfObjectSets, StandInTheOrderOfTheSets)
{
    Model model;
    auto const wall = model.wall("W1");
    model.addSet(wall, "Pset_B");
    attachSets(model, {wall}, {model.add<FcPropertySet>("Pset_C"), model.add<FcPropertySet>("Pset_A")});
    model.addQuantities(wall, "Qto_A");
    model.addSet(wall, "Nameless")->Name = std::nullopt;
    model.shareSet(model.add<FcPropertySet>("Pset_B"), wall);

    EXPECT_THAT(namesOfAttachedSets(*wall),
                ElementsAre("IfcPropertySet Pset_B", "IfcPropertySet Pset_C", "IfcPropertySet Pset_A",
                            "IfcElementQuantity Qto_A", "IfcPropertySet -", "IfcPropertySet Pset_B"));
    EXPECT_THAT(namesOfAttachedSets(*wall, 2), ElementsAre("IfcPropertySet Pset_B", "IfcPropertySet Pset_C"));
}

TEST(NamesOfObjectSets, LeaveOutDeletedSets)
{
    Model model;
    auto const wall = model.wall("W1");
    auto const first = model.add<FcPropertySet>("Pset_A");
    attachSets(model, {wall}, {first, model.add<FcPropertySet>("Pset_B")});
    model.data()->entityDelete(first);

    EXPECT_THAT(namesOfAttachedSets(*wall), ElementsAre("IfcPropertySet Pset_B"));
}

TEST(NamesOfObjectSets, OfATypeAreThoseOfItsList)
{
    Model model;
    auto const type = model.wallType("WT1");
    model.addSet(type, "Pset_B");
    model.addSet(type, "Pset_A");
    auto const loose = std::make_shared<FcPropertySet>();
    loose->Name = "Pset_C";
    auto const looseType = std::make_shared<fc::shared::sharedbldgelements::FcWallType>();
    looseType->HasPropertySets.edit([&loose](auto& sets) { sets.emplace().push_back(loose); });

    EXPECT_THAT(namesOfAttachedSets(*type), ElementsAre("IfcPropertySet Pset_B", "IfcPropertySet Pset_A"));
    EXPECT_THAT(namesOfAttachedSets(*type, 1), ElementsAre("IfcPropertySet Pset_B"));
    EXPECT_THAT(namesOfAttachedSets(*looseType), ElementsAre("IfcPropertySet Pset_C"));
    EXPECT_THAT(namesOfAttachedSets(*std::make_shared<fc::shared::sharedbldgelements::FcWall>()), IsEmpty());
}

TEST(DeleteObjectSet, TellsWhetherThereWasOne)
{
    Model model;
    auto const wall = model.wall("W1");
    model.addSet(wall, "Pset_X");
    EXPECT_FALSE(wall->deletePropertySetDefinition("Pset_Y"));
    EXPECT_TRUE(wall->deletePropertySetDefinition("Pset_X"));
    EXPECT_FALSE(wall->deletePropertySetDefinition("Pset_X"));
}

TEST(DeleteObjectSet, TakesTheSetItsPropertiesAndTheRelationOutOfTheModel)
{
    Model model;
    auto const wall = model.wall("W1");
    auto const set = model.addSet(wall, "Pset_X", {{"A", label("1")}});
    auto const property = set->HasProperties.getProperties()[0];
    EXPECT_TRUE(wall->deletePropertySetDefinition("Pset_X"));
    EXPECT_TRUE(model.data()->isDeleted(set->getIndex()));
    EXPECT_TRUE(model.data()->isDeleted(property->getIndex()));
    EXPECT_EQ(relationCount(model), 0u);
    EXPECT_THAT(setNames(*wall), IsEmpty());
}

TEST(DeleteObjectSet, LeavesNoRelationOfTheObjectToTheSet)
{
    Model model;
    auto const wall = model.wall("W1");
    auto const set = model.addSet(wall, "Pset_X", {{"A", label("1")}});
    model.shareSet(set, wall);
    ASSERT_EQ(relationCount(model), 2u);
    EXPECT_TRUE(wall->deletePropertySetDefinition("Pset_X"));
    EXPECT_TRUE(model.data()->isDeleted(set->getIndex()));
    EXPECT_EQ(relationCount(model), 0u);
    EXPECT_THAT(setNames(*wall), IsEmpty());
}

TEST(DeleteObjectSet, WorksForQuantities)
{
    Model model;
    auto const wall = model.wall("W1");
    auto const set = model.addQuantities(wall, "Qto_X", {{"Length", 2.5}});
    EXPECT_TRUE(wall->deletePropertySetDefinition("Qto_X"));
    EXPECT_TRUE(model.data()->isDeleted(set->getIndex()));
}

TEST(DeleteObjectSet, LeavesASetThatOthersShareByTheSameRelation)
{
    Model model;
    auto const wall = model.wall("W1");
    auto const other = model.wall("W2");
    auto const set = model.addSet(wall, "Pset_X", {{"A", label("1")}});
    model.joinSet(set, other);
    EXPECT_TRUE(wall->deletePropertySetDefinition("Pset_X"));
    EXPECT_THAT(setNames(*wall), IsEmpty());
    EXPECT_THAT(setNames(*other), ElementsAre("Pset_X"));
    EXPECT_TRUE(other->getPropertySetDefinitionNonConst<FcPropertySet>("Pset_X")->hasProperty("A"));
}

TEST(DeleteObjectSet, TakesASetOutOfTheModelThatOnlyADeletedObjectShares)
{
    Model model;
    auto const wall = model.wall("W1");
    auto const other = model.wall("W2");
    auto const set = model.addSet(wall, "Pset_X", {{"A", label("1")}});
    model.joinSet(set, other);
    model.data()->entityDelete(other);
    EXPECT_TRUE(wall->deletePropertySetDefinition("Pset_X"));
    EXPECT_TRUE(model.data()->isDeleted(set->getIndex()));
}

TEST(DeleteObjectSet, LeavesASetThatOthersShareByAnotherRelation)
{
    Model model;
    auto const wall = model.wall("W1");
    auto const other = model.wall("W2");
    auto const set = model.addSet(wall, "Pset_X", {{"A", label("1")}});
    model.shareSet(set, other);
    EXPECT_TRUE(wall->deletePropertySetDefinition("Pset_X"));
    EXPECT_THAT(setNames(*wall), IsEmpty());
    EXPECT_THAT(setNames(*other), ElementsAre("Pset_X"));
    EXPECT_EQ(relationCount(model), 1u);
}

TEST(DeleteObjectSet, LeavesASetThatATypeShares)
{
    Model model;
    auto const wall = model.wall("W1");
    auto const type = model.wallType("T1");
    auto const set = model.addSet(type, "Pset_X");
    model.shareSet(set, wall);
    EXPECT_TRUE(wall->deletePropertySetDefinition("Pset_X"));
    EXPECT_THAT(setNames(*type), ElementsAre("Pset_X"));
    EXPECT_TRUE(type->deletePropertySetDefinition("Pset_X"));
    EXPECT_FALSE(type->HasPropertySets->has_value());
    EXPECT_TRUE(model.data()->isDeleted(set->getIndex()));
}

TEST(DeleteObjectSet, TakesOneSetOutOfARelationToSeveral)
{
    Model model;
    auto const wall = model.wall("W1");
    auto const a = model.add<FcPropertySet>("Pset_A");
    auto const b = model.add<FcPropertySet>("Pset_B");
    attachSets(model, {wall}, {a, b});
    EXPECT_TRUE(wall->deletePropertySetDefinition("Pset_A"));
    EXPECT_THAT(setNames(*wall), ElementsAre("Pset_B"));
    EXPECT_TRUE(model.data()->isDeleted(a->getIndex()));
}

TEST(DeleteObjectSet, LeavesTheOtherObjectsOfARelationToSeveralSetsAsTheyAre)
{
    Model model;
    auto const wall = model.wall("W1");
    auto const other = model.wall("W2");
    auto const a = model.add<FcPropertySet>("Pset_A");
    auto const b = model.add<FcPropertySet>("Pset_B");
    attachSets(model, {wall, other}, {a, b});
    EXPECT_TRUE(wall->deletePropertySetDefinition("Pset_A"));
    EXPECT_THAT(setNames(*wall), ElementsAre("Pset_B"));
    EXPECT_THAT(setNames(*other), ElementsAre("Pset_A", "Pset_B"));
    EXPECT_FALSE(model.data()->isDeleted(a->getIndex()));
}

TEST(DeleteObjectSet, TakesTheSetFromAnObjectThatARelationListsTwice)
{
    Model model;
    auto const wall = model.wall("W1");
    auto const other = model.wall("W2");
    auto const set = model.add<FcPropertySet>("Pset_X");
    attachSets(model, {wall, other, wall}, {set});
    EXPECT_TRUE(wall->deletePropertySetDefinition("Pset_X"));
    EXPECT_THAT(setNames(*wall), IsEmpty());
    EXPECT_THAT(setNames(*other), ElementsAre("Pset_X"));
}

TEST(EraseSetOfType, ChangesNothingForASetThatTheTypeDoesNotHave)
{
    Model model;
    auto const type = model.add<fc::shared::sharedbldgelements::FcWallType>("T");
    auto const set = model.add<FcPropertySet>("Pset_X");
    type->HasPropertySets = fc::ReferenceList<FcPropertySetDefinition>();
    type->eraseHasPropertySets(set);
    EXPECT_TRUE(type->HasPropertySets.get());
}

TEST(DeleteObjectSet, IsTakenBackByOneUndo)
{
    Model model;
    auto const wall = model.wall("W1");
    auto const set = model.addSet(wall, "Pset_X", {{"A", label("1")}});
    wall->deletePropertySetDefinition("Pset_X");
    model.data()->changes().undo();
    EXPECT_EQ(wall->getPropertySetDefinitionNonConst<FcPropertySet>("Pset_X"), set);
    EXPECT_TRUE(set->hasProperty("A"));
    model.data()->changes().redo();
    EXPECT_THAT(setNames(*wall), IsEmpty());
}

TEST(CreateObjectSet, IsTakenBackByOneUndo)
{
    Model model;
    auto const wall = model.wall("W1");
    model.addSet(wall, "Pset_X");
    model.data()->changes().undo();
    EXPECT_THAT(setNames(*wall), IsEmpty());
    EXPECT_EQ(relationCount(model), 0u);
}

TEST(DeletePset, TakesTheSetFromAllItsObjectsAndTypes)
{
    Model model;
    auto const wall = model.wall("W1");
    auto const other = model.wall("W2");
    auto const type = model.wallType("T1");
    auto const set = model.addSet(type, "Pset_X", {{"A", label("1")}});
    model.addSet(type, "Pset_Y");
    model.shareSet(set, wall);
    model.shareSet(set, other);
    set->deletePset(*model.data());
    EXPECT_THAT(setNames(*wall), IsEmpty());
    EXPECT_THAT(setNames(*other), IsEmpty());
    EXPECT_THAT(setNames(*type), ElementsAre("Pset_Y"));
    EXPECT_EQ(relationCount(model), 0u);
    model.data()->changes().undo();
    EXPECT_THAT(setNames(*other), ElementsAre("Pset_X"));
    EXPECT_THAT(setNames(*type), ElementsAre("Pset_X", "Pset_Y"));
}

TEST(DeletePset, LeavesTheOtherSetsOfARelationToSeveral)
{
    Model model;
    auto const wall = model.wall("W1");
    auto const a = model.add<FcPropertySet>("Pset_A");
    auto const b = model.add<FcPropertySet>("Pset_B");
    attachSets(model, {wall}, {a, b});
    b->deletePset(*model.data());
    EXPECT_THAT(setNames(*wall), ElementsAre("Pset_A"));
}

TEST(DeletePset, LeavesPropertiesThatOtherSetsHold)
{
    Model model;
    auto const a = model.addSet(model.wall("W1"), "Pset_A", {{"P", label("1")}});
    auto const b = model.addSet(model.wall("W2"), "Pset_B");
    b->HasProperties.addProperty(a->HasProperties.getProperties()[0]);
    a->deletePset(*model.data());
    EXPECT_TRUE(b->hasProperty("P"));
}

TEST(EraseHasPropertySets, DetachesOneSetAndUnsetsTheEmptyList)
{
    Model model;
    auto const type = model.wallType("T1");
    auto const a = model.addSet(type, "Pset_A");
    auto const b = model.addSet(type, "Pset_B");
    type->eraseHasPropertySets(a);
    EXPECT_THAT(setNames(*type), ElementsAre("Pset_B"));
    EXPECT_FALSE(model.data()->isDeleted(a->getIndex()));
    type->eraseHasPropertySets(a);
    EXPECT_THAT(setNames(*type), ElementsAre("Pset_B"));
    type->eraseHasPropertySets(b);
    EXPECT_FALSE(type->HasPropertySets->has_value());
    type->eraseHasPropertySets(b);
    EXPECT_FALSE(type->HasPropertySets->has_value());
}

TEST(EraseHasPropertySets, UnsetsAListThatLeadsToDeletedSetsAlone)
{
    Model model;
    auto const type = model.wallType("T1");
    auto const a = model.addSet(type, "Pset_A");
    auto const b = model.addSet(type, "Pset_B");
    model.data()->entityDelete(a);
    type->eraseHasPropertySets(b);
    EXPECT_FALSE(type->HasPropertySets->has_value());
}

} // namespace
