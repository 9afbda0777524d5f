#include "Ui/Headless/HeadlessPropertyGrid.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridCheckBoxProperty.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridStateProperty.h"
#include "UiTest.h"

namespace {

using namespace qev;
using namespace qev::ui;
using testing::ElementsAre;
using testing::IsEmpty;

PropertyGridRowState textState(std::string name, std::string value)
{
    PropertyGridRowState state;
    state.kind = PropertyGridRowState::Kind::Value;
    state.valueKind = PropertyGridRowState::ValueKind::Text;
    state.name = std::move(name);
    state.text = std::move(value);
    return state;
}

PropertyGridRowButton button(std::string key)
{
    auto const image = std::make_shared<Image>(Image{key});
    return {std::move(key), image, "What the button does"};
}

/// Rows with buttons at their end, checks of inputs, keys and mixed values.
class PropertyGridRowButtonsTest : public test::UiTest
{
protected:
    PropertyGridRowButtonsTest()
        : control(createGrid())
        , grid(backend->getPropertyGrid(*control))
    {
        control->onPropertyChanged.iHandlerAdd([this](auto&, PropertyGridProperty& property) {
            std::string text;
            property.getStringValue(text);
            log.push_back(property.getName() + "=" + text);
        });
    }

    HeadlessPropertyGrid::Row add(PropertyGridRowState state)
    {
        auto const name = state.name;
        auto property = std::make_unique<PropertyGridStateProperty>(std::move(state), nullptr);
        auto& row = *property->getRow();
        row.setButtonFunction([this, name, &row](std::size_t pressed) {
            log.push_back(name + ":" + row.getState().buttons[pressed].key);
        });
        row.getCheckBoxClickedHandlers().iHandlerAdd([this](auto&, PropertyGridCheckBoxProperty& clicked) {
            log.push_back(clicked.getName() + "=" +
                          std::to_string(static_cast<int>(clicked.getCheckState())));
        });
        control->addProperty(std::move(property));
        return grid->rows().back();
    }

    std::shared_ptr<PropertyGridControl> control;
    std::shared_ptr<HeadlessPropertyGrid> grid;
    std::vector<std::string> log;
};

TEST_F(PropertyGridRowButtonsTest, EachButtonIsPressedByItsKey)
{
    auto state = textState("Classification", "Ss_25");
    state.buttons = {button("delete"), button("edit")};
    auto const row = add(std::move(state));
    EXPECT_TRUE(grid->pressButton(row, "edit"));
    EXPECT_TRUE(grid->pressButton(row, "delete"));
    EXPECT_THAT(log, ElementsAre("Classification:edit", "Classification:delete"));
    EXPECT_EQ(grid->dump(), "  Classification = Ss_25 {text, button \"delete\", button \"edit\"}\n");
    EXPECT_THAT(grid->records().front().buttonKeys, ElementsAre("delete", "edit"));
}

TEST_F(PropertyGridRowButtonsTest, AKeyThatNoButtonHasIsRefused)
{
    auto state = textState("Classification", "");
    state.buttons = {button("delete")};
    auto const row = add(std::move(state));
    EXPECT_FALSE(grid->pressButton(row, "add"));
    EXPECT_EQ(grid->getMessage(), "This property has no button that can be pressed.");
    EXPECT_FALSE(PropertyGridEditing::pressButton(*row, 1).accepted);
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(PropertyGridRowButtonsTest, ButtonsOfRowsThatCannotBeChangedWorkAllTheSame)
{
    auto state = textState("Range", "1 … 2");
    state.allowEdit = false;
    state.buttons = {button("")};
    EXPECT_TRUE(grid->pressButton(add(std::move(state)), ""));
    EXPECT_THAT(log, ElementsAre("Range:"));
}

TEST_F(PropertyGridRowButtonsTest, ALinkPressesTheFirstButton)
{
    auto state = textState("Document", "plan.pdf");
    state.isLink = true;
    auto const plain = add(textState("Plain", ""));
    auto const bare = add(state);
    state.buttons = {button("open"), button("edit")};
    auto const row = add(std::move(state));
    EXPECT_TRUE(grid->followLink(row));
    EXPECT_FALSE(grid->followLink(plain));
    EXPECT_EQ(grid->getMessage(), "This property leads nowhere.");
    EXPECT_FALSE(grid->followLink(bare));
    EXPECT_THAT(log, ElementsAre("Document:open"));
}

TEST_F(PropertyGridRowButtonsTest, ACheckRefusesInputBeforeAnythingChanges)
{
    auto const row = add(textState("Name", "Wall"));
    row->setInputCheck([](PropertyGridInput const& input) {
        return input.text.empty() ? std::optional<std::string>("A name is needed.") : std::nullopt;
    });
    EXPECT_FALSE(grid->clear(row));
    EXPECT_EQ(grid->getMessage(), "A name is needed.");
    EXPECT_EQ(row->getState().text, "Wall");
    EXPECT_TRUE(grid->type(row, "Roof"));
    EXPECT_THAT(log, ElementsAre("Name=Roof"));
}

TEST_F(PropertyGridRowButtonsTest, ACheckSeesNumbersAndBoxes)
{
    PropertyGridRowState number;
    number.kind = PropertyGridRowState::Kind::Value;
    number.valueKind = PropertyGridRowState::ValueKind::Number;
    number.name = "Width";
    auto const width = add(std::move(number));
    width->setInputCheck([](PropertyGridInput const& input) {
        return input.number && *input.number > 1 ? std::optional<std::string>("Too wide.") : std::nullopt;
    });
    EXPECT_FALSE(grid->type(width, "2"));
    EXPECT_TRUE(grid->type(width, "0.5"));

    PropertyGridRowState box;
    box.kind = PropertyGridRowState::Kind::CheckBox;
    box.name = "IsExternal";
    auto const external = add(std::move(box));
    external->setInputCheck([](PropertyGridInput const& input) {
        return input.checkState == CheckState::Checked ? std::optional<std::string>("Never.") : std::nullopt;
    });
    EXPECT_FALSE(grid->clickCheckBox(external));
    EXPECT_EQ(grid->getMessage(), "Never.");
    EXPECT_EQ(external->getCheckState(), CheckState::Unchecked);
    EXPECT_THAT(log, ElementsAre("Width=0.5"));
}

TEST_F(PropertyGridRowButtonsTest, ACheckSpeaksForAChoiceThatHasNoEmptyEntry)
{
    auto state = textState("Kind", "A");
    state.options = {{"A"}, {"B"}};
    state.optionsOnly = true;
    auto const row = add(std::move(state));
    row->setInputCheck([](PropertyGridInput const& input) {
        return input.text.empty() ? std::optional<std::string>("It cannot be empty.") : std::nullopt;
    });
    EXPECT_FALSE(grid->clear(row));
    EXPECT_EQ(grid->getMessage(), "It cannot be empty.");
    EXPECT_TRUE(grid->choose(row, "B"));
}

TEST_F(PropertyGridRowButtonsTest, ValuesThatDifferAreClearedTogetherAndStayWithoutInput)
{
    auto state = textState("Reference", "");
    state.isMixed = true;
    state.hint = "varies";
    auto const row = add(std::move(state));
    EXPECT_TRUE(grid->type(row, ""));
    EXPECT_THAT(log, IsEmpty());
    EXPECT_TRUE(grid->clear(row));
    EXPECT_THAT(log, ElementsAre("Reference="));
    EXPECT_EQ(grid->dump(), "  Reference (varies) {text}\n");
}

TEST_F(PropertyGridRowButtonsTest, ACheckBoxThatCanBeUndecidedIsCleared)
{
    PropertyGridRowState box;
    box.kind = PropertyGridRowState::Kind::CheckBox;
    box.name = "IsExternal";
    box.checkState = CheckState::Checked;
    auto const fixed = add(box);
    EXPECT_FALSE(grid->clear(fixed));
    box.canClearCheckBox = true;
    auto const row = add(std::move(box));
    EXPECT_TRUE(grid->clear(row));
    EXPECT_EQ(row->getCheckState(), CheckState::Indeterminate);
    EXPECT_TRUE(grid->clear(row));
    EXPECT_THAT(log,
                ElementsAre("IsExternal=" + std::to_string(static_cast<int>(CheckState::Indeterminate))));
}

TEST_F(PropertyGridRowButtonsTest, AKeyKeepsWhatIsFoldedAndCurrentWhateverTheNames)
{
    auto const fill = [&](std::string const& above, std::string const& name) {
        control->removeAllProperties();
        auto group = std::make_unique<PropertyGridProperty>(above);
        PropertyGridRowState set;
        set.name = name;
        set.key = "Set";
        PropertyGridStateProperty property(std::move(set), nullptr);
        auto state = textState("Row " + name, "");
        state.key = "Set.Row";
        PropertyGridStateProperty below(std::move(state), nullptr);
        property.addSubProperty(below);
        group->addSubProperty(property);
        control->addProperty(std::move(group));
    };
    fill("Wall", "One");
    grid->select(grid->findRow({"Wall", "One", "Row One"}));
    fill("Slab", "Two");
    ASSERT_NE(grid->getCurrentRow(), nullptr);
    EXPECT_EQ(grid->getCurrentRow()->getName(), "Row Two");
    grid->collapse(grid->findRow({"Slab", "Two"}));
    fill("Wall", "One");
    EXPECT_FALSE(grid->isExpanded(*grid->findRow({"Wall", "One"})));
}

TEST_F(PropertyGridRowButtonsTest, TheControlHearsWhichRowIsCurrent)
{
    std::vector<std::string> seen;
    control->onCurrentRowChanged.iHandlerAdd([&](auto&, std::shared_ptr<PropertyGridRow> const& row) {
        seen.push_back(row ? row->getName() : "none");
    });
    auto const first = add(textState("First", ""));
    auto const second = add(textState("Second", ""));
    grid->select(first);
    grid->select(first);
    control->showRow(*second);
    EXPECT_EQ(grid->getCurrentRow(), second);
    EXPECT_THAT(seen, ElementsAre("First", "Second"));
}

TEST_F(PropertyGridRowButtonsTest, ShowingARowUnfoldsWhatItStandsBelow)
{
    auto group = std::make_unique<PropertyGridProperty>("Set");
    PropertyGridStateProperty below(textState("Row", ""), nullptr);
    group->addSubProperty(below);
    control->addProperty(std::move(group));
    auto const row = grid->findRow({"Set", "Row"});
    grid->collapse(grid->findRow({"Set"}));
    control->showRow(*row);
    EXPECT_EQ(grid->getCurrentRow(), row);
}

TEST_F(PropertyGridRowButtonsTest, TheDumpTellsLinksLocalValuesAndColoursOfTexts)
{
    auto state = textState("Document", "plan.pdf");
    state.isLink = true;
    state.isLocalValue = true;
    state.textColour = attr::Colour{255, 16, 32, 48};
    add(std::move(state));
    EXPECT_EQ(grid->dump(), "  Document = plan.pdf {text, link, local, text #FF102030}\n");
}

} // namespace
