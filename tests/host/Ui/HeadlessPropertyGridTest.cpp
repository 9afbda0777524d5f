#include "Ui/Headless/HeadlessPropertyGrid.h"

#include "Core/Unit/QuantityPresentationFactory.h"
#include "Golden.h"
#include "RichGrid.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridCheckBoxProperty.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridCustomButtonProperty.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridEmptyLineProperty.h"
#include "Ui/Window/GroupBox.h"
#include "UiTest.h"

namespace {

using namespace qev;
using namespace qev::ui;
using propertygridcontrol::button::VisibleState;

class HeadlessPropertyGridTest : public test::UiTest
{
protected:
    HeadlessPropertyGridTest()
        : control(createGrid())
        , grid(backend->getPropertyGrid(*control))
    {
        fill();
    }

    void fill()
    {
        control->removeAllProperties();
        auto wall = std::make_unique<PropertyGridProperty>("Pset_WallCommon");
        PropertyGridProperty reference("Reference", "W1", "", true);
        wall->addSubProperty(reference);
        PropertyGridProperty rating("FireRating", "F30", "", false);
        rating.setBoldFontStyleForNameAndValue();
        wall->addSubProperty(rating);
        PropertyGridCheckBoxProperty external("IsExternal", CheckState::Checked, "");
        wall->addSubProperty(external);
        PropertyGridEmptyLineProperty line;
        wall->addSubProperty(line);
        PropertyGridProperty status("Status", "New", "", false);
        status.addOption("");
        status.addOption("New");
        status.setOptionsOnly(true);
        wall->addSubProperty(status);
        control->addProperty(std::move(wall));

        auto quantities = std::make_unique<PropertyGridProperty>("Qto_WallBaseQuantities");
        PropertyGridProperty width("Width", 0.3, "", false);
        width.setQuantityPresentation(unit::createPresentationForMeasure("LengthMeasure"));
        width.setBackgroundColour({255, 230, 230, 230});
        width.setHorizontalLine(0);
        quantities->addSubProperty(width);
        PropertyGridCustomButtonProperty note("Note", nullptr, VisibleState::Visible, "two\nlines", "");
        note.enable(false);
        quantities->addSubProperty(note);
        control->addProperty(std::move(quantities));
        control->addProperty(std::make_unique<PropertyGridProperty>("Empty set"));
    }

    std::shared_ptr<PropertyGridControl> control;
    std::shared_ptr<HeadlessPropertyGrid> grid;
};

TEST_F(HeadlessPropertyGridTest, DumpsOneLinePerVisibleRow)
{
    EXPECT_EQ(grid->dump(), R"(- Pset_WallCommon
    Reference = W1 {read-only}
    FireRating = F30 {text, bold}
    IsExternal [x] {check box}
    (empty line)
    Status = New {choice "" "New"}
- Qto_WallBaseQuantities
    Width = 0.3 m {number, #FFE6E6E6, line above}
    Note = two\nlines {disabled, button}
- Empty set
)");
}

TEST_F(HeadlessPropertyGridTest, ACollapsedGroupHidesItsRowsAlsoWhenTheGridIsFilledAnew)
{
    EXPECT_TRUE(grid->collapse(grid->findRow({"Pset_WallCommon"})));
    fill();
    EXPECT_EQ(grid->rows().size(), 5u);
    EXPECT_EQ(grid->dump().substr(0, 18), "+ Pset_WallCommon\n");
    EXPECT_EQ(grid->findRow({"Pset_WallCommon", "FireRating"}), nullptr);
    EXPECT_TRUE(grid->expand(grid->findRow({"Pset_WallCommon"})));
    EXPECT_NE(grid->findRow({"Pset_WallCommon", "FireRating"}), nullptr);
}

TEST_F(HeadlessPropertyGridTest, ARowWithoutRowsBelowCannotBeFolded)
{
    EXPECT_FALSE(grid->collapse(grid->findRow({"Empty set"})));
    EXPECT_FALSE(grid->expand(grid->findRow({"Empty set"})));
    EXPECT_FALSE(grid->collapse(nullptr));
}

TEST_F(HeadlessPropertyGridTest, InputTakesTheRowsRules)
{
    auto const row = [&](std::string const& set, std::string const& name) {
        return grid->findRow({set, name});
    };
    EXPECT_TRUE(grid->type(row("Pset_WallCommon", "FireRating"), "F90"));
    EXPECT_TRUE(grid->type(row("Qto_WallBaseQuantities", "Width"), "25 cm"));
    EXPECT_TRUE(grid->choose(row("Pset_WallCommon", "Status"), ""));
    EXPECT_TRUE(grid->clickCheckBox(row("Pset_WallCommon", "IsExternal")));
    EXPECT_FALSE(grid->type(row("Pset_WallCommon", "Reference"), "W2"));
    EXPECT_FALSE(grid->pressButton(row("Qto_WallBaseQuantities", "Note")));
    EXPECT_EQ(grid->dump(), R"(- Pset_WallCommon
    Reference = W1 {read-only}
    FireRating = F90 {text, bold}
    IsExternal [ ] {check box}
    (empty line)
    Status {choice "" "New"}
- Qto_WallBaseQuantities
    Width = 0.25 m {number, #FFE6E6E6, line above}
    Note = two\nlines {disabled, button}
- Empty set
)");
}

TEST_F(HeadlessPropertyGridTest, ARefusalLeavesAMessage)
{
    auto const width = grid->findRow({"Qto_WallBaseQuantities", "Width"});
    EXPECT_FALSE(grid->type(width, "wide"));
    EXPECT_THAT(grid->getMessage(), testing::StartsWith("\"wide\" is not a number"));
    EXPECT_TRUE(grid->clear(width));
    EXPECT_EQ(grid->getMessage(), "");
}

TEST_F(HeadlessPropertyGridTest, WhatAUserCannotReachCannotBeDriven)
{
    auto const rating = grid->findRow({"Pset_WallCommon", "FireRating"});
    EXPECT_FALSE(grid->type(nullptr, "F60"));

    grid->collapse(grid->findRow({"Pset_WallCommon"}));
    EXPECT_FALSE(grid->type(rating, "F60"));
    grid->expand(grid->findRow({"Pset_WallCommon"}));

    dialog->hide();
    EXPECT_FALSE(grid->type(rating, "F60"));
    dialog->show();

    control->enable(false);
    EXPECT_FALSE(grid->type(rating, "F60"));
    control->enable(true);

    EXPECT_TRUE(grid->type(rating, "F60"));
    fill();
    EXPECT_FALSE(grid->type(rating, "F90"));

    auto const freshRating = grid->findRow({"Pset_WallCommon", "FireRating"});
    control->detach(true);
    EXPECT_FALSE(grid->type(freshRating, "F90"));
}

TEST_F(HeadlessPropertyGridTest, RecordsStandForTheVisibleRows)
{
    auto const records = grid->records();
    ASSERT_EQ(records.size(), grid->rows().size());
    EXPECT_TRUE(records[0].isGroup);
    EXPECT_THAT(records[2].path, testing::ElementsAre("Pset_WallCommon", "FireRating"));
}

TEST_F(HeadlessPropertyGridTest, ARowOfEveryKindIsDumpedAsReviewed)
{
    test::RichGrid::fill(control);
    test::expectGolden(grid->dump(), std::filesystem::path(QEV_GOLDEN_FOLDER) / "RichGrid.txt");
}

TEST_F(HeadlessPropertyGridTest, WindowsAreDumpedAsReviewed)
{
    auto const list = createList();
    list->onGetColumnHeaderText.iHandlerAdd([](auto&, std::size_t) { return std::string("Name"); });
    list->onGetItemText.iHandlerAdd(
        [](auto&, ListControl::ItemInfo const&) { return std::string("Wall 1"); });
    list->setItemAndColumnCounts(1, 1);
    auto const box = Window::create<GroupBox>(dialog, 0, 0, {5, 505, 600, 590}, 7);
    box->hide();
    list->enable(false);
    grid->collapse(grid->findRow({"Pset_WallCommon"}));
    dialog->setTitle("Properties");
    control->setFocus();
    auto const other = backend->createDialog({200, 100});
    test::expectGolden(backend->dump(), std::filesystem::path(QEV_GOLDEN_FOLDER) / "Windows.txt");
}

TEST_F(HeadlessPropertyGridTest, TheCurrentRowStaysWhenTheGridIsFilledAnew)
{
    EXPECT_EQ(grid->getCurrentRow(), nullptr);
    EXPECT_EQ(grid->copy(), "");
    EXPECT_TRUE(grid->select(grid->findRow({"Pset_WallCommon", "FireRating"})));
    fill();
    EXPECT_EQ(grid->getCurrentRow(), grid->findRow({"Pset_WallCommon", "FireRating"}));
    grid->collapse(grid->findRow({"Pset_WallCommon"}));
    EXPECT_EQ(grid->getCurrentRow(), nullptr);
}

TEST_F(HeadlessPropertyGridTest, EmptyLinesAndRowsOutOfReachCannotBecomeCurrent)
{
    auto const line = grid->rows().at(4);
    ASSERT_EQ(line->getState().kind, PropertyGridRowState::Kind::EmptyLine);
    EXPECT_FALSE(grid->select(line));
    EXPECT_FALSE(grid->select(nullptr));
    auto const rating = grid->findRow({"Pset_WallCommon", "FireRating"});
    dialog->hide();
    EXPECT_FALSE(grid->select(rating));
}

TEST_F(HeadlessPropertyGridTest, TheNextRowIsOneThatCanBeChanged)
{
    std::vector<std::string> seen;
    while (grid->selectNextEditable())
        seen.push_back(grid->getCurrentRow()->getName());
    EXPECT_THAT(seen, testing::ElementsAre("FireRating", "IsExternal", "Status", "Width"));
    EXPECT_TRUE(grid->selectNextEditable(false));
    EXPECT_EQ(grid->getCurrentRow()->getName(), "Status");
}

TEST_F(HeadlessPropertyGridTest, CopyTakesTheValueOfAnyRowAndTheNameOfAGroup)
{
    auto const copied = [&](std::vector<std::string> const& path) {
        EXPECT_TRUE(grid->select(grid->findRow(path)));
        return grid->copy();
    };
    EXPECT_EQ(copied({"Pset_WallCommon", "Reference"}), "W1");
    EXPECT_EQ(copied({"Pset_WallCommon", "IsExternal"}), "true");
    EXPECT_EQ(copied({"Qto_WallBaseQuantities", "Width"}), "0.3 m");
    EXPECT_EQ(copied({"Pset_WallCommon"}), "Pset_WallCommon");
}

TEST_F(HeadlessPropertyGridTest, TheDescriptionIsThatOfTheCurrentRow)
{
    EXPECT_EQ(grid->getDescription(), "");
    auto const rating = grid->findRow({"Pset_WallCommon", "FireRating"});
    rating->setDescription("How long it resists");
    grid->select(rating);
    EXPECT_EQ(grid->getDescription(), "How long it resists");
}

TEST_F(HeadlessPropertyGridTest, TheFirstOfTwoRowsOfOneNameIsFound)
{
    control->addProperty(std::make_unique<PropertyGridProperty>("Twice", "1", "", false));
    control->addProperty(std::make_unique<PropertyGridProperty>("Twice", "2", "", false));
    EXPECT_EQ(grid->findRow({"Twice"})->getState().text, "1");
}

} // namespace
