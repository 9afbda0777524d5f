#include "Ui/Window/Controls/PropertyGridControl/PropertyGridProperty.h"

#include "Core/Unit/QuantityPresentationFactory.h"
#include "Ui/PropertyGrid/PropertyGridEditing.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridCheckBoxProperty.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridCustomButtonProperty.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridEmptyLineProperty.h"
#include "UiTest.h"

#include <functional>
#include <utility>

namespace {

using namespace qev;
using namespace qev::ui;
using propertygridcontrol::button::VisibleState;
using Kind = PropertyGridRowState::Kind;

constexpr auto propertyPath = "Ui/Window/Controls/PropertyGridControl/PropertyGridProperty";

class PropertyGridPropertyTest : public test::UiTest
{
protected:
    static PropertyGridRow& rowOf(PropertyGridProperty const& property)
    {
        return dynamic_cast<PropertyGridRow&>(*property.getActiveInterface());
    }

    static std::string textOf(PropertyGridProperty const& property)
    {
        std::string text = "untouched";
        return property.getStringValue(text) ? text : "no text";
    }
};

TEST_F(PropertyGridPropertyTest, AGroupRowHasANameAndNoValue)
{
    PropertyGridProperty const group("Pset_WallCommon");
    EXPECT_EQ(group.getName(), "Pset_WallCommon");
    EXPECT_EQ(rowOf(group).getState().kind, Kind::Group);
    EXPECT_EQ(textOf(group), "no text");
}

TEST_F(PropertyGridPropertyTest, ATextRowGivesItsTextAndNoNumber)
{
    PropertyGridProperty const row("FireRating", "F30", "How long it resists", false);
    EXPECT_EQ(textOf(row), "F30");
    double number = 5;
    EXPECT_FALSE(row.getDoubleValue(number));
    EXPECT_EQ(number, 5);
    EXPECT_EQ(rowOf(row).getState().description, "How long it resists");
    EXPECT_TRUE(rowOf(row).getState().allowEdit);
    EXPECT_TRUE(row.isEnabled());
}

TEST_F(PropertyGridPropertyTest, AReadOnlyRowCannotBeTypedIn)
{
    PropertyGridProperty const row("FireRating", "F30", "", true);
    EXPECT_EQ(PropertyGridEditing::getEditor(rowOf(row)), PropertyGridEditor::None);
}

TEST_F(PropertyGridPropertyTest, ANumberRowGivesItsNumberAndItsText)
{
    PropertyGridProperty const row("Count", 2.5, "", false);
    double number = 0;
    EXPECT_TRUE(row.getDoubleValue(number));
    EXPECT_EQ(number, 2.5);
    EXPECT_EQ(textOf(row), "2.5");
    EXPECT_FALSE(row.hasQuantityPresentation());
}

TEST_F(PropertyGridPropertyTest, ANumberRowIsShownThroughItsQuantityPresentation)
{
    PropertyGridProperty row("Width", 0.3, "", false);
    row.setQuantityPresentation(unit::createPresentationForMeasure("LengthMeasure"));
    EXPECT_TRUE(row.hasQuantityPresentation());
    EXPECT_EQ(textOf(row), "0.3 m");
    double number = 0;
    EXPECT_TRUE(row.getDoubleValue(number));
    EXPECT_EQ(number, 0.3);
}

TEST_F(PropertyGridPropertyTest, ATextRowWithAQuantityPresentationBecomesANumberRow)
{
    PropertyGridProperty row("Width", "250 mm", "", false);
    row.setQuantityPresentation(unit::createPresentationForMeasure("LengthMeasure"));
    double number = 0;
    EXPECT_TRUE(row.getDoubleValue(number));
    EXPECT_DOUBLE_EQ(number, 0.25);
}

TEST_F(PropertyGridPropertyTest, TheEmptyTextBlanksARow)
{
    PropertyGridProperty text("FireRating", "F30", "", false);
    text.setValue("");
    EXPECT_EQ(textOf(text), "");

    PropertyGridProperty number("Count", 2.5, "", false);
    number.setValue("");
    double value = 7;
    EXPECT_FALSE(number.getDoubleValue(value));
    EXPECT_EQ(textOf(number), "");
}

TEST_F(PropertyGridPropertyTest, ANumberRowReadsTextsAndKeepsItsNumberOnOthers)
{
    PropertyGridProperty row("Count", 2.5, "", false);
    row.setValue("3,5");
    EXPECT_EQ(textOf(row), "3.5");
    row.setValue("many");
    EXPECT_EQ(textOf(row), "3.5");
}

TEST_F(PropertyGridPropertyTest, ACheckBoxRowStandsAloneOrBesideAValue)
{
    PropertyGridCheckBoxProperty const alone("IsExternal", CheckState::Checked, "Faces the outside");
    EXPECT_EQ(alone.getCheckState(), CheckState::Checked);
    EXPECT_EQ(rowOf(alone).getState().kind, Kind::CheckBox);
    EXPECT_EQ(textOf(alone), "no text");

    PropertyGridCheckBoxProperty const withText("Rating", CheckState::Unchecked, "F30", "");
    EXPECT_EQ(withText.getCheckState(), CheckState::Unchecked);
    EXPECT_EQ(textOf(withText), "F30");

    PropertyGridCheckBoxProperty const withNumber("Count", CheckState::Checked, 2.5, "");
    EXPECT_EQ(textOf(withNumber), "2.5");
}

TEST_F(PropertyGridPropertyTest, TheValueBesideACheckBoxCanBeHidden)
{
    PropertyGridCheckBoxProperty row("Rating", CheckState::Checked, "F30", "");
    EXPECT_EQ(PropertyGridEditing::getDisplayedText(rowOf(row)), "F30");
    row.setValueDisplayMode(ValueDisplayMode::Hidden);
    EXPECT_EQ(PropertyGridEditing::getDisplayedText(rowOf(row)), "");
    row.setValueDisplayMode(static_cast<ValueDisplayMode>(1));
    EXPECT_EQ(PropertyGridEditing::getDisplayedText(rowOf(row)), "F30");
}

TEST_F(PropertyGridPropertyTest, ACustomButtonRowHasAValueAndAButton)
{
    auto const image = std::make_shared<Image const>(Image{"pick"});
    PropertyGridCustomButtonProperty const text("Material", image, VisibleState::Visible, "Concrete", "");
    EXPECT_EQ(textOf(text), "Concrete");
    EXPECT_TRUE(PropertyGridEditing::hasVisibleButton(rowOf(text)));
    EXPECT_EQ(rowOf(text).getState().buttonImage, image);

    PropertyGridCustomButtonProperty const number("Count", nullptr, VisibleState::Hidden, 2.5, "");
    EXPECT_EQ(textOf(number), "2.5");
    EXPECT_FALSE(PropertyGridEditing::hasVisibleButton(rowOf(number)));
}

TEST_F(PropertyGridPropertyTest, AnEmptyLineHasNothing)
{
    PropertyGridEmptyLineProperty const row;
    EXPECT_EQ(rowOf(row).getState().kind, Kind::EmptyLine);
    EXPECT_EQ(row.getName(), "");
    EXPECT_EQ(textOf(row), "no text");
}

TEST_F(PropertyGridPropertyTest, ARowKeepsWhatItIsDressedWith)
{
    PropertyGridProperty row("FireRating", "F30", "", false);
    int owner = 0;
    row.setUserData(&owner);
    row.setDescription("New help");
    row.addOption("F30", true);
    row.addOption("F60", false);
    row.setOptionsOnly(true);
    row.enable(false);
    row.activateEmptyState();
    row.setHint("varies");
    row.setBoldFontStyleForNameAndValue();
    row.setBackgroundColour({255, 1, 2, 3});
    row.setAlignment(1);
    row.setHorizontalLine(2);
    row.setNameIndentationInCharacters(4);
    row.showButton(true);

    auto const& state = rowOf(row).getState();
    EXPECT_EQ(row.getUserData(), &owner);
    EXPECT_EQ(state.description, "New help");
    EXPECT_THAT(state.options,
                testing::ElementsAre(PropertyGridOption{"F30", true}, PropertyGridOption{"F60", false}));
    EXPECT_TRUE(state.optionsOnly);
    EXPECT_FALSE(row.isEnabled());
    EXPECT_TRUE(state.emptyState);
    EXPECT_EQ(state.hint, "varies");
    EXPECT_TRUE(state.bold);
    EXPECT_EQ(state.backgroundColour, (attr::Colour{255, 1, 2, 3}));
    EXPECT_EQ(state.alignment, PropertyGridAlignment::Right);
    EXPECT_EQ(state.horizontalLine, PropertyGridHorizontalLine::AboveAndBelow);
    EXPECT_EQ(state.nameIndentationInCharacters, 4u);
    EXPECT_EQ(state.buttonVisibleState, VisibleState::Visible);
    row.deactivateEmptyState();
    EXPECT_FALSE(state.emptyState);
}

TEST_F(PropertyGridPropertyTest, UnknownAlignmentsAndLinesArePassedOver)
{
    PropertyGridProperty row("FireRating", "F30", "", false);
    row.setAlignment(7);
    row.setHorizontalLine(-1);
    EXPECT_EQ(rowOf(row).getState().alignment, PropertyGridAlignment::Left);
    EXPECT_EQ(rowOf(row).getState().horizontalLine, std::nullopt);
}

TEST_F(PropertyGridPropertyTest, ChildRowsComeBelowTheOnesThatAreThere)
{
    PropertyGridProperty group("Set");
    PropertyGridProperty first("First", "1", "", false);
    PropertyGridProperty second("Second", "2", "", false);
    group.addSubProperty(first);
    group.addSubProperty(second);
    EXPECT_EQ(group.getSubPropertyCount(), 2u);
    auto const& children = rowOf(group).getChildren();
    EXPECT_EQ(children[0]->getName(), "First");
    EXPECT_EQ(children[1]->getName(), "Second");
    EXPECT_EQ(children[1]->getParent(), &rowOf(group));
}

TEST_F(PropertyGridPropertyTest, AHandleStillLeadsToARowThatWasGivenAway)
{
    PropertyGridProperty group("Set");
    PropertyGridProperty row("First", "1", "", false);
    group.addSubProperty(row);
    row.setValue("2");
    EXPECT_EQ(textOf(row), "2");
    EXPECT_EQ(rowOf(group).getChildren().front()->getState().text, "2");
}

TEST_F(PropertyGridPropertyTest, ReportsAChildThatHasAPlaceAlready)
{
    PropertyGridProperty group("Set");
    PropertyGridProperty row("First", "1", "", false);
    group.addSubProperty(row);
    group.addSubProperty(row);
    test::expectReport("Property isn't new.", "qev::ui::PropertyGridProperty::addSubProperty", propertyPath);
    EXPECT_EQ(group.getSubPropertyCount(), 1u);
}

/// A row that no back end of this program made.
class ForeignRow final : public PropertyGridPropertyInterface
{
public:
    [[nodiscard]] std::string getName() const override { return "Foreign"; }
    bool getStringValue(std::string&) const override { return false; }
    bool getDoubleValue(double&) const override { return false; }
    void setValue(std::string const&, bool) override {}
    [[nodiscard]] bool hasQuantityPresentation() const override { return false; }
    void setQuantityPresentation(std::unique_ptr<unit::QuantityPresentationBase>) override;
    [[nodiscard]] void* getUserData() const override { return nullptr; }
    void setUserData(void*) override {}
    void addSubProperty(std::shared_ptr<PropertyGridPropertyInterface>) override {}
    [[nodiscard]] std::size_t getSubPropertyCount() const override { return 0; }
    void setDescription(std::string const&) override {}
    void addOption(std::string const&, bool) override {}
    void setOptionsOnly(bool) override {}
    void allowEdit(bool) override {}
    void enable(bool) override {}
    [[nodiscard]] bool isEnabled() const override { return true; }
    void setEmptyState(bool) override {}
    void setHint(std::string const&) override {}
    void setBoldFontStyleForNameAndValue() override {}
    void setBackgroundColour(attr::Colour const&) override {}
    void setAlignment(int) override {}
    void setHorizontalLine(int) override {}
    void setNameIndentationInCharacters(unsigned int) override {}
    void showButton(bool) override {}
    [[nodiscard]] ButtonClickedHandlers& getButtonClickedHandlers() override { return m_button; }
    [[nodiscard]] CheckState getCheckState() const override { return CheckState::Unchecked; }
    void setValueDisplayMode(ValueDisplayMode) override {}
    [[nodiscard]] CheckBoxClickedHandlers& getCheckBoxClickedHandlers() override { return m_checkBox; }
    [[nodiscard]] CustomButtonClickedHandlers& getCustomButtonClickedHandlers() override { return m_custom; }

private:
    ButtonClickedHandlers m_button;
    CheckBoxClickedHandlers m_checkBox;
    CustomButtonClickedHandlers m_custom;
};

void ForeignRow::setQuantityPresentation(std::unique_ptr<unit::QuantityPresentationBase>) {}

TEST_F(PropertyGridPropertyTest, ReportsAChildOfAnotherBackEnd)
{
    PropertyGridProperty group("Set");
    PropertyGridProperty foreign(nullptr, std::make_unique<ForeignRow>());
    group.addSubProperty(foreign);
    test::expectReport("Property belongs to another back end.", "qev::ui::PropertyGridRow::addSubProperty",
                       "Ui/PropertyGrid/PropertyGridRow");
    EXPECT_EQ(group.getSubPropertyCount(), 0u);
}

TEST_F(PropertyGridPropertyTest, ReportsTwoActiveInterfacesAndTakesTheNewOne)
{
    auto const existing = std::make_shared<ForeignRow>();
    PropertyGridProperty const property(existing, std::make_unique<ForeignRow>());
    EXPECT_NE(property.getActiveInterface(), existing.get());
    test::expectReport("Existing and new property objects can't both be set at the same time.",
                       "qev::ui::PropertyGridProperty::getActiveInterface", propertyPath);
}

TEST_F(PropertyGridPropertyTest, ReportsAHandleOfNoRow)
{
    ui::details::WindowInterfaceFactory::setBackend(nullptr);
    PropertyGridProperty const property("Set");
    EXPECT_EQ(property.getActiveInterface(), nullptr);
    test::expectReport("Property not initialized.", "qev::ui::PropertyGridProperty::getActiveInterface",
                       propertyPath);
}

TEST_F(PropertyGridPropertyTest, EachOperationReportsAMissingRow)
{
    ui::details::WindowInterfaceFactory::setBackend(nullptr);
    using Operation = std::function<void(PropertyGridProperty&)>;
    PropertyGridProperty other(std::make_shared<ForeignRow>());
    std::vector<std::pair<std::string, Operation>> const operations = {
        {"getName", [](auto& row) { EXPECT_EQ(row.getName(), ""); }},
        {"getStringValue", [](auto& row) { EXPECT_EQ(textOf(row), "no text"); }},
        {"getDoubleValue",
         [](auto& row) {
             double number = 0;
             EXPECT_FALSE(row.getDoubleValue(number));
         }},
        {"setValue", [](auto& row) { row.setValue("x"); }},
        {"hasQuantityPresentation", [](auto& row) { EXPECT_FALSE(row.hasQuantityPresentation()); }},
        {"setQuantityPresentation", [](auto& row) { row.setQuantityPresentation(nullptr); }},
        {"getUserData", [](auto& row) { EXPECT_EQ(row.getUserData(), nullptr); }},
        {"setUserData", [](auto& row) { row.setUserData(nullptr); }},
        {"addSubProperty", [&](auto& row) { row.addSubProperty(other); }},
        {"getSubPropertyCount", [](auto& row) { EXPECT_EQ(row.getSubPropertyCount(), 0u); }},
        {"setDescription", [](auto& row) { row.setDescription("x"); }},
        {"addOption", [](auto& row) { row.addOption("x", true); }},
        {"setOptionsOnly", [](auto& row) { row.setOptionsOnly(true); }},
        {"allowEdit", [](auto& row) { row.allowEdit(true); }},
        {"enable", [](auto& row) { row.enable(true); }},
        {"isEnabled", [](auto& row) { EXPECT_FALSE(row.isEnabled()); }},
        {"activateEmptyState", [](auto& row) { row.activateEmptyState(); }},
        {"deactivateEmptyState", [](auto& row) { row.deactivateEmptyState(); }},
        {"setHint", [](auto& row) { row.setHint("x"); }},
        {"setBoldFontStyleForNameAndValue", [](auto& row) { row.setBoldFontStyleForNameAndValue(); }},
        {"setBackgroundColour", [](auto& row) { row.setBackgroundColour({}); }},
        {"setAlignment", [](auto& row) { row.setAlignment(0); }},
        {"setHorizontalLine", [](auto& row) { row.setHorizontalLine(0); }},
        {"setNameIndentationInCharacters", [](auto& row) { row.setNameIndentationInCharacters(1); }},
        {"showButton", [](auto& row) { row.showButton(true); }},
        {"onButtonClickedHandlers",
         [](auto& row) { EXPECT_EQ(row.onButtonClickedHandlers(nullptr).handlerCount(), 0u); }},
    };
    PropertyGridProperty row("Set");
    for (auto const& [name, operation] : operations) {
        operation(row);
        test::expectReport("No active interface.", "qev::ui::PropertyGridProperty::" + name, propertyPath);
    }
}

TEST_F(PropertyGridPropertyTest, TheOperationsOfDerivedRowsReportAMissingRow)
{
    ui::details::WindowInterfaceFactory::setBackend(nullptr);
    PropertyGridCheckBoxProperty checkBox("IsExternal", CheckState::Unchecked, "");
    static_cast<void>(checkBox.getCheckState());
    test::expectReport("No active interface.", "qev::ui::PropertyGridProperty::getCheckState", propertyPath);
    checkBox.setValueDisplayMode(ValueDisplayMode::Hidden);
    test::expectReport("No active interface.", "qev::ui::PropertyGridProperty::setValueDisplayMode",
                       propertyPath);
    static_cast<void>(checkBox.getOnCheckBoxClickedHandlers(nullptr));
    test::expectReport("No active interface.", "qev::ui::PropertyGridProperty::getOnCheckBoxClickedHandlers",
                       propertyPath);

    PropertyGridCustomButtonProperty button("Material", nullptr, VisibleState::Visible, "x", "");
    static_cast<void>(button.getOnButtonClickedHandlers(nullptr));
    test::expectReport("No active interface.", "qev::ui::PropertyGridProperty::getOnButtonClickedHandlers",
                       propertyPath);
}

} // namespace
