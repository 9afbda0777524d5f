#include "FoundationClasses/Change/ChangeLog.h"

#include "FoundationClasses/Core/Kernel/FcRelDefinesByProperties.h"
#include "FoundationClasses/Data.h"
#include "FoundationClasses/Resource/Property/FcPropertySingleValue.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcDoor.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWall.h"
#include "kit/ModelBuilder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace {

using namespace qev;
using namespace qev::test;
using fc::ChangeLog;
using fc::EntityIndex;
using fc::FcBase;
using fc::shared::sharedbldgelements::FcWall;
using testing::ElementsAre;
using testing::IsEmpty;

struct Changes : testing::Test
{
    Model model;
    std::shared_ptr<FcWall> wall = model.wall("W1");
    ChangeLog& log = model.data()->changes();

    Changes() { log.setSaved(); }
};

TEST_F(Changes, UndoTakesAValueBackAndRedoBringsItAgain)
{
    wall->Name = "W2";
    wall->Name = "W3";
    log.undo();
    EXPECT_EQ(wall->Name.get(), "W2");
    log.undo();
    EXPECT_EQ(wall->Name.get(), "W1");
    log.redo();
    log.redo();
    EXPECT_EQ(wall->Name.get(), "W3");
    EXPECT_FALSE(log.canRedo());
}

TEST_F(Changes, BringBackAValueThatWasUnset)
{
    wall->Tag = "T";
    log.undo();
    EXPECT_EQ(wall->Tag.get(), std::nullopt);
    wall->Name = std::nullopt;
    log.undo();
    EXPECT_EQ(wall->Name.get(), "W1");
}

TEST_F(Changes, InPlaceAreChangesToo)
{
    auto const set = model.addSet(wall, "Pset_X", {{"Width", length(1)}});
    auto const property =
        fc::entityCast<fc::resource::property::FcPropertySingleValue>(set->HasProperties.getProperties()[0]);
    EXPECT_TRUE(property->NominalValue.edit([](FcValue& value) { return value.setDoubleValue(2.5); }));
    log.undo();
    EXPECT_EQ(property->NominalValue->valueAsDoubleGet(), 1.0);
    log.redo();
    EXPECT_EQ(property->NominalValue->valueAsDoubleGet(), 2.5);
}

TEST_F(Changes, ToTheSameValueAreNone)
{
    wall->Name = "W1";
    wall->Tag = std::nullopt;
    wall->Name.edit([](auto&) {});
    EXPECT_FALSE(log.isModified());
}

TEST_F(Changes, CreatedEntitiesGoAndComeBack)
{
    auto const door = model.data()->entityCount();
    auto const created = std::make_shared<fc::shared::sharedbldgelements::FcDoor>();
    model.data()->entityAdd(created, false);
    log.undo();
    EXPECT_TRUE(model.data()->isDeleted(static_cast<EntityIndex>(door)));
    log.redo();
    EXPECT_EQ(model.data()->entity(static_cast<EntityIndex>(door)), created);
}

TEST_F(Changes, DeletedEntitiesComeBackAndGo)
{
    model.data()->entityDelete(wall);
    log.undo();
    EXPECT_EQ(model.data()->entity(wall->getIndex()), wall);
    log.redo();
    EXPECT_EQ(model.data()->entity(wall->getIndex()), nullptr);
}

TEST_F(Changes, OfOneStepGoTogether)
{
    {
        ChangeLog::Step const step(log, "Rename");
        wall->Name = "W2";
        wall->Tag = "T";
        model.data()->entityDelete(wall);
    }
    EXPECT_EQ(log.undoName(), "Rename");
    log.undo();
    EXPECT_EQ(wall->Name.get(), "W1");
    EXPECT_EQ(wall->Tag.get(), std::nullopt);
    EXPECT_FALSE(model.data()->isDeleted(wall->getIndex()));
    EXPECT_EQ(log.redoName(), "Rename");
    log.redo();
    EXPECT_EQ(wall->Tag.get(), "T");
    EXPECT_TRUE(model.data()->isDeleted(wall->getIndex()));
}

TEST_F(Changes, OfOneAttributeInAStepGoBackToTheFirstValueAndForthToTheLast)
{
    auto const other = model.wall("W9");
    model.addSet(other, "Pset_X");
    auto const set = other->getPropertySetDefinitionNonConst<fc::core::kernel::FcPropertySet>("Pset_X");
    model.joinSet(set, wall);
    {
        ChangeLog::Step const step(log, "Many");
        wall->Name = "W2";
        EXPECT_TRUE(other->deletePropertySetDefinition("Pset_X"));
        wall->Name = "W3";
        EXPECT_TRUE(wall->deletePropertySetDefinition("Pset_X"));
        model.data()->entityDelete(wall);
        wall->Name = "W4";
    }
    log.undo();
    EXPECT_EQ(wall->Name.get(), "W1");
    EXPECT_EQ(wall->attachedSets().size(), 1u);
    EXPECT_EQ(other->attachedSets().size(), 1u);
    log.redo();
    EXPECT_EQ(wall->Name.get(), "W4");
    EXPECT_TRUE(other->attachedSets().empty());
    EXPECT_TRUE(model.data()->isDeleted(wall->getIndex()));
    log.undo();
    EXPECT_EQ(wall->Name.get(), "W1");
    EXPECT_EQ(wall->attachedSets().size(), 1u);
    EXPECT_EQ(other->attachedSets().size(), 1u);
}

TEST_F(Changes, OfNestedStepsBelongToTheOuterOne)
{
    {
        ChangeLog::Step const outer(log, "Outer");
        wall->Name = "W2";
        {
            ChangeLog::Step const inner(log, "Inner");
            wall->Name = "W3";
        }
        wall->Tag = "T";
    }
    EXPECT_EQ(log.undoName(), "Outer");
    log.undo();
    EXPECT_EQ(wall->Name.get(), "W1");
    EXPECT_FALSE(log.isModified());
}

TEST_F(Changes, AStepWithoutChangesLeavesNoTrace)
{
    std::string const before = log.undoName();
    {
        ChangeLog::Step const step(log, "Nothing");
    }
    EXPECT_EQ(log.undoName(), before);
    EXPECT_FALSE(log.isModified());
}

TEST_F(Changes, AStepEndsWhenAnExceptionLeavesIt)
{
    try {
        ChangeLog::Step const step(log, "Broken off");
        wall->Name = "W2";
        throw std::runtime_error("stop");
    } catch (std::runtime_error const&) {
    }
    EXPECT_EQ(log.undoName(), "Broken off");
    log.undo();
    EXPECT_EQ(wall->Name.get(), "W1");
}

TEST_F(Changes, UndoWaitsForAnOpenStep)
{
    ChangeLog::Step const step(log, "Open");
    wall->Name = "W2";
    log.undo();
    EXPECT_EQ(wall->Name.get(), "W2");
}

TEST_F(Changes, WithNothingToTakeBackUndoDoesNothing)
{
    while (log.canUndo())
        log.undo();
    log.undo();
    EXPECT_EQ(log.undoName(), "");
    EXPECT_TRUE(model.data()->isDeleted(wall->getIndex()));
    while (log.canRedo())
        log.redo();
    log.redo();
    EXPECT_EQ(log.redoName(), "");
}

TEST_F(Changes, ANewChangeForgetsWhatCouldBeRedone)
{
    wall->Name = "W2";
    log.undo();
    wall->Name = "W3";
    EXPECT_FALSE(log.canRedo());
    log.undo();
    EXPECT_EQ(wall->Name.get(), "W1");
}

TEST_F(Changes, ModifiedMeansDifferentFromWhatWasSaved)
{
    EXPECT_FALSE(log.isModified());
    wall->Name = "W2";
    EXPECT_TRUE(log.isModified());
    log.undo();
    EXPECT_FALSE(log.isModified());
    log.redo();
    log.setSaved();
    EXPECT_FALSE(log.isModified());
    log.undo();
    EXPECT_TRUE(log.isModified());
    log.redo();
    EXPECT_FALSE(log.isModified());
}

TEST_F(Changes, WhatWasSavedIsLostOnceItsStepsAre)
{
    wall->Name = "W2";
    log.setSaved();
    log.undo();
    wall->Name = "W3";
    EXPECT_TRUE(log.isModified());
    log.undo();
    EXPECT_TRUE(log.isModified());
}

TEST_F(Changes, AreToldOnceForEachStepUndoAndRedo)
{
    std::vector<std::vector<EntityIndex>> told;
    model.data()->changed.iHandlerAdd(
        [&told](std::vector<EntityIndex> const& places) { told.push_back(places); });
    auto const other = wall->getIndex() + 1;
    {
        ChangeLog::Step const step(log, "Two");
        wall->Name = "W2";
        wall->Tag = "T";
        model.data()->entityAdd(std::make_shared<FcWall>(), false);
    }
    wall->Name = "W2";
    log.undo();
    log.redo();
    EXPECT_THAT(told, ElementsAre(ElementsAre(wall->getIndex(), other), ElementsAre(wall->getIndex(), other),
                                  ElementsAre(wall->getIndex(), other)));
}

TEST_F(Changes, AHandlerMayChangeTheModelItself)
{
    model.data()->changed.iHandlerAdd([this](std::vector<EntityIndex> const&) { wall->Tag = "seen"; });
    wall->Name = "W2";
    EXPECT_EQ(wall->Tag.get(), "seen");
    log.undo();
    EXPECT_EQ(wall->Name.get(), "W2");
}

TEST_F(Changes, OfAnEntityInNoModelAreNotFollowed)
{
    auto const alone = std::make_shared<FcWall>();
    alone->Name = "W9";
    EXPECT_FALSE(log.isModified());
    EXPECT_EQ(alone->Name.get(), "W9");
}

TEST_F(Changes, ALongWayBackAndForthEndsWhereItBegan)
{
    auto const set = model.addSet(wall, "Pset_X", {{"A", label("1")}});
    log.setSaved();
    set->HasProperties.removeProperty("A");
    set->HasProperties.addProperty(singleValue("B", label("2")));
    wall->deletePropertySetDefinition("Pset_X");
    model.addSet(wall, "Pset_Y", {{"C", label("3")}});
    model.data()->entityDelete(wall);
    while (log.isModified())
        log.undo();
    ASSERT_EQ(wall->attachedSets().size(), 1u);
    EXPECT_TRUE(set->hasProperty("A"));
    EXPECT_FALSE(set->hasProperty("B"));
    while (log.canRedo())
        log.redo();
    EXPECT_TRUE(model.data()->isDeleted(wall->getIndex()));
    log.undo();
    ASSERT_EQ(wall->attachedSets().size(), 1u);
    EXPECT_NE(wall->getPropertySetDefinitionNonConst<fc::core::kernel::FcPropertySet>("Pset_Y"), nullptr);
}

} // namespace
