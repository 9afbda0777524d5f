#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertyFactories/SingleValueWithBooleanToggleGridControlPropertyFactory.h"

#include "GridFactoriesTest.h"
#include "library/kit/LogFormatter.h"
#include "UI/FoundationClasses/Property/Types/FcPropertySingleValueWithBooleanToggle.h"
#include "UI/FoundationClasses/Set/PropertySet.h"
#include "Ui/PropertyGrid/PropertyGridEditing.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridCheckBoxProperty.h"

#include <gmock/gmock.h>

namespace {

using namespace qev::fc::ui;
using namespace qev::test;
using qev::ui::PropertyGridEditing;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class SingleValueWithBooleanToggleGridControlPropertyFactoryTest : public GridFactoriesTest
{
protected:
    SingleValueWithBooleanToggleGridControlPropertyFactoryTest()
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

TEST_F(SingleValueWithBooleanToggleGridControlPropertyFactoryTest, AnEmptyValueHasNoRowWhateverItsToggleSays)
{
    model.addSet(wall, "Pset", {{"HasCode", boolean(true)}});

    EXPECT_THAT(groupOf(*shown, false)->getChildren(), IsEmpty());
}

TEST_F(SingleValueWithBooleanToggleGridControlPropertyFactoryTest, AValueStandsBesideTheBoxOfItsToggle)
{
    model.addSet(wall, "Pset", {{"HasCode", boolean(true)}, {"Code", label("A")}, {"Length", length(0.25)}});

    auto const group = groupOf(*shown, true);

    ASSERT_THAT(group->getChildren(), SizeIs(2));
    EXPECT_THAT(namesOf(group), ElementsAre("Pset.Code", "Pset.Length"));
    EXPECT_EQ(propertyOf(group->getChildren()[0]), &(*shown)["Code"]);
    auto const& code = group->getChildren()[0]->getState();
    EXPECT_EQ(code.kind, Kind::CheckBox);
    EXPECT_EQ(code.description, (*shown)["Code"].getLocalizedDescription());
    EXPECT_EQ(code.checkState, qev::ui::CheckState::Checked);
    EXPECT_EQ(code.text, "A");
    EXPECT_EQ(code.valueDisplayMode, qev::ui::ValueDisplayMode::BesideCheckBox);
    auto const& lengthRow = group->getChildren()[1]->getState();
    EXPECT_EQ(lengthRow.checkState, qev::ui::CheckState::Unchecked);
    EXPECT_EQ(lengthRow.number, 0.25);
    EXPECT_TRUE(group->getChildren()[1]->hasQuantityPresentation());
}

TEST_F(SingleValueWithBooleanToggleGridControlPropertyFactoryTest,
       WithoutValuesThereAreUncheckedBoxesWhereTheyAreWanted)
{
    auto const group = groupOf(*shown, true);

    ASSERT_THAT(group->getChildren(), SizeIs(2));
    for (auto const& row : group->getChildren())
        EXPECT_EQ(row->getCheckState(), qev::ui::CheckState::Unchecked);
    EXPECT_EQ(group->getChildren()[0]->getState().text, "");
    EXPECT_EQ(group->getChildren()[1]->getState().number, 0.0);
    EXPECT_TRUE(group->getChildren()[1]->hasQuantityPresentation());
    EXPECT_THAT(groupOf(*shown, false)->getChildren(), IsEmpty());
}

TEST_F(SingleValueWithBooleanToggleGridControlPropertyFactoryTest, BothSidesAreShownWhenUnusedOnesAreHidden)
{
    model.addSet(wall, "Pset", {{"HasCode", boolean(false)}, {"Code", label("A")}});

    auto const row = onlyRowOf(*shown, false);

    EXPECT_EQ(row->getState().kind, Kind::CheckBox);
    EXPECT_EQ(row->getCheckState(), qev::ui::CheckState::Unchecked);
    EXPECT_EQ(row->getState().text, "A");
}

TEST_F(SingleValueWithBooleanToggleGridControlPropertyFactoryTest,
       AValueWithoutItsToggleStandsAloneWhenUnusedOnesAreHidden)
{
    model.addSet(wall, "Pset", {{"Length", length(1)}});

    auto const group = groupOf(*shown, false);

    ASSERT_THAT(group->getChildren(), SizeIs(1));
    EXPECT_EQ(group->getChildren().front()->getState().kind, Kind::Value);
    EXPECT_EQ(group->getChildren().front()->getState().number, 1.0);
}

TEST_F(SingleValueWithBooleanToggleGridControlPropertyFactoryTest, AClickWritesTheToggleAndTellsItsName)
{
    auto const group = groupOf(*shown, true);
    grid.log.clear();

    auto const& toggle = shown->as<FcPropertySingleValueWithBooleanToggle>("Code");

    PropertyGridEditing::clickCheckBox(*group->getChildren().front());
    EXPECT_EQ(toggle.getBooleanValue(), "1");
    PropertyGridEditing::clickCheckBox(*group->getChildren().front());
    EXPECT_EQ(toggle.getBooleanValue(), "0");

    EXPECT_EQ(toggle.getValue(), "");
    EXPECT_THAT(grid.log, ElementsAre("clicked Pset HasCode on", "clicked Pset HasCode off"));
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

TEST_F(SingleValueWithBooleanToggleGridControlPropertyFactoryTest, AnotherPropertyIsReportedAndHasNoBox)
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

TEST_F(SingleValueWithBooleanToggleGridControlPropertyFactoryTest,
       AToggleTurnedToItsBooleanIsReportedAndHasABoxAllTheSame)
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
