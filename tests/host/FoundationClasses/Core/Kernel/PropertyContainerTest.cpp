#include "FoundationClasses/Core/Kernel/PropertyContainer.h"

#include "FoundationClasses/Core/Kernel/FcRelDefinesByProperties.h"
#include "FoundationClasses/Resource/Property/FcComplexProperty.h"
#include "FoundationClasses/Resource/Property/FcPropertySingleValue.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWall.h"
#include "kit/ModelBuilder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace qev;
using namespace qev::test;
using fc::core::kernel::FcPropertySet;
using fc::resource::property::FcComplexProperty;
using fc::resource::property::FcProperty;
using testing::ElementsAre;

std::vector<std::string> names(FcPropertySet const& set)
{
    std::vector<std::string> result;
    for (auto const& property : set.HasProperties.getProperties())
        result.push_back(property->Name);
    return result;
}

TEST(PropertyContainer, IsEmptyAtFirst)
{
    FcPropertySet const set;
    EXPECT_TRUE(set.HasProperties.getProperties().empty());
}

TEST(PropertyContainer, KeepsPropertiesInTheOrderInWhichTheyWereAdded)
{
    auto const set = std::make_shared<FcPropertySet>();
    for (char const* const name : {"B", "A", "C", "A"})
        set->HasProperties.addProperty(singleValue(name, label("x")));
    EXPECT_THAT(names(*set), ElementsAre("B", "A", "C", "A"));
}

TEST(PropertyContainer, RemovesTheFirstPropertyOfAName)
{
    auto const set = std::make_shared<FcPropertySet>();
    auto const second = singleValue("A", label("2"));
    set->HasProperties.addProperty(singleValue("A", label("1")));
    set->HasProperties.addProperty(singleValue("B", label("x")));
    set->HasProperties.addProperty(second);
    EXPECT_TRUE(set->HasProperties.removeProperty("A"));
    EXPECT_THAT(names(*set), ElementsAre("B", "A"));
    EXPECT_EQ(set->HasProperties.getProperties().back(), second);
}

TEST(PropertyContainer, RemovesNothingForANameThatIsNotThere)
{
    auto const set = std::make_shared<FcPropertySet>();
    set->HasProperties.addProperty(singleValue("A", label("1")));
    EXPECT_FALSE(set->HasProperties.removeProperty("a"));
    EXPECT_FALSE(set->HasProperties.removeProperty(""));
    EXPECT_THAT(names(*set), ElementsAre("A"));
}

TEST(PropertyContainer, APropertyAddedToASetOfAModelIsInTheModel)
{
    Model model;
    auto const set = model.addSet(model.wall("W1"), "Pset_X");
    auto const property = singleValue("A", label("1"));
    set->HasProperties.addProperty(property);
    EXPECT_EQ(property->getData(), model.data().get());
    ASSERT_EQ(property->PartOfPset().size(), 1u);
    EXPECT_EQ(property->PartOfPset()[0].lock(), set);
}

TEST(PropertyContainer, ARemovedPropertyLeavesTheModel)
{
    Model model;
    auto const set = model.addSet(model.wall("W1"), "Pset_X", {{"A", label("1")}});
    auto const property = set->HasProperties.getProperties()[0];
    EXPECT_TRUE(set->HasProperties.removeProperty("A"));
    EXPECT_TRUE(model.data()->isDeleted(property->getIndex()));
}

TEST(PropertyContainer, ARemovedPropertyStaysWhereSomethingElseRefersToIt)
{
    Model model;
    auto const set = model.addSet(model.wall("W1"), "Pset_X", {{"A", label("1")}});
    auto const other = model.addSet(model.wall("W2"), "Pset_Y");
    auto const property = set->HasProperties.getProperties()[0];
    other->HasProperties.addProperty(property);
    EXPECT_TRUE(set->HasProperties.removeProperty("A"));
    EXPECT_FALSE(model.data()->isDeleted(property->getIndex()));
    EXPECT_THAT(names(*other), ElementsAre("A"));
}

TEST(PropertyContainer, OneUndoBringsARemovedPropertyBack)
{
    Model model;
    auto const set = model.addSet(model.wall("W1"), "Pset_X", {{"A", label("1")}, {"B", label("2")}});
    set->HasProperties.removeProperty("A");
    model.data()->changes().undo();
    EXPECT_THAT(names(*set), ElementsAre("A", "B"));
    model.data()->changes().redo();
    EXPECT_THAT(names(*set), ElementsAre("B"));
}

TEST(FcPropertySet, HasThePropertiesOfItsOwnNames)
{
    auto const set = std::make_shared<FcPropertySet>();
    set->HasProperties.addProperty(singleValue("FireRating", label("F30")));
    EXPECT_TRUE(set->hasProperty("FireRating"));
    EXPECT_FALSE(set->hasProperty("fireRating"));
    EXPECT_FALSE(set->hasProperty(""));
}

} // namespace
