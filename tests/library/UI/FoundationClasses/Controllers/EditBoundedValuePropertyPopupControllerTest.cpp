#include "UI/FoundationClasses/Controllers/EditBoundedValuePropertyPopupController.h"

#include "PopupFixture.h"

#include <cmath>

namespace {

using namespace qev;
using namespace qev::test;
using fc::resource::property::FcPropertyBoundedValue;
using fc::ui::EditBoundedValuePropertyPopupController;
using testing::ElementsAre;
using testing::IsEmpty;
using ui::CheckState;
using ui::ListControl;

constexpr auto className = "EditBoundedValuePropertyPopupController";

class EditBoundedValuePropertyPopupControllerTest : public PopupFixture
{
protected:
    using Properties = std::vector<std::shared_ptr<FcPropertyBoundedValue>>;
    using Values = EditBoundedValuePropertyPopupController::Values;

    void show(Properties properties, std::string const& name = "")
    {
        controller = std::make_unique<EditBoundedValuePropertyPopupController>(std::move(properties), name);
        controller->attachToControl(makePopup());
        controller->show([this](Values values) { results.push_back(std::move(values)); });
    }
    Values close()
    {
        turnElsewhere();
        EXPECT_EQ(results.size(), 1u);
        return results.empty() ? Values() : results.front();
    }
    /// A property of the standard, whose definition says the type of its values.
    std::shared_ptr<FcPropertyBoundedValue> cablePower(FcValue upper)
    {
        auto property = boundedValue("Power", FcValue(), std::move(upper), FcValue());
        model.addSet(model.wall("W1"), "Pset_DistributionPortTypeCable")->HasProperties.addProperty(property);
        return property;
    }

    std::unique_ptr<EditBoundedValuePropertyPopupController> controller;
    std::vector<Values> results;
};

TEST_F(EditBoundedValuePropertyPopupControllerTest, ShowsTheThreeValuesInTheUnitsOfTheUser)
{
    show({boundedValue("Width", length(0.25), length(2.5), FcValue())});
    EXPECT_EQ(list->getCellText(0, 0), "[x] Lower bound");
    EXPECT_EQ(list->getCellText(1, 0), "[x] Upper bound");
    EXPECT_EQ(list->getCellText(2, 0), "[ ] Set point");
    EXPECT_EQ(list->getCellText(0, 1), "0.25 m");
    EXPECT_EQ(list->getCellText(1, 1), "2.5 m");
    EXPECT_EQ(list->getCellText(2, 1), "");
    EXPECT_EQ(list->getRowCount(), 3u);
    EXPECT_EQ(list->getColumnCount(), 2u);
    EXPECT_TRUE(isOpen());
}

TEST_F(EditBoundedValuePropertyPopupControllerTest, AValueWithoutAUnitShowsItsText)
{
    show({boundedValue("Storeys", integer(2), real(3.5), FcValue())});
    EXPECT_EQ(list->getCellText(0, 1), "2");
    EXPECT_EQ(list->getCellText(1, 1), "3.5");
}

TEST_F(EditBoundedValuePropertyPopupControllerTest, WhatIsTypedIsReadInTheUnitsOfTheUser)
{
    auto const property = boundedValue("Width", length(0.25), length(2.5), FcValue());
    show({property});
    EXPECT_TRUE(list->type(0, 1, "300 mm"));
    EXPECT_EQ(list->getText(0, 1), "0.3 m");
    EXPECT_TRUE(list->type(1, 1, "3"));
    EXPECT_THAT(results, IsEmpty());
    EXPECT_EQ(property->LowerBoundValue.get(), length(0.25));
    EXPECT_THAT(close(), ElementsAre(length(0.3), length(3), FcValue()));
    EXPECT_FALSE(isOpen());
}

TEST_F(EditBoundedValuePropertyPopupControllerTest, TheEditorHasAllDigits)
{
    show({boundedValue("Width", length(1.0 / 3.0), FcValue(), FcValue())});
    EXPECT_TRUE(list->beginEdit(0, 1));
    EXPECT_EQ(list->getEdit()->text, "0.3333333333333333");
    EXPECT_TRUE(list->commitText("0.3333333333333333"));
    EXPECT_THAT(close(), ElementsAre(length(1.0 / 3.0), FcValue(), FcValue()));
}

TEST_F(EditBoundedValuePropertyPopupControllerTest, AnEditorThatIsLeftChangesNothing)
{
    show({boundedValue("Width", length(1.0 / 3.0), FcValue(), FcValue())});
    EXPECT_TRUE(list->beginEdit(0, 1));
    EXPECT_TRUE(list->cancelEdit());
    EXPECT_THAT(close(), ElementsAre(length(1.0 / 3.0), FcValue(), FcValue()));
}

TEST_F(EditBoundedValuePropertyPopupControllerTest, ATextThatIsNoValueIsRefused)
{
    show({boundedValue("Width", length(1), integer(2), real(3))});
    EXPECT_FALSE(list->type(0, 1, "wide"));
    EXPECT_FALSE(list->type(1, 1, "2.5"));
    EXPECT_FALSE(list->type(2, 1, "three"));
    EXPECT_THAT(close(), ElementsAre(length(1), integer(2), real(3)));
}

TEST_F(EditBoundedValuePropertyPopupControllerTest, ANegativeZeroIsStoredAsZero)
{
    show({boundedValue("Width", length(1), FcValue(), FcValue())});
    EXPECT_TRUE(list->type(0, 1, "-0"));
    auto const number = close()[0].valueAsDoubleGet();
    EXPECT_EQ(number, 0.0);
    EXPECT_FALSE(std::signbit(number.value_or(-1.0)));
}

TEST_F(EditBoundedValuePropertyPopupControllerTest, OnlyTheValueOfATickedRowCanBeEdited)
{
    show({boundedValue("Width", length(1), FcValue(), FcValue())});
    EXPECT_TRUE(list->beginEdit(0, 1));
    EXPECT_EQ(list->getEdit()->editor, (ListControl::LabelEditBeginResultParams{ListControl::EditBox, {}}));
    EXPECT_TRUE(list->cancelEdit());
    EXPECT_FALSE(list->beginEdit(0, 0));
    EXPECT_FALSE(list->beginEdit(1, 1));
    EXPECT_FALSE(list->beginEdit(2, 0));
}

TEST_F(EditBoundedValuePropertyPopupControllerTest, UntickingEmptiesTheValueAtOnce)
{
    show({boundedValue("Width", length(1), length(2), FcValue())});
    EXPECT_TRUE(list->clickCheckBox(0, 0));
    EXPECT_EQ(list->getCellText(0, 0), "[ ] Lower bound");
    EXPECT_EQ(list->getText(0, 1), "");
    EXPECT_THAT(list->getRedrawnRows(), ElementsAre(0u));
    EXPECT_THAT(close(), ElementsAre(FcValue(), length(2), FcValue()));
}

TEST_F(EditBoundedValuePropertyPopupControllerTest, TickingGivesTheTypeOfTheDefinition)
{
    show({cablePower(FcValue())});
    EXPECT_TRUE(list->clickCheckBox(2, 0));
    EXPECT_EQ(list->getCheckState(2, 0), CheckState::Checked);
    EXPECT_THAT(close(), ElementsAre(FcValue(), FcValue(), number("PowerMeasure", 0)));
}

TEST_F(EditBoundedValuePropertyPopupControllerTest, TickingAgainDoesNotBringTheNumberBack)
{
    show({cablePower(number("PowerMeasure", 7))});
    EXPECT_TRUE(list->clickCheckBox(1, 0));
    EXPECT_TRUE(list->clickCheckBox(1, 0));
    EXPECT_THAT(close(), ElementsAre(FcValue(), number("PowerMeasure", 0), FcValue()));
}

TEST_F(EditBoundedValuePropertyPopupControllerTest, WithoutADefinitionTickingCopiesTheFirstValueThereIs)
{
    show({boundedValue("Width", FcValue(), length(2), length(3))});
    EXPECT_TRUE(list->clickCheckBox(0, 0));
    EXPECT_EQ(list->getText(0, 1), "2 m");
    EXPECT_THAT(close(), ElementsAre(length(2), length(2), length(3)));
}

TEST_F(EditBoundedValuePropertyPopupControllerTest, ADefinitionOfAQuantityCountsAsNone)
{
    auto const property = boundedValue("Length", FcValue(), length(2), FcValue());
    model.addSet(model.wall("W1"), "Qto_WallBaseQuantities")->HasProperties.addProperty(property);
    show({property});
    EXPECT_TRUE(list->clickCheckBox(0, 0));
    EXPECT_THAT(close(), ElementsAre(length(2), length(2), FcValue()));
}

TEST_F(EditBoundedValuePropertyPopupControllerTest, TheOtherValuesDoNotHelpOutADefinitionWithoutAType)
{
    // The standard has a table of this name, which is of two types.
    auto const property = boundedValue("LinearPath", FcValue(), length(2), FcValue());
    model.addSet(model.wall("W1"), "Pset_ElementKinematics")->HasProperties.addProperty(property);
    show({property});
    fireEvent(window.lock()->onCheckBoxClicked, Item{0, 0}, CheckState::Checked);
    expectPopupReport("Could not figure out the correct measure type for the value to set.", className,
                      "handleCheckBoxClicked");
    EXPECT_THAT(close(), ElementsAre(FcValue(), length(2), FcValue()));
}

TEST_F(EditBoundedValuePropertyPopupControllerTest, ReportsWhereNothingSaysTheType)
{
    show({boundedValue("Width", FcValue(), FcValue(), FcValue())});
    fireEvent(window.lock()->onCheckBoxClicked, Item{1, 0}, CheckState::Checked);
    expectPopupReport("Could not figure out the correct measure type for the value to set.", className,
                      "handleCheckBoxClicked");
    EXPECT_EQ(list->getCheckState(1, 0), CheckState::Unchecked);
    EXPECT_THAT(list->getRedrawnRows(), ElementsAre(1u));
    EXPECT_THAT(close(), ElementsAre(FcValue(), FcValue(), FcValue()));
}

TEST_F(EditBoundedValuePropertyPopupControllerTest, OnlyTheFirstColumnHasBoxes)
{
    show({boundedValue("Width", length(1), FcValue(), FcValue())});
    auto const control = window.lock();
    EXPECT_EQ(fireEvent(control->onGetCheckState, Item{0, 1}), std::nullopt);
    EXPECT_EQ(list->getCheckBoxMode(0), ListControl::BoxWithValue);
    EXPECT_EQ(list->getCheckBoxMode(1), std::nullopt);
    fireEvent(control->onCheckBoxClicked, Item{0, 1}, CheckState::Unchecked);
    EXPECT_EQ(list->getCheckState(0, 0), CheckState::Checked);
}

TEST_F(EditBoundedValuePropertyPopupControllerTest, AnAbsentRowOrColumnIsTheFirstAndARowPastTheEndIsNone)
{
    show({boundedValue("Width", length(1), length(2), FcValue())});
    auto const control = window.lock();
    EXPECT_EQ(fireEvent(control->onGetItemText, Item{}), "Lower bound");
    EXPECT_EQ(fireEvent(control->onGetItemText, Item{std::nullopt, 1}), "1 m");
    EXPECT_EQ(fireEvent(control->onGetItemText, Item{3, 1}), "");
    EXPECT_EQ(fireEvent(control->onGetCheckState, Item{3, 0}), std::nullopt);
    fireEvent(control->onCheckBoxClicked, Item{3, 0}, CheckState::Checked);
    EXPECT_EQ(fireEvent(control->onLabelEditBegin, ListControl::LabelEditBeginParams{{{3, 1}}}).editType,
              ListControl::NoEdit);
    ListControl::LabelEditEndParams params;
    params.accepted = true;
    params.items = {{3, 1}};
    params.text = "5";
    fireEvent(control->onLabelEditEnd, params);
    fireEvent(control->onCheckBoxClicked, Item{}, CheckState::Unchecked);
    EXPECT_THAT(close(), ElementsAre(FcValue(), length(2), FcValue()));
}

TEST_F(EditBoundedValuePropertyPopupControllerTest, SeveralRowsAtOnceAreReported)
{
    show({boundedValue("Width", length(1), length(2), FcValue())});
    auto const answer =
        fireEvent(window.lock()->onLabelEditBegin, ListControl::LabelEditBeginParams{{{0, 1}, {1, 1}}});
    expectReport("Should only be called when editing ONE item.",
                 "qev::ui::ListControl::LabelEditBeginParams::getItemToEdit",
                 "Ui/Window/Controls/ListControl/LabelEditParams");
    EXPECT_EQ(answer.editType, ListControl::EditBox);
}

TEST_F(EditBoundedValuePropertyPopupControllerTest, TheCallbackMayEndThePopup)
{
    controller = std::make_unique<EditBoundedValuePropertyPopupController>(
        Properties{boundedValue("Width", length(1), FcValue(), FcValue())}, "");
    controller->attachToControl(makePopup());
    std::string seen;
    controller->show([&, large = std::string(100, 'x')](Values const& values) {
        controller.reset();
        seen = values[0].getAsString(false).value_or("") + large.substr(98);
    });
    turnElsewhere();
    EXPECT_EQ(seen, "1xx");
    EXPECT_TRUE(window.expired());
}

TEST_F(EditBoundedValuePropertyPopupControllerTest, ReportsSeveralPropertiesAndHandsEmptyValuesOn)
{
    auto const property = boundedValue("Width", length(1), FcValue(), FcValue());
    for (auto const& properties : {Properties{}, Properties{property, property}}) {
        results.clear();
        show(properties);
        expectPopupReport("Multi edit not supported yet.", className, className);
        EXPECT_EQ(list->getRowCount(), 0u);
        fireEvent(window.lock()->onCheckBoxClicked, Item{0, 0}, CheckState::Checked);
        EXPECT_THAT(close(), ElementsAre(FcValue(), FcValue(), FcValue()));
    }
}

TEST_F(EditBoundedValuePropertyPopupControllerTest, ReportsANullProperty)
{
    show({nullptr});
    expectPopupReport("Objet was nullptr", className, className);
    EXPECT_EQ(list->getRowCount(), 0u);
    EXPECT_THAT(close(), ElementsAre(FcValue(), FcValue(), FcValue()));
}

TEST_F(EditBoundedValuePropertyPopupControllerTest, ReportsAnUnknownColumn)
{
    show({boundedValue("Width", length(1), FcValue(), FcValue())});
    EXPECT_EQ(list->getText(0, 2), "");
    expectPopupReport("Unknown column", className, "handleGetItemString");
}

TEST_F(EditBoundedValuePropertyPopupControllerTest, ReportsThatThereIsNoControlAndKeepsNoCallback)
{
    controller = std::make_unique<EditBoundedValuePropertyPopupController>(
        Properties{boundedValue("Width", length(1), FcValue(), FcValue())}, "");
    controller->show([this](Values values) { results.push_back(std::move(values)); });
    expectPopupReport("Not attached to any control yet.", className, "show");

    controller->attachToControl(makePopup());
    window.lock()->show();
    turnElsewhere();
    EXPECT_FALSE(isOpen());
    EXPECT_THAT(results, IsEmpty());
}

} // namespace
