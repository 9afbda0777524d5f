#include "UI/FoundationClasses/Property/FcPropertyBase.h"

#include "Core/Localization/LocalizationAdmin.h"
#include "FoundationClasses/AllEntities.h"
#include "kit/ModelBuilder.h"
#include "kit/ReportRecorder.h"
#include "library/kit/LogFormatter.h"
#include "library/kit/SetBuilder.h"
#include "library/kit/ShownSet.h"
#include "UI/FoundationClasses/Property/Types/FcPropertySingleValue.h"
#include "UI/FoundationClasses/Set/PropertySet.h"

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

TEST_F(FcPropertyBaseTest, AQuantitySetOfThatNameStaysWhenThePropertySetGoes)
{
    auto const quantities = model.addQuantities(wall, "Pset", {{"Length", 2.0}});
    auto const shown = show({wall});

    EXPECT_FALSE(shown["Count"].updateValue(*model.data(), text("many")));
    EXPECT_THAT(wall->attachedSets(), ElementsAre(quantities));
    EXPECT_TRUE(shown["Code"].updateValue(*model.data(), text("A")));
    EXPECT_THAT(wall->attachedSets(), SizeIs(2));
    EXPECT_TRUE(shown["Code"].updateValue(*model.data(), text("")));
    EXPECT_THAT(wall->attachedSets(), ElementsAre(quantities));
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

TEST_F(FcPropertyBaseTest, ARefusedFirstValueTakesAnEmptySetAlong)
{
    model.addSet(wall, "Pset");
    auto const shown = show({wall});

    EXPECT_FALSE(shown["Count"].updateValue(*model.data(), text("many")));

    EXPECT_THAT(wall->attachedSets(), IsEmpty());
}

TEST_F(FcPropertyBaseTest, ANumberNeverClears)
{
    model.addSet(wall, "Pset", {{"Count", integer(7)}});
    auto const shown = show({wall});

    EXPECT_TRUE(shown["Count"].updateValue(*model.data(), PropertyOrQuantityValue::fromNumber(0.0)));

    EXPECT_EQ(shown["Count"].getValue(), "0.000000");
}

TEST_F(FcPropertyBaseTest, AnEditWithoutTextAndNumberIsReportedAndCountsAsAnEmptyTextThatIsStored)
{
    model.addSet(wall, "Pset", {{"Code", label("A")}});
    auto const shown = show({wall});

    EXPECT_TRUE(shown["Code"].updateValue(*model.data(), PropertyOrQuantityValue()));

    expectReport("Not a string value.", "qev::fc::ui::PropertyOrQuantityValue::getStringValue",
                 "Ui/FoundationClasses/PropertyOrQuantityValue");
    EXPECT_THAT(wall->attachedSets(), SizeIs(1));
    EXPECT_EQ(shown["Code"].getValue(), "");
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
    auto definition = SetBuilder("Pset").single("Code", "IfcLabel").single("Count", "IfcInteger").take();
    definition->propertyDefs[0]->description = "What the wall is called";
    ShownSet const shown(std::move(definition), {wall});

    EXPECT_EQ(shown["Code"].getName(), "Code");
    EXPECT_EQ(shown["Code"].getPropertySetName(), "Pset");
    EXPECT_EQ(shown["Code"].getDescription(), "What the wall is called");
    EXPECT_EQ(shown["Count"].getDescription(), "");
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

TEST_F(FcPropertyBaseTest, TheTextsOfTheFirstContextThatHasThemGoBeforeTheAlias)
{
    auto& admin = qev::resource::localization::getAdminInstance();
    auto definition = SetBuilder("Pset").single("Code", "IfcLabel").take();
    auto const key = definition->propertyDefs[0]->getConcept();
    definition->propertyDefs[0]->nameAliases.set(qev::locale::Locale::get(1), "Code of the wall");
    qev::localization::Dictionary first;
    first.set(key + "_Description", "What it is made of");
    qev::localization::Dictionary second;
    second.set(key, "Wall code");
    second.set(key + "_Description", "Not come to");
    admin.add("FcPropertyBaseTest1", admin.language(), first);
    admin.add("FcPropertyBaseTest2", admin.language(), second);
    ShownSet::Options options;
    options.contexts = {"NoSuchContext", "FcPropertyBaseTest1", "FcPropertyBaseTest2"};
    ShownSet const shown(std::move(definition), {wall}, options);

    EXPECT_EQ(shown["Code"].getLocalizedName(), "Wall code");
    EXPECT_EQ(shown["Code"].getLocalizedDescription(), "What it is made of");
}

/// A kind of property that changes nothing of the common ground.
class PlainProperty : public FcPropertyBase
{
public:
    using FcPropertyBase::FcPropertyBase;
    [[nodiscard]] static resource::measure::FcValue const& emptyValue() { return getEmptyFcValue(); }
};

TEST_F(FcPropertyBaseTest, BySelfNothingIsShownEditedOrStored)
{
    auto const definition = SetBuilder("Pset").single("Code", "IfcLabel").take();
    auto shown = show({wall});
    std::vector<std::string> const contexts;
    PlainProperty plain(*definition->propertyDefs[0], dynamic_cast<PropertySet&>(shown.set()), contexts);

    EXPECT_FALSE(plain.isAllowedToEdit());
    EXPECT_FALSE(plain.isValidValue());
    EXPECT_EQ(plain.getValue(), "");
    EXPECT_TRUE(plain.updateValue(*model.data(), text("A")));
    auto const set = wall->getPropertySetDefinitionNonConst<core::kernel::FcPropertySet>("Pset");
    ASSERT_NE(set, nullptr);
    EXPECT_THAT(set->HasProperties.getProperties(), IsEmpty());
}

TEST_F(FcPropertyBaseTest, ThereIsOneEmptyValue)
{
    EXPECT_TRUE(PlainProperty::emptyValue().isEmpty());
    EXPECT_EQ(&PlainProperty::emptyValue(), &PlainProperty::emptyValue());
    EXPECT_EQ(&show({}).as<FcPropertySingleValue>("Code").getFcValue(), &PlainProperty::emptyValue());
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
