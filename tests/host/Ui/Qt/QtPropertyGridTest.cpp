#include "QtPropertyGridTest.h"

#include "Ui/Qt/PropertyGrid/QtPropertyGridDelegate.h"

#include <QComboBox>
#include <QLineEdit>
#include <QScrollBar>

namespace qev::test {
namespace {

using namespace ui;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

TEST_F(QtPropertyGridTest, ShowsNamesAndValuesInTwoColumns)
{
    EXPECT_EQ(model.rowCount(), 2);
    EXPECT_EQ(value(nameRow), "Wall 1");
    EXPECT_THAT(value(widthRow), testing::EndsWith(" m"));
    EXPECT_TRUE(view.isExpanded(index({"Attributes"}, 0)));
}

TEST_F(QtPropertyGridTest, TypingReplacesTheValueAndEnterCommits)
{
    select(nameRow);
    type("New");
    EXPECT_EQ(value(nameRow), "Wall 1");
    key(Qt::Key_Return);
    EXPECT_EQ(value(nameRow), "New");
    EXPECT_THAT(changes, ElementsAre("Name=New"));
    EXPECT_EQ(editor<QLineEdit>(nameRow), nullptr);
}

TEST_F(QtPropertyGridTest, EscapeKeepsTheOldValue)
{
    select(nameRow);
    type("New");
    key(Qt::Key_Escape);
    EXPECT_EQ(value(nameRow), "Wall 1");
    EXPECT_THAT(changes, IsEmpty());
}

TEST_F(QtPropertyGridTest, EditorOpensWithAllDigitsByF2AndByEnter)
{
    for (auto const opening : {Qt::Key_F2, Qt::Key_Return}) {
        select(widthRow);
        key(opening);
        auto const* const line = editor<QLineEdit>(widthRow);
        ASSERT_NE(line, nullptr);
        EXPECT_EQ(line->text(), "0.123456789");
        key(Qt::Key_Return);
        EXPECT_THAT(changes, IsEmpty());
    }
}

TEST_F(QtPropertyGridTest, NumbersAreReadWithTheirUnit)
{
    select(widthRow);
    type("25 cm");
    key(Qt::Key_Return);
    EXPECT_EQ(value(widthRow), "0.25 m");
}

TEST_F(QtPropertyGridTest, RefusedTextSaysWhyAndKeepsTheValue)
{
    auto const before = value(widthRow);
    select(widthRow);
    type("wide");
    key(Qt::Key_Return);
    EXPECT_EQ(value(widthRow), before);
    EXPECT_THAT(changes, IsEmpty());
    EXPECT_THAT(fromQString(view.getMessage()), HasSubstr("wide"));
    key(Qt::Key_Up);
    EXPECT_EQ(view.getMessage(), "");
}

TEST_F(QtPropertyGridTest, ReadOnlyRowsOpenNoEditor)
{
    Path const row{"Attributes", "GlobalId"};
    select(row);
    key(Qt::Key_F2);
    type("x");
    EXPECT_EQ(view.indexWidget(index(row)), nullptr);
    EXPECT_EQ(value(row), "0abc");
}

TEST_F(QtPropertyGridTest, TabCommitsAndGoesOnToTheNextRowThatCanBeChanged)
{
    select(nameRow);
    type("New");
    key(Qt::Key_Tab);
    EXPECT_EQ(value(nameRow), "New");
    EXPECT_EQ(current(), "Width");
    ASSERT_NE(editor<QLineEdit>(widthRow), nullptr);
    key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(current(), "Name");
    EXPECT_NE(editor<QLineEdit>(nameRow), nullptr);
}

TEST_F(QtPropertyGridTest, TabGoesOnAlsoWhenTheChangeMakesTheRowsAnew)
{
    refillOnChange = true;
    select(nameRow);
    type("New");
    key(Qt::Key_Tab);
    EXPECT_THAT(changes, ElementsAre("Name=New"));
    EXPECT_EQ(current(), "Width");
    EXPECT_NE(editor<QLineEdit>(widthRow), nullptr);
}

TEST_F(QtPropertyGridTest, SpaceTogglesTheCheckBox)
{
    select(externalRow);
    key(Qt::Key_Space);
    key(Qt::Key_Space);
    EXPECT_THAT(clicks, ElementsAre(CheckState::Checked, CheckState::Unchecked));
}

TEST_F(QtPropertyGridTest, OneClickTogglesTheCheckBoxAndADoubleClickTwice)
{
    auto const position = layout(externalRow).checkBox.center();
    click(position);
    EXPECT_EQ(index(externalRow).data(Qt::CheckStateRole), Qt::Checked);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, position);
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, position);
    EXPECT_EQ(clicks.size() % 2, 0u);
}

TEST_F(QtPropertyGridTest, ClickBesideTheCheckBoxTogglesNothing)
{
    auto const cell = view.visualRect(index(externalRow));
    click(QPoint(cell.right() - 5, cell.center().y()));
    EXPECT_THAT(clicks, IsEmpty());
}

TEST_F(QtPropertyGridTest, DisabledCheckBoxStaysAsItIs)
{
    QtPropertyGridItemModel::getRow(index(externalRow))->enable(false);
    click(layout(externalRow).checkBox.center());
    select(externalRow);
    key(Qt::Key_Space);
    EXPECT_THAT(clicks, IsEmpty());
}

TEST_F(QtPropertyGridTest, AltDownOpensTheChoicesAndAChoiceIsCommitted)
{
    select(ratingRow);
    QTest::keyClick(&view, Qt::Key_Down, Qt::AltModifier);
    auto* const combo = editor<QComboBox>(ratingRow);
    ASSERT_NE(combo, nullptr);
    EXPECT_FALSE(combo->isEditable());
    EXPECT_TRUE(combo->view()->isVisible());
    EXPECT_EQ(combo->currentText(), "F30");
    combo->setCurrentIndex(2);
    emit combo->activated(2);
    settle();
    EXPECT_EQ(value(ratingRow), "F90");
    EXPECT_THAT(changes, ElementsAre("FireRating=F90"));
}

TEST_F(QtPropertyGridTest, ChoicesThatAllowOtherTextsCanBeTypedIn)
{
    select(statusRow);
    type("f3");
    auto const* const combo = editor<QComboBox>(statusRow);
    ASSERT_NE(combo, nullptr);
    EXPECT_TRUE(combo->isEditable());
    EXPECT_EQ(combo->currentText(), "f3");
    key(Qt::Key_Return);
    EXPECT_EQ(value(statusRow), "f3");
}

TEST_F(QtPropertyGridTest, ValueOutsideOfTheChoicesStaysWhenNothingIsChosen)
{
    QtPropertyGridItemModel::getRow(index(ratingRow))->setText("F45");
    select(ratingRow);
    key(Qt::Key_F2);
    ASSERT_NE(editor<QComboBox>(ratingRow), nullptr);
    key(Qt::Key_Return);
    EXPECT_EQ(value(ratingRow), "F45");
    EXPECT_THAT(changes, IsEmpty());
}

TEST_F(QtPropertyGridTest, DeleteClearsTheValue)
{
    select(widthRow);
    key(Qt::Key_Delete);
    EXPECT_EQ(value(widthRow), "");
    EXPECT_THAT(changes, ElementsAre("Width="));
    select({"Attributes", "GlobalId"});
    key(Qt::Key_Delete);
    EXPECT_EQ(value({"Attributes", "GlobalId"}), "0abc");
    EXPECT_NE(view.getMessage(), "");
}

TEST_F(QtPropertyGridTest, PlaceStaysWhenTheRowsAreMadeAnew)
{
    addMore = [](PropertyGridProperty& set) {
        for (int number = 0; number < 60; ++number)
            set.addSubProperty(*text("Row " + std::to_string(number), "x"));
    };
    fill();
    select({"Pset_WallCommon", "Row 40"});
    auto const scroll = view.verticalScrollBar()->value();
    ASSERT_GT(scroll, 0);
    fill();
    EXPECT_EQ(current(), "Row 40");
    EXPECT_EQ(view.verticalScrollBar()->value(), scroll);
}

TEST_F(QtPropertyGridTest, PlaceStaysWithoutACallToLayOut)
{
    select(statusRow);
    refillOnChange = false;
    control->removeAllProperties();
    auto set = std::make_unique<PropertyGridProperty>("Pset_WallCommon");
    set->addSubProperty(*text("Status", "x"));
    control->addProperty(std::move(set));
    settle();
    EXPECT_EQ(current(), "Status");
}

TEST_F(QtPropertyGridTest, ButtonRunsItsHandlers)
{
    std::vector<std::string> pressed;
    addMore = [&](PropertyGridProperty& set) {
        PropertyGridCustomButtonProperty row("Reference", nullptr,
                                             PropertyGridCustomButtonProperty::VisibleState::Visible,
                                             std::string("R1"), "");
        row.getOnButtonClickedHandlers(control).iHandlerAdd(
            [&](auto&, PropertyGridCustomButtonProperty&, std::string const& shown) {
                pressed.push_back(shown);
            });
        set.addSubProperty(row);
    };
    fill();
    settle();
    click(layout({"Pset_WallCommon", "Reference"}).button.center());
    EXPECT_THAT(pressed, ElementsAre("R1"));
}

TEST_F(QtPropertyGridTest, OneClickOnAValueOpensItsEditor)
{
    click(nameRow);
    EXPECT_NE(editor<QLineEdit>(nameRow), nullptr);
}

TEST_F(QtPropertyGridTest, DescriptionOfTheCurrentRowIsShownBelow)
{
    select(nameRow);
    EXPECT_EQ(grid.getDescriptionText(), "Name\nAbout Name");
    select(widthRow);
    EXPECT_EQ(grid.getDescriptionText(), "Width\nAbout Width");
}

TEST_F(QtPropertyGridTest, ChangeFromElsewhereDoesNotOverwriteWhatIsBeingTyped)
{
    select(nameRow);
    type("Ne");
    QtPropertyGridItemModel::getRow(index(nameRow))->setDescription("other");
    settle();
    type("w");
    key(Qt::Key_Return);
    EXPECT_THAT(changes, ElementsAre("Name=New"));
}

TEST_F(QtPropertyGridTest, EmptyLinesCannotBecomeCurrent)
{
    addMore = [](PropertyGridProperty& set) {
        PropertyGridEmptyLineProperty line;
        set.addSubProperty(line);
        set.addSubProperty(*text("Last", "x"));
    };
    fill();
    select(externalRow);
    key(Qt::Key_Down);
    EXPECT_EQ(current(), "Last");
}

TEST_F(QtPropertyGridTest, TextsAreReadableOnAnyBackground)
{
    EXPECT_EQ(QtCellDrawing::getReadableOn(QColor(255, 255, 200)), QColor(Qt::black));
    EXPECT_EQ(QtCellDrawing::getReadableOn(QColor(60, 0, 90)), QColor(Qt::white));
    EXPECT_EQ(QtCellDrawing::getReadableOn(QColor(0, 0, 255)), QColor(Qt::white));
    EXPECT_EQ(QtCellDrawing::getReadableOn(QColor(0, 255, 0)), QColor(Qt::black));
}

TEST_F(QtPropertyGridTest, EditorLeavesRoomForCheckBoxAndButton)
{
    addMore = [](PropertyGridProperty& set) {
        PropertyGridCheckBoxProperty row("Load", CheckState::Checked, std::string("text"), "");
        row.showButton(true);
        set.addSubProperty(row);
    };
    fill();
    settle();
    auto const parts = layout({"Pset_WallCommon", "Load"});
    EXPECT_FALSE(parts.checkBox.intersects(parts.value));
    EXPECT_FALSE(parts.button.intersects(parts.value));
    EXPECT_GT(parts.value.width(), 0);
}

} // namespace
} // namespace qev::test
