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
    showWalls(2);
    formatter->colour = qev::attr::Colour{255, 1, 2, 3};
    formatter->readOnlyObjects = {walls[1].get()};
    listFormatter->localObjects = {walls[0].get()};
    auto& window = toolkitList();
    EXPECT_EQ(qev::fireEvent(window.onGetItemText, {}), "C1");
    EXPECT_EQ(qev::fireEvent(window.onGetItemText, {1, std::nullopt}), "C2");
    EXPECT_EQ(qev::fireEvent(window.onGetItemBackgroundColour, {}), formatter->colour);
    EXPECT_TRUE(qev::fireEvent(window.onDoesItemContainLocalValue, {}));
    EXPECT_EQ(qev::fireEvent(window.onLabelEditBegin, ListControl::LabelEditBeginParams{{{}}}).editType, 1u);
    auto params = end("Code", {}, "C9");
    params.items = {{}};
    qev::fireEvent(window.onLabelEditEnd, params);
    EXPECT_EQ(stored(walls[0], "Code"), label("C9"));

    ListControl::ItemInfo const box{std::nullopt, column("IsExternal")};
    EXPECT_EQ(qev::fireEvent(window.onGetCheckState, box), CheckState::Unchecked);
    qev::fireEvent(window.onCheckBoxClicked, box, CheckState::Checked);
    EXPECT_EQ(stored(walls[0], "IsExternal").getAsString(false), "true");

    std::vector<FcBase const*> asked;
    control->itemActivatedHandlers.iHandlerAdd([&](FcBase& object) { asked.push_back(&object); });
    control->itemContextMenuCommandHandlers.iHandlerAdd(
        [&](FcBase& object, ColumnPropertyNames const& names, int /*command*/) {
            asked.push_back(&object);
            EXPECT_EQ(names.propertyName, "Code");
        });
    qev::fireEvent(window.onItemActivated, {});
    qev::fireEvent(window.onContextMenuCommand, {}, 0);
    EXPECT_THAT(asked, ElementsAre(walls[0].get(), walls[0].get()));
}

TEST_F(PropertySetListControlTest, AfterNewObjectsTheFormatterIsToldOfTheSameRowAgain)
{
    showWalls(2);
    formatter->disabledObjects = {walls[1].get()};
    EXPECT_EQ(text(1, "Code"), "");
    show({walls[1], walls[0]});
    EXPECT_EQ(text(1, "Code"), "C1");
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

TEST_F(PropertySetListControlTest, ABoxIsForTheObjectThatTheFormatterWasToldLast)
{
    showWalls(2);
    ListControl::ItemInfo const item{1, column("IsExternal")};
    (void)text(0, "Code");
    formatter->log.clear();
    formatter->disabledObjects = {walls[0].get()};
    EXPECT_EQ(qev::fireEvent(toolkitList().onGetCheckState, item), std::nullopt);
    EXPECT_THAT(formatter->log, IsEmpty());
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

TEST_F(PropertySetListControlTest, AResetOfSeveralRowsIsOneStep)
{
    class Renaming : public ToyListFormatter
    {
    public:
        void onResetItemToGlobalValue(std::string const& /*setName*/, std::string const& /*name*/) override
        {
            std::static_pointer_cast<core::kernel::FcObjectDefinition>(objects.back())->Name = "global";
        }
    };
    listFormatter = std::make_shared<Renaming>();
    showWalls(2);
    list().select({0, 1});
    list().resetToGlobalValues(column("Code"));
    EXPECT_EQ(walls[1]->getAttributeAsString("Name"), "global");
    model.data()->changes().undo();
    EXPECT_EQ(walls[0]->getAttributeAsString("Name"), "W1");
    EXPECT_EQ(walls[1]->getAttributeAsString("Name"), "W2");
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
    qev::fireEvent(toolkitList().onContextMenuCommand, ListControl::ItemInfo{2, 0}, 0);
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

TEST_F(PropertySetListControlTest, AReplacedObjectIsNotToldToFormattersThatAreAtItsRow)
{
    showWalls(1);
    (void)text(0, "Code");
    (void)list().containsLocalValue(0, 0);
    formatter->log.clear();
    listFormatter->log.clear();
    control->updateObjects({{0, model.wall("W9")}});
    (void)text(0, "Code");
    (void)list().containsLocalValue(0, 0);
    EXPECT_THAT(formatter->log, IsEmpty());
    EXPECT_THAT(listFormatter->log, IsEmpty());
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
