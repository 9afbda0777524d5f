#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertySetGridControl.h"

#include "FoundationClasses/AllEntities.h"
#include "kit/ModelBuilder.h"
#include "kit/ReportRecorder.h"
#include "library/kit/LogFormatter.h"
#include "library/kit/SetBuilder.h"
#include "library/kit/ShownSet.h"
#include "library/kit/ToySchema.h"
#include "UI/FoundationClasses/Controls/Formatters/PropertyFormatter.h"
#include "UI/FoundationClasses/Controls/Formatters/PropertyGridControlPropertyFormatter.h"
#include "Ui/Headless/HeadlessBackend.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridControl.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace qev::fc;
using namespace qev::fc::ui;
using namespace qev::test;
using qev::ui::HeadlessBackend;
using qev::ui::HeadlessPropertyGrid;
using qev::ui::PropertyGridAlignment;
using qev::ui::PropertyGridHorizontalLine;
using qev::ui::PropertyGridRowState;
using qev::ui::WindowPlacement;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using GridFormatter = PropertyGridControlPropertyFormatterInterface;
using Formatters = PropertySetControlFormatters<GridFormatter>;

constexpr char path[] = "UI/FoundationClasses/Controls/PropertySetGridControl/PropertySetGridControl";
constexpr char function[] = "qev::fc::ui::PropertySetGridControl::";
constexpr int gridId = 101;

/// A grid formatter with fixed answers.
class ToyGridFormatter : public GridFormatter
{
public:
    bool customButtons = false;
    bool buttons = false;
    bool bold = false;
    unsigned int indentation = 0;
    Alignment alignment = Alignment::Alignment0;
    EmptyLineState emptyLine = EmptyLineState::None;
    HorizontalLineState line = HorizontalLineState::None;
    std::optional<std::vector<std::string>> order;
    std::vector<std::string> log;

    void setObject(std::shared_ptr<Data> /*data*/, std::shared_ptr<FcBase> /*object*/) override
    {
        log.emplace_back("setObject");
    }
    bool wantCustomButtonProperties() const override { return customButtons; }
    bool wantButton(std::string const& /*set*/, std::string const& /*name*/) const override
    {
        return buttons;
    }
    void onButtonClicked(std::string const& set, std::string const& name) override
    {
        log.push_back("clicked " + set + " " + name);
    }
    void onPropertyCreated(std::string const& set, std::string const& name,
                           qev::ui::PropertyGridProperty& /*property*/) override
    {
        log.push_back("created " + set + " " + name);
    }
    Alignment getAlignment(std::string const& /*set*/, std::string const& /*name*/) const override
    {
        return alignment;
    }
    EmptyLineState getEmptyLineState(std::string const& /*set*/, std::string const& /*name*/) const override
    {
        return emptyLine;
    }
    HorizontalLineState getHorizontalLineState(std::string const& /*set*/,
                                               std::string const& /*name*/) const override
    {
        return line;
    }
    bool wantBoldFontStyleForNameAndValue(std::string const& /*set*/,
                                          std::string const& /*name*/) const override
    {
        return bold;
    }
    unsigned int getPropertyNameIndentationInCharacters(std::string const& /*set*/,
                                                        std::string const& /*name*/) const override
    {
        return indentation;
    }
    std::optional<std::vector<std::string>> getPropertySetOrder() const override { return order; }
};

class PropertySetGridControlTest : public testing::Test
{
protected:
    using Row = HeadlessPropertyGrid::Row;

    PropertySetGridControlTest()
    {
        filter->excludedSets = {"Instance Attributes", "Type Attributes"};
        dialog = backend->createDialog({800, 600});
        backend->addPlaceholder(dialog, gridId, placeholderPlacement);
    }

    /// A schema with the sets "Pset_A" and "Pset_B" for all products.
    static std::unique_ptr<qev::ifc::def::SchemaPset> twoSets()
    {
        return toySchemaWith(
            SetBuilder("Pset_A")
                .single("Code", "IfcLabel")
                .single("Length", "IfcLengthMeasure")
                .single("IsExternal", "IfcBoolean")
                .single("Checked", "IfcLogical")
                .enumerated("Status", {"NEW", "OLD"})
                .applicableTo("IfcProduct")
                .take(),
            SetBuilder("Pset_B").single("Count", "IfcInteger").applicableTo("IfcProduct").take());
    }

    std::shared_ptr<PropertySetGridControl> make()
    {
        control = std::make_shared<PropertySetGridControl>(schema.get(), model.data(), dialog, filter,
                                                           Formatters{formatter, gridFormatter},
                                                           std::vector<std::string>(), nullptr);
        control->propertyChangedHandlers.iHandlerAdd([this](std::string const& set,
                                                            std::string const& property,
                                                            std::set<std::size_t> const& indices) {
            handled.push_back(set + " " + property + " " + testing::PrintToString(indices));
        });
        return control;
    }
    void show(std::vector<std::shared_ptr<FcBase>> const& objects)
    {
        make()->init(gridId, std::nullopt, true);
        control->setObjects(model.data(), objects);
    }
    HeadlessPropertyGrid& grid() { return *backend->getPropertyGrid(*control->getPropertyGridControl()); }
    /// The row of a property. Its label is the key of its texts, there being no dictionary.
    Row row(std::string const& set, std::string const& name)
    {
        auto const found = grid().findRow({set, set + "." + name});
        EXPECT_NE(found, nullptr) << set << "." << name << " is not in\n" << grid().dump();
        return found;
    }
    std::vector<std::string> groups()
    {
        std::vector<std::string> names;
        for (auto const& group : grid().getModel()->getRows())
            names.push_back(group->getName());
        return names;
    }
    std::vector<PropertyGridRowState::Kind> kindsBelow(std::string const& group)
    {
        std::vector<PropertyGridRowState::Kind> kinds;
        for (auto const& child : grid().findRow({group})->getChildren())
            kinds.push_back(child->getState().kind);
        return kinds;
    }

    WindowPlacement const placeholderPlacement{20, 30, 320, 430};
    std::shared_ptr<HeadlessBackend> backend = HeadlessBackend::install();
    std::shared_ptr<qev::ui::Dialog> dialog;
    Model model;
    std::unique_ptr<qev::ifc::def::SchemaPset> schema = twoSets();
    std::shared_ptr<ToyFilter> filter = std::make_shared<ToyFilter>();
    std::shared_ptr<PropertyFormatterInterface> formatter;
    std::shared_ptr<ToyGridFormatter> gridFormatter;
    std::shared_ptr<PropertySetGridControl> control;
    std::vector<std::string> handled;
};

FcValue valueOfProperty(Model::Object const& object, std::string const& set, std::string const& name)
{
    auto const pset = object->getPropertySetDefinitionNonConst<core::kernel::FcPropertySet>(set);
    if (!pset)
        return {};
    for (auto const& property : pset->HasProperties.getProperties()) {
        if (property->Name.get() == name)
            return entityCast<resource::property::FcPropertySingleValue>(std::shared_ptr<FcBase>(property))
                ->NominalValue.get();
    }
    return {};
}

// --- The window ---------------------------------------------------------------------------------

TEST_F(PropertySetGridControlTest, ConstructionMakesNoWindow)
{
    EXPECT_EQ(make()->getPropertyGridControl(), nullptr);
}

TEST_F(PropertySetGridControlTest, TheWindowReplacesThePlaceholderOfItsId)
{
    make()->init(gridId, std::nullopt, true);

    auto const window = control->getPropertyGridControl();
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->getDialogControlId(), gridId);
    EXPECT_EQ(window->getPlacement(), placeholderPlacement);
    EXPECT_EQ(dialog->getChildWindow(gridId), window);
}

TEST_F(PropertySetGridControlTest, AGivenPlacementLeavesThePlaceholderWhereItIs)
{
    auto const placeholder = dialog->getChildWindow(gridId);
    WindowPlacement const placement{1, 2, 301, 402};

    make()->init(gridId, placement, true);

    EXPECT_EQ(control->getPropertyGridControl()->getPlacement(), placement);
    EXPECT_TRUE(placeholder->hasInterface());
    EXPECT_EQ(dialog->getChildWindow(gridId), placeholder);
}

TEST_F(PropertySetGridControlTest, AnIdThatTheDialogDoesNotHaveGetsThePlacementLeftFree)
{
    make()->init(999, std::nullopt, true);

    auto const placement = control->getPropertyGridControl()->getPlacement();
    EXPECT_EQ(placement.left, 10);
    EXPECT_EQ(placement.top, 10);
    EXPECT_EQ(placement.right, 790);
    auto const defaultSize = qev::ui::details::WindowInterfaceFactory::defaultWindowSize_(
        qev::ui::WindowClass::PropertyGridControl);
    EXPECT_EQ(placement.bottom, 600 - static_cast<int>(defaultSize.second) - 20);
    EXPECT_NE(control->getPropertyGridControl()->getDialogControlId(), 999);
}

TEST_F(PropertySetGridControlTest, WithoutADialogThereIsNoWindow)
{
    dialog.reset();

    make()->init(gridId, std::nullopt, true);

    EXPECT_EQ(control->getPropertyGridControl(), nullptr);
}

TEST_F(PropertySetGridControlTest, ASecondInitIsReportedAndReplacesTheWindow)
{
    show({model.wall("W1")});
    auto const first = control->getPropertyGridControl();

    control->init(gridId, std::nullopt, true);

    expectReport("Assertion failed: Double init?", std::string(function) + "init", path);
    EXPECT_NE(control->getPropertyGridControl(), first);
    EXPECT_FALSE(first->hasInterface());
    EXPECT_THAT(groups(), ElementsAre("Pset_A", "Pset_B"));
}

TEST_F(PropertySetGridControlTest, ObjectsGivenBeforeTheWindowAreShownWithIt)
{
    make()->setObject(model.data(), model.wall("W1"));

    control->init(gridId, std::nullopt, true);

    EXPECT_THAT(groups(), ElementsAre("Pset_A", "Pset_B"));
}

TEST_F(PropertySetGridControlTest, APropertySheetPageMakesTheWindowWhenFirstActivated)
{
    make()->initOnPropertySheetPageActivate(gridId);
    EXPECT_EQ(control->getPropertyGridControl(), nullptr);

    qev::fireEvent(dialog->onPropertySheetPageActivate, 0u, 1u);
    auto const window = control->getPropertyGridControl();
    qev::fireEvent(dialog->onPropertySheetPageActivate, 1u, 0u);

    EXPECT_NE(window, nullptr);
    EXPECT_EQ(control->getPropertyGridControl(), window);
}

TEST_F(PropertySetGridControlTest, ShowsAndHidesItsWindow)
{
    make()->init(gridId, std::nullopt, true);

    control->hide();
    EXPECT_FALSE(control->getPropertyGridControl()->isVisible());
    control->show();
    EXPECT_TRUE(control->getPropertyGridControl()->isVisible());
}

TEST_F(PropertySetGridControlTest, TheRowsGoWithTheControlAndTheWindowStays)
{
    show({model.wall("W1")});
    auto const window = control->getPropertyGridControl();

    control.reset();

    EXPECT_TRUE(window->hasInterface());
    EXPECT_THAT(window->getModel()->getRows(), IsEmpty());
}

TEST_F(PropertySetGridControlTest, WithoutAModelThereIsNothingToShow)
{
    make()->init(gridId, std::nullopt, true);

    control->setObjects(nullptr, {});

    expectReport("Data object must be set.", std::string(function) + "refreshDisplay", path);
}

// --- Groups -------------------------------------------------------------------------------------

TEST_F(PropertySetGridControlTest, AttributesStandBeforeTheAttributesOfTheTypeAndTheSets)
{
    filter->excludedSets.clear();
    auto const wall = model.wall("W1");
    model.assignType(model.wallType("WT1"), {wall});

    show({wall});

    EXPECT_THAT(groups(), ElementsAre("IfcWall", "IfcWallType", "Pset_A", "Pset_B"));
}

TEST_F(PropertySetGridControlTest, TheFilterMayRefuseTheInstanceAttributesAlone)
{
    filter->excludedSets = {"Instance Attributes"};
    auto const wall = model.wall("W1");
    model.assignType(model.wallType("WT1"), {wall});

    show({wall});

    EXPECT_THAT(groups(), ElementsAre("IfcWallType", "Pset_A", "Pset_B"));
}

TEST_F(PropertySetGridControlTest, WhatIsNoOccurrenceHasNoTypeGroup)
{
    filter->excludedSets.clear();

    show({model.wallType("WT1")});

    EXPECT_THAT(groups(), ElementsAre("IfcWallType", "Pset_A", "Pset_B"));
    EXPECT_THAT(filter->askedSets, Not(Contains("Type Attributes")));
}

TEST_F(PropertySetGridControlTest, TheFilterLeavesOutSets)
{
    filter->excludedSets.insert("Pset_A");

    show({model.wall("W1")});

    EXPECT_THAT(groups(), ElementsAre("Pset_B"));
}

TEST_F(PropertySetGridControlTest, ARequestedOrderIsTakenAsItStands)
{
    gridFormatter = std::make_shared<ToyGridFormatter>();
    gridFormatter->order = {"Pset_B", "Pset_Unknown", "Pset_A"};

    show({model.wall("W1")});

    EXPECT_THAT(groups(), ElementsAre("Pset_B", "Pset_A"));
}

TEST_F(PropertySetGridControlTest, ARequestedOrderWithUnknownSetsShowsTheKnownOnes)
{
    gridFormatter = std::make_shared<ToyGridFormatter>();
    gridFormatter->order = {"Pset_Unknown", "Pset_B"};

    show({model.wall("W1")});

    EXPECT_THAT(groups(), ElementsAre("Pset_B"));
}

TEST_F(PropertySetGridControlTest, ARequestedOrderWithTooFewEntriesIsReportedAndIgnored)
{
    gridFormatter = std::make_shared<ToyGridFormatter>();
    gridFormatter->order = {"Pset_B"};

    show({model.wall("W1")});

    expectReport("List containing requested property set contains too few entries.",
                 "qev::fc::ui::SetsToBeDisplayed::getOrderedNames",
                 "UI/FoundationClasses/Controls/PropertySetGridControl/SetsToBeDisplayed");
    EXPECT_THAT(groups(), ElementsAre("Pset_A", "Pset_B"));
}

TEST_F(PropertySetGridControlTest, HiddenUnusedPropertiesLeaveNoTrace)
{
    auto const wall = model.wall("W1");
    model.addSet(wall, "Pset_A", {{"Code", label("A")}});
    show({wall});

    control->hideUnusedProperties();

    EXPECT_THAT(groups(), ElementsAre("Pset_A"));
    EXPECT_THAT(grid().findRow({"Pset_A"})->getChildren(), SizeIs(1));
    control->showUnusedProperties();
    EXPECT_THAT(groups(), ElementsAre("Pset_A", "Pset_B"));
    EXPECT_THAT(grid().findRow({"Pset_A"})->getChildren(), SizeIs(5));
}

TEST_F(PropertySetGridControlTest, HidingUnusedPropertiesBeforeTheWindowChangesTheFlagOnly)
{
    auto const wall = model.wall("W1");
    make()->hideUnusedProperties();
    EXPECT_EQ(control->getPropertyGridControl(), nullptr);

    control->setObject(model.data(), wall);
    control->init(gridId, std::nullopt, true);

    EXPECT_THAT(groups(), IsEmpty());
}

TEST_F(PropertySetGridControlTest, HidingUnusedPropertiesHoldsForTheNextObjectToo)
{
    show({model.wall("W1")});
    control->hideUnusedProperties();

    control->setObject(model.data(), model.wall("W2"));

    EXPECT_THAT(groups(), IsEmpty());
}

TEST_F(PropertySetGridControlTest, RowsAreLaidOutOncePerRefresh)
{
    show({model.wall("W1")});
    int const before = grid().getLayoutCount();

    control->setObject(model.data(), model.wall("W2"));

    EXPECT_EQ(grid().getLayoutCount(), before + 1);
}

// --- Edits --------------------------------------------------------------------------------------

TEST_F(PropertySetGridControlTest, ATypedTextReachesTheModelAndTheHandlers)
{
    auto const wall = model.wall("W1");
    show({wall});

    EXPECT_TRUE(grid().type(row("Pset_A", "Code"), "K7"));

    EXPECT_EQ(valueOfProperty(wall, "Pset_A", "Code"), label("K7"));
    EXPECT_THAT(handled, ElementsAre("Pset_A Code { 0 }"));
}

TEST_F(PropertySetGridControlTest, ANumberIsStoredInSiUnits)
{
    auto const wall = model.wall("W1");
    show({wall});

    EXPECT_TRUE(grid().type(row("Pset_A", "Length"), "250 mm"));

    EXPECT_EQ(valueOfProperty(wall, "Pset_A", "Length"), length(0.25));
}

TEST_F(PropertySetGridControlTest, OneUndoTakesAnEditOfAllObjectsBack)
{
    auto const first = model.wall("W1");
    auto const second = model.wall("W2");
    model.addSet(second, "Pset_A", {{"Code", label("old")}});
    show({first, second});
    grid().type(row("Pset_A", "Code"), "new");
    ASSERT_EQ(valueOfProperty(first, "Pset_A", "Code"), label("new"));
    ASSERT_EQ(valueOfProperty(second, "Pset_A", "Code"), label("new"));

    model.data()->changes().undo();

    EXPECT_TRUE(valueOfProperty(first, "Pset_A", "Code").isEmpty());
    EXPECT_EQ(valueOfProperty(second, "Pset_A", "Code"), label("old"));
}

TEST_F(PropertySetGridControlTest, ClearingARowRemovesThePropertyAndItsSet)
{
    auto const wall = model.wall("W1");
    model.addSet(wall, "Pset_A", {{"Code", label("A")}});
    show({wall});

    EXPECT_TRUE(grid().clear(row("Pset_A", "Code")));

    EXPECT_THAT(wall->attachedSets(), IsEmpty());
    EXPECT_THAT(handled, SizeIs(1));
}

TEST_F(PropertySetGridControlTest, ClearingANumberIsReportedAndRemovesTheProperty)
{
    auto const wall = model.wall("W1");
    model.addSet(wall, "Pset_A", {{"Length", length(2.0)}});
    show({wall});

    EXPECT_TRUE(grid().clear(row("Pset_A", "Length")));

    expectReport("Quantity formatted property should be compatible with double.",
                 std::string(function) + "getValueFromGridProperty", path);
    EXPECT_THAT(wall->attachedSets(), IsEmpty());
}

TEST_F(PropertySetGridControlTest, ARefusedEditBlanksTheRowAndTheHandlersStillHearOfIt)
{
    auto const wall = model.wall("W1");
    model.addSet(wall, "Pset_B", {{"Count", integer(4)}});
    show({wall});

    grid().type(row("Pset_B", "Count"), "many");

    std::string shown = "something";
    row("Pset_B", "Count")->getStringValue(shown);
    EXPECT_EQ(shown, "");
    EXPECT_EQ(valueOfProperty(wall, "Pset_B", "Count"), integer(4));
    EXPECT_THAT(handled, ElementsAre("Pset_B Count { 0 }"));
}

TEST_F(PropertySetGridControlTest, ANumberBeyondAllBoundsIsARefusedEdit)
{
    auto const wall = model.wall("W1");
    model.addQuantities(wall, "Qto", {{"Length", 2.0}});
    show({wall});
    auto const quantity = grid().findRow({"Qto", "Length"});
    ASSERT_NE(quantity, nullptr);

    grid().type(quantity, "1e999");

    std::string shown = "something";
    quantity->getStringValue(shown);
    EXPECT_EQ(shown, "");
    EXPECT_THAT(handled, SizeIs(1));
}

TEST_F(PropertySetGridControlTest, AClickOnACheckBoxReachesTheModelAndBothKindsOfHandlers)
{
    auto const wall = model.wall("W1");
    show({wall});
    std::vector<std::string> clicked;
    control->checkBoxClickedHandlers.iHandlerAdd([&](PropertySetGridControlInterface& source,
                                                     std::string const& set, std::string const& name,
                                                     bool checked) {
        EXPECT_EQ(&source, control.get());
        EXPECT_THAT(handled, IsEmpty());
        clicked.push_back(set + " " + name + (checked ? " on" : " off"));
    });

    EXPECT_TRUE(grid().clickCheckBox(row("Pset_A", "IsExternal")));
    EXPECT_EQ(valueOfProperty(wall, "Pset_A", "IsExternal"), boolean(true));
    EXPECT_THAT(clicked, ElementsAre("Pset_A IsExternal on"));
    EXPECT_THAT(handled, ElementsAre("Pset_A IsExternal { 0 }"));
    clicked.clear();
    handled.clear();
    EXPECT_TRUE(grid().clickCheckBox(row("Pset_A", "IsExternal")));
    EXPECT_EQ(valueOfProperty(wall, "Pset_A", "IsExternal"), boolean(false));

    EXPECT_THAT(clicked, ElementsAre("Pset_A IsExternal off"));
    EXPECT_THAT(handled, ElementsAre("Pset_A IsExternal { 0 }"));
}

TEST_F(PropertySetGridControlTest, AClickOnACheckBoxIsOneUndoStep)
{
    auto const wall = model.wall("W1");
    show({wall});
    grid().clickCheckBox(row("Pset_A", "IsExternal"));
    EXPECT_EQ(model.data()->changes().undoName(), "Pset_A.IsExternal");

    model.data()->changes().undo();

    EXPECT_THAT(wall->attachedSets(), IsEmpty());
}

TEST_F(PropertySetGridControlTest, AClickOnABooleanOfAnotherTypeIsRefusedAndTold)
{
    auto const wall = model.wall("W1");
    model.addSet(wall, "Pset_A", {{"IsExternal", label("yes")}});
    show({wall});
    EXPECT_THAT(takeReportTexts(), ElementsAre("FcSimpleValue doesn't hold a boolean."));

    grid().clickCheckBox(row("Pset_A", "IsExternal"));

    EXPECT_EQ(valueOfProperty(wall, "Pset_A", "IsExternal"), label("yes"));
    EXPECT_THAT(handled, SizeIs(1));
}

TEST_F(PropertySetGridControlTest, ALogicalAndAnEnumerationAreChosen)
{
    auto const wall = model.wall("W1");
    show({wall});

    EXPECT_TRUE(grid().choose(row("Pset_A", "Checked"), "unknown"));
    EXPECT_TRUE(grid().choose(row("Pset_A", "Status"), "OLD"));

    EXPECT_EQ(valueOfProperty(wall, "Pset_A", "Checked"), logical(Logical::Unknown));
    control->setObject(model.data(), wall);
    std::string shown;
    row("Pset_A", "Status")->getStringValue(shown);
    EXPECT_EQ(shown, "OLD");
}

TEST_F(PropertySetGridControlTest, AnEditOfAnAttributeReachesNobody)
{
    filter->excludedSets.clear();
    auto const door = model.door("D1");
    show({door});
    auto const name = grid().findRow({"IfcDoor", "Name"});
    ASSERT_NE(name, nullptr);

    EXPECT_FALSE(grid().type(name, "D2"));
    // The list of an enumeration can be opened all the same.
    grid().choose(grid().findRow({"IfcDoor", "PredefinedType"}), "GATE");

    EXPECT_EQ(door->Name.get(), "D1");
    EXPECT_EQ(door->PredefinedType.get(), std::nullopt);
    EXPECT_THAT(handled, IsEmpty());
}

TEST_F(PropertySetGridControlTest, WithoutHandlingOfChangesAnEditStaysInTheGrid)
{
    auto const wall = model.wall("W1");
    make()->init(gridId, std::nullopt, false);
    control->setObject(model.data(), wall);

    grid().type(row("Pset_A", "Code"), "K7");

    EXPECT_THAT(wall->attachedSets(), IsEmpty());
    EXPECT_THAT(handled, IsEmpty());
}

TEST_F(PropertySetGridControlTest, AHandlerMayShowAnotherObject)
{
    auto const wall = model.wall("W1");
    auto const other = model.wall("W2");
    show({wall});
    control->propertyChangedHandlers.iHandlerAdd(
        [&](auto const&, auto const&, auto const&) { control->setObject(model.data(), other); });

    grid().type(row("Pset_A", "Code"), "K7");
    grid().clickCheckBox(row("Pset_A", "IsExternal"));

    EXPECT_EQ(valueOfProperty(wall, "Pset_A", "Code"), label("K7"));
    EXPECT_EQ(valueOfProperty(other, "Pset_A", "IsExternal"), boolean(true));
}

TEST_F(PropertySetGridControlTest, AChangeOfTheModelMayHaveTheRowsBuiltAnew)
{
    auto const wall = model.wall("W1");
    show({wall});
    model.data()->changed.iHandlerAdd([&](auto const&) { control->setObject(model.data(), wall); });

    EXPECT_TRUE(grid().type(row("Pset_A", "Code"), "K7"));

    EXPECT_EQ(valueOfProperty(wall, "Pset_A", "Code"), label("K7"));
    EXPECT_THAT(handled, ElementsAre("Pset_A Code { 0 }"));
}

// --- Dressing -----------------------------------------------------------------------------------

class Dressing : public PropertySetGridControlTest
{
protected:
    Dressing()
    {
        // One row, so that a report is raised once.
        schema =
            toySchemaWith(SetBuilder("Pset_A").single("Code", "IfcLabel").applicableTo("IfcProduct").take());
        gridFormatter = std::make_shared<ToyGridFormatter>();
    }

    PropertyGridRowState const& state() { return row("Pset_A", "Code")->getState(); }
    void useFormatter()
    {
        toyFormatter = std::make_shared<LogFormatter>();
        formatter = toyFormatter;
    }

    std::shared_ptr<LogFormatter> toyFormatter;
};

TEST_F(Dressing, WithoutFormattersRowsLookAsTheToolkitMakesThem)
{
    gridFormatter.reset();

    show({model.wall("W1")});

    EXPECT_TRUE(state().enabled);
    EXPECT_TRUE(state().allowEdit);
    EXPECT_FALSE(state().bold);
}

TEST_F(Dressing, ADisabledRowIsInItsEmptyState)
{
    useFormatter();
    toyFormatter->enabled = false;
    toyFormatter->readOnly = true;
    toyFormatter->colour = qev::attr::Colour{1, 2, 3};

    show({model.wall("W1")});

    EXPECT_FALSE(state().enabled);
    EXPECT_TRUE(state().emptyState);
    EXPECT_TRUE(state().allowEdit);
    EXPECT_EQ(state().backgroundColour, std::nullopt);
}

TEST_F(Dressing, AReadOnlyRowCannotBeTypedInAndHasItsColour)
{
    useFormatter();
    toyFormatter->readOnly = true;
    toyFormatter->colour = qev::attr::Colour{1, 2, 3};

    show({model.wall("W1")});

    EXPECT_TRUE(state().enabled);
    EXPECT_FALSE(state().emptyState);
    EXPECT_FALSE(state().allowEdit);
    EXPECT_EQ(state().backgroundColour, (qev::attr::Colour{1, 2, 3}));
}

TEST_F(Dressing, AlignmentLineIndentationAndFontAreThoseOfTheGridFormatter)
{
    gridFormatter->alignment = GridFormatter::Alignment::Alignment1;
    gridFormatter->line = GridFormatter::HorizontalLineState::Line2;
    gridFormatter->indentation = 3;
    gridFormatter->bold = true;

    show({model.wall("W1")});

    EXPECT_EQ(state().alignment, PropertyGridAlignment::Right);
    EXPECT_EQ(state().horizontalLine, PropertyGridHorizontalLine::AboveAndBelow);
    EXPECT_EQ(state().nameIndentationInCharacters, 3u);
    EXPECT_TRUE(state().bold);
}

TEST_F(Dressing, LinesAreThoseOfTheToolkitCountedFromOne)
{
    using Line = GridFormatter::HorizontalLineState;
    for (auto const& [line, expected] :
         {std::pair(Line::None, std::optional<PropertyGridHorizontalLine>()),
          std::pair(Line::Line0, std::optional(PropertyGridHorizontalLine::Above)),
          std::pair(Line::Line1, std::optional(PropertyGridHorizontalLine::Below))}) {
        gridFormatter->line = line;
        if (control)
            control->setObject(model.data(), model.wall("W1"));
        else
            show({model.wall("W1")});
        EXPECT_EQ(state().horizontalLine, expected);
    }
}

TEST_F(Dressing, ADisabledRowHasItsLineAndButtonAndNothingElse)
{
    useFormatter();
    toyFormatter->enabled = false;
    gridFormatter->alignment = GridFormatter::Alignment::Alignment1;
    gridFormatter->line = GridFormatter::HorizontalLineState::Line0;
    gridFormatter->indentation = 3;
    gridFormatter->bold = true;
    gridFormatter->buttons = true;
    gridFormatter->emptyLine = GridFormatter::EmptyLineState::BeforeAndAfter;

    show({model.wall("W1")});

    EXPECT_EQ(state().horizontalLine, PropertyGridHorizontalLine::Above);
    EXPECT_EQ(state().alignment, PropertyGridAlignment::Left);
    EXPECT_EQ(state().nameIndentationInCharacters, 0u);
    EXPECT_FALSE(state().bold);
    EXPECT_THAT(kindsBelow("Pset_A"), ElementsAre(PropertyGridRowState::Kind::Value));
    EXPECT_THAT(gridFormatter->log, Contains("created Pset_A Code"));
}

TEST_F(Dressing, EmptyLinesStandWhereTheGridFormatterWantsThem)
{
    using State = GridFormatter::EmptyLineState;
    using Kind = PropertyGridRowState::Kind;
    show({model.wall("W1")});
    auto const kindsWith = [&](State emptyLine) {
        gridFormatter->emptyLine = emptyLine;
        control->setObject(model.data(), model.wall("W1"));
        return kindsBelow("Pset_A");
    };

    EXPECT_THAT(kindsWith(State::None), ElementsAre(Kind::Value));
    EXPECT_THAT(kindsWith(State::Before), ElementsAre(Kind::EmptyLine, Kind::Value));
    EXPECT_THAT(kindsWith(State::After), ElementsAre(Kind::Value, Kind::EmptyLine));
    EXPECT_THAT(kindsWith(State::BeforeAndAfter), ElementsAre(Kind::EmptyLine, Kind::Value, Kind::EmptyLine));
}

TEST_F(Dressing, AnUnknownAlignmentIsReportedAndLeavesTheRow)
{
    gridFormatter->alignment = static_cast<GridFormatter::Alignment>(7);

    show({model.wall("W1")});

    expectReport("Unknown alignment.", std::string(function) + "applyPropertyAlignment", path);
    EXPECT_EQ(state().alignment, PropertyGridAlignment::Left);
}

TEST_F(Dressing, AnUnknownLineIsReportedAndLeavesTheRow)
{
    gridFormatter->line = static_cast<GridFormatter::HorizontalLineState>(7);

    show({model.wall("W1")});

    expectReport("Unknown horizontal line state.", std::string(function) + "applyPropertyHorizontalLineState",
                 path);
    EXPECT_EQ(state().horizontalLine, std::nullopt);
}

TEST_F(Dressing, AnUnknownEmptyLineIsReportedBeforeAndAfterTheRow)
{
    gridFormatter->emptyLine = static_cast<GridFormatter::EmptyLineState>(7);

    show({model.wall("W1")});

    auto const reports = takeReports();
    ASSERT_THAT(reports, SizeIs(2));
    EXPECT_EQ(reports[0].text, "Unknown empty line state.");
    EXPECT_EQ(reports[0].function, std::string(function) + "applyEmptyLineState");
    EXPECT_EQ(reports[1].text, "Unknown empty line state.");
    EXPECT_EQ(reports[1].function, std::string(function) + "applyEmptyLineStateAfterPropertyWasAdded");
    EXPECT_THAT(kindsBelow("Pset_A"), ElementsAre(PropertyGridRowState::Kind::Value));
}

// --- Buttons ------------------------------------------------------------------------------------

TEST_F(Dressing, AButtonTellsTheGridFormatter)
{
    gridFormatter->buttons = true;
    show({model.wall("W1")});
    gridFormatter->log.clear();

    EXPECT_TRUE(grid().pressButton(row("Pset_A", "Code")));

    EXPECT_THAT(gridFormatter->log, ElementsAre("clicked Pset_A Code"));
    EXPECT_THAT(handled, IsEmpty());
}

TEST_F(Dressing, AnOwnButtonTellsThePropertyFormatterAndThenTheHandlers)
{
    useFormatter();
    gridFormatter->customButtons = true;
    show({model.wall("W1")});
    toyFormatter->log.clear();

    EXPECT_TRUE(grid().pressButton(row("Pset_A", "Code")));

    EXPECT_THAT(toyFormatter->log, ElementsAre("button Pset_A Code"));
    EXPECT_THAT(handled, ElementsAre("Pset_A Code { 0 }"));
}

TEST_F(Dressing, AButtonOfAnAttributeLeadsNowhereAndIsReported)
{
    filter->excludedSets = {"Type Attributes", "Pset_A"};
    gridFormatter->buttons = true;
    show({model.wall("W1")});

    grid().pressButton(grid().findRow({"IfcWall", "Name"}));

    expectReport("Interface not set.", std::string(function) + "onButtonClicked", path);
}

TEST_F(Dressing, AnOwnButtonOfAnAttributeLeadsNowhereAndIsReported)
{
    filter->excludedSets = {"Type Attributes", "Pset_A"};
    gridFormatter->customButtons = true;
    show({model.wall("W1")});

    grid().pressButton(grid().findRow({"IfcWall", "Name"}));

    expectReport("Interface not set.", std::string(function) + "onCustomButtonClicked", path);
    EXPECT_THAT(handled, IsEmpty());
}

TEST_F(Dressing, ARowThatCannotHaveItsOwnButtonIsReportedAndStays)
{
    schema = toySchemaWith(
        SetBuilder("Pset_A").single("IsExternal", "IfcBoolean").applicableTo("IfcProduct").take());
    gridFormatter->customButtons = true;

    show({model.wall("W1")});

    expectReport("Should be a custom button property.",
                 std::string(function) + "setupOnCustomButtonClickedHandler", path);
    EXPECT_NE(row("Pset_A", "IsExternal"), nullptr);
}

/// Runs the steps of dressing one by one.
class OpenControl : public PropertySetGridControl
{
public:
    using PropertySetGridControl::PropertySetGridControl;
    using Step = void (OpenControl::*)(std::string const&, std::string const&,
                                       qev::ui::PropertyGridProperty&);

    struct NamedStep
    {
        char const* name;
        Step step;
    };
    static std::vector<NamedStep> propertyFormatterSteps()
    {
        return {{"applyEnabledState", &OpenControl::applyEnabledState},
                {"applyReadOnlyState", &OpenControl::applyReadOnlyState},
                {"applyBackgroundColour", &OpenControl::applyBackgroundColour}};
    }
    static std::vector<NamedStep> gridFormatterSteps()
    {
        return {
            {"applyPropertyHorizontalLineState", &OpenControl::applyPropertyHorizontalLineState},
            {"applyPropertyAlignment", &OpenControl::applyPropertyAlignment},
            {"applyEmptyLineState", &OpenControl::applyEmptyLineState},
            {"applyEmptyLineStateAfterPropertyWasAdded",
             &OpenControl::applyEmptyLineStateAfterPropertyWasAdded},
            {"applyPropertyNameIndentation", &OpenControl::applyPropertyNameIndentation},
            {"applyPropertyFontStyle", &OpenControl::applyPropertyFontStyle},
            {"notifyFormatterThatPropertyWasCreated", &OpenControl::notifyFormatterThatPropertyWasCreated}};
    }
};

TEST_F(PropertySetGridControlTest, EachStepOfDressingReportsThatItsFormatterIsMissing)
{
    OpenControl open(schema.get(), model.data(), dialog, filter, Formatters{}, {}, nullptr);
    qev::ui::PropertyGridProperty untouched("Code", std::string("A"), "", false);

    for (auto const& [name, step] : OpenControl::propertyFormatterSteps()) {
        (open.*step)("Pset_A", "Code", untouched);
        expectReport("Should only be called when property formatter exists.", std::string(function) + name,
                     path);
    }
    for (auto const& [name, step] : OpenControl::gridFormatterSteps()) {
        (open.*step)("Pset_A", "Code", untouched);
        expectReport("Should only be called when grid control property formatter exists.",
                     std::string(function) + name, path);
    }
    EXPECT_TRUE(untouched.isEnabled());
    EXPECT_EQ(untouched.getSubPropertyCount(), 0u);
}

} // namespace
