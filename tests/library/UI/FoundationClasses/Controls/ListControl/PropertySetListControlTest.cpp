#include "ListControlFixture.h"

#include "Ui/Window/PopupMenu.h"
#include "Ui/Window/ProgressBarInterface.h"

namespace {

using namespace qev::fc;
using namespace qev::fc::ui;
using namespace qev::test;
using qev::ui::CheckState;
using qev::ui::ListControl;
using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

using ControlInterface = PropertySetListControlInterface;

class PropertySetListControlTest : public ListControlFixture
{
};

// --- The window ---------------------------------------------------------------------------------

TEST_F(PropertySetListControlTest, TheListReplacesThePlaceholderOfItsId)
{
    make();

    auto const window = control->getListControl();
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->getDialogControlId(), listId);
    EXPECT_EQ(window->getPlacement(), placeholderPlacement);
    EXPECT_EQ(dialog->getChildWindow(listId), window);
    EXPECT_TRUE(window->isUsingReportStyle());
    EXPECT_EQ(listFormatter->list, window);
}

TEST_F(PropertySetListControlTest, WithoutAPlaceholderThereIsNoWindow)
{
    make(listId + 1);
    EXPECT_EQ(control->getListControl(), nullptr);
    EXPECT_THAT(listFormatter->log, IsEmpty());

    showWalls(2);
    EXPECT_THAT(columnNames(), Contains("Code"));
    control->show();
    control->hide();
    control->setReadOnlyState(true);
    control->updateObjects({{0, walls[1]}});
    EXPECT_THAT(control->getSelectedObjectsAndIndices(), IsEmpty());
    expectControlReport("Assertion failed: Expect to have list control", "getSelectedObjectsAndIndices");
}

TEST_F(PropertySetListControlTest, WithoutADialogThereIsNoWindow)
{
    dialog.reset();
    make();
    EXPECT_EQ(control->getListControl(), nullptr);
}

TEST_F(PropertySetListControlTest, ReadOnlyDisablesTheList)
{
    showWalls(1);
    control->setReadOnlyState(true);
    EXPECT_FALSE(control->getListControl()->isEnabled());
    control->setReadOnlyState(false);
    EXPECT_TRUE(control->getListControl()->isEnabled());
}

TEST_F(PropertySetListControlTest, TheListCanBeHiddenAndShown)
{
    make();
    control->hide();
    EXPECT_FALSE(control->getListControl()->isVisible());
    control->show();
    EXPECT_TRUE(control->getListControl()->isVisible());
}

TEST_F(PropertySetListControlTest, TheWindowOutlivesTheControlWithoutHandlers)
{
    showWalls(1);
    auto const window = control->getListControl();
    control.reset();
    EXPECT_EQ(window->onGetItemText.handlerCount(), 0u);
    EXPECT_EQ(window->onLabelEditEnd.handlerCount(), 0u);
}

TEST_F(PropertySetListControlTest, EachEventOfTheListHasAHandler)
{
    make();
    auto const& window = toolkitList();
    EXPECT_EQ(window.onGetColumnHeaderText.handlerCount(), 1u);
    EXPECT_EQ(window.onGetItemText.handlerCount(), 1u);
    EXPECT_EQ(window.onItemActivated.handlerCount(), 1u);
    EXPECT_EQ(window.onItemSecondaryEvent.handlerCount(), 1u);
    EXPECT_EQ(window.onGetItemBackgroundColour.handlerCount(), 1u);
    EXPECT_EQ(window.onCheckBoxClicked.handlerCount(), 1u);
    EXPECT_EQ(window.onGetCheckState.handlerCount(), 1u);
    EXPECT_EQ(window.onLabelEditBegin.handlerCount(), 1u);
    EXPECT_EQ(window.onLabelEditEnd.handlerCount(), 1u);
    EXPECT_EQ(window.onQueryColumn.handlerCount(), 1u);
    EXPECT_EQ(window.onDoesItemContainLocalValue.handlerCount(), 1u);
    EXPECT_EQ(window.onResetItemsToGlobalValues.handlerCount(), 1u);
    EXPECT_EQ(window.onContextMenu.handlerCount(), 1u);
    EXPECT_EQ(window.onContextMenuCommand.handlerCount(), 1u);
    EXPECT_TRUE(qev::fireEvent(toolkitList().onQueryColumn, 7));
}

// --- Columns ------------------------------------------------------------------------------------

TEST_F(PropertySetListControlTest, EachPropertyOfTheCommonSetsIsAColumn)
{
    showWalls(2);
    EXPECT_THAT(columnNames(),
                ElementsAre("Code", "Length", "IsExternal", "Checked", "Status", "Codes", "Count"));
    EXPECT_EQ(list().getHeaderText(0), "Pset_A.Code");
    EXPECT_EQ(list().getRowCount(), 2u);
    EXPECT_EQ(list().getColumnCount(), 7u);
    EXPECT_THAT(listFormatter->log, ElementsAre("setListControl", "counts 2 7"));
}

TEST_F(PropertySetListControlTest, WithoutObjectsThereAreNoRowsAndNoPropertyColumns)
{
    listFormatter->customColumns = {{"id", "Id", std::nullopt}};
    showWalls(2);
    show({});
    EXPECT_EQ(list().getRowCount(), 0u);
    EXPECT_THAT(columnNames(), ElementsAre("id"));
}

TEST_F(PropertySetListControlTest, TheFilterLeavesOutSetsAndProperties)
{
    filter->excludedSets = {"Pset_B"};
    filter->excludedProperties = {"Length", "Checked", "Codes"};
    showWalls(1);
    EXPECT_THAT(columnNames(), ElementsAre("Code", "IsExternal", "Status"));
}

TEST_F(PropertySetListControlTest, CustomColumnsComeInTheirDeliberateOrder)
{
    filter->excludedProperties = {"Length", "Checked", "Codes", "Status", "Count"};
    listFormatter->customColumns = {{"A", "A", std::nullopt},
                                    {"B", "B", std::nullopt},
                                    {"C", "C", ColumnPropertyNames{"Pset_A", "IsExternal"}},
                                    {"D", "D", ColumnPropertyNames{"Pset_A", "IsExternal"}},
                                    {"E", "E", ColumnPropertyNames{"Pset_A", "Length"}}};
    showWalls(1);
    EXPECT_THAT(columnNames(), ElementsAre("Code", "C", "D", "IsExternal", "E", "B", "A"));
}

TEST_F(PropertySetListControlTest, ColumnsAreHiddenByDefault)
{
    listFormatter->hiddenProperties = {"Length", "Count"};
    showWalls(1);
    EXPECT_TRUE(list().isColumnHidden(column("Length")));
    EXPECT_TRUE(list().isColumnHidden(column("Count")));
    EXPECT_FALSE(list().isColumnHidden(column("Code")));
}

TEST_F(PropertySetListControlTest, BooleansHaveBoxesAndEnumerationsDropLists)
{
    formatter->related = {{"IsExternal", "Code"}};
    showWalls(1);
    EXPECT_EQ(list().getCheckBoxMode(column("Code")), ListControl::BoxWithValue);
    EXPECT_EQ(list().getCheckBoxMode(column("Length")), std::nullopt);
    EXPECT_TRUE(list().isComboBoxColumn(column("Status")));
    EXPECT_FALSE(list().isComboBoxColumn(column("Length")));

    formatter->related = {};
    show({walls.begin(), walls.end()});
    EXPECT_EQ(list().getCheckBoxMode(column("IsExternal")), ListControl::BoxAlone);
    EXPECT_EQ(list().getCheckBoxMode(column("Code")), std::nullopt);
}

TEST_F(PropertySetListControlTest, OtherColumnsTakeNothingOverFromThoseBefore)
{
    listFormatter->hiddenProperties = {"Code"};
    showWalls(1);
    filter->excludedSets = {"Pset_A"};
    show({walls.begin(), walls.end()});
    EXPECT_THAT(columnNames(), ElementsAre("Count"));
    EXPECT_FALSE(list().isColumnHidden(0));
}

TEST_F(PropertySetListControlTest, TheSameColumnsStayAsTheUserArrangedThem)
{
    listFormatter->hiddenProperties = {"Code"};
    showWalls(1);
    list().hideColumn(column("Code"), false);
    list().hideColumn(column("Count"), true);
    show({walls.begin(), walls.end()});
    EXPECT_FALSE(list().isColumnHidden(column("Code")));
    EXPECT_TRUE(list().isColumnHidden(column("Count")));
}

TEST_F(PropertySetListControlTest, TheListIsFilledWhileItDoesNotPaint)
{
    make();
    bool wasSuspended = false;
    class Watcher : public ToyListFormatter
    {
    public:
        std::function<void()> onCounts;
        void onItemAndColumnCountUpdated() override { onCounts(); }
    };
    auto const watcher = std::make_shared<Watcher>();
    listFormatter = watcher;
    backend->addPlaceholder(dialog, listId + 1, placeholderPlacement);
    make(listId + 1);
    watcher->onCounts = [&] { wasSuspended = list().isRedrawSuspended(); };
    showWalls(1);
    EXPECT_TRUE(wasSuspended);
    EXPECT_FALSE(list().isRedrawSuspended());
}

TEST_F(PropertySetListControlTest, WithoutAListFormatterThereAreNoCustomColumns)
{
    listFormatter = nullptr;
    showWalls(1);
    EXPECT_EQ(list().getColumnCount(), 7u);
    EXPECT_FALSE(list().containsLocalValue(0, 0));
    list().select({0});
    list().resetToGlobalValues(0);
    EXPECT_THAT(handled, IsEmpty());
}

TEST_F(PropertySetListControlTest, ResetTakesThePropertiesFromTheColumns)
{
    showWalls(1);
    auto const count = control->getColumns().getColumnCount();
    control->reset();
    EXPECT_EQ(control->getColumns().getColumnCount(), count);
    EXPECT_EQ(control->getColumns().getProperty(0), nullptr);
    EXPECT_THAT(control->getDefinitions(), IsEmpty());
}

TEST_F(PropertySetListControlTest, AColumnThatLosesItsPropertyWhileTheListIsFilledIsReported)
{
    class Resetting : public ToyListFormatter
    {
    public:
        std::function<void()> onAsked;
        [[nodiscard]] bool isPropertyToBeHiddenByDefault(std::string const& /*setName*/,
                                                         std::string const& /*name*/) const override
        {
            onAsked();
            return false;
        }
    };
    auto const resetting = std::make_shared<Resetting>();
    resetting->onAsked = [this] { control->reset(); };
    listFormatter = resetting;
    filter->excludedSets = {"Pset_A"};
    showWalls(1);
    expectControlReport("Property is missing.",
                        "initialiseColumnCheckAndComboBoxes::<lambda_1>::operator ()");
}

TEST_F(PropertySetListControlTest, BetweenResetAndRefreshCellsAreEmpty)
{
    showWalls(1);
    control->reset();
    // The rows are gone too, which the question tells.
    EXPECT_EQ(text(0, "Code"), "");
    EXPECT_THAT(takeReportTexts(), ElementsAre("Index out of range.", "Invalid item index."));
}

// --- Texts --------------------------------------------------------------------------------------

TEST_F(PropertySetListControlTest, EachRowShowsTheValuesOfItsObject)
{
    showWalls(3);
    EXPECT_EQ(text(2, "Code"), "C3");
    EXPECT_EQ(text(0, "Code"), "C1");
    EXPECT_EQ(text(1, "Code"), "C2");
    EXPECT_EQ(text(1, "Status"), "");
}

TEST_F(PropertySetListControlTest, TheFormatterHearsOfAnObjectOnceARow)
{
    showWalls(2);
    formatter->log.clear();
    (void)text(0, "Code");
    (void)text(0, "Length");
    (void)list().getBackgroundColour(0, column("Code"));
    EXPECT_THAT(formatter->log, SizeIs(1));
    (void)text(1, "Code");
    (void)text(0, "Code");
    EXPECT_THAT(formatter->log, SizeIs(3));
}

TEST_F(PropertySetListControlTest, NoCellIsAskedForWhileAProgressBarRuns)
{
    showWalls(1);
    formatter->colour = qev::attr::Colour{255, 1, 2, 3};
    formatter->log.clear();
    {
        RunningProgress const progress;
        EXPECT_EQ(text(0, "Code"), "");
        EXPECT_EQ(list().getBackgroundColour(0, column("Code")), std::nullopt);
        EXPECT_THAT(formatter->log, IsEmpty());
    }
    EXPECT_EQ(text(0, "Code"), "C1");
}

TEST_F(PropertySetListControlTest, ACellOfADisabledPropertyIsBlankWithoutColourAndBox)
{
    showWalls(2);
    model.addSet(walls[0], "Pset_A", {{"IsExternal", boolean(true)}});
    formatter->colour = qev::attr::Colour{255, 1, 2, 3};
    formatter->disabledObjects = {walls[0].get()};

    EXPECT_EQ(text(0, "Code"), "");
    EXPECT_EQ(list().getBackgroundColour(0, column("Code")), std::nullopt);
    EXPECT_EQ(list().getCheckState(0, column("IsExternal")), std::nullopt);
    EXPECT_EQ(text(1, "Code"), "C2");
    EXPECT_EQ(list().getBackgroundColour(1, column("Code")), formatter->colour);
    EXPECT_EQ(list().getCheckState(1, column("IsExternal")), CheckState::Unchecked);
}

TEST_F(PropertySetListControlTest, ARowThatIsNotThereIsReportedAndBlank)
{
    showWalls(1);
    EXPECT_EQ(list().getText(1, 0), "");
    auto const reports = takeReports();
    ASSERT_THAT(reports, SizeIs(2));
    EXPECT_EQ(reports[0].text, "Index out of range.");
    EXPECT_EQ(reports[0].function, "qev::fc::ui::PropertySetListControl::setObjectFromIndexOnFormatter");
    EXPECT_EQ(reports[1].text, "Invalid item index.");
    EXPECT_EQ(reports[1].function, "qev::fc::ui::PropertySetListControl::isStringValueToBeBlankForGivenItem");

    // The formatter is not told of the same row again.
    EXPECT_EQ(list().getText(1, 0), "");
    EXPECT_THAT(takeReportTexts(), ElementsAre("Invalid item index."));
}

TEST_F(PropertySetListControlTest, AnAbsentRowOrColumnIsTheFirst)
{
    showWalls(1);
    EXPECT_EQ(qev::fireEvent(toolkitList().onGetItemText, {}), "C1");
}

TEST_F(PropertySetListControlTest, CustomColumnsHaveTheTextOfTheListFormatter)
{
    listFormatter->customColumns = {{"name", "Name", std::nullopt}};
    showWalls(2);
    EXPECT_EQ(text(1, "name"), "name of W2");
    EXPECT_EQ(text(0, "name"), "name of W1");
    EXPECT_EQ(list().getBackgroundColour(0, column("name")), PropertySetListControl::readOnlyColour());
}

TEST_F(PropertySetListControlTest, ABooleanShowsABoxAndNoText)
{
    showWalls(2);
    model.addSet(walls[0], "Pset_A", {{"IsExternal", boolean(true)}});
    model.addSet(walls[1], "Pset_A", {{"IsExternal", boolean(false)}});
    EXPECT_EQ(text(0, "IsExternal"), "");
    EXPECT_EQ(list().getCheckState(0, column("IsExternal")), CheckState::Checked);
    EXPECT_EQ(list().getCheckState(1, column("IsExternal")), CheckState::Unchecked);
}

TEST_F(PropertySetListControlTest, AToggleThatIsOffShowsNoValue)
{
    formatter->related = {{"IsExternal", "Code"}};
    showWalls(2);
    model.addSet(walls[0], "Pset_A", {{"IsExternal", boolean(true)}});
    EXPECT_EQ(text(0, "Code"), "C1");
    EXPECT_EQ(list().getCheckState(0, column("Code")), CheckState::Checked);
    EXPECT_EQ(text(1, "Code"), "");
    EXPECT_EQ(list().getCheckState(1, column("Code")), CheckState::Unchecked);
    EXPECT_FALSE(list().beginEdit(1, column("Code")));
    EXPECT_TRUE(list().beginEdit(0, column("Code")));
}

TEST_F(PropertySetListControlTest, WithoutAFormatterEverythingIsEnabled)
{
    formatter = nullptr;
    showWalls(1);
    model.addSet(walls[0], "Pset_A", {{"IsExternal", boolean(true)}});
    EXPECT_EQ(text(0, "Code"), "C1");
    EXPECT_EQ(list().getBackgroundColour(0, column("Code")), std::nullopt);
    EXPECT_EQ(list().getCheckState(0, column("IsExternal")), CheckState::Checked);
    EXPECT_TRUE(type(0, "Code", "C9"));
    EXPECT_EQ(text(0, "Code"), "C9");
}

// --- Colours ------------------------------------------------------------------------------------

TEST_F(PropertySetListControlTest, ReadOnlyCellsAreLightGrey)
{
    EXPECT_EQ(PropertySetListControl::readOnlyColour(), (qev::attr::Colour{0xFF, 0xE6, 0xE6, 0xE6}));
    showWalls(2);
    formatter->colour = qev::attr::Colour{255, 1, 2, 3};
    formatter->readOnlyObjects = {walls[0].get()};
    EXPECT_EQ(list().getBackgroundColour(0, column("Code")), PropertySetListControl::readOnlyColour());
    EXPECT_EQ(list().getBackgroundColour(1, column("Code")), formatter->colour);
}

TEST_F(PropertySetListControlTest, AColumnThatIsNotThereHasNoColour)
{
    showWalls(1);
    formatter->colour = qev::attr::Colour{255, 1, 2, 3};
    EXPECT_EQ(list().getBackgroundColour(0, 99), std::nullopt);
    EXPECT_THAT(takeReportTexts(), AllOf(Contains("Column index out of range."), Not(IsEmpty())));
}

// --- Check boxes --------------------------------------------------------------------------------

TEST_F(PropertySetListControlTest, AClickOnABoxStoresTheOtherState)
{
    showWalls(2);
    EXPECT_TRUE(list().clickCheckBox(1, column("IsExternal")));
    EXPECT_EQ(stored(walls[1], "IsExternal").getAsString(false), "true");
    EXPECT_TRUE(stored(walls[0], "IsExternal").isEmpty());
    EXPECT_THAT(handled, ElementsAre("Pset_A IsExternal { 1 }"));
    EXPECT_THAT(list().getRedrawnRows(), ElementsAre(1u));

    EXPECT_TRUE(list().clickCheckBox(1, column("IsExternal")));
    EXPECT_EQ(stored(walls[1], "IsExternal").getAsString(false), "false");
    EXPECT_THAT(formatter->log, Contains("changed Pset_A IsExternal"));
}

TEST_F(PropertySetListControlTest, AClickOnTheBoxOfAToggleSwitchesTheToggle)
{
    formatter->related = {{"IsExternal", "Code"}};
    showWalls(1);
    EXPECT_TRUE(list().clickCheckBox(0, column("Code")));
    EXPECT_EQ(stored(walls[0], "IsExternal").getAsString(false), "true");
    EXPECT_EQ(text(0, "Code"), "C1");
    EXPECT_THAT(handled, ElementsAre("Pset_A IsExternal { 0 }"));
}

TEST_F(PropertySetListControlTest, AnyOtherStateThanCheckedUnchecks)
{
    showWalls(1);
    model.addSet(walls[0], "Pset_A", {{"IsExternal", boolean(true)}});
    ListControl::ItemInfo const item{0, column("IsExternal")};
    qev::fireEvent(toolkitList().onCheckBoxClicked, item, CheckState::Indeterminate);
    EXPECT_EQ(stored(walls[0], "IsExternal").getAsString(false), "false");
}

TEST_F(PropertySetListControlTest, AReadOnlyBoxCannotBeClicked)
{
    showWalls(2);
    formatter->readOnlyObjects = {walls[0].get()};
    EXPECT_FALSE(list().clickCheckBox(0, column("IsExternal")));
    EXPECT_TRUE(list().clickCheckBox(1, column("IsExternal")));
    EXPECT_TRUE(stored(walls[0], "IsExternal").isEmpty());
}

TEST_F(PropertySetListControlTest, OnlyBooleansHaveBoxes)
{
    showWalls(1);
    ListControl::ItemInfo const item{0, column("Code")};
    std::string const report = "Non-boolean properties can't be associated with a check box.";
    EXPECT_EQ(qev::fireEvent(toolkitList().onGetCheckState, item), std::nullopt);
    expectControlReport(report, "onGetCheckBoxState");
    qev::fireEvent(toolkitList().onCheckBoxClicked, item, CheckState::Checked);
    expectControlReport(report, "onCheckBoxClicked");
    EXPECT_THAT(handled, IsEmpty());
}

TEST_F(PropertySetListControlTest, AfterAClickTheListFormatterIsToldTheObjectAgain)
{
    showWalls(1);
    (void)list().containsLocalValue(0, 0);
    list().clickCheckBox(0, column("IsExternal"));
    (void)list().containsLocalValue(0, 0);
    EXPECT_THAT(listFormatter->objects, SizeIs(2));
}

// --- Local values -------------------------------------------------------------------------------

TEST_F(PropertySetListControlTest, TheListFormatterKnowsLocalValues)
{
    showWalls(2);
    listFormatter->localObjects = {walls[1].get()};
    EXPECT_FALSE(list().containsLocalValue(0, 0));
    EXPECT_TRUE(list().containsLocalValue(1, 0));
    EXPECT_TRUE(list().containsLocalValue(1, 1));
    EXPECT_THAT(listFormatter->objects, ElementsAre(walls[0], walls[1]));
}

TEST_F(PropertySetListControlTest, LocalValuesAreResetAndToldToTheHandlersAlone)
{
    showWalls(3);
    formatter->log.clear();
    listFormatter->log.clear();
    list().select({0, 2});
    list().resetToGlobalValues(column("Code"));
    EXPECT_THAT(listFormatter->log,
                ElementsAre("setObject", "reset Pset_A Code", "setObject", "reset Pset_A Code"));
    EXPECT_THAT(listFormatter->objects, ElementsAre(walls[0], walls[2]));
    EXPECT_THAT(handled, ElementsAre("Pset_A Code { 0, 2 }"));
    EXPECT_THAT(formatter->log, IsEmpty());
    EXPECT_THAT(list().getRedrawnRows(), ElementsAre(0u, 2u));

    (void)list().containsLocalValue(2, 0);
    EXPECT_THAT(listFormatter->objects, SizeIs(3));
}

TEST_F(PropertySetListControlTest, AResetOfNoRowsDoesNothing)
{
    showWalls(1);
    qev::fireEvent(toolkitList().onResetItemsToGlobalValues, std::vector<std::size_t>(), std::size_t{0});
    EXPECT_THAT(handled, IsEmpty());
}

TEST_F(PropertySetListControlTest, ALocalValueOfARowThatIsNotThereIsReported)
{
    showWalls(1);
    listFormatter->objects.push_back(walls[0]);
    ListControl::ItemInfo const item{5, 0};
    EXPECT_FALSE(qev::fireEvent(toolkitList().onDoesItemContainLocalValue, item));
    expectControlReport("Index out of range.", "setObjectFromIndexOnListControlFormatter");
}

TEST_F(PropertySetListControlTest, TheListFormatterIsToldOfTheNewObjectInTheSameRow)
{
    showWalls(2);
    (void)list().containsLocalValue(0, 0);
    show({walls[1]});
    (void)list().containsLocalValue(0, 0);
    EXPECT_THAT(listFormatter->objects, ElementsAre(walls[0], walls[1]));
}

// --- Events of rows -----------------------------------------------------------------------------

TEST_F(PropertySetListControlTest, TheHostHearsOfRowsThatAreOpenedAndAskedAbout)
{
    showWalls(2);
    list().activate(0, 0);
    std::vector<std::string> log;
    control->itemActivatedHandlers.iHandlerAdd(
        [&](FcBase& object) { log.push_back("activated " + *object.getAttributeAsString("Name")); });
    control->itemSecondaryHandlers.iHandlerAdd(
        [&](FcBase& object) { log.push_back("asked " + *object.getAttributeAsString("Name")); });
    list().activate(1, 0);
    list().triggerSecondaryEvent(0, 1);
    ListControl::ItemInfo const outside{2, 0};
    qev::fireEvent(toolkitList().onItemActivated, outside);
    qev::fireEvent(toolkitList().onItemSecondaryEvent, outside);
    EXPECT_THAT(log, ElementsAre("activated W2", "asked W1"));
}

TEST_F(PropertySetListControlTest, TheHostFillsTheContextMenuOfACell)
{
    showWalls(2);
    std::vector<std::string> log;
    control->itemContextMenuHandlers.iHandlerAdd(
        [&](FcBase& object, ColumnPropertyNames const& names, qev::ui::PopupMenu& menu) {
            log.push_back("menu " + *object.getAttributeAsString("Name") + " " + names.propertyName);
            menu.iMenuElemAdd(std::make_unique<qev::ui::MenuEntry>("Zoom"));
            menu.iMenuElemAdd(std::make_unique<qev::ui::MenuEntry>("Hide"));
        });
    control->itemContextMenuCommandHandlers.iHandlerAdd(
        [&](FcBase& object, ColumnPropertyNames const& names, int command) {
            log.push_back("command " + *object.getAttributeAsString("Name") + " " + names.propertyName + " " +
                          std::to_string(command));
        });
    backend->setMenuAnswer([](auto const&) { return std::optional<std::size_t>(1); });
    EXPECT_TRUE(list().openContextMenu(1, column("Status")));
    EXPECT_FALSE(list().openContextMenu(2, 0));
    EXPECT_THAT(log, ElementsAre("menu W2 Status", "command W2 Status 1"));
}

TEST_F(PropertySetListControlTest, WithoutHandlersNoMenuOpens)
{
    showWalls(1);
    EXPECT_FALSE(list().openContextMenu(0, 99));
    qev::fireEvent(toolkitList().onContextMenuCommand, ListControl::ItemInfo{0, 99}, 0);
}

// --- Selection and objects ----------------------------------------------------------------------

TEST_F(PropertySetListControlTest, TheSelectedObjectsComeWithTheirRows)
{
    showWalls(3);
    list().select({0, 2});
    ControlInterface const& asInterface = *control;
    auto const selected = asInterface.getSelectedObjectsAndIndices();
    ASSERT_THAT(selected, SizeIs(2));
    EXPECT_EQ(selected[0].first, walls[0]);
    EXPECT_EQ(selected[0].second, 0u);
    EXPECT_EQ(selected[1].first, walls[2]);
    EXPECT_EQ(selected[1].second, 2u);
}

TEST_F(PropertySetListControlTest, ASelectedRowWithoutAnObjectIsReportedAndPassedOver)
{
    showWalls(1);
    toolkitList().setItemAndColumnCounts(2, 7);
    list().select({0, 1});
    EXPECT_THAT(control->getSelectedObjectsAndIndices(), SizeIs(1));
    expectControlReport("Index out of range.", "getSelectedObjectsAndIndices");
}

TEST_F(PropertySetListControlTest, ObjectsOfRowsAreReplaced)
{
    showWalls(2);
    auto const other = model.wall("W9");
    model.addSet(other, "Pset_A", {{"Code", label("C9")}});
    auto const columnsBefore = list().getColumnCount();

    control->updateObjects({{1, other}, {2, other}});

    expectControlReport("Index out of range.", "updateObjects");
    EXPECT_EQ(text(1, "Code"), "C9");
    EXPECT_EQ(text(0, "Code"), "C1");
    EXPECT_THAT(list().getRedrawnRows(), ElementsAre(1u));
    EXPECT_EQ(list().getColumnCount(), columnsBefore);
}

TEST_F(PropertySetListControlTest, AReplacedObjectIsNotToldToAFormatterThatIsAtItsRow)
{
    showWalls(1);
    (void)text(0, "Code");
    formatter->log.clear();
    control->updateObjects({{0, model.wall("W9")}});
    (void)text(0, "Code");
    EXPECT_THAT(formatter->log, IsEmpty());
}

TEST_F(PropertySetListControlTest, AnObjectWithoutSetsOfItsOwnShowsEmptyCells)
{
    auto const bare = model.wall("W1");
    auto const full = model.wall("W2");
    model.addSet(full, "Pset_A", {{"Code", label("C2")}});
    show({bare, full});
    EXPECT_EQ(text(0, "Code"), "");
    EXPECT_EQ(text(1, "Code"), "C2");
    EXPECT_EQ(text(0, "Codes"), "");
}

TEST_F(PropertySetListControlTest, TheSetsComeFromTheFirstObjectWhereNoSchemaKnowsThem)
{
    auto const first = model.wall("W1");
    auto const second = model.wall("W2");
    model.addSet(first, "Own", {{"Mark", label("M1")}});
    model.addSet(second, "Own", {{"Mark", label("M2")}});
    show({first, second});
    EXPECT_EQ(text(0, "Mark"), "M1");
    EXPECT_EQ(text(1, "Mark"), "M2");
}

TEST_F(PropertySetListControlTest, ShowingManyObjectsAsksForNoCell)
{
    showWalls(1);
    formatter->log.clear();
    listFormatter->objects.clear();
    std::vector<std::shared_ptr<FcBase>> const many(1000, walls[0]);
    show(many);
    // The control tells the formatter its first object; rows are asked for as they are painted.
    EXPECT_THAT(formatter->log, ElementsAre("setObject"));
    EXPECT_THAT(listFormatter->objects, IsEmpty());
}

// --- What editors and sorting ask ---------------------------------------------------------------

TEST_F(PropertySetListControlTest, EditorsOpenWithAllDigits)
{
    showWalls(3);
    model.addSet(walls[0], "Pset_A", {{"Length", length(2.3456789)}, {"IsExternal", boolean(false)}});
    model.addSet(walls[1], "Pset_B", {{"Count", integer(4)}});
    auto const editText = [&](std::size_t row, std::string const& name) {
        return qev::fireEvent(toolkitList().onGetItemEditText, ListControl::ItemInfo{row, column(name)});
    };
    EXPECT_EQ(editText(0, "Length"), "2.3456789");
    EXPECT_NE(text(0, "Length"), "2.3456789");
    EXPECT_EQ(editText(1, "Length"), "");
    EXPECT_EQ(editText(1, "Count"), "4");
    EXPECT_EQ(editText(0, "Code"), "C1");
    EXPECT_EQ(editText(0, "IsExternal"), "FALSE");
    EXPECT_EQ(editText(1, "IsExternal"), "");
    formatter->disabledObjects = {walls[2].get()};
    EXPECT_EQ(editText(2, "Code"), "");
}

TEST_F(PropertySetListControlTest, NumbersToSortByAreThoseOfTheModel)
{
    showWalls(2);
    model.addSet(walls[0], "Pset_A", {{"Length", length(2.3456789)}});
    auto const numberOf = [&](std::size_t row, std::string const& name) {
        return qev::fireEvent(toolkitList().onGetItemNumber, ListControl::ItemInfo{row, column(name)});
    };
    EXPECT_EQ(numberOf(0, "Length"), 2.3456789);
    EXPECT_EQ(numberOf(1, "Length"), std::nullopt);
    EXPECT_EQ(numberOf(0, "Code"), std::nullopt);
}

} // namespace
