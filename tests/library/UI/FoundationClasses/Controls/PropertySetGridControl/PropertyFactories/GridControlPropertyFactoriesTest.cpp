#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertyFactories/GridControlPropertyFactories.h"

#include "FoundationClasses/AllEntities.h"
#include "kit/ModelBuilder.h"
#include "kit/ReportRecorder.h"
#include "library/kit/LogFormatter.h"
#include "library/kit/SetBuilder.h"
#include "library/kit/ShownSet.h"
#include "UI/FoundationClasses/Controls/Formatters/PropertyGridControlPropertyFormatter.h"
#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertyFactories/SingleValueWithBooleanToggleGridControlPropertyFactory.h"
#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertySetGridControlInterface.h"
#include "UI/FoundationClasses/Property/Types/FcPropertySingleValueWithBooleanToggle.h"
#include "UI/FoundationClasses/Set/PropertySet.h"
#include "Ui/Headless/HeadlessBackend.h"
#include "Ui/PropertyGrid/PropertyGridEditing.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridCheckBoxProperty.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridControl.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridProperty.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace qev::fc;
using namespace qev::fc::ui;
using namespace qev::test;
using qev::ui::PropertyGridProperty;
using qev::ui::PropertyGridRow;
using qev::ui::PropertyGridRowState;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

/// What factories see of a control, with a log of what they tell it.
class ToyGrid : public PropertySetGridControlInterface
{
public:
    std::vector<std::string> log;
    std::shared_ptr<PropertyGridControlPropertyFormatterInterface> formatter;

    void showUnusedProperties() override {}
    void hideUnusedProperties() override {}
    std::shared_ptr<qev::ui::PropertyGridControl> getPropertyGridControl() override { return nullptr; }
    std::shared_ptr<PropertyGridControlPropertyFormatterInterface> getGridControlPropertyFormatter() override
    {
        return formatter;
    }
    void onPropertyCreated(std::string const& set, PropertyGridProperty& parent, std::string const& name,
                           PropertyGridProperty& /*row*/) override
    {
        log.push_back("created " + set + " " + name + " " + std::to_string(parent.getSubPropertyCount()));
    }
    void onPropertyCreatedAfter(std::string const& set, PropertyGridProperty& parent, std::string const& name,
                                bool wasEnabled) override
    {
        log.push_back("after " + set + " " + name + " " + std::to_string(parent.getSubPropertyCount()) +
                      (wasEnabled ? " enabled" : " disabled"));
    }
    void onCheckBoxPropertyClicked(std::string const& set, std::string const& name, bool checked) override
    {
        log.push_back("clicked " + set + " " + name + (checked ? " on" : " off"));
    }
};

class GridFactories : public testing::Test
{
protected:
    using Row = std::shared_ptr<PropertyGridRow>;

    /// The group of a set, made into a row that stands alone.
    std::shared_ptr<PropertyGridRow> groupOf(ShownSet& shown, bool showUnused)
    {
        return rowOf(GridControlPropertyFactories::instance().createProperty(grid, shown.set(), *model.data(),
                                                                             showUnused));
    }
    std::shared_ptr<PropertyGridRow> groupOf(FcBase const& object, bool showUnused,
                                             std::string const& label = {})
    {
        return rowOf(GridControlPropertyFactories::instance().createProperty(grid, object, label,
                                                                             *model.data(), showUnused, {}));
    }
    static std::shared_ptr<PropertyGridRow> rowOf(std::unique_ptr<PropertyGridProperty> const& handle)
    {
        return std::dynamic_pointer_cast<PropertyGridRow>(handle->takeCreated());
    }
    static std::vector<std::string> namesOf(Row const& group)
    {
        std::vector<std::string> names;
        for (auto const& child : group->getChildren())
            names.push_back(child->getName());
        return names;
    }
    static std::vector<std::string> optionsOf(Row const& row)
    {
        std::vector<std::string> options;
        for (auto const& option : row->getState().options)
            options.push_back(option.text);
        return options;
    }
    static Row named(Row const& group, std::string const& name)
    {
        for (auto const& child : group->getChildren()) {
            if (child->getName() == name)
                return child;
        }
        return nullptr;
    }

    std::shared_ptr<qev::ui::HeadlessBackend> backend = qev::ui::HeadlessBackend::install();
    Model model;
    std::shared_ptr<core::kernel::FcObjectDefinition> wall = model.wall("W1");
    ToyGrid grid;
};

// --- Groups -------------------------------------------------------------------------------------

TEST_F(GridFactories, TheControlHearsOfEachRowBeforeAndAfterItStandsInTheGroup)
{
    ShownSet shown(
        SetBuilder("Pset").single("A", "IfcLabel").list("NoRow", "IfcLabel").single("B", "IfcLabel").take(),
        {wall});

    auto const group = groupOf(shown, true);

    EXPECT_THAT(grid.log, ElementsAre("created Pset A 0", "after Pset A 1 enabled", "created Pset B 1",
                                      "after Pset B 2 enabled"));
    EXPECT_EQ(group->getName(), "Pset");
    EXPECT_EQ(group->getUserData(), &shown.set());
}

TEST_F(GridFactories, BoundedAndListValuesHaveNoRow)
{
    ShownSet shown(SetBuilder("Pset").bounded("A", "IfcReal").list("B", "IfcLabel").take(), {wall});

    EXPECT_THAT(groupOf(shown, true)->getChildren(), IsEmpty());
    EXPECT_THAT(grid.log, IsEmpty());
}

TEST_F(GridFactories, AGroupShowsTheDescriptionOfItsSet)
{
    ShownSet shown(SetBuilder("Pset").description("All about it").take(), {wall});

    auto const group = groupOf(shown, true);

    EXPECT_EQ(group->getName(), "All about it");
    EXPECT_EQ(group->getState().description, "All about it");
}

TEST_F(GridFactories, AttributesOfSupertypesStandFirstAndOnlyTheirCreationIsTold)
{
    auto const group = groupOf(*wall, true);

    EXPECT_EQ(group->getName(), "IfcWall");
    auto const names = namesOf(group);
    ASSERT_GT(names.size(), 5u);
    EXPECT_EQ(names.front(), "GlobalId");
    EXPECT_EQ(names.back(), "PredefinedType");
    EXPECT_THAT(grid.log, Contains("created IfcWall Name 2"));
    EXPECT_THAT(grid.log, Not(Contains(testing::StartsWith("after"))));
    EXPECT_EQ(group->getUserData(), nullptr);
}

TEST_F(GridFactories, AGivenLabelNamesTheGroupOfAttributes)
{
    EXPECT_EQ(groupOf(*wall, true, "This wall")->getName(), "This wall");
    EXPECT_THAT(grid.log, Contains("created This wall Name 2"));
}

TEST_F(GridFactories, AClassThatTheAttributeSchemaDoesNotKnowHasAGroupWithoutRows)
{
    auto const road = model.add<domain::road::FcRoad>("R1");

    EXPECT_THAT(groupOf(*road, true)->getChildren(), IsEmpty());
}

// --- Attributes ---------------------------------------------------------------------------------

TEST_F(GridFactories, AttributesCannotBeEditedAndLeadToNoProperty)
{
    auto const group = groupOf(*wall, true);

    for (auto const& row : group->getChildren()) {
        EXPECT_FALSE(row->getState().allowEdit);
        EXPECT_EQ(row->getUserData(), nullptr);
    }
}

TEST_F(GridFactories, AnAttributeWithAPresentationHasARowEvenWithoutAValue)
{
    auto const door = model.door("D1");

    auto const names = namesOf(groupOf(*door, false));

    EXPECT_THAT(names, Contains("OverallHeight"));
    EXPECT_THAT(names, Contains("Name"));
    EXPECT_THAT(names, Not(Contains("Description")));
}

TEST_F(GridFactories, AnAttributeIsShownInUnits)
{
    auto const door = model.door("D1");
    door->OverallHeight = 2.125;

    auto const height = named(groupOf(*door, false), "OverallHeight");

    EXPECT_EQ(height->getState().number, 2.125);
    EXPECT_TRUE(height->hasQuantityPresentation());
}

TEST_F(GridFactories, AnEnumerationAttributeListsNothingAndItsItems)
{
    auto const options = optionsOf(named(groupOf(*wall, true), "PredefinedType"));

    ASSERT_FALSE(options.empty());
    EXPECT_EQ(options.front(), "");
    EXPECT_THAT(options, Contains("MOVABLE"));
}

// --- Values -------------------------------------------------------------------------------------

TEST_F(GridFactories, ASingleValueIsATextOrANumberWithItsPresentation)
{
    model.addSet(wall, "Pset", {{"Code", label("A")}, {"Length", length(0.25)}});
    ShownSet shown(SetBuilder("Pset").single("Code", "IfcLabel").single("Length", "IfcLengthMeasure").take(),
                   {wall});

    auto const group = groupOf(shown, false);

    ASSERT_THAT(group->getChildren(), SizeIs(2));
    auto const& code = group->getChildren()[0];
    EXPECT_EQ(code->getState().text, "A");
    EXPECT_EQ(static_cast<PropertyInterface*>(code->getUserData()), &shown["Code"]);
    auto const& lengthRow = group->getChildren()[1];
    EXPECT_EQ(lengthRow->getState().number, 0.25);
    EXPECT_TRUE(lengthRow->hasQuantityPresentation());
    EXPECT_EQ(static_cast<PropertyInterface*>(lengthRow->getUserData()), &shown["Length"]);
}

TEST_F(GridFactories, UnusedValuesHaveARowOnlyWhenWanted)
{
    ShownSet shown(SetBuilder("Pset")
                       .single("Code", "IfcLabel")
                       .single("Length", "IfcLengthMeasure")
                       .single("IsExternal", "IfcBoolean")
                       .single("Known", "IfcLogical")
                       .enumerated("Status", {"NEW"})
                       .take(),
                   {wall});
    ShownSet quantities(everyQuantity("Qto"), {wall});

    EXPECT_THAT(groupOf(shown, false)->getChildren(), IsEmpty());
    EXPECT_THAT(groupOf(quantities, false)->getChildren(), IsEmpty());
    EXPECT_THAT(groupOf(shown, true)->getChildren(), SizeIs(5));
    EXPECT_THAT(groupOf(quantities, true)->getChildren(), SizeIs(6));
    EXPECT_EQ(groupOf(shown, true)->getChildren()[1]->getState().number, 0.0);
}

TEST_F(GridFactories, ABooleanWithoutAValueIsAnUncheckedBox)
{
    ShownSet shown(SetBuilder("Pset").single("IsExternal", "IfcBoolean").take(), {wall});

    auto const row = groupOf(shown, true)->getChildren().front();

    EXPECT_EQ(row->getState().kind, PropertyGridRowState::Kind::CheckBox);
    EXPECT_EQ(row->getCheckState(), qev::ui::CheckState::Unchecked);
    model.addSet(wall, "Pset", {{"IsExternal", boolean(true)}});
    EXPECT_EQ(groupOf(shown, true)->getChildren().front()->getCheckState(), qev::ui::CheckState::Checked);
}

TEST_F(GridFactories, AClickWritesTheBooleanAndThenTellsTheControl)
{
    ShownSet shown(SetBuilder("Pset").single("IsExternal", "IfcBoolean").take(), {wall});
    auto const group = groupOf(shown, true);
    grid.log.clear();

    qev::ui::PropertyGridEditing::clickCheckBox(*group->getChildren().front());
    EXPECT_EQ(shown["IsExternal"].getValue(), "1");
    qev::ui::PropertyGridEditing::clickCheckBox(*group->getChildren().front());
    EXPECT_EQ(shown["IsExternal"].getValue(), "0");

    EXPECT_THAT(grid.log, ElementsAre("clicked Pset IsExternal on", "clicked Pset IsExternal off"));
}

TEST_F(GridFactories, ALogicalOffersFourChoicesAndNoFreeText)
{
    ShownSet shown(SetBuilder("Pset").single("Known", "IfcLogical").take(), {wall});

    auto const row = groupOf(shown, true)->getChildren().front();

    EXPECT_THAT(optionsOf(row), ElementsAre("", "true", "false", "unknown"));
    EXPECT_FALSE(row->getState().allowEdit);
    EXPECT_NE(row->getUserData(), nullptr);
    EXPECT_NE(static_cast<PropertyInterface*>(row->getUserData()), &shown["Known"]);
}

TEST_F(GridFactories, AnEnumerationOffersNothingFirstAndTakesNoOtherText)
{
    ShownSet shown(SetBuilder("Pset").enumerated("Status", {"NEW", "OLD"}).take(), {wall});

    auto const row = groupOf(shown, true)->getChildren().front();

    EXPECT_THAT(optionsOf(row), ElementsAre("", "NEW", "OLD"));
    EXPECT_TRUE(row->getState().optionsOnly);
}

TEST_F(GridFactories, AQuantityIsItsText)
{
    model.addQuantities(wall, "Qto", {{"Area", 2.5, QuantityKind::Area}});
    ShownSet shown(everyQuantity("Qto"), {wall});

    auto const group = groupOf(shown, false);

    EXPECT_THAT(namesOf(group), ElementsAre("Area"));
    EXPECT_EQ(group->getChildren().front()->getState().text, "2.500000");
}

/// Wants a button in each row.
class ButtonFormatter : public PropertyGridControlPropertyFormatter
{
public:
    bool wantCustomButtonProperties() const override { return true; }
};

TEST_F(GridFactories, RowsHaveTheirOwnButtonWhenTheHostWantsIt)
{
    grid.formatter = std::make_shared<ButtonFormatter>();
    ShownSet shown(SetBuilder("Pset").single("Code", "IfcLabel").single("Length", "IfcLengthMeasure").take(),
                   {wall});

    auto const group = groupOf(shown, true);
    for (auto const& row : group->getChildren()) {
        EXPECT_TRUE(row->getState().hasCustomButton);
        EXPECT_EQ(row->getState().buttonVisibleState,
                  qev::ui::propertygridcontrol::button::VisibleState::Visible);
        EXPECT_EQ(row->getState().buttonImage, nullptr);
    }
}

// --- Toggles ------------------------------------------------------------------------------------

class GridToggles : public GridFactories
{
protected:
    GridToggles()
    {
        auto const formatter = std::make_shared<LogFormatter>();
        formatter->related = {{"HasCode", "Code"}, {"HasLength", "Length"}};
        ShownSet::Options options;
        options.formatter = formatter;
        shown = std::make_unique<ShownSet>(SetBuilder("Pset")
                                               .single("Code", "IfcLabel")
                                               .single("HasCode", "IfcBoolean")
                                               .single("Length", "IfcLengthMeasure")
                                               .single("HasLength", "IfcBoolean")
                                               .take(),
                                           Entities{wall}, options);
    }

    std::unique_ptr<ShownSet> shown;
};

TEST_F(GridToggles, AnEmptyValueHasNoRowWhateverItsToggleSays)
{
    model.addSet(wall, "Pset", {{"HasCode", boolean(true)}});

    EXPECT_THAT(groupOf(*shown, false)->getChildren(), IsEmpty());
}

TEST_F(GridToggles, AValueStandsBesideTheBoxOfItsToggle)
{
    model.addSet(wall, "Pset", {{"HasCode", boolean(true)}, {"Code", label("A")}, {"Length", length(0.25)}});

    auto const group = groupOf(*shown, true);

    ASSERT_THAT(group->getChildren(), SizeIs(2));
    auto const& code = group->getChildren()[0]->getState();
    EXPECT_EQ(code.checkState, qev::ui::CheckState::Checked);
    EXPECT_EQ(code.text, "A");
    EXPECT_EQ(code.valueDisplayMode, qev::ui::ValueDisplayMode::BesideCheckBox);
    auto const& lengthRow = group->getChildren()[1]->getState();
    EXPECT_EQ(lengthRow.checkState, qev::ui::CheckState::Unchecked);
    EXPECT_EQ(lengthRow.number, 0.25);
    EXPECT_TRUE(group->getChildren()[1]->hasQuantityPresentation());
}

TEST_F(GridToggles, AValueWithoutItsToggleStandsAloneWhenUnusedOnesAreHidden)
{
    model.addSet(wall, "Pset", {{"Length", length(1)}});

    auto const group = groupOf(*shown, false);

    ASSERT_THAT(group->getChildren(), SizeIs(1));
    EXPECT_EQ(group->getChildren().front()->getState().kind, PropertyGridRowState::Kind::Value);
    EXPECT_EQ(group->getChildren().front()->getState().number, 1.0);
}

TEST_F(GridToggles, AClickWritesTheToggleAndTellsItsName)
{
    auto const group = groupOf(*shown, true);
    grid.log.clear();

    qev::ui::PropertyGridEditing::clickCheckBox(*group->getChildren().front());

    EXPECT_THAT(grid.log, ElementsAre("clicked Pset HasCode on"));
    EXPECT_EQ(shown->as<FcPropertySingleValueWithBooleanToggle>("Code").getBooleanValue(), "1");
}

/// Makes check boxes of any property.
class OpenToggleFactory : public SingleValueWithBooleanToggleGridControlPropertyFactory
{
public:
    using SingleValueWithBooleanToggleGridControlPropertyFactory::createCheckBoxProperty;
};

/// A toggle that is turned to its boolean while it runs a function.
class OpenToggle : public FcPropertySingleValueWithBooleanToggle
{
public:
    using FcPropertySingleValueWithBooleanToggle::FcPropertySingleValueWithBooleanToggle;
    using FcPropertySingleValueWithBooleanToggle::workWithBooleanProperty;
};

TEST_F(GridToggles, AnotherPropertyIsReportedAndHasNoBox)
{
    ShownSet const booleans(SetBuilder("Pset").single("IsExternal", "IfcBoolean").take(), {wall});
    auto const& property = booleans.as<FcPropertyBooleanType>("IsExternal");

    EXPECT_EQ(OpenToggleFactory().createCheckBoxProperty(property, true, true), nullptr);

    expectReport(
        "Property is not a FcPropertySingleValueWithBooleanToggle",
        "qev::fc::ui::SingleValueWithBooleanToggleGridControlPropertyFactory::createCheckBoxProperty",
        "UI/FoundationClasses/Controls/PropertySetGridControl/PropertyFactories/"
        "SingleValueWithBooleanToggleGridControlPropertyFactory");
}

TEST_F(GridToggles, AToggleTurnedToItsBooleanIsReportedAndHasABoxAllTheSame)
{
    auto const definition =
        SetBuilder("Pset").single("Code", "IfcLabel").single("HasCode", "IfcBoolean").take();
    std::vector<std::string> const contexts;
    OpenToggle const toggle(*definition->propertyDefs[0], *definition->propertyDefs[1],
                            dynamic_cast<PropertySet&>(shown->set()), contexts);
    auto const guard = toggle.workWithBooleanProperty();

    auto const row = OpenToggleFactory().createCheckBoxProperty(toggle, true, true);

    EXPECT_NE(row, nullptr);
    expectReport(
        "Must be set up to use value definition (not boolean property) when this function is called.",
        "qev::fc::ui::SingleValueWithBooleanToggleGridControlPropertyFactory::createCheckBoxProperty",
        "UI/FoundationClasses/Controls/PropertySetGridControl/PropertyFactories/"
        "SingleValueWithBooleanToggleGridControlPropertyFactory");
}

} // namespace
