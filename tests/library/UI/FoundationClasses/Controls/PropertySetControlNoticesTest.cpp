#include "PropertySetControlFixture.h"

#include <functional>

namespace {

using namespace qev::fc;
using namespace qev::fc::ui;
using namespace qev::test;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using Type = PropertySetControl::PropertyChangedNotificationType;

constexpr char path[] = "UI/FoundationClasses/Controls/PropertySetControl";
constexpr char function[] = "qev::fc::ui::PropertySetControl::";

class PropertySetControlNotices : public PropertySetControlFixture
{
};

class Notifications : public PropertySetControlNotices
{
protected:
    void SetUp() override
    {
        toy = &useToy();
        first = model.wall("W1");
        second = model.wall("W2");
        model.addSet(first, "Pset_Toy", {{"Colour", label("red")}});
        model.addSet(second, "Pset_Toy", {{"Colour", label("blue")}});
        toy->setObjects(model.data(), {first, second});
        logHandlers(handled);
        formatter->log.clear();
        formatter->objects.clear();
    }

    ToyControl* toy = nullptr;
    std::shared_ptr<core::kernel::FcObjectDefinition> first;
    std::shared_ptr<core::kernel::FcObjectDefinition> second;
    std::vector<std::string> handled;
};

TEST_F(Notifications, TheFormatterHearsOfEachObjectAndThenTheHandlers)
{
    std::vector<std::string> formatterLogAtHandler;
    toy->propertyChangedHandlers.iHandlerAdd(
        [&](auto const&, auto const&, auto const&) { formatterLogAtHandler = formatter->log; });

    toy->notifyPropertySetPropertyChanged("Pset_Toy", "Colour", {1, 0}, Type::ValueChanged);

    EXPECT_THAT(formatterLogAtHandler,
                ElementsAre("setObject", "changed Pset_Toy Colour", "setObject", "changed Pset_Toy Colour"));
    EXPECT_THAT(formatter->objects,
                ElementsAre(std::shared_ptr<FcBase>(first), std::shared_ptr<FcBase>(second)));
    EXPECT_THAT(handled, ElementsAre("Pset_Toy Colour { 0, 1 }"));
}

TEST_F(Notifications, HandlersRunInTheOrderInWhichTheyWereAdded)
{
    std::vector<int> order;
    for (int const number : {1, 2, 3})
        toy->propertyChangedHandlers.iHandlerAdd(
            [&order, number](auto const&, auto const&, auto const&) { order.push_back(number); });

    toy->notifyPropertySetPropertyChanged("Pset_Toy", "Colour", {0}, Type::ValueChanged);

    EXPECT_THAT(order, ElementsAre(1, 2, 3));
}

TEST_F(Notifications, AnIndexBeyondTheObjectsEndsTheWorkBeforeTheHandlers)
{
    toy->notifyPropertySetPropertyChanged("Pset_Toy", "Colour", {0, 2, 3}, Type::ValueChanged);

    expectReport("Object index out of range.", std::string(function) + "notifyPropertySetPropertyChanged",
                 path);
    EXPECT_THAT(formatter->objects, ElementsAre(std::shared_ptr<FcBase>(first)));
    EXPECT_THAT(handled, IsEmpty());
}

TEST_F(Notifications, AnObjectWithoutTheSetIsReportedAndPassedOver)
{
    first->deletePropertySetDefinition("Pset_Toy");

    toy->notifyPropertySetPropertyChanged("Pset_Toy", "Colour", {0, 1}, Type::ValueChanged);

    expectReport("Property set doesn't exist.", std::string(function) + "notifyPropertySetPropertyChanged",
                 path);
    EXPECT_THAT(formatter->log, ElementsAre("setObject", "setObject", "changed Pset_Toy Colour"));
    EXPECT_THAT(handled, SizeIs(1));
}

TEST_F(Notifications, AQuantitySetIsNoSetForTheFormatter)
{
    model.addQuantities(first, "Qto_Toy", {{"Length", 2.0}});

    toy->notifyPropertySetPropertyChanged("Qto_Toy", "Length", {0}, Type::ValueChanged);

    expectReport("Property set doesn't exist.", std::string(function) + "notifyPropertySetPropertyChanged",
                 path);
    EXPECT_THAT(formatter->log, ElementsAre("setObject"));
    EXPECT_THAT(handled, ElementsAre("Qto_Toy Length { 0 }"));
}

TEST_F(Notifications, TheFormatterStaysWithTheLastObject)
{
    toy->notifyPropertySetPropertyChanged("Pset_Toy", "Colour", {0, 1}, Type::ValueChanged);

    EXPECT_EQ(formatter->objects.back(), std::shared_ptr<FcBase>(second));
}

TEST_F(Notifications, WithoutIndicesOnlyTheHandlersHear)
{
    toy->notifyPropertySetPropertyChanged("Pset_Toy", "Colour", {}, Type::ValueChanged);

    EXPECT_THAT(formatter->log, IsEmpty());
    EXPECT_THAT(handled, SizeIs(1));
}

TEST_F(Notifications, NullIsToldToTheFormatterAndPassedOver)
{
    toy->setObjects(model.data(), {nullptr, second});
    formatter->log.clear();

    toy->notifyPropertySetPropertyChanged("Pset_Toy", "Colour", {0}, Type::ValueChanged);

    EXPECT_THAT(formatter->log, ElementsAre("setObject"));
    EXPECT_EQ(formatter->objects.back(), nullptr);
    EXPECT_THAT(handled, SizeIs(1));
}

TEST_F(Notifications, WhatIsNoObjectDefinitionIsPassedOver)
{
    toy->setObjects(model.data(), {std::shared_ptr<FcBase>(singleValue("Code", label("A"))), second});
    formatter->log.clear();

    toy->notifyPropertySetPropertyChanged("Pset_Toy", "Colour", {0, 1}, Type::ValueChanged);

    EXPECT_THAT(formatter->log, ElementsAre("setObject", "setObject", "changed Pset_Toy Colour"));
    EXPECT_THAT(handled, SizeIs(1));
}

TEST_F(Notifications, AResetToGlobalValuesIsToldToTheHandlersAloneWhateverTheIndices)
{
    toy->notifyPropertySetPropertyChanged("Pset_Toy", "Colour", {0, 99}, Type::ResetToGlobalValue);

    EXPECT_THAT(formatter->log, IsEmpty());
    EXPECT_THAT(handled, ElementsAre("Pset_Toy Colour { 0, 99 }"));
}

TEST_F(PropertySetControlNotices, WithoutFormatterIndicesAreNotLookedAt)
{
    formatter.reset();
    auto& control = useToy();
    control.setObject(model.data(), model.wall("W1"));
    std::vector<std::string> handled;
    logHandlers(handled);

    control.notifyPropertySetPropertyChanged("Pset_Toy", "Colour", {5}, Type::ValueChanged);

    EXPECT_THAT(handled, ElementsAre("Pset_Toy Colour { 5 }"));
}

TEST_F(Notifications, AnEmptyHandlerRaisesTheStandardException)
{
    toy->propertyChangedHandlers.iHandlerAdd({});

    EXPECT_THROW(toy->notifyPropertySetPropertyChanged("Pset_Toy", "Colour", {0}, Type::ValueChanged),
                 std::bad_function_call);
}

} // namespace
