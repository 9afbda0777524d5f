#include "UI/FoundationClasses/Property/FcPropertyBase.h"

#include "FoundationClasses/AllEntities.h"
#include "kit/ModelBuilder.h"
#include "kit/ReportRecorder.h"
#include "library/kit/LogFormatter.h"
#include "library/kit/SetBuilder.h"
#include "library/kit/ShownSet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace qev::fc;
using namespace qev::fc::ui;
using namespace qev::test;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

PropertyOrQuantityValue text(std::string value)
{
    return PropertyOrQuantityValue::fromText(std::move(value));
}

class FcPropertyBaseTest : public testing::Test
{
protected:
    ShownSet show(Entities objects, ShownSet::Options const& options)
    {
        return {SetBuilder("Pset").single("Code", "IfcLabel").single("Count", "IfcInteger").take(),
                std::move(objects), options};
    }
    ShownSet show(Entities objects) { return show(std::move(objects), {}); }

    Model model;
    std::shared_ptr<core::kernel::FcObjectDefinition> wall = model.wall("W1");
    std::shared_ptr<core::kernel::FcObjectDefinition> other = model.wall("W2");
};

TEST_F(FcPropertyBaseTest, WithoutObjectsNothingIsWrittenOrShown)
{
    auto const shown = show({});

    EXPECT_FALSE(shown["Code"].updateValue(*model.data(), text("A")));
    EXPECT_EQ(shown["Code"].getValue(), "");
}

TEST_F(FcPropertyBaseTest, ClearingWhatAnObjectDoesNotHaveCreatesNothing)
{
    auto const shown = show({wall});

    EXPECT_TRUE(shown["Code"].updateValue(*model.data(), text("")));

    EXPECT_THAT(wall->attachedSets(), IsEmpty());
}

TEST_F(FcPropertyBaseTest, ClearingTheLastPropertyRemovesTheSet)
{
    model.addSet(wall, "Pset", {{"Code", label("A")}, {"Count", integer(1)}});
    auto const shown = show({wall});

    EXPECT_TRUE(shown["Code"].updateValue(*model.data(), text("")));
    EXPECT_THAT(wall->attachedSets(), SizeIs(1));
    EXPECT_TRUE(shown["Count"].updateValue(*model.data(), text("")));
    EXPECT_THAT(wall->attachedSets(), IsEmpty());
}

TEST_F(FcPropertyBaseTest, ClearingAnAbsentPropertyLeavesAnEmptySet)
{
    model.addSet(wall, "Pset");
    auto const shown = show({wall});

    EXPECT_TRUE(shown["Code"].updateValue(*model.data(), text("")));

    EXPECT_THAT(wall->attachedSets(), SizeIs(1));
}

TEST_F(FcPropertyBaseTest, ARefusedFirstValueLeavesNoSetBehind)
{
    auto const shown = show({wall});

    EXPECT_FALSE(shown["Count"].updateValue(*model.data(), text("many")));

    EXPECT_THAT(wall->attachedSets(), IsEmpty());
}

TEST_F(FcPropertyBaseTest, ARefusedValueLeavesTheOtherPropertiesAlone)
{
    model.addSet(wall, "Pset", {{"Code", label("A")}});
    auto const shown = show({wall});

    EXPECT_FALSE(shown["Count"].updateValue(*model.data(), text("many")));

    EXPECT_EQ(shown["Code"].getValue(), "A");
    EXPECT_EQ(shown["Count"].getValue(), "");
}

TEST_F(FcPropertyBaseTest, TheFirstRefusalEndsTheWorkAndEarlierObjectsKeepTheirValue)
{
    // A label takes the text that an integer refuses.
    model.addSet(wall, "Pset", {{"Count", label("old")}});
    model.addSet(other, "Pset", {{"Count", integer(1)}});
    auto const last = model.wall("W3");
    model.addSet(last, "Pset", {{"Count", label("old")}});
    auto shown = show({wall, other, last});

    EXPECT_FALSE(shown["Count"].updateValue(*model.data(), text("new")));

    auto const valueOf = [&shown](std::shared_ptr<FcBase> const& object) {
        shown.objects = {object};
        return shown["Count"].getValue();
    };
    EXPECT_EQ(valueOf(wall), "new");
    EXPECT_EQ(valueOf(other), "1.000000");
    EXPECT_EQ(valueOf(last), "old");
}

TEST_F(FcPropertyBaseTest, OtherEntitiesAndNullArePassedOver)
{
    std::shared_ptr<FcBase> const property = singleValue("Code", label("A"));
    auto const shown = show({property, nullptr, wall});

    EXPECT_TRUE(shown["Code"].updateValue(*model.data(), text("B")));
    EXPECT_THAT(takeReportTexts(), IsEmpty());

    EXPECT_EQ(shown["Code"].getValue(), "B");
    expectReport("Object is nullptr.", "qev::fc::ui::FcPropertySingleValue::getFcValue",
                 "UI/FoundationClasses/Property/Types/FcPropertySingleValue");
}

TEST_F(FcPropertyBaseTest, NothingButOtherEntitiesIsASuccessWithoutEffect)
{
    auto const shown = show({std::shared_ptr<FcBase>(singleValue("Code", label("A")))});

    EXPECT_TRUE(shown["Code"].updateValue(*model.data(), text("B")));
    EXPECT_EQ(shown["Code"].getValue(), "");
}

TEST_F(FcPropertyBaseTest, NamesAreThoseOfDefinitionAndSet)
{
    auto const shown = show({wall});

    EXPECT_EQ(shown["Code"].getName(), "Code");
    EXPECT_EQ(shown["Code"].getPropertySetName(), "Pset");
    EXPECT_EQ(shown["Code"].getDescription(), "");
}

TEST_F(FcPropertyBaseTest, WithoutATextTheLabelIsTheAliasAndWithoutAnAliasTheKey)
{
    auto definition = SetBuilder("Pset").single("Code", "IfcLabel").single("Count", "IfcInteger").take();
    auto const key = definition->propertyDefs[1]->getConcept();
    definition->propertyDefs[0]->nameAliases.set(qev::locale::Locale::get(1), "Code of the wall");
    ShownSet const shown(std::move(definition), {wall});

    EXPECT_EQ(shown["Code"].getLocalizedName(), "Code of the wall");
    EXPECT_EQ(shown["Code"].getLocalizedDescription(), "Code of the wall");
    EXPECT_EQ(shown["Count"].getLocalizedName(), key);
    EXPECT_EQ(shown["Count"].getLocalizedDescription(), key + "_Description");
}

TEST_F(FcPropertyBaseTest, TheButtonOfARowReachesTheFormatter)
{
    auto const formatter = std::make_shared<LogFormatter>();
    ShownSet::Options options;
    options.formatter = formatter;
    auto const shown = show({wall}, options);

    shown["Code"].onPropertyCustomButtonClicked();

    EXPECT_THAT(formatter->log, ElementsAre("button Pset Code"));
}

} // namespace
