#include "UI/FoundationClasses/Property/Types/FcPropertyBooleanType.h"

#include "Core/Exception.h"
#include "Core/Unit/QuantityPresentation.h"
#include "FoundationClasses/AllEntities.h"
#include "kit/ModelBuilder.h"
#include "kit/ReportRecorder.h"
#include "library/kit/LogFormatter.h"
#include "library/kit/SetBuilder.h"
#include "library/kit/ShownSet.h"
#include "library/kit/TranslationScope.h"
#include "UI/FoundationClasses/Property/Types/FcPropertyLogicalType.h"
#include "UI/FoundationClasses/Property/Types/FcPropertySingleValueWithBooleanToggle.h"
#include "UI/FoundationClasses/Set/PropertySet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace {

using namespace qev::fc;
using namespace qev::fc::ui;
using namespace qev::test;
using testing::ElementsAre;
using testing::IsEmpty;

PropertyOrQuantityValue text(std::string value)
{
    return PropertyOrQuantityValue::fromText(std::move(value));
}

class BooleanType : public testing::Test
{
protected:
    ShownSet show(Entities objects)
    {
        return {SetBuilder("Pset").single("IsExternal", "IfcBoolean").single("Known", "IfcLogical").take(),
                std::move(objects)};
    }

    Model model;
    std::shared_ptr<core::kernel::FcObjectDefinition> wall = model.wall("W1");
    std::shared_ptr<core::kernel::FcObjectDefinition> other = model.wall("W2");
};

TEST_F(BooleanType, ShowsOneZeroOrNothing)
{
    model.addSet(wall, "Pset", {{"IsExternal", boolean(true)}});
    model.addSet(other, "Pset", {{"IsExternal", boolean(false)}});

    EXPECT_EQ(show({wall})["IsExternal"].getValue(), "1");
    EXPECT_EQ(show({other})["IsExternal"].getValue(), "0");
    EXPECT_EQ(show({wall, other})["IsExternal"].getValue(), "");
    EXPECT_EQ(show({model.wall("W3")})["IsExternal"].getValue(), "");
}

TEST_F(BooleanType, ZeroIsFalseAndEveryOtherNumberTrue)
{
    auto const shown = show({wall});
    auto& property = shown.as<FcPropertyBooleanType>("IsExternal");
    std::vector<std::string> values;

    for (auto const* const typed : {"0", "1", "2", "-1"}) {
        property.updateBooleanValue(*model.data(), text(typed));
        values.push_back(property.getBooleanValue());
    }

    EXPECT_THAT(values, ElementsAre("0", "1", "1", "1"));
    EXPECT_EQ(property.getBooleanName(), "IsExternal");
}

TEST_F(BooleanType, ATextThatIsNoNumberReachesTheCaller)
{
    auto const shown = show({wall});

    EXPECT_THROW(shown["IsExternal"].updateValue(*model.data(), text("yes")), std::invalid_argument);
    EXPECT_THROW(shown["IsExternal"].updateValue(*model.data(), text("99999999999999999999")),
                 std::out_of_range);
}

TEST_F(BooleanType, APropertyMadeForAnUnreadableTextStays)
{
    auto const shown = show({wall, other});

    EXPECT_THROW(shown["IsExternal"].updateValue(*model.data(), text("yes")), std::invalid_argument);

    EXPECT_EQ(show({wall})["IsExternal"].getValue(), "0");
    EXPECT_THAT(other->attachedSets(), IsEmpty());
}

TEST_F(BooleanType, ANumberIsReportedAndIsNoText)
{
    auto const shown = show({wall});

    EXPECT_THROW(shown["IsExternal"].updateValue(*model.data(), PropertyOrQuantityValue::fromNumber(1.0)),
                 std::invalid_argument);

    expectReport("Not a string value.", "qev::fc::ui::PropertyOrQuantityValue::getStringValue",
                 "Ui/FoundationClasses/PropertyOrQuantityValue");
}

TEST_F(BooleanType, OnlyTheStartOfTheTextNeedsToBeANumber)
{
    auto const shown = show({wall});

    EXPECT_TRUE(shown["IsExternal"].updateValue(*model.data(), text(" 0x")));
    EXPECT_EQ(shown["IsExternal"].getValue(), "0");
    EXPECT_TRUE(shown["IsExternal"].updateValue(*model.data(), text("1.9")));
    EXPECT_EQ(shown["IsExternal"].getValue(), "1");
}

TEST_F(BooleanType, AnEmptyValueBecomesABoolean)
{
    model.addSet(wall, "Pset", {{"IsExternal", FcValue()}});
    auto const shown = show({wall});
    EXPECT_EQ(shown["IsExternal"].getValue(), "");

    EXPECT_TRUE(shown["IsExternal"].updateValue(*model.data(), text("1")));

    EXPECT_EQ(shown["IsExternal"].getValue(), "1");
}

TEST_F(BooleanType, TheSameValueAgainIsNoChange)
{
    model.addSet(wall, "Pset", {{"IsExternal", boolean(true)}});
    model.data()->changes().setSaved();

    EXPECT_TRUE(show({wall})["IsExternal"].updateValue(*model.data(), text("7")));

    EXPECT_FALSE(model.data()->changes().isModified());
}

TEST_F(BooleanType, TheEmptyTextRemovesTheProperty)
{
    model.addSet(wall, "Pset", {{"IsExternal", boolean(true)}});

    show({wall}).as<FcPropertyBooleanType>("IsExternal").updateBooleanValue(*model.data(), text(""));

    EXPECT_THAT(wall->attachedSets(), IsEmpty());
}

TEST_F(BooleanType, AValueOfAnotherTypeIsReportedShowsNothingAndRefusesEdits)
{
    model.addSet(wall, "Pset", {{"IsExternal", label("yes")}});
    auto const shown = show({wall});

    EXPECT_EQ(shown["IsExternal"].getValue(), "");
    expectReport("FcSimpleValue doesn't hold a boolean.",
                 "qev::fc::ui::FcPropertyBooleanType::getFcValueAsString",
                 "UI/FoundationClasses/Property/Types/FcPropertyBooleanType");
    try {
        shown["IsExternal"].updateValue(*model.data(), text("1"));
        ADD_FAILURE() << "nothing was raised";
    } catch (qev::exception const& error) {
        EXPECT_STREQ(error.what(), "Not of correct type");
    }
}

TEST_F(BooleanType, AValueOfAnotherFamilyIsReportedShowsNothingAndRefusesEdits)
{
    model.addSet(wall, "Pset", {{"IsExternal", length(1.0)}});
    auto const shown = show({wall});

    EXPECT_EQ(shown["IsExternal"].getValue(), "");
    expectReport("Must be a simple value to hold a boolean.",
                 "qev::fc::ui::FcPropertyBooleanType::getFcValueAsString",
                 "UI/FoundationClasses/Property/Types/FcPropertyBooleanType");
    try {
        shown["IsExternal"].updateValue(*model.data(), text("1"));
        ADD_FAILURE() << "nothing was raised";
    } catch (qev::exception const& error) {
        EXPECT_STREQ(error.what(), "Not of correct type");
    }
}

// --- Logical ------------------------------------------------------------------------------------

TEST_F(BooleanType, ALogicalIsWhatItWraps)
{
    auto const formatter = std::make_shared<LogFormatter>();
    ShownSet::Options options;
    options.formatter = formatter;
    ShownSet const shown(SetBuilder("Pset").single("Known", "IfcLogical").take(), {wall}, options);
    auto& known = shown.as<FcPropertyLogicalType>("Known");
    auto& wrapped = known.getWrappedProperty();

    EXPECT_TRUE(known.updateValue(*model.data(), text("unknown")));
    EXPECT_EQ(known.getValue(), "unknown");
    EXPECT_EQ(known.getValue(), wrapped.getValue());
    EXPECT_EQ(known.getName(), wrapped.getName());
    EXPECT_EQ(known.getDescription(), wrapped.getDescription());
    EXPECT_EQ(known.getLocalizedName(), wrapped.getLocalizedName());
    EXPECT_EQ(known.getLocalizedDescription(), wrapped.getLocalizedDescription());
    EXPECT_EQ(known.getPropertySetName(), wrapped.getPropertySetName());
    EXPECT_EQ(known.isAllowedToEdit(), wrapped.isAllowedToEdit());
    EXPECT_EQ(known.isValidValue(), wrapped.isValidValue());
    known.onPropertyCustomButtonClicked();
    EXPECT_THAT(formatter->log, ElementsAre("button Pset Known"));
    EXPECT_FALSE(known.updateValue(*model.data(), text("perhaps")));
}

// --- Toggle -------------------------------------------------------------------------------------

class Toggle : public BooleanType
{
protected:
    Toggle()
    {
        auto const formatter = std::make_shared<LogFormatter>();
        formatter->related["HasHeight"] = "Height";
        ShownSet::Options options;
        options.formatter = formatter;
        shown = std::make_unique<ShownSet>(
            SetBuilder("Pset").single("HasHeight", "IfcBoolean").single("Height", "IfcReal").take(),
            Entities{wall}, options);
    }
    FcPropertySingleValueWithBooleanToggle& row()
    {
        return shown->as<FcPropertySingleValueWithBooleanToggle>("Height");
    }

    std::unique_ptr<ShownSet> shown;
};

TEST_F(Toggle, IsTheValueButForTheOperationsOfTheBoolean)
{
    model.addSet(wall, "Pset", {{"HasHeight", boolean(true)}, {"Height", real(2.0)}});

    EXPECT_EQ(row().getName(), "Height");
    EXPECT_EQ(row().getValue(), "2.000000");
    EXPECT_EQ(row().getBooleanName(), "HasHeight");
    EXPECT_EQ(row().getBooleanValue(), "1");
    EXPECT_TRUE(row().usesValueDefinition());
}

TEST_F(Toggle, WritesEachSideToItsOwnProperty)
{
    row().updateBooleanValue(*model.data(), text("0"));
    EXPECT_EQ(row().getBooleanValue(), "0");
    EXPECT_EQ(row().getValue(), "");

    EXPECT_TRUE(row().updateValue(*model.data(), text("3")));
    EXPECT_EQ(row().getValue(), "3.000000");
    EXPECT_EQ(row().getBooleanValue(), "0");
}

TEST_F(Toggle, ClearsEachSideAlone)
{
    model.addSet(wall, "Pset", {{"HasHeight", boolean(true)}, {"Height", real(2.0)}});

    EXPECT_TRUE(row().updateValue(*model.data(), text("")));
    EXPECT_EQ(row().getValue(), "");
    EXPECT_EQ(row().getBooleanValue(), "1");

    row().updateBooleanValue(*model.data(), text(""));
    EXPECT_EQ(row().getBooleanValue(), "");
    EXPECT_THAT(wall->attachedSets(), IsEmpty());
}

TEST_F(Toggle, TheToggleIsEmptyWhereTheObjectsDoNotAgree)
{
    model.addSet(wall, "Pset", {{"HasHeight", boolean(true)}, {"Height", real(2.0)}});
    model.addSet(other, "Pset", {{"HasHeight", boolean(false)}, {"Height", real(2.0)}});
    shown->objects = {wall, other};

    EXPECT_EQ(row().getBooleanValue(), "");
    EXPECT_EQ(row().getValue(), "2.000000");
}

TEST_F(Toggle, AToggleThatIsNoBooleanIsReportedForTheToggleAlone)
{
    model.addSet(wall, "Pset", {{"HasHeight", label("yes")}, {"Height", real(2.0)}});

    EXPECT_EQ(row().getValue(), "2.000000");
    EXPECT_EQ(row().getBooleanValue(), "");
    expectReport("FcSimpleValue doesn't hold a boolean.",
                 "qev::fc::ui::FcPropertyBooleanType::getFcValueAsString",
                 "UI/FoundationClasses/Property/Types/FcPropertyBooleanType");
}

/// Tells what a row is about while it works on its toggle.
class OpenToggle : public FcPropertySingleValueWithBooleanToggle
{
public:
    using FcPropertySingleValueWithBooleanToggle::FcPropertySingleValueWithBooleanToggle;

    std::vector<std::string> namesWithinNestedGuards()
    {
        std::vector<std::string> names;
        auto const note = [&] {
            names.push_back(getName() + (quantityPresentation() ? " with a unit" : ""));
        };
        note();
        {
            auto const outer = workWithBooleanProperty();
            note();
            {
                auto const inner = workWithBooleanProperty();
                note();
            }
            note();
        }
        note();
        return names;
    }
    /// The label and both descriptions.
    std::vector<std::string> texts() const
    {
        return {getLocalizedName(), getDescription(), getLocalizedDescription()};
    }
    std::vector<std::string> textsOfToggle() const
    {
        auto const guard = workWithBooleanProperty();
        return texts();
    }
};

TEST_F(Toggle, FollowsTheSideItWorksOnAlsoWhenGuardsAreNested)
{
    auto const definition =
        SetBuilder("Pset").single("Height", "IfcLengthMeasure").single("HasHeight", "IfcBoolean").take();
    std::vector<std::string> const contexts;
    OpenToggle toggle(*definition->propertyDefs[0], *definition->propertyDefs[1],
                      dynamic_cast<PropertySet&>(shown->set()), contexts);

    EXPECT_THAT(toggle.namesWithinNestedGuards(), ElementsAre("Height with a unit", "HasHeight", "HasHeight",
                                                              "HasHeight", "Height with a unit"));
}

TEST_F(Toggle, LabelAndDescriptionsAreThoseOfTheSideItWorksOn)
{
    auto const definition =
        SetBuilder("Pset").single("Height", "IfcReal").single("HasHeight", "IfcBoolean").take();
    auto& height = *definition->propertyDefs[0];
    auto& hasHeight = *definition->propertyDefs[1];
    height.description = "How high it is";
    hasHeight.description = "Whether its height is known";
    TranslationScope texts;
    for (auto const& [side, label] :
         {std::pair(&height, "The height"), std::pair(&hasHeight, "Has a height")}) {
        texts.addIn("Host", side->getConcept(), label);
        texts.addIn("Host", side->getConcept() + "_Description", side->description + ", told by the host");
    }
    std::vector<std::string> const contexts = {"Host"};
    OpenToggle const toggle(height, hasHeight, dynamic_cast<PropertySet&>(shown->set()), contexts);

    EXPECT_THAT(toggle.texts(),
                ElementsAre("The height", "How high it is", "How high it is, told by the host"));
    EXPECT_THAT(toggle.textsOfToggle(), ElementsAre("Has a height", "Whether its height is known",
                                                    "Whether its height is known, told by the host"));
}

TEST_F(Toggle, WithoutTextsTheLabelAndTheDescriptionAreTheAliasOfTheSideItWorksOn)
{
    auto const definition =
        SetBuilder("Pset").single("Height", "IfcReal").single("HasHeight", "IfcBoolean").take();
    definition->propertyDefs[0]->nameAliases.set(qev::locale::Locale::get(1), "The height");
    definition->propertyDefs[1]->nameAliases.set(qev::locale::Locale::get(1), "Has a height");
    std::vector<std::string> const contexts;
    OpenToggle const toggle(*definition->propertyDefs[0], *definition->propertyDefs[1],
                            dynamic_cast<PropertySet&>(shown->set()), contexts);

    EXPECT_THAT(toggle.texts(), ElementsAre("The height", "", "The height"));
    EXPECT_THAT(toggle.textsOfToggle(), ElementsAre("Has a height", "", "Has a height"));
}

TEST_F(Toggle, IsBackOnTheValueSideAfterAnException)
{
    EXPECT_THROW(row().updateBooleanValue(*model.data(), text("yes")), std::invalid_argument);

    EXPECT_TRUE(row().usesValueDefinition());
    EXPECT_EQ(row().getName(), "Height");
}

} // namespace
