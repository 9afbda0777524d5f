#include "QtUiTest.h"
#include "Ui/PropertyGrid/PropertyGridEditing.h"
#include "Ui/PropertyGrid/PropertyGridRowRecord.h"
#include "Ui/Qt/PropertyGrid/QtPropertyGridDelegate.h"
#include "Ui/Qt/PropertyGrid/QtPropertyGridLayout.h"
#include "Ui/Qt/QtText.h"

#include <functional>
#include <QAbstractItemModelTester>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QMimeData>
#include <QScrollBar>
#include <QTest>
#include <QToolTip>

namespace qev::test {
namespace {

using namespace ui;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

using Path = std::vector<std::string>;

std::unique_ptr<PropertyGridProperty> text(std::string const& name, std::string const& value,
                                           bool readOnly = false)
{
    return std::make_unique<PropertyGridProperty>(name, value, "About " + name, readOnly);
}

std::unique_ptr<PropertyGridProperty> length(std::string const& name, double metres)
{
    auto row = std::make_unique<PropertyGridProperty>(name, metres, "About " + name, false);
    row->setQuantityPresentation(unit::createPresentationForMeasure("LengthMeasure"));
    return row;
}

std::unique_ptr<PropertyGridProperty> choice(std::string const& name, std::string const& value,
                                             bool optionsOnly)
{
    auto row = text(name, value);
    for (auto const* const option : {"F30", "F60", "F90"})
        row->addOption(option);
    row->setOptionsOnly(optionsOnly);
    return row;
}

class QtPropertyGridTest : public QtUiTest
{
protected:
    QtPropertyGridTest()
        : control(Window::create<PropertyGridControl>(dialog, 0, 0, {0, 0, 500, 400}))
        , grid(*backend->getPropertyGrid(*control))
        , view(grid.getView())
        , model(grid.getItemModel())
        , tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal)
    {
        control->onPropertyChanged.iHandlerAdd([this](auto&, PropertyGridProperty& property) {
            std::string value;
            property.getStringValue(value);
            changes.push_back(property.getName() + "=" + value);
            if (refillOnChange)
                fill();
        });
        fill();
        QApplication::setActiveWindow(backend->getWidget(dialog->getHandle()));
        view.setFocus();
        settle();
    }

    /// What the rows are made of; tests add to it.
    std::function<void(PropertyGridProperty&)> addMore = [](PropertyGridProperty&) {};

    void fill()
    {
        control->removeAllProperties();
        auto attributes = std::make_unique<PropertyGridProperty>("Attributes");
        for (auto& row : {text("GlobalId", "0abc", true), text("Name", name)})
            attributes->addSubProperty(*row);
        auto set = std::make_unique<PropertyGridProperty>("Pset_WallCommon");
        std::vector<std::unique_ptr<PropertyGridProperty>> rows;
        rows.push_back(length("Width", 0.123456789));
        rows.push_back(choice("FireRating", "F30", true));
        rows.push_back(choice("Status", "F60", false));
        auto external = std::make_unique<PropertyGridCheckBoxProperty>("IsExternal", CheckState::Unchecked,
                                                                       std::string("About IsExternal"));
        external->getOnCheckBoxClickedHandlers(control).iHandlerAdd(
            [this](auto&, PropertyGridCheckBoxProperty& property) {
                clicks.push_back(property.getCheckState());
            });
        rows.push_back(std::move(external));
        for (auto const& row : rows)
            set->addSubProperty(*row);
        addMore(*set);
        control->addProperty(std::move(attributes));
        control->addProperty(std::move(set));
        control->adjustLayout();
    }

    [[nodiscard]] QModelIndex index(Path const& path, int column = QtPropertyGridItemModel::valueColumn) const
    {
        QModelIndex found;
        for (auto const& step : path) {
            auto const matches = model.match(model.index(0, 0, found), Qt::DisplayRole, toQString(step), 1,
                                             Qt::MatchExactly | Qt::MatchCaseSensitive);
            if (matches.isEmpty())
                return {};
            found = matches.front();
        }
        return found.siblingAtColumn(column);
    }
    [[nodiscard]] std::string value(Path const& path) const
    {
        return fromQString(index(path).data(Qt::DisplayRole).toString());
    }
    [[nodiscard]] std::string current() const
    {
        auto const* const row = QtPropertyGridItemModel::getRow(view.currentIndex());
        return row ? row->getName() : "";
    }
    void select(Path const& path)
    {
        view.selectionModel()->setCurrentIndex(index(path, 0), QItemSelectionModel::ClearAndSelect |
                                                                   QItemSelectionModel::Rows);
    }
    void click(QPoint const& position)
    {
        QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, position);
    }
    void click(Path const& path) { click(view.visualRect(index(path)).center()); }
    void key(Qt::Key pressed, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        auto* const target = QApplication::focusWidget();
        ASSERT_NE(target, nullptr);
        QTest::keyClick(target, pressed, modifiers);
        settle();
    }
    void type(char const* typed)
    {
        for (; *typed; ++typed)
            QTest::keyClick(QApplication::focusWidget(), *typed);
    }
    template <class Editor>
    [[nodiscard]] Editor* editor(Path const& path) const
    {
        return qobject_cast<Editor*>(view.indexWidget(index(path)));
    }
    [[nodiscard]] QtPropertyGridLayout layout(Path const& path) const
    {
        QStyleOptionViewItem option;
        option.initFrom(&view);
        option.widget = &view;
        option.rect = view.visualRect(index(path));
        return QtPropertyGridLayout::of(*QtPropertyGridItemModel::getRow(index(path)), option);
    }

    std::string name = "Wall 1";
    std::shared_ptr<PropertyGridControl> control;
    QtPropertyGrid& grid;
    QtPropertyGridView& view;
    QtPropertyGridItemModel& model;
    QAbstractItemModelTester tester;
    bool refillOnChange = false;
    std::vector<std::string> changes;
    std::vector<CheckState> clicks;

    Path const nameRow{"Attributes", "Name"};
    Path const widthRow{"Pset_WallCommon", "Width"};
    Path const ratingRow{"Pset_WallCommon", "FireRating"};
    Path const statusRow{"Pset_WallCommon", "Status"};
    Path const externalRow{"Pset_WallCommon", "IsExternal"};
};

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

TEST_F(QtPropertyGridTest, CopyTakesTheValueOfOneRowAlsoOfAReadOnlyOne)
{
    select({"Attributes", "GlobalId"});
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "0abc");
}

TEST_F(QtPropertyGridTest, CopyOfSeveralRowsIsATableFromTopToBottom)
{
    name = "a\tb";
    fill();
    select(externalRow);
    view.selectionModel()->select(index(nameRow), QItemSelectionModel::Select | QItemSelectionModel::Rows);
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "Name\t\"a\tb\"\nIsExternal\tfalse\n");
    EXPECT_TRUE(QApplication::clipboard()->mimeData()->hasHtml());
}

TEST_F(QtPropertyGridTest, FoldedGroupsStayFoldedByNameWhenTheRowsAreMadeAnew)
{
    view.collapse(index({"Attributes"}, 0));
    fill();
    EXPECT_FALSE(view.isExpanded(index({"Attributes"}, 0)));
    EXPECT_TRUE(view.isExpanded(index({"Pset_WallCommon"}, 0)));
    view.expand(index({"Attributes"}, 0));
    fill();
    EXPECT_TRUE(view.isExpanded(index({"Attributes"}, 0)));
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

TEST_F(QtPropertyGridTest, SplitIsDraggedBetweenTheRowsAndKept)
{
    auto const before = view.header()->sectionSize(0);
    auto const y = view.visualRect(index(nameRow)).center().y();
    QPoint const start(before, y);
    QTest::mousePress(view.viewport(), Qt::LeftButton, Qt::NoModifier, start);
    QMouseEvent move(QEvent::MouseMove, QPointF(start + QPoint(50, 0)),
                     view.viewport()->mapToGlobal(QPointF(start + QPoint(50, 0))), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view.viewport(), &move);
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, Qt::NoModifier, start + QPoint(50, 0));
    EXPECT_EQ(view.header()->sectionSize(0), before + 50);
    auto const split = view.getSplit();

    QtPropertyGrid other;
    EXPECT_TRUE(other.restoreLayout(grid.saveLayout()));
    EXPECT_DOUBLE_EQ(other.getView().getSplit(), split);
    EXPECT_FALSE(other.restoreLayout("nonsense"));

    control->setPlacement({0, 0, 250, 400});
    settle();
    EXPECT_NEAR(view.header()->sectionSize(0), split * view.viewport()->width(), 1);
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
    EXPECT_EQ(QtPropertyGridDelegate::getReadableOn(QColor(255, 255, 200)), QColor(Qt::black));
    EXPECT_EQ(QtPropertyGridDelegate::getReadableOn(QColor(60, 0, 90)), QColor(Qt::white));
    EXPECT_EQ(QtPropertyGridDelegate::getReadableOn(QColor(0, 0, 255)), QColor(Qt::white));
    EXPECT_EQ(QtPropertyGridDelegate::getReadableOn(QColor(0, 255, 0)), QColor(Qt::black));
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
