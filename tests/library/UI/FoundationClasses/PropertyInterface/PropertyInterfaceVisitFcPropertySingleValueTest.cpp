#include "FoundationClasses/Resource/Property/FcPropertySingleValue.h"

#include "FoundationClasses/Core/Kernel/FcPropertySet.h"
#include "FoundationClasses/Logical.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWall.h"
#include "kit/ModelBuilder.h"
#include "library/kit/EntityProperties.h"
#include "library/kit/PresentationScope.h"
#include "library/kit/TranslationScope.h"

#include <gtest/gtest.h>

namespace {

using namespace qev;
using namespace qev::test;
using fc::resource::property::FcPropertySingleValue;
using object::PropertyValue;

struct SingleValueRow : testing::Test
{
    TranslationScope texts;
    Model model;
    std::shared_ptr<fc::shared::sharedbldgelements::FcWall> wall = model.wall("W1");
    std::shared_ptr<fc::core::kernel::FcPropertySet> set = model.addSet(wall, "Own");

    std::shared_ptr<FcPropertySingleValue> property(FcValue value)
    {
        auto result = singleValue("P", std::move(value));
        set->HasProperties.addProperty(result);
        return result;
    }
    EntityProperties of(std::shared_ptr<fc::FcBase> const& entity) const { return {model.data(), entity}; }
    PropertyValue read(FcValue value) { return of(property(std::move(value))).value("Name"); }
    /// What the property holds after a value was written to it.
    FcValue written(FcValue before, PropertyValue const& value)
    {
        auto const changed = property(std::move(before));
        of(changed).set("Name", value);
        return changed->NominalValue;
    }
};

using Text = std::optional<std::string>;

TEST_F(SingleValueRow, IsALeafThatAnswersByItsName)
{
    auto const own = property(label("a"));
    auto const nodes = of(own).nodes();
    EXPECT_EQ(treeText(nodes), "P = Name\n");
    EXPECT_EQ(nodes[0]->object, own);
}

TEST_F(SingleValueRow, ShowsMeasuresAndRealsAsNumbers)
{
    EXPECT_EQ(read(length(2.5)), PropertyValue(std::optional(2.5)));
    EXPECT_EQ(read(number("ThermalTransmittanceMeasure", 0.24)), PropertyValue(std::optional(0.24)));
    EXPECT_EQ(read(number("CountMeasure", 3)), PropertyValue(std::optional(3.0)));
    EXPECT_EQ(read(real(1.25)), PropertyValue(std::optional(1.25)));
    EXPECT_EQ(read(valueOf("DescriptiveMeasure", "about")), PropertyValue(std::optional<double>()));
}

TEST_F(SingleValueRow, ShowsTruthValuesAsSuch)
{
    EXPECT_EQ(read(boolean(true)), PropertyValue(std::optional(true)));
    EXPECT_EQ(read(boolean(false)), PropertyValue(std::optional(false)));
}

TEST_F(SingleValueRow, ShowsAllOthersAsTexts)
{
    EXPECT_EQ(read(label("F30")), PropertyValue(Text("F30")));
    EXPECT_EQ(read(label("")), PropertyValue(Text("")));
    EXPECT_EQ(read(integer(-7)), PropertyValue(Text("-7")));
    EXPECT_EQ(read(logical(fc::Logical::Unknown)), PropertyValue(Text("unknown")));
    EXPECT_EQ(read(logical(fc::Logical::True)), PropertyValue(Text("true")));
    EXPECT_EQ(read(valueOf("Date", "2024-02-29")), PropertyValue(Text("2024-02-29")));
    EXPECT_EQ(read({}), PropertyValue(Text()));
}

TEST_F(SingleValueRow, ShowsNothingForOtherIds)
{
    EXPECT_EQ(of(property(label("a"))).value("Specification"), PropertyValue());
}

TEST_F(SingleValueRow, WritesWhatFitsTheType)
{
    EXPECT_EQ(written(length(2.5), std::optional(3.0)), length(3.0));
    EXPECT_EQ(written(label("a"), Text("b")), label("b"));
    EXPECT_EQ(written(boolean(true), std::optional(false)), boolean(false));
    EXPECT_EQ(written(logical(fc::Logical::True), Text("unknown")), logical(fc::Logical::Unknown));
    EXPECT_EQ(written(integer(1), Text("12")), integer(12));
    EXPECT_EQ(written(length(2.5), Text("wide")), length(2.5));
    EXPECT_EQ(written({}, Text("b")), label("b"));
}

TEST_F(SingleValueRow, GoesWithItsValue)
{
    auto const other = property(label("b"));
    auto const own = property(label("a"));

    of(own).set("Name", Text());

    EXPECT_FALSE(of(own).isPresent());
    ASSERT_EQ(set->HasProperties.getProperties().size(), 1U);
    EXPECT_EQ(set->HasProperties.getProperties()[0], other);
}

TEST_F(SingleValueRow, TakesItsSetAlongWhenItWasTheLast)
{
    of(property(length(1))).set("Name", std::optional<double>());

    EXPECT_FALSE(of(set).isPresent());
    EXPECT_TRUE(wall->getPropertySetDefinitions<fc::core::kernel::FcPropertySet>().empty());
}

TEST_F(SingleValueRow, StaysWhenItsOwnValueIsWrittenBack)
{
    for (auto const& value : {FcValue(), label(""), integer(3), logical(fc::Logical::Unknown),
                              valueOf("DescriptiveMeasure", "about")}) {
        auto const own = property(value);
        of(own).set("Name", of(own).value("Name"));
        EXPECT_TRUE(of(own).isPresent());
        EXPECT_EQ(own->NominalValue.get(), value);
    }
}

TEST_F(SingleValueRow, OffersTheThreeValuesOfALogical)
{
    texts.addIn("FoundationClassesUi", "LogicalValue_True", "yes");
    texts.addIn("FoundationClassesUi", "LogicalValue_False", "no");
    texts.addIn("FoundationClassesUi", "LogicalValue_Unknown", "perhaps");
    auto const own = property(logical(fc::Logical::Unknown));

    EXPECT_TRUE(of(own).hasChoices("Name"));
    auto const choices = of(own).choices("Name");
    ASSERT_EQ(choices.size(), 3U);
    EXPECT_EQ(choices[0].text, "yes");
    EXPECT_EQ(choices[0].value, PropertyValue(Text("true")));
    EXPECT_EQ(choices[1].text, "no");
    EXPECT_EQ(choices[1].value, PropertyValue(Text("false")));
    EXPECT_EQ(choices[2].text, "perhaps");
    EXPECT_EQ(choices[2].value, PropertyValue(Text("unknown")));
}

TEST_F(SingleValueRow, OffersNoValuesOfOtherTypes)
{
    auto const logicalValue = property(logical(fc::Logical::True));
    EXPECT_FALSE(of(logicalValue).hasChoices("Specification"));
    EXPECT_TRUE(of(logicalValue).choices("Specification").empty());
    for (auto const& value : {boolean(true), label("true"), FcValue()}) {
        auto const own = property(value);
        EXPECT_FALSE(of(own).hasChoices("Name"));
        EXPECT_TRUE(of(own).choices("Name").empty());
    }
}

TEST_F(SingleValueRow, HasThePresentationOfItsMeasure)
{
    auto const own = property(length(2.5));
    EXPECT_TRUE(of(own).hasQuantity("Name"));
    EXPECT_EQ(of(own).quantity("Name"), 2.5);
    EXPECT_FALSE(of(own).hasQuantity("Specification"));
    EXPECT_EQ(of(own).quantity("Specification"), std::nullopt);

    for (auto const& value : {label("a"), boolean(true), FcValue()}) {
        auto const without = property(value);
        EXPECT_FALSE(of(without).hasQuantity("Name"));
        EXPECT_EQ(of(without).quantity("Name"), std::nullopt);
    }
}

TEST_F(SingleValueRow, HasThePresentationThatIsSetForThePropertyOfTheSet)
{
    PresentationScope const speed("Own.P");
    auto const own = property(real(3));

    EXPECT_EQ(of(own).quantity("Name", "Own"), 3.0);
    EXPECT_EQ(of(own).quantity("Name"), std::nullopt);
    EXPECT_FALSE(of(own).hasQuantity("Name"));
}

} // namespace
