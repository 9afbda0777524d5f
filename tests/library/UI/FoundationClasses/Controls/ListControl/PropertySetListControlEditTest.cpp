#include "ListControlFixture.h"

#include "library/kit/TranslationScope.h"
#include "UI/FoundationClasses/Property/FindProperty.h"

#include <cmath>

namespace {

using namespace qev::fc;
using namespace qev::fc::ui;
using namespace qev::test;
using qev::ui::ListControl;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class PropertySetListControlEditTest : public ListControlFixture
{
protected:
    ListControl::LabelEditBeginResultParams beginResult(std::vector<ListControl::ItemInfo> const& items) const
    {
        return qev::fireEvent(toolkitList().onLabelEditBegin, ListControl::LabelEditBeginParams{items});
    }
    void finish(ListControl::LabelEditEndParams const& params) const
    {
        qev::fireEvent(toolkitList().onLabelEditEnd, params);
    }
};

// --- Beginning ----------------------------------------------------------------------------------

TEST_F(PropertySetListControlEditTest, SingleValuesHaveAnEditBoxAndEnumerationsADropList)
{
    showWalls(1);
    EXPECT_EQ(beginResult({{0, column("Code")}}),
              (ListControl::LabelEditBeginResultParams{ListControl::EditBox, {}}));
    EXPECT_EQ(beginResult({{0, column("Length")}}).editType, 1u);
    auto const status = beginResult({{0, column("Status")}});
    EXPECT_EQ(status.editType, 4u);
    EXPECT_THAT(status.items, SizeIs(2));
}

TEST_F(PropertySetListControlEditTest, OtherCellsAreNotEdited)
{
    listFormatter->customColumns = {{"name", "Name", std::nullopt}};
    showWalls(1);
    ListControl::LabelEditBeginResultParams const none;
    EXPECT_EQ(beginResult({}), none);
    for (auto const* const name : {"name", "IsExternal", "Checked", "Codes"})
        EXPECT_EQ(beginResult({{0, column(name)}}), none) << name;
}

TEST_F(PropertySetListControlEditTest, AColumnWithoutAPropertyIsOutOfSync)
{
    showWalls(1);
    auto const codeColumn = column("Code");
    control->reset();
    EXPECT_EQ(beginResult({{0, codeColumn}}).editType, 0u);
    expectControlReport("Column index out of sync.", "onLabelEditBegin");
}

TEST_F(PropertySetListControlEditTest, OneRowThatRefusesStopsTheEditOfAll)
{
    showWalls(3);
    std::vector<ListControl::ItemInfo> const items = {{0, column("Code")}, {1, column("Code")}};
    EXPECT_EQ(beginResult(items).editType, 1u);
    formatter->readOnlyObjects = {walls[1].get()};
    EXPECT_EQ(beginResult(items).editType, 0u);
    formatter->readOnlyObjects = {};
    formatter->disabledObjects = {walls[0].get()};
    EXPECT_EQ(beginResult(items).editType, 0u);
    list().select({0, 1});
    EXPECT_FALSE(type(1, "Code", "X"));
    EXPECT_EQ(stored(walls[1], "Code"), label("C2"));
}

TEST_F(PropertySetListControlEditTest, EachRowOfTheEditIsToldToTheFormatter)
{
    showWalls(2);
    (void)text(0, "Code");
    formatter->objects.clear();
    (void)beginResult({{0, column("Code")}, {1, column("Code")}});
    EXPECT_THAT(formatter->objects, ElementsAre(walls[0], walls[1]));
}

TEST_F(PropertySetListControlEditTest, PaintingGoesOnWithTheRightRowAfterAnEditWasRefused)
{
    showWalls(2);
    formatter->disabledObjects = {walls[1].get()};
    (void)text(0, "Code");
    (void)beginResult({{1, column("Code")}});
    EXPECT_EQ(text(0, "Code"), "C1");
}

TEST_F(PropertySetListControlEditTest, PaintingTellsTheFormatterItsRowAfterAnEditHasBegun)
{
    showWalls(2);
    (void)text(0, "Code");
    (void)beginResult({{1, column("Code")}});
    formatter->objects.clear();
    (void)text(1, "Code");
    EXPECT_THAT(formatter->objects, ElementsAre(walls[1]));
    (void)text(0, "Code");
    EXPECT_THAT(formatter->objects, ElementsAre(walls[1], walls[0]));
}

TEST_F(PropertySetListControlEditTest, ARowThatIsNotThereIsReportedAndNotEdited)
{
    showWalls(1);
    EXPECT_EQ(beginResult({{1, column("Code")}}).editType, 0u);
    expectControlReport("Index out of range.", "setObjectBeingEdited");
}

// --- Texts --------------------------------------------------------------------------------------

TEST_F(PropertySetListControlEditTest, ATextIsStoredInAllRowsOfTheEdit)
{
    showWalls(3);
    list().select({0, 2});
    EXPECT_TRUE(type(2, "Code", "C9"));
    EXPECT_EQ(stored(walls[0], "Code"), label("C9"));
    EXPECT_EQ(stored(walls[1], "Code"), label("C2"));
    EXPECT_EQ(stored(walls[2], "Code"), label("C9"));
    EXPECT_THAT(handled, ElementsAre("Pset_A Code { 0, 2 }"));
    EXPECT_THAT(formatter->log, Contains("changed Pset_A Code").Times(2));
}

TEST_F(PropertySetListControlEditTest, AnEditOfManyRowsIsOneStep)
{
    showWalls(3);
    list().select({0, 1, 2});
    type(0, "Code", "C9");
    EXPECT_EQ(model.data()->changes().undoName(), "Pset_A.Code");
    model.data()->changes().undo();
    EXPECT_EQ(text(0, "Code"), "C1");
    EXPECT_EQ(text(1, "Code"), "C2");
    EXPECT_EQ(text(2, "Code"), "C3");
}

TEST_F(PropertySetListControlEditTest, AnEditThatWasNotAcceptedChangesNothing)
{
    showWalls(1);
    auto params = end("Code", {0}, "C9");
    params.accepted = false;
    finish(params);
    EXPECT_EQ(stored(walls[0], "Code"), label("C1"));
    EXPECT_THAT(handled, IsEmpty());
}

TEST_F(PropertySetListControlEditTest, AnEditOfNoItemsIsReported)
{
    showWalls(1);
    finish(end("Code", {}, "C9"));
    expectReport("No items are being edited.", "qev::ui::ListControl::LabelEditEndParams::getColumnIndex",
                 "Ui/Window/Controls/ListControl/LabelEditParams");
    EXPECT_THAT(handled, IsEmpty());
}

TEST_F(PropertySetListControlEditTest, AnEditWithoutAPropertyIsReported)
{
    showWalls(1);
    auto params = end("Code", {0}, "C9");
    params.items = {{0, 99}};
    finish(params);
    EXPECT_THAT(takeReportTexts(),
                ElementsAre("Column index out of range.", "Unable to fetch property from column."));
    auto const later = end("Code", {0}, "C9");
    control->reset();
    finish(later);
    expectControlReport("Unable to fetch property from column.", "onLabelEditEnd");
}

TEST_F(PropertySetListControlEditTest, AnEditOfAnotherKindOfPropertyIsReported)
{
    showWalls(1);
    finish(end("Codes", {0}, "C9"));
    expectControlReport("Unsupported property type for doring label edit.", "onLabelEditEnd");
    finish(end("Checked", {0}, "true"));
    expectControlReport("Unsupported property type for doring label edit.", "onLabelEditEnd");
    EXPECT_THAT(handled, IsEmpty());
}

TEST_F(PropertySetListControlEditTest, AfterAnEditThatWasReportedTheFormatterIsToldOfTheRowAgain)
{
    showWalls(1);
    (void)text(0, "Code");
    formatter->objects.clear();
    finish(end("Codes", {0}, "C9"));
    expectControlReport("Unsupported property type for doring label edit.", "onLabelEditEnd");
    (void)text(0, "Code");
    EXPECT_THAT(formatter->objects, ElementsAre(walls[0]));
}

TEST_F(PropertySetListControlEditTest, ARowBelowTheLastIsReportedAndPassedOver)
{
    showWalls(1);
    finish(end("Code", {1, 0}, "C9"));
    expectControlReport("Index out of range.", "setObjectBeingEdited");
    EXPECT_EQ(stored(walls[0], "Code"), label("C9"));
    EXPECT_THAT(handled, ElementsAre("Pset_A Code { 0 }"));
}

TEST_F(PropertySetListControlEditTest, AllRowsAreToldOfWhenOneRefuses)
{
    auto const first = model.wall("W1");
    auto const second = model.wall("W2");
    auto const third = model.wall("W3");
    model.addSet(first, "Pset_B", {{"Count", integer(1)}});
    model.addSet(second, "Pset_B", {{"Count", label("one")}});
    model.addSet(third, "Pset_B", {{"Count", integer(3)}});
    show({first, second, third});

    auto params = end("Count", {0, 1, 2}, "x7");
    params.refusedItems = std::make_shared<std::vector<ListControl::ItemInfo>>();
    finish(params);

    EXPECT_THAT(handled, ElementsAre("Pset_B Count { 0, 1, 2 }"));
    EXPECT_EQ(text(1, "Count"), "x7");
    EXPECT_THAT(*params.refusedItems, ElementsAre(ListControl::ItemInfo{0, column("Count")},
                                                  ListControl::ItemInfo{2, column("Count")}));
    EXPECT_EQ(text(0, "Count"), "1.000000");
}

TEST_F(PropertySetListControlEditTest, AnEmptyTextTakesTheValueAway)
{
    showWalls(1);
    model.addSet(walls[0], "Pset_A", {{"Length", length(2)}});
    EXPECT_TRUE(type(0, "Code", ""));
    EXPECT_TRUE(stored(walls[0], "Code").isEmpty());
    EXPECT_TRUE(type(0, "Length", ""));
    EXPECT_TRUE(stored(walls[0], "Length").isEmpty());
    // The set went with its last property.
    EXPECT_THAT(takeReportTexts(), ElementsAre("Property set doesn't exist."));
}

TEST_F(PropertySetListControlEditTest, AHandlerMayShowOtherObjects)
{
    showWalls(2);
    control->propertyChangedHandlers.iHandlerAdd(
        [this](std::string const&, std::string const&, std::set<std::size_t> const&) {
            control->setObjects(model.data(), {walls[1]});
        });
    EXPECT_TRUE(type(0, "Code", "C9"));
    EXPECT_EQ(list().getRowCount(), 1u);
    EXPECT_EQ(text(0, "Code"), "C2");
}

TEST_F(PropertySetListControlEditTest, AHandlerMayEndTheControl)
{
    showWalls(1);
    auto const window = backend->getListControl(*control->getListControl());
    auto const codeColumn = column("Code");
    control->propertyChangedHandlers.iHandlerAdd(
        [this](std::string const&, std::string const&, std::set<std::size_t> const&) { control.reset(); });
    EXPECT_TRUE(window->type(0, codeColumn, "C9"));
    EXPECT_EQ(control, nullptr);
    EXPECT_EQ(stored(walls[0], "Code"), label("C9"));
}

TEST_F(PropertySetListControlEditTest, AnEditOfAToggleWritesTheValueItSwitches)
{
    formatter->related = {{"IsExternal", "Code"}};
    showWalls(1);
    model.addSet(walls[0], "Pset_A", {{"IsExternal", boolean(true)}});
    EXPECT_TRUE(type(0, "Code", "C9"));
    EXPECT_EQ(stored(walls[0], "Code"), label("C9"));
    EXPECT_EQ(stored(walls[0], "IsExternal").getAsString(false), "true");
    EXPECT_THAT(handled, ElementsAre("Pset_A Code { 0 }"));
}

TEST_F(PropertySetListControlEditTest, AfterAnEditTheFormatterIsToldOfTheRowAgain)
{
    showWalls(1);
    EXPECT_TRUE(type(0, "Code", "C9"));
    formatter->objects.clear();
    (void)text(0, "Code");
    EXPECT_THAT(formatter->objects, ElementsAre(walls[0]));
}

// --- Enumerations -------------------------------------------------------------------------------

TEST_F(PropertySetListControlEditTest, AChosenEntryIsStoredAsTheModelHasIt)
{
    showWalls(2);
    list().select({0, 1});
    EXPECT_TRUE(list().beginEdit(0, column("Status")));
    EXPECT_TRUE(list().commitChoice(1));
    EXPECT_THAT(handled, ElementsAre("Pset_A Status { 0, 1 }"));
    list().select({});
    EXPECT_FALSE(text(0, "Status").empty());
    EXPECT_EQ(text(0, "Status"), text(1, "Status"));
}

TEST_F(PropertySetListControlEditTest, EntriesAreShownInTheUsersLanguageAndStoredAsTheyAre)
{
    TranslationScope texts;
    texts.addIn("Host", "Pset_A.Status.OLD", "Alt");
    contexts = {"Host"};
    showWalls(1);
    ASSERT_TRUE(list().beginEdit(0, column("Status")));
    EXPECT_THAT(list().getEdit()->editor.items, ElementsAre("NEW", "Alt"));
    ASSERT_TRUE(list().commitChoice(1));
    EXPECT_EQ(text(0, "Status"), "Alt");
    auto const status =
        findProperty<resource::property::FcPropertyEnumeratedValue>(*walls[0], "Pset_A", "Status");
    ASSERT_TRUE(status && status->EnumerationValues.get());
    EXPECT_THAT(*status->EnumerationValues.get(), ElementsAre(label("OLD")));
}

TEST_F(PropertySetListControlEditTest, AnEntryPastTheEndIsNotStored)
{
    showWalls(1);
    auto params = end("Status", {0}, "");
    params.editType = ListControl::DropList;
    params.selectedIndex = 2;
    params.refusedItems = std::make_shared<std::vector<ListControl::ItemInfo>>();
    finish(params);
    EXPECT_EQ(text(0, "Status"), "");
    EXPECT_THAT(handled, ElementsAre("Pset_A Status { 0 }"));
    EXPECT_THAT(*params.refusedItems, SizeIs(1));
}

TEST_F(PropertySetListControlEditTest, TheValueOfAnEnumerationCanBeTakenAway)
{
    showWalls(1);
    ASSERT_TRUE(list().beginEdit(0, column("Status")));
    ASSERT_TRUE(list().commitChoice(0));
    EXPECT_NE(text(0, "Status"), "");
    EXPECT_TRUE(type(0, "Status", ""));
    EXPECT_EQ(text(0, "Status"), "");
}

// --- Quantities ---------------------------------------------------------------------------------

TEST_F(PropertySetListControlEditTest, LengthsAreTypedInDisplayUnits)
{
    showWalls(1);
    EXPECT_TRUE(type(0, "Length", "2.5"));
    EXPECT_EQ(stored(walls[0], "Length"), length(2.5));
    EXPECT_TRUE(type(0, "Length", "250 mm"));
    EXPECT_EQ(stored(walls[0], "Length"), length(0.25));
    EXPECT_TRUE(type(0, "Length", "1,5 m"));
    EXPECT_EQ(stored(walls[0], "Length"), length(1.5));
}

TEST_F(PropertySetListControlEditTest, ANegativeZeroIsStoredAsZero)
{
    showWalls(1);
    EXPECT_TRUE(type(0, "Length", "-0"));
    auto const number = stored(walls[0], "Length").valueAsDoubleGet();
    ASSERT_TRUE(number);
    EXPECT_EQ(*number, 0.0);
    EXPECT_FALSE(std::signbit(*number));
}

TEST_F(PropertySetListControlEditTest, WhatIsNoNumberIsRefusedAndNothingIsStored)
{
    showWalls(2);
    model.addSet(walls[0], "Pset_A", {{"Length", length(2)}});
    EXPECT_FALSE(type(0, "Length", "abc"));
    EXPECT_FALSE(type(1, "Length", "nan"));
    EXPECT_EQ(stored(walls[0], "Length"), length(2));
    EXPECT_TRUE(stored(walls[1], "Length").isEmpty());
    EXPECT_EQ(stored(walls[1], "Code"), label("C2"));
    EXPECT_THAT(list().getEditResult().refusals, SizeIs(1));
}

TEST_F(PropertySetListControlEditTest, AnEditorThatNobodyTypedIntoRoundsNothing)
{
    showWalls(1);
    model.addSet(walls[0], "Pset_A", {{"Length", length(2.3456789)}});
    ASSERT_TRUE(list().beginEdit(0, column("Length")));
    auto const openedWith = list().getEdit()->text;
    EXPECT_TRUE(list().commitText(openedWith));
    EXPECT_EQ(stored(walls[0], "Length"), length(2.3456789));
    EXPECT_THAT(handled, IsEmpty());
    EXPECT_TRUE(type(0, "Length", "2.34567890"));
    EXPECT_EQ(stored(walls[0], "Length"), length(2.3456789));
}

// --- Blocks -------------------------------------------------------------------------------------

TEST_F(PropertySetListControlEditTest, FillingDownKeepsAllDigits)
{
    showWalls(3);
    model.addSet(walls[0], "Pset_A", {{"Length", length(2.3456789)}});
    list().select({0, 1, 2});
    EXPECT_EQ(list().fillDown(column("Length")).takenCells, 2u);
    EXPECT_EQ(stored(walls[2], "Length"), length(2.3456789));
    EXPECT_THAT(handled, ElementsAre("Pset_A Length { 1, 2 }"));
}

TEST_F(PropertySetListControlEditTest, APastedBlockTellsTheCellsThatRefused)
{
    showWalls(2);
    formatter->readOnlyProperties = {"Length"};
    auto const result = list().paste(0, column("Code"), {{"A", "1", "TRUE"}, {"B", "2", "maybe"}});
    EXPECT_EQ(stored(walls[0], "Code"), label("A"));
    EXPECT_EQ(stored(walls[1], "Code"), label("B"));
    EXPECT_EQ(stored(walls[0], "IsExternal").getAsString(false), "true");
    EXPECT_EQ(result.takenCells, 3u);
    using qev::ui::ListRefusal;
    using qev::ui::ListRefusalReason;
    EXPECT_THAT(result.refusals,
                ElementsAre(ListRefusal{{0, column("Length")}, ListRefusalReason::NotEditable, "1"},
                            ListRefusal{{1, column("Length")}, ListRefusalReason::NotEditable, "2"},
                            ListRefusal{{1, column("IsExternal")}, ListRefusalReason::NotAnEntry, "maybe"}));
}

TEST_F(PropertySetListControlEditTest, APastedBlockIsOneStep)
{
    showWalls(2);
    list().paste(0, column("Code"), {{"A", "1"}, {"B", "2"}});
    EXPECT_EQ(model.data()->changes().undoName(), "Edit cells");
    model.data()->changes().undo();
    EXPECT_EQ(stored(walls[0], "Code"), label("C1"));
    EXPECT_EQ(stored(walls[1], "Code"), label("C2"));
    EXPECT_TRUE(stored(walls[1], "Length").isEmpty());
}

TEST_F(PropertySetListControlEditTest, ATruthThatIsNotThereCanBecomeFalse)
{
    showWalls(1);
    EXPECT_EQ(list().paste(0, column("IsExternal"), {{"FALSE"}}).takenCells, 1u);
    EXPECT_EQ(stored(walls[0], "IsExternal").getAsString(false), "false");
}

// --- Telling of changes -------------------------------------------------------------------------

TEST_F(PropertySetListControlEditTest, ChangesAreToldThroughTheInterface)
{
    showWalls(2);
    formatter->objects.clear();
    PropertySetListControlInterface& asInterface = *control;
    asInterface.notifyPropertySetPropertyChanged(
        "Pset_A", "Code", {0, 1}, PropertySetControl::PropertyChangedNotificationType::ValueChanged);
    EXPECT_THAT(handled, ElementsAre("Pset_A Code { 0, 1 }"));
    EXPECT_THAT(formatter->objects, ElementsAre(walls[0], walls[1]));
}

TEST_F(PropertySetListControlEditTest, PaintingGoesOnWithTheRightRowAfterAChangeWasTold)
{
    showWalls(2);
    formatter->disabledObjects = {walls[1].get()};
    (void)text(0, "Code");
    control->notifyPropertySetPropertyChanged(
        "Pset_A", "Code", {1}, PropertySetControl::PropertyChangedNotificationType::ValueChanged);
    EXPECT_EQ(text(0, "Code"), "C1");
    EXPECT_EQ(text(1, "Code"), "");
}

TEST_F(PropertySetListControlEditTest, ARowThatIsNotThereIsReportedWhenItIsPaintedAfterAChangeOfItWasTold)
{
    showWalls(2);
    (void)text(0, "Code");
    control->notifyPropertySetPropertyChanged(
        "Pset_A", "Code", {1, 5}, PropertySetControl::PropertyChangedNotificationType::ValueChanged);
    EXPECT_THAT(takeReportTexts(), ElementsAre("Object index out of range."));

    (void)text(5, "Code");
    EXPECT_THAT(takeReportTexts(), ElementsAre("Index out of range.", "Invalid item index."));
}

TEST_F(PropertySetListControlEditTest, PaintingGoesOnWithTheRightRowAfterAChangeOfARowThatIsNotThere)
{
    showWalls(2);
    formatter->disabledObjects = {walls[1].get()};
    (void)text(0, "Code");
    control->notifyPropertySetPropertyChanged(
        "Pset_A", "Code", {1, 5}, PropertySetControl::PropertyChangedNotificationType::ValueChanged);
    EXPECT_THAT(takeReportTexts(), ElementsAre("Object index out of range."));

    EXPECT_EQ(text(0, "Code"), "C1");
}

} // namespace
