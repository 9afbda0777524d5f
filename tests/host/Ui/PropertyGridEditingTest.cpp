#include "Ui/PropertyGrid/PropertyGridEditing.h"

#include "Core/Unit/QuantityPresentationFactory.h"
#include "Ui/PropertyGrid/PropertyGridNumber.h"
#include "Ui/PropertyGrid/PropertyGridRowRecord.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridCheckBoxProperty.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridCustomButtonProperty.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridEmptyLineProperty.h"
#include "UiTest.h"

namespace {

using namespace qev;
using namespace qev::ui;
using Editing = PropertyGridEditing;
using Editor = PropertyGridEditor;
using propertygridcontrol::button::VisibleState;
using testing::ElementsAre;

class PropertyGridEditingTest : public test::UiTest
{
protected:
    PropertyGridEditingTest()
        : control(createGrid())
    {
        control->onPropertyChanged.iHandlerAdd([this](auto&, PropertyGridProperty& property) {
            std::string text;
            property.getStringValue(text);
            changes.push_back(property.getName() + " = " + text);
        });
    }

    PropertyGridRow& add(std::unique_ptr<PropertyGridProperty> property)
    {
        control->addProperty(std::move(property));
        return *control->getModel()->getRows().back();
    }

    PropertyGridRow& addText(std::string const& value = "F30")
    {
        return add(std::make_unique<PropertyGridProperty>("FireRating", value, "", false));
    }

    PropertyGridRow& addLength(double metres)
    {
        auto property = std::make_unique<PropertyGridProperty>("Width", metres, "", false);
        property->setQuantityPresentation(unit::createPresentationForMeasure("LengthMeasure"));
        return add(std::move(property));
    }

    PropertyGridRow& addChoice(bool optionsOnly)
    {
        auto property = std::make_unique<PropertyGridProperty>("Status", "New", "", false);
        property->addOption("", true);
        property->addOption("New", true);
        property->addOption("Existing", true);
        property->addOption("Lost", false);
        property->setOptionsOnly(optionsOnly);
        return add(std::move(property));
    }

    std::shared_ptr<PropertyGridControl> control;
    std::vector<std::string> changes;
};

TEST_F(PropertyGridEditingTest, TheEditorFollowsFromTheRow)
{
    EXPECT_EQ(Editing::getEditor(addText()), Editor::Text);
    EXPECT_EQ(Editing::getEditor(addLength(1)), Editor::Number);
    EXPECT_EQ(Editing::getEditor(addChoice(true)), Editor::Choice);
    EXPECT_EQ(Editing::getEditor(addChoice(false)), Editor::Choice);
    EXPECT_EQ(Editing::getEditor(add(std::make_unique<PropertyGridProperty>("Set"))), Editor::None);
    EXPECT_EQ(Editing::getEditor(add(std::make_unique<PropertyGridEmptyLineProperty>())), Editor::None);
    EXPECT_EQ(Editing::getEditor(
                  add(std::make_unique<PropertyGridCheckBoxProperty>("IsExternal", CheckState::Checked, ""))),
              Editor::CheckBox);
    EXPECT_EQ(Editing::getEditor(add(
                  std::make_unique<PropertyGridCheckBoxProperty>("Rated", CheckState::Checked, "F30", ""))),
              Editor::CheckBoxWithValue);
}

TEST_F(PropertyGridEditingTest, EditorsHaveNames)
{
    EXPECT_STREQ(Editing::getEditorName(Editor::None), "none");
    EXPECT_STREQ(Editing::getEditorName(Editor::Text), "text");
    EXPECT_STREQ(Editing::getEditorName(Editor::Number), "number");
    EXPECT_STREQ(Editing::getEditorName(Editor::Choice), "choice");
    EXPECT_STREQ(Editing::getEditorName(Editor::CheckBox), "check box");
    EXPECT_STREQ(Editing::getEditorName(Editor::CheckBoxWithValue), "check box with value");
}

TEST_F(PropertyGridEditingTest, ADisabledRowHasNoEditor)
{
    for (auto* const row :
         {&addText(), &addLength(1), &addChoice(true),
          &add(std::make_unique<PropertyGridCheckBoxProperty>("Rated", CheckState::Checked, "F30", ""))}) {
        row->enable(false);
        EXPECT_EQ(Editing::getEditor(*row), Editor::None);
        EXPECT_FALSE(Editing::commitText(*row, "F30").accepted);
    }
}

TEST_F(PropertyGridEditingTest, WithoutTypingAListCanStillBeChosenFrom)
{
    auto& row = addChoice(false);
    row.allowEdit(false);
    EXPECT_EQ(Editing::getEditor(row), Editor::Choice);
    EXPECT_FALSE(Editing::canTypeFreely(row));
    EXPECT_TRUE(Editing::choose(row, "Existing").accepted);
    EXPECT_FALSE(Editing::commitText(row, "Something else").accepted);
}

TEST_F(PropertyGridEditingTest, AReadOnlyRowOfListedValuesHasNoEditor)
{
    auto& row = addChoice(true);
    row.allowEdit(false);
    EXPECT_EQ(Editing::getEditor(row), Editor::None);
    EXPECT_FALSE(Editing::choose(row, "Existing").accepted);
    EXPECT_TRUE(changes.empty());
}

TEST_F(PropertyGridEditingTest, ATypedTextIsStoredAndThenTold)
{
    auto& row = addText();
    EXPECT_TRUE(Editing::commitText(row, "F60").accepted);
    EXPECT_EQ(row.getState().text, "F60");
    EXPECT_THAT(changes, ElementsAre("FireRating = F60"));
}

TEST_F(PropertyGridEditingTest, TheSameTextAgainChangesNothing)
{
    EXPECT_TRUE(Editing::commitText(addText("F30"), "F30").accepted);
    EXPECT_TRUE(changes.empty());
}

TEST_F(PropertyGridEditingTest, ATypedNumberMayHaveAUnitAndEitherDecimalSign)
{
    auto& row = addLength(1);
    EXPECT_TRUE(Editing::commitText(row, "250 mm").accepted);
    EXPECT_DOUBLE_EQ(row.getState().number.value(), 0.25);
    EXPECT_TRUE(Editing::commitText(row, "2,5 m").accepted);
    EXPECT_DOUBLE_EQ(row.getState().number.value(), 2.5);
    EXPECT_TRUE(Editing::commitText(row, "3.5").accepted);
    EXPECT_THAT(changes, ElementsAre("Width = 0.25 m", "Width = 2.5 m", "Width = 3.5 m"));
}

TEST_F(PropertyGridEditingTest, ATextThatIsNoNumberIsRefusedWithAMessage)
{
    auto& row = addLength(1);
    auto const result = Editing::commitText(row, "wide");
    EXPECT_FALSE(result.accepted);
    EXPECT_THAT(result.message, testing::StartsWith("\"wide\" is not a number that this property can take. "
                                                    "A number is expected, such as 2.5 for 2.5 m"));
    EXPECT_EQ(row.getState().number, 1);
    EXPECT_TRUE(changes.empty());
}

TEST_F(PropertyGridEditingTest, TheEditorOpensWithAllDigitsAndTakesThemBackAsTheSameNumber)
{
    double const value = 1.0 / 3;
    auto& row = addLength(value);
    EXPECT_EQ(Editing::getDisplayedText(row), "0.333 m");
    auto const text = Editing::getEditorText(row);
    EXPECT_NE(text, Editing::getDisplayedText(row));
    EXPECT_TRUE(Editing::commitText(row, text).accepted);
    EXPECT_EQ(row.getState().number, value);
}

TEST_F(PropertyGridEditingTest, ATypedZeroIsToldAlthoughARowWithoutAValueShowsZeroToo)
{
    EXPECT_TRUE(Editing::commitText(addLength(0), "0").accepted);
    EXPECT_THAT(changes, ElementsAre("Width = 0 m"));
}

TEST_F(PropertyGridEditingTest, ClearingBlanksTextsAndNumbers)
{
    auto& number = addLength(1);
    EXPECT_TRUE(Editing::clear(number).accepted);
    EXPECT_EQ(number.getState().number, std::nullopt);
    EXPECT_EQ(Editing::getEditorText(number), "");
    EXPECT_TRUE(Editing::clear(addText()).accepted);
    EXPECT_THAT(changes, ElementsAre("Width = ", "FireRating = "));
}

TEST_F(PropertyGridEditingTest, AListOfValuesIsClearedOnlyToAListedBlank)
{
    EXPECT_TRUE(Editing::clear(addChoice(true)).accepted);
    auto property = std::make_unique<PropertyGridProperty>("Status", "New", "", false);
    property->addOption("New");
    property->setOptionsOnly(true);
    EXPECT_FALSE(Editing::clear(add(std::move(property))).accepted);
}

TEST_F(PropertyGridEditingTest, ListedValuesOnlyAreTakenWhereNoOthersMayBe)
{
    auto& row = addChoice(true);
    auto const result = Editing::commitText(row, "Something else");
    EXPECT_FALSE(result.accepted);
    EXPECT_EQ(result.message, "\"Something else\" is not among the values of this property.");
    EXPECT_TRUE(Editing::commitText(row, "Existing").accepted);
    EXPECT_THAT(changes, ElementsAre("Status = Existing"));
}

TEST_F(PropertyGridEditingTest, OtherValuesAreTakenBesideAListThatIsAHelp)
{
    auto& row = addChoice(false);
    EXPECT_TRUE(Editing::canTypeFreely(row));
    EXPECT_TRUE(Editing::commitText(row, "Something else").accepted);
    EXPECT_FALSE(Editing::choose(row, "Something else").accepted);
}

TEST_F(PropertyGridEditingTest, ADisabledEntryCannotBeChosen)
{
    EXPECT_FALSE(Editing::choose(addChoice(true), "Lost").accepted);
}

TEST_F(PropertyGridEditingTest, AClickOnACheckBoxRunsTheRowsHandlersAndNotTheControls)
{
    auto property = std::make_unique<PropertyGridCheckBoxProperty>("IsExternal", CheckState::Unchecked, "");
    std::vector<CheckState> states;
    property->getOnCheckBoxClickedHandlers(control).iHandlerAdd(
        [&](auto&, PropertyGridCheckBoxProperty& clicked) { states.push_back(clicked.getCheckState()); });
    auto& row = add(std::move(property));
    EXPECT_TRUE(Editing::clickCheckBox(row).accepted);
    EXPECT_TRUE(Editing::clickCheckBox(row).accepted);
    EXPECT_THAT(states, ElementsAre(CheckState::Checked, CheckState::Unchecked));
    EXPECT_TRUE(changes.empty());
}

TEST_F(PropertyGridEditingTest, AnUndecidedCheckBoxBecomesChecked)
{
    auto& row =
        add(std::make_unique<PropertyGridCheckBoxProperty>("IsExternal", CheckState::Indeterminate, ""));
    Editing::clickCheckBox(row);
    EXPECT_EQ(row.getCheckState(), CheckState::Checked);
}

TEST_F(PropertyGridEditingTest, AReadOnlyCheckBoxCannotBeClicked)
{
    auto& row = add(std::make_unique<PropertyGridCheckBoxProperty>("IsExternal", CheckState::Unchecked, ""));
    row.allowEdit(false);
    EXPECT_FALSE(Editing::clickCheckBox(row).accepted);
    EXPECT_EQ(row.getCheckState(), CheckState::Unchecked);
}

TEST_F(PropertyGridEditingTest, TheValueBesideACheckBoxIsEditedLikeAnyOther)
{
    auto& row = add(std::make_unique<PropertyGridCheckBoxProperty>("Rated", CheckState::Checked, "F30", ""));
    EXPECT_EQ(Editing::getValueEditor(row), Editor::Text);
    EXPECT_TRUE(Editing::commitText(row, "F60").accepted);
    EXPECT_THAT(changes, ElementsAre("Rated = F60"));
}

TEST_F(PropertyGridEditingTest, AButtonRunsTheHandlersOfTheRow)
{
    auto property = std::make_unique<PropertyGridProperty>("Material", "Concrete", "", false);
    std::vector<std::string> pressed;
    property->onButtonClickedHandlers(control).iHandlerAdd(
        [&](auto&, PropertyGridProperty& row) { pressed.push_back(row.getName()); });
    auto& row = add(std::move(property));
    EXPECT_FALSE(Editing::pressButton(row).accepted);
    row.showButton(true);
    EXPECT_TRUE(Editing::pressButton(row).accepted);
    row.enable(false);
    EXPECT_FALSE(Editing::pressButton(row).accepted);
    EXPECT_THAT(pressed, ElementsAre("Material"));
}

TEST_F(PropertyGridEditingTest, ACustomButtonHandsItsTextOver)
{
    auto property = std::make_unique<PropertyGridCustomButtonProperty>("Material", nullptr,
                                                                       VisibleState::Visible, "Concrete", "");
    std::vector<std::string> pressed;
    property->getOnButtonClickedHandlers(control).iHandlerAdd(
        [&](auto&, PropertyGridCustomButtonProperty& row, std::string const& text) {
            pressed.push_back(row.getName() + ": " + text);
        });
    EXPECT_TRUE(Editing::pressButton(add(std::move(property))).accepted);
    EXPECT_THAT(pressed, ElementsAre("Material: Concrete"));
}

TEST_F(PropertyGridEditingTest, TheEmptyStateShowsNoValueAndKeepsIt)
{
    auto& row = addText();
    row.setEmptyState(true);
    EXPECT_EQ(Editing::getDisplayedText(row), "");
    row.setEmptyState(false);
    EXPECT_EQ(Editing::getDisplayedText(row), "F30");
}

TEST_F(PropertyGridEditingTest, AHintStandsWhereThereIsNoValueToShow)
{
    auto& row = addText("");
    row.setHint("varies");
    EXPECT_EQ(Editing::getHint(row), "varies");
    EXPECT_EQ(Editing::getDisplayedText(row), "");
    EXPECT_EQ(Editing::getEditorText(row), "");
    row.setText("F30");
    EXPECT_EQ(Editing::getHint(row), "");
    row.setText("");
    row.setEmptyState(true);
    EXPECT_EQ(Editing::getHint(row), "");

    auto& checkBox =
        add(std::make_unique<PropertyGridCheckBoxProperty>("IsExternal", CheckState::Indeterminate, ""));
    checkBox.setHint("varies");
    EXPECT_EQ(Editing::getHint(checkBox), "varies");
}

TEST_F(PropertyGridEditingTest, ARecordSaysWhatTheRowSays)
{
    auto& length = addLength(0.25);
    length.setDescription("Of the wall");
    auto const record = PropertyGridRowRecord::of(length);
    EXPECT_THAT(record.path, ElementsAre("Width"));
    EXPECT_EQ(record.value, "0.25 m");
    EXPECT_EQ(record.number, 0.25);
    EXPECT_EQ(record.unit, "m");
    EXPECT_EQ(record.editor, "number");
    EXPECT_EQ(record.description, "Of the wall");
    EXPECT_TRUE(record.editable);
    EXPECT_TRUE(record.enabled);
    EXPECT_FALSE(record.isGroup);
    EXPECT_EQ(record.checked, std::nullopt);

    auto const choice = PropertyGridRowRecord::of(addChoice(true));
    EXPECT_THAT(choice.choices, ElementsAre("", "New", "Existing"));
    EXPECT_EQ(choice.unit, "");

    auto const checkBox = PropertyGridRowRecord::of(
        add(std::make_unique<PropertyGridCheckBoxProperty>("IsExternal", CheckState::Checked, "")));
    EXPECT_EQ(checkBox.checked, CheckState::Checked);
    EXPECT_EQ(checkBox.editor, "check box");
}

TEST(PropertyGridNumber, PlainNumbersAreReadAndWrittenWithoutLoss)
{
    for (double const value : {0.0, 1.0, -2.5, 1.0 / 3, 6.02214076e23, 1e-300})
        EXPECT_EQ(PropertyGridNumber::read(PropertyGridNumber::getEditorText(value, nullptr), nullptr),
                  value);
    EXPECT_EQ(PropertyGridNumber::getShownText(-0.0, nullptr), "0");
    EXPECT_EQ(PropertyGridNumber::read(" 2,5 ", nullptr), 2.5);
    EXPECT_EQ(PropertyGridNumber::read("+3", nullptr), 3.0);
    for (auto const* const text : {"", " ", "x", "2.5 m", "1.2.3", "inf", "nan", "1e999", "+-1"})
        EXPECT_EQ(PropertyGridNumber::read(text, nullptr), std::nullopt) << text;
}

} // namespace
