#include "QtPropertyGridTest.h"

#include <QClipboard>
#include <QLineEdit>
#include <QMimeData>

namespace qev::test {
namespace {

using namespace ui;
using testing::ElementsAre;
using testing::IsEmpty;

/// What keys do to the selected rows, and which row is next.
class QtPropertyGridSelectionTest : public QtPropertyGridTest
{
protected:
    void selectToo(Path const& path)
    {
        view.selectionModel()->select(index(path), QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }

    /// Adds check boxes below the rows there are.
    void addCheckBoxes(std::vector<std::pair<std::string, CheckState>> const& boxes)
    {
        addMore = [boxes](PropertyGridProperty& set) {
            for (auto const& [label, state] : boxes) {
                PropertyGridCheckBoxProperty row(label, state, std::string());
                set.addSubProperty(row);
            }
        };
        fill();
    }
    [[nodiscard]] CheckState stateOf(std::string const& label) const
    {
        return QtPropertyGridItemModel::getRow(index({"Pset_WallCommon", label}))->getCheckState();
    }
};

TEST_F(QtPropertyGridSelectionTest, CopyTakesTheValueOfOneRowAlsoOfAReadOnlyOne)
{
    select({"Attributes", "GlobalId"});
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "0abc");
}

TEST_F(QtPropertyGridSelectionTest, CopyOfSeveralRowsIsATableFromTopToBottom)
{
    name = "a\tb";
    fill();
    select(externalRow);
    view.selectionModel()->select(index(nameRow), QItemSelectionModel::Select | QItemSelectionModel::Rows);
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "Name\t\"a\tb\"\nIsExternal\tfalse\n");
    EXPECT_TRUE(QApplication::clipboard()->mimeData()->hasHtml());
}

TEST_F(QtPropertyGridSelectionTest, CopyTakesTheNameOfAGroupAndTheStateOfACheckBox)
{
    select({"Pset_WallCommon"});
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "Pset_WallCommon");
    select(externalRow);
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "false");
}

TEST_F(QtPropertyGridSelectionTest, CopyTakesTheValueOfADisabledRow)
{
    QtPropertyGridItemModel::getRow(index(nameRow))->enable(false);
    select(nameRow);
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "Wall 1");
}

TEST_F(QtPropertyGridSelectionTest, SpaceGivesAllSelectedCheckBoxesTheNewStateOfTheCurrentOne)
{
    addCheckBoxes(
        {{"A", CheckState::Checked}, {"B", CheckState::Unchecked}, {"C", CheckState::Indeterminate}});
    select({"Pset_WallCommon", "B"});
    selectToo({"Pset_WallCommon", "A"});
    selectToo({"Pset_WallCommon", "C"});
    key(Qt::Key_Space);
    EXPECT_EQ(stateOf("A"), CheckState::Checked);
    EXPECT_EQ(stateOf("B"), CheckState::Checked);
    EXPECT_EQ(stateOf("C"), CheckState::Checked);
    key(Qt::Key_Space);
    EXPECT_EQ(stateOf("A"), CheckState::Unchecked);
    EXPECT_EQ(stateOf("B"), CheckState::Unchecked);
    EXPECT_EQ(stateOf("C"), CheckState::Unchecked);
}

TEST_F(QtPropertyGridSelectionTest, SpaceLeavesReadOnlyCheckBoxesOfTheSelectionAlone)
{
    addCheckBoxes({{"A", CheckState::Unchecked}, {"B", CheckState::Unchecked}});
    QtPropertyGridItemModel::getRow(index({"Pset_WallCommon", "B"}))->allowEdit(false);
    select({"Pset_WallCommon", "A"});
    selectToo({"Pset_WallCommon", "B"});
    key(Qt::Key_Space);
    EXPECT_EQ(stateOf("A"), CheckState::Checked);
    EXPECT_EQ(stateOf("B"), CheckState::Unchecked);
}

TEST_F(QtPropertyGridSelectionTest, DeleteClearsAllSelectedValuesAlsoWhenTheRowsAreMadeAnew)
{
    refillOnChange = true;
    select(widthRow);
    selectToo(nameRow);
    key(Qt::Key_Delete);
    EXPECT_THAT(changes, ElementsAre("Width=", "Name="));
}

TEST_F(QtPropertyGridSelectionTest, DeleteOnAGroupDoesNothing)
{
    select({"Attributes"});
    key(Qt::Key_Delete);
    EXPECT_THAT(changes, IsEmpty());
    EXPECT_EQ(view.getMessage(), "");
}

TEST_F(QtPropertyGridSelectionTest, TabPassesOverRowsThatCannotBeChanged)
{
    addMore = [](PropertyGridProperty& set) {
        auto const disabled = text("Disabled", "x");
        disabled->enable(false);
        set.addSubProperty(*disabled);
        set.addSubProperty(*text("ReadOnly", "x", true));
        PropertyGridEmptyLineProperty line;
        set.addSubProperty(line);
        set.addSubProperty(*text("Last", "x"));
    };
    fill();
    select(externalRow);
    key(Qt::Key_Tab);
    EXPECT_EQ(current(), "Last");
    EXPECT_EQ(view.indexWidget(index({"Pset_WallCommon", "Last"})), nullptr);
    key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(current(), "IsExternal");
}

TEST_F(QtPropertyGridSelectionTest, TabBehindTheLastRowLeavesTheGrid)
{
    auto const next = Window::create<PropertyGridControl>(dialog, 0, 0, {0, 400, 500, 500});
    settle();
    select(externalRow);
    key(Qt::Key_Tab);
    EXPECT_FALSE(view.hasFocus());
    EXPECT_EQ(current(), "IsExternal");
}

TEST_F(QtPropertyGridSelectionTest, TabGoesOnBehindTheRowThatWasEditedWhereTwoGroupsShareAName)
{
    auto second = std::make_unique<PropertyGridProperty>("Attributes");
    second->addSubProperty(*text("Name", "second"));
    second->addSubProperty(*text("Tag", "third"));
    control->addProperty(std::move(second));
    auto const group = model.index(2, 0);
    view.setCurrentIndex(model.index(0, 0, group));
    type("New");
    key(Qt::Key_Tab);
    EXPECT_THAT(changes, ElementsAre("Name=New"));
    EXPECT_EQ(current(), "Tag");
}

TEST_F(QtPropertyGridSelectionTest, AltDownPressesTheButtonOfARowWithoutChoices)
{
    int presses = 0;
    addMore = [&](PropertyGridProperty& set) {
        PropertyGridCustomButtonProperty row("Layers", nullptr,
                                             PropertyGridCustomButtonProperty::VisibleState::Visible,
                                             std::string("Brick"), "");
        row.getOnButtonClickedHandlers(control).iHandlerAdd([&](auto&, auto&, auto&) { ++presses; });
        set.addSubProperty(row);
    };
    fill();
    select({"Pset_WallCommon", "Layers"});
    key(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(presses, 1);
}

TEST_F(QtPropertyGridSelectionTest, ACheckBoxWithAValueTakesSpaceForTheBoxAndTypingForTheValue)
{
    addMore = [](PropertyGridProperty& set) {
        PropertyGridCheckBoxProperty row("Rated", CheckState::Unchecked, std::string("F30"), "");
        set.addSubProperty(row);
    };
    fill();
    Path const rated{"Pset_WallCommon", "Rated"};
    select(rated);
    key(Qt::Key_Space);
    EXPECT_EQ(stateOf("Rated"), CheckState::Checked);
    type("F9");
    key(Qt::Key_Return);
    EXPECT_EQ(value(rated), "F9");
    EXPECT_EQ(stateOf("Rated"), CheckState::Checked);
}

TEST_F(QtPropertyGridSelectionTest, NoInputChangesADisabledRow)
{
    QtPropertyGridItemModel::getRow(index(nameRow))->enable(false);
    select(nameRow);
    key(Qt::Key_F2);
    type("x");
    click(nameRow);
    key(Qt::Key_Delete);
    EXPECT_EQ(view.indexWidget(index(nameRow)), nullptr);
    EXPECT_EQ(value(nameRow), "Wall 1");
    EXPECT_THAT(changes, IsEmpty());
}

TEST_F(QtPropertyGridSelectionTest, AHintIsNoValue)
{
    name.clear();
    fill();
    QtPropertyGridItemModel::getRow(index(nameRow))->setHint("varies");
    select(nameRow);
    key(Qt::Key_F2);
    auto const* const line = editor<QLineEdit>(nameRow);
    ASSERT_NE(line, nullptr);
    EXPECT_EQ(line->placeholderText(), "varies");
    EXPECT_EQ(line->text(), "");
    key(Qt::Key_Return);
    EXPECT_THAT(changes, IsEmpty());
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "");
}

} // namespace
} // namespace qev::test
