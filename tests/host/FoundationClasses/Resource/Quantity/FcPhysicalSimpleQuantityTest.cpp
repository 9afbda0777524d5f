#include "FoundationClasses/Resource/Quantity/FcPhysicalSimpleQuantity.h"

#include "Core/Unit/QuantityPresentation.h"
#include "FoundationClasses/Core/Kernel/FcRelDefinesByProperties.h"
#include "FoundationClasses/Resource/Quantity/FcQuantityArea.h"
#include "FoundationClasses/Resource/Quantity/FcQuantityCount.h"
#include "FoundationClasses/Resource/Quantity/FcQuantityLength.h"
#include "FoundationClasses/Resource/Quantity/FcQuantityNumber.h"
#include "FoundationClasses/Resource/Quantity/FcQuantityTime.h"
#include "FoundationClasses/Resource/Quantity/FcQuantityVolume.h"
#include "FoundationClasses/Resource/Quantity/FcQuantityWeight.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWall.h"
#include "kit/ModelBuilder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

namespace {

using namespace qev;
using namespace qev::test;
using namespace fc::resource::quantity;

class EveryQuantity : public testing::TestWithParam<QuantityKind>
{
};

TEST_P(EveryQuantity, GivesBackTheNumberItWasGiven)
{
    auto const entity = quantity({"Q", 7.0, GetParam()});
    EXPECT_EQ(entity->getValue(), 7.0);
    entity->setValue(9.0);
    EXPECT_EQ(entity->getValue(), 9.0);
}

TEST_P(EveryQuantity, ItsPresentationCarriesTheNumber)
{
    auto const entity = quantity({"Q", 7.0, GetParam()});
    auto const presentation = entity->createQuantityPresentation();
    if (GetParam() == QuantityKind::Number && !presentation)
        return;
    ASSERT_NE(presentation, nullptr);
    EXPECT_EQ(presentation->value(), 7.0);
}

TEST_P(EveryQuantity, AChangeOfItsNumberIsAChangeOfTheModel)
{
    Model model;
    auto const entity = quantity({"Q", 7.0, GetParam()});
    model.data()->entityAdd(entity, false);
    entity->setValue(9.0);
    model.data()->changes().undo();
    EXPECT_EQ(entity->getValue(), 7.0);
}

INSTANTIATE_TEST_SUITE_P(Kinds, EveryQuantity,
                         testing::Values(QuantityKind::Length, QuantityKind::Area, QuantityKind::Volume,
                                         QuantityKind::Weight, QuantityKind::Time, QuantityKind::Count,
                                         QuantityKind::Number));

TEST(Quantities, StoreTheirNumberInTheirOwnMember)
{
    auto const area = std::make_shared<FcQuantityArea>();
    area->setValue(2.5);
    EXPECT_EQ(area->AreaValue.get(), 2.5);
    area->AreaValue = 3.5;
    EXPECT_EQ(area->getValue(), 3.5);
}

TEST(Quantities, ACountIsAWholeNumber)
{
    auto const count = std::make_shared<FcQuantityCount>();
    static_assert(std::is_same_v<decltype(count->CountValue.get()), std::int64_t const&>);
    count->setValue(7.9);
    EXPECT_EQ(count->CountValue.get(), 7);
    count->setValue(-7.9);
    EXPECT_EQ(count->CountValue.get(), -7);
}

TEST(Quantities, ACountTakesNoNumberThatIsTooLarge)
{
    auto const count = std::make_shared<FcQuantityCount>();
    count->setValue(5.0);
    for (double const refused : {1e30, -1e30, std::nan("")}) {
        count->setValue(refused);
        EXPECT_EQ(count->CountValue.get(), 5);
    }
}

TEST(QuantitySet, KeepsQuantitiesInStoredOrder)
{
    Model model;
    auto const set =
        model.addQuantities(model.wall("W1"), "Qto_X", {{"B", 1.0}, {"A", 2.0, QuantityKind::Area}});
    ASSERT_EQ(set->Quantities->size(), 2u);
    EXPECT_EQ(set->Quantities->get()[0]->Name.get(), "B");
    EXPECT_TRUE(set->hasProperty("A"));
    EXPECT_FALSE(set->hasProperty("a"));
}

TEST(QuantitySet, RemovesTheFirstQuantityOfANameAndTellsWhetherItIsEmpty)
{
    Model model;
    auto const set = model.addQuantities(model.wall("W1"), "Qto_X", {{"A", 1.0}, {"A", 2.0}});
    auto const first = set->Quantities->get()[0];
    EXPECT_FALSE(set->removeQuantity("B"));
    EXPECT_FALSE(set->removeQuantity("A"));
    EXPECT_TRUE(model.data()->isDeleted(first->getIndex()));
    EXPECT_EQ(set->Quantities->size(), 1u);
    EXPECT_TRUE(set->removeQuantity("A"));
    EXPECT_TRUE(set->Quantities->empty());
    EXPECT_TRUE(set->removeQuantity("A"));
}

TEST(QuantitySet, OfDeletedQuantitiesAloneIsEmpty)
{
    Model model;
    auto const set = model.addQuantities(model.wall("W1"), "Qto_X", {{"A", 1.0}, {"B", 2.0}});
    model.data()->entityDelete(set->Quantities->get()[1]);
    EXPECT_TRUE(set->removeQuantity("A"));
}

TEST(QuantitySet, OneUndoBringsARemovedQuantityBack)
{
    Model model;
    auto const set = model.addQuantities(model.wall("W1"), "Qto_X", {{"A", 1.0}});
    set->removeQuantity("A");
    model.data()->changes().undo();
    EXPECT_TRUE(set->hasProperty("A"));
}

TEST(QuantitySet, ChoosesThePresentationOfTheQuantity)
{
    Model model;
    auto const set = model.addQuantities(model.wall("W1"), "Qto_X", {{"A", 2.5}});
    auto const length = fc::entityCast<FcQuantityLength>(set->Quantities->get()[0]);
    auto const presentation = set->createQuantityPresentationFor(*length);
    ASSERT_NE(presentation, nullptr);
    EXPECT_EQ(presentation->text(), length->createQuantityPresentation()->text());
}

} // namespace
