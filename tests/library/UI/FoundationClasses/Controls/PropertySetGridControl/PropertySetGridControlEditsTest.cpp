#include "PropertySetGridControlTest.h"

#include "FoundationClasses/AllEntities.h"
#include "library/kit/LogFormatter.h"
#include "UI/FoundationClasses/Property/PropertyInterface.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridProperty.h"

#include <gmock/gmock.h>

namespace {

using namespace qev::fc;
using namespace qev::fc::ui;
using namespace qev::test;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class PropertySetGridControlEditsTest : public PropertySetGridControlTest
{
protected:
    /// Gives the control a formatter, whose log the handlers of changed properties write to as well.
    LogFormatter& useFormatter(std::vector<std::shared_ptr<FcBase>> const& objects)
    {
        auto const log = std::make_shared<LogFormatter>();
        formatter = log;
        show(objects);
        control->propertyChangedHandlers.iHandlerAdd(
            [log](auto const&, auto const&, auto const&) { log->log.emplace_back("handlers"); });
        log->log.clear();
        log->objects.clear();
        return *log;
    }
};

/// A property that is shown and may not be edited.
class FixedProperty : public PropertyInterface
{
public:
    [[nodiscard]] bool isAllowedToEdit() const override { return false; }
    [[nodiscard]] bool isValidValue() const override { return true; }
    bool updateValue(Data& /*data*/, PropertyOrQuantityValue const& /*value*/) override
    {
        ADD_FAILURE() << "must not be written";
        return true;
    }
    [[nodiscard]] std::string getName() const override { return "Fixed"; }
    [[nodiscard]] std::string getDescription() const override { return {}; }
    [[nodiscard]] std::string getLocalizedName() const override { return "Fixed"; }
    [[nodiscard]] std::string getLocalizedDescription() const override { return {}; }
    [[nodiscard]] std::string getValue() const override { return "as it is"; }
    [[nodiscard]] std::string getPropertySetName() const override { return "Pset_A"; }
    void onPropertyCustomButtonClicked() override {}
};

TEST_F(PropertySetGridControlEditsTest, ATypedTextReachesTheModelAndTheHandlers)
{
    auto const wall = model.wall("W1");
    show({wall});

    EXPECT_TRUE(grid().type(row("Pset_A", "Code"), "K7"));

    EXPECT_EQ(valueOfProperty(wall, "Pset_A", "Code"), label("K7"));
    EXPECT_THAT(handled, ElementsAre("Pset_A Code { 0 }"));
}

TEST_F(PropertySetGridControlEditsTest, ANumberIsStoredInSiUnits)
{
    auto const wall = model.wall("W1");
    show({wall});

    EXPECT_TRUE(grid().type(row("Pset_A", "Length"), "250 mm"));

    EXPECT_EQ(valueOfProperty(wall, "Pset_A", "Length"), length(0.25));
}

TEST_F(PropertySetGridControlEditsTest, OneUndoTakesAnEditOfAllObjectsBack)
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

TEST_F(PropertySetGridControlEditsTest, ClearingARowRemovesThePropertyAndItsSet)
{
    auto const wall = model.wall("W1");
    model.addSet(wall, "Pset_A", {{"Code", label("A")}});
    show({wall});

    EXPECT_TRUE(grid().clear(row("Pset_A", "Code")));

    EXPECT_THAT(wall->attachedSets(), IsEmpty());
    EXPECT_THAT(handled, SizeIs(1));
}

TEST_F(PropertySetGridControlEditsTest, ClearingANumberIsReportedAndRemovesTheProperty)
{
    auto const wall = model.wall("W1");
    model.addSet(wall, "Pset_A", {{"Length", length(2.0)}});
    show({wall});

    EXPECT_TRUE(grid().clear(row("Pset_A", "Length")));

    expectControlReport("Quantity formatted property should be compatible with double.",
                        "getValueFromGridProperty");
    EXPECT_THAT(wall->attachedSets(), IsEmpty());
}

TEST_F(PropertySetGridControlEditsTest, ARefusedEditBlanksTheRowAndTheHandlersStillHearOfIt)
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

TEST_F(PropertySetGridControlEditsTest, ANumberBeyondAllBoundsIsARefusedEdit)
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

TEST_F(PropertySetGridControlEditsTest, AClickOnACheckBoxReachesTheModelAndBothKindsOfHandlers)
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

TEST_F(PropertySetGridControlEditsTest, AClickOnACheckBoxIsOneUndoStep)
{
    auto const wall = model.wall("W1");
    show({wall});
    grid().clickCheckBox(row("Pset_A", "IsExternal"));
    EXPECT_EQ(model.data()->changes().undoName(), "Pset_A.IsExternal");

    model.data()->changes().undo();

    EXPECT_THAT(wall->attachedSets(), IsEmpty());
}

TEST_F(PropertySetGridControlEditsTest, AClickOnABooleanOfAnotherTypeIsRefusedAndTold)
{
    auto const wall = model.wall("W1");
    model.addSet(wall, "Pset_A", {{"IsExternal", label("yes")}});
    show({wall});
    EXPECT_THAT(takeReportTexts(), ElementsAre("FcSimpleValue doesn't hold a boolean."));

    grid().clickCheckBox(row("Pset_A", "IsExternal"));

    EXPECT_EQ(valueOfProperty(wall, "Pset_A", "IsExternal"), label("yes"));
    EXPECT_THAT(handled, SizeIs(1));
}

TEST_F(PropertySetGridControlEditsTest, ALogicalAndAnEnumerationAreChosen)
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

TEST_F(PropertySetGridControlEditsTest, AnEditOfAnAttributeReachesNobody)
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

TEST_F(PropertySetGridControlEditsTest, WithoutHandlingOfChangesAnEditStaysInTheGrid)
{
    auto const wall = model.wall("W1");
    make()->init(gridId, std::nullopt, false);
    control->setObject(model.data(), wall);

    grid().type(row("Pset_A", "Code"), "K7");

    EXPECT_THAT(wall->attachedSets(), IsEmpty());
    EXPECT_THAT(handled, IsEmpty());
}

TEST_F(PropertySetGridControlEditsTest, AHandlerMayShowAnotherObject)
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

TEST_F(PropertySetGridControlEditsTest, AChangeOfTheModelMayHaveTheRowsBuiltAnew)
{
    auto const wall = model.wall("W1");
    show({wall});
    model.data()->changed.iHandlerAdd([&](auto const&) { control->setObject(model.data(), wall); });

    EXPECT_TRUE(grid().type(row("Pset_A", "Code"), "K7"));

    EXPECT_EQ(valueOfProperty(wall, "Pset_A", "Code"), label("K7"));
    EXPECT_THAT(handled, ElementsAre("Pset_A Code { 0 }"));
}

TEST_F(PropertySetGridControlEditsTest, AQuantityIsTypedAsText)
{
    auto const wall = model.wall("W1");
    model.addQuantities(wall, "Qto", {{"Length", 2.0}});
    show({wall});

    EXPECT_TRUE(grid().type(grid().findRow({"Qto", "Length"}), "3.5"));

    EXPECT_THAT(handled, ElementsAre("Qto Length { 0 }"));
    control->setObject(model.data(), wall);
    EXPECT_EQ(grid().findRow({"Qto", "Length"})->getState().text, "3.500000");
}

TEST_F(PropertySetGridControlEditsTest, ARowThatMayNotBeEditedIsBlankedAndNobodyHears)
{
    show({model.wall("W1")});
    FixedProperty fixed;
    auto handle =
        std::make_unique<qev::ui::PropertyGridProperty>("Fixed", std::string("as it is"), "", false);
    handle->setUserData(static_cast<PropertyInterface*>(&fixed));
    control->getPropertyGridControl()->addProperty(std::move(handle));

    grid().type(grid().findRow({"Fixed"}), "other");

    EXPECT_EQ(grid().findRow({"Fixed"})->getState().text, "");
    EXPECT_THAT(handled, IsEmpty());
}

TEST_F(PropertySetGridControlEditsTest, ARowWithoutAPropertyKeepsItsTextAndNobodyHears)
{
    show({model.wall("W1")});
    control->getPropertyGridControl()->addProperty(
        std::make_unique<qev::ui::PropertyGridProperty>("Own", std::string("before"), "", false));

    grid().type(grid().findRow({"Own"}), "after");

    EXPECT_EQ(grid().findRow({"Own"})->getState().text, "after");
    EXPECT_THAT(handled, IsEmpty());
}

TEST_F(PropertySetGridControlEditsTest, AnEditableAttributeReachesNobodyEither)
{
    filter->excludedSets.clear();
    auto const door = model.door("D1");
    auto const& log = useFormatter({door});

    // What is not read-only may be typed in, attributes included.
    EXPECT_TRUE(grid().type(grid().findRow({"IfcDoor", "Name"}), "D2"));

    EXPECT_EQ(door->Name.get(), "D1");
    EXPECT_THAT(handled, IsEmpty());
    EXPECT_THAT(log.log, IsEmpty());
}

TEST_F(PropertySetGridControlEditsTest, TheFormatterHearsOfAnEditBeforeTheHandlers)
{
    auto const& log = useFormatter({model.wall("W1")});

    grid().type(row("Pset_A", "Code"), "K7");
    grid().clickCheckBox(row("Pset_A", "IsExternal"));

    EXPECT_THAT(log.log, ElementsAre("setObject", "changed Pset_A Code", "handlers", "setObject",
                                     "changed Pset_A IsExternal", "handlers"));
}

TEST_F(PropertySetGridControlEditsTest, OfSeveralObjectsTheFirstIsTold)
{
    auto const first = model.wall("W1");
    auto const second = model.wall("W2");
    auto const& log = useFormatter({first, second});

    grid().type(row("Pset_A", "Code"), "K7");

    EXPECT_EQ(valueOfProperty(second, "Pset_A", "Code"), label("K7"));
    EXPECT_THAT(log.objects, ElementsAre(first));
    EXPECT_THAT(handled, ElementsAre("Pset_A Code { 0 }"));
}

TEST_F(PropertySetGridControlEditsTest, TheFormatterHearsOfARefusedEditToo)
{
    auto const wall = model.wall("W1");
    model.addSet(wall, "Pset_B", {{"Count", integer(4)}});
    auto const& log = useFormatter({wall});

    grid().type(row("Pset_B", "Count"), "many");

    EXPECT_THAT(log.log, ElementsAre("setObject", "changed Pset_B Count", "handlers"));
}

} // namespace
