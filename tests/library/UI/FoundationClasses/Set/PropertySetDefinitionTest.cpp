#include "UI/FoundationClasses/Set/PropertySetDefinition.h"

#include "Core/Localization/LocalizationAdmin.h"
#include "Core/Unit/Quantity.h"
#include "Core/Unit/QuantityPresentation.h"
#include "FoundationClasses/AllEntities.h"
#include "kit/ModelBuilder.h"
#include "kit/ReportRecorder.h"
#include "library/kit/LogFormatter.h"
#include "library/kit/SetBuilder.h"
#include "library/kit/ShownSet.h"
#include "library/kit/TranslationScope.h"
#include "UI/FoundationClasses/Property/Types/FcPropertySingleValueWithBooleanToggle.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace qev::fc;
using namespace qev::fc::ui;
using namespace qev::test;
using testing::AllOf;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::Pair;
using Type = PropertySetDefinitionType;

class SetDefinitions : public testing::Test
{
protected:
    static std::unique_ptr<qev::ifc::def::pset::PropertySetDef> toggles()
    {
        return SetBuilder("Pset")
            .single("Height", "IfcReal")
            .single("Code", "IfcLabel")
            .single("HasHeight", "IfcBoolean")
            .single("WantsHeight", "IfcBoolean")
            .take();
    }
    ShownSet::Options withFormatter()
    {
        ShownSet::Options options;
        options.formatter = formatter;
        options.filter = filter;
        return options;
    }

    Model model;
    std::shared_ptr<core::kernel::FcObjectDefinition> wall = model.wall("W1");
    std::shared_ptr<core::kernel::FcObjectDefinition> other = model.wall("W2");
    std::shared_ptr<LogFormatter> formatter = std::make_shared<LogFormatter>();
    std::shared_ptr<ToyFilter> filter = std::make_shared<ToyFilter>();
};

// --- What a set is built from -------------------------------------------------------------------

TEST_F(SetDefinitions, TheClassOfADefinitionTellsItsType)
{
    auto const properties = SetBuilder("Pset").take();
    auto const quantities = everyQuantity("Qto");

    EXPECT_EQ(PropertySetDefinitionInfo(*properties).type, Type::PropertySet);
    EXPECT_EQ(PropertySetDefinitionInfo(*quantities).type, Type::QuantitySet);
    EXPECT_EQ(PropertySetDefinitionInfo(*quantities).name, "Qto");
    EXPECT_EQ(PropertySetDefinitionInfo(*quantities).definition, quantities.get());
}

class StrangeSet : public qev::ifc::def::xml::SetDef
{
public:
    using SetDef::SetDef;
    char const* sKind() const override { return "StrangeSet"; }
    std::vector<qev::ifc::def::xml::Def const*> entries() const override { return {}; }
};

TEST_F(SetDefinitions, ADefinitionOfAnotherClassIsReportedAndOfUnknownType)
{
    StrangeSet const strange("Strange");

    EXPECT_EQ(PropertySetDefinitionInfo(strange).type, Type::Unknown);

    expectReport("Not able to find schema type.",
                 "qev::fc::ui::PropertySetDefinitionInfo::PropertySetDefinitionInfo",
                 "UI/FoundationClasses/Set/PropertySetDefinitionInfo");
}

TEST_F(SetDefinitions, ASetOfUnknownTypeIsReportedAndNotMade)
{
    auto const make = [](Type type) {
        return PropertySetDefinition::create(PropertySetDefinitionInfo("S", type), {}, nullptr, nullptr, {},
                                             nullptr);
    };

    EXPECT_EQ(make(Type::Unknown), nullptr);
    expectReport("Unknown type", "qev::fc::ui::PropertySetDefinition::create",
                 "UI/FoundationClasses/Set/PropertySetDefinition");
    EXPECT_EQ(make(static_cast<Type>(7)), nullptr);
}

// --- Rows ---------------------------------------------------------------------------------------

TEST_F(SetDefinitions, ASetThatNoObjectHasShowsItsRowsEmpty)
{
    ShownSet const shown(SetBuilder("Pset").single("Code", "IfcLabel").single("Count", "IfcInteger").take(),
                         {wall});

    EXPECT_THAT(shown.names(), ElementsAre("Code", "Count"));
    EXPECT_EQ(shown["Code"].getValue(), "");
}

TEST_F(SetDefinitions, RowsOfASetWithoutDefinitionAreThoseOfTheFirstObject)
{
    model.addSet(wall, "Own", {{"A", label("1")}});
    model.addSet(other, "Own", {{"A", label("1")}, {"B", label("2")}});

    ShownSet const shown("Own", Type::PropertySet, {wall, other});

    expectReport("Not implemented: Need to merge with existing values.",
                 "qev::fc::ui::PropertySet::PropertySet", "UI/FoundationClasses/Set/PropertySet");
    EXPECT_THAT(shown.names(), ElementsAre("A"));
    EXPECT_EQ(shown["A"].getValue(), "1");
}

TEST_F(SetDefinitions, QuantitiesOfASetWithoutDefinitionAreThoseOfTheFirstObject)
{
    model.addQuantities(wall, "Own", {{"A", 1.0}});
    model.addQuantities(other, "Own", {{"B", 2.0}});

    ShownSet const shown("Own", Type::QuantitySet, {wall, other});

    expectReport("Not implemented: Need to merge with existing values.",
                 "qev::fc::ui::QuantitySet::QuantitySet", "UI/FoundationClasses/Set/QuantitySet");
    EXPECT_THAT(shown.names(), ElementsAre("A"));
}

TEST_F(SetDefinitions, OfASetWithoutDefinitionWhatHasNoTypeOrNoDisplayHasNoRow)
{
    auto const set = model.addSet(wall, "Own", {{"Empty", FcValue()}, {"A", label("1")}});
    auto const reference = std::make_shared<resource::property::FcPropertyReferenceValue>();
    reference->Name = "Reference";
    set->HasProperties.addProperty(reference);
    set->HasProperties.addProperty(boundedValue("Unbounded", {}, {}, {}));
    set->HasProperties.addProperty(boundedValue("Range", {}, {}, real(1)));

    ShownSet const shown("Own", Type::PropertySet, {wall});

    EXPECT_THAT(takeReportTexts(), ElementsAre("IfcPropertyReferenceValue not implemented."));
    EXPECT_THAT(shown.names(), ElementsAre("A", "Range"));
}

TEST_F(SetDefinitions, TheFirstObjectIsTheFirstThatHasTheSet)
{
    model.addSet(other, "Own", {{"B", label("2")}});
    model.addQuantities(other, "OwnQuantities", {{"C", 1.0}});
    Entities const objects{std::shared_ptr<FcBase>(singleValue("A", label("1"))), nullptr, wall, other};

    EXPECT_THAT(ShownSet("Own", Type::PropertySet, objects).names(), ElementsAre("B"));
    EXPECT_THAT(ShownSet("OwnQuantities", Type::QuantitySet, objects).names(), ElementsAre("C"));
}

TEST_F(SetDefinitions, EachFurtherObjectWithTheSetIsReported)
{
    auto const set = model.addSet(wall, "Own", {{"A", label("1")}});
    model.joinSet(set, other);
    auto const third = model.wall("W3");
    model.shareSet(set, third);

    ShownSet const shown("Own", Type::PropertySet, {wall, other, third});

    EXPECT_THAT(takeReportTexts(), ElementsAre("Not implemented: Need to merge with existing values.",
                                               "Not implemented: Need to merge with existing values."));
    EXPECT_THAT(shown.names(), ElementsAre("A"));
}

TEST_F(SetDefinitions, WithoutDefinitionAndSetThereAreNoRows)
{
    EXPECT_THAT(ShownSet("Own", Type::PropertySet, {wall}).names(), IsEmpty());
    EXPECT_THAT(ShownSet("Own", Type::QuantitySet, {wall}).names(), IsEmpty());
}

TEST_F(SetDefinitions, WithoutAFilterAPropertySetHasNoRowsAndAQuantitySetHasAll)
{
    ShownSet::Options options;
    options.filter = nullptr;

    EXPECT_THAT(ShownSet(toggles(), {wall}, options).names(), IsEmpty());
    EXPECT_EQ(ShownSet(everyQuantity("Qto"), {wall}, options).names().size(), 6u);
}

TEST_F(SetDefinitions, WhatTheFilterLeavesOutHasNoRow)
{
    filter->excludedProperties = {"Code"};
    ShownSet::Options options;
    options.filter = filter;
    EXPECT_THAT(ShownSet(toggles(), {wall}, options).names(),
                ElementsAre("Height", "HasHeight", "WantsHeight"));

    filter->excludedSets = {"Pset"};
    EXPECT_THAT(ShownSet(toggles(), {wall}, options).names(), IsEmpty());
}

TEST_F(SetDefinitions, KindsWithoutARowAreLeftOut)
{
    ShownSet const shown(SetBuilder("Pset").table("T").single("Code", "IfcLabel").take(), {wall});

    EXPECT_THAT(takeReportTexts(), ElementsAre("IfcPropertyTableValue not implemented."));
    EXPECT_THAT(shown.names(), ElementsAre("Code"));
}

// --- Values and toggles -------------------------------------------------------------------------

TEST_F(SetDefinitions, AValueAndItsToggleShareARowAtThePlaceOfTheToggle)
{
    formatter->related["HasHeight"] = "Height";
    ShownSet shown(toggles(), {wall}, withFormatter());

    EXPECT_THAT(shown.names(), ElementsAre("Code", "Height", "WantsHeight"));
    EXPECT_EQ(shown.as<FcPropertySingleValueWithBooleanToggle>("Height").getBooleanName(), "HasHeight");
    EXPECT_THAT(shown.set().getTogglesToValues(), ElementsAre(Pair("HasHeight", "Height")));
    EXPECT_THAT(shown.set().getValuesToToggles(), ElementsAre(Pair("Height", "HasHeight")));
}

TEST_F(SetDefinitions, TwoTogglesOfOneValueHaveTwoRowsAndTheLaterOneIsKept)
{
    formatter->related = {{"HasHeight", "Height"}, {"WantsHeight", "Height"}};
    ShownSet shown(toggles(), {wall}, withFormatter());

    EXPECT_THAT(shown.names(), ElementsAre("Code", "Height", "Height"));
    EXPECT_THAT(shown.set().getValuesToToggles(), ElementsAre(Pair("Height", "WantsHeight")));
}

TEST_F(SetDefinitions, AToggleWhoseValueIsLeftOutHasNoRowEither)
{
    formatter->related["HasHeight"] = "Height";
    filter->excludedProperties = {"Height"};
    ShownSet const shown(toggles(), {wall}, withFormatter());

    expectReport("Definition for property that uses another property for toggling on/off not found.",
                 "qev::fc::ui::PropertySet::populatePropertiesByQueryingFormatterAndFilter",
                 "UI/FoundationClasses/Set/PropertySet");
    EXPECT_THAT(shown.names(), ElementsAre("Code", "WantsHeight"));
}

TEST_F(SetDefinitions, AValueThatTheDefinitionDoesNotHaveLeavesItsToggleWithoutARow)
{
    formatter->related["HasHeight"] = "Width";
    ShownSet shown(toggles(), {wall}, withFormatter());

    EXPECT_THAT(
        takeReportTexts(),
        ElementsAre("Definition for property that uses another property for toggling on/off not found."));
    EXPECT_THAT(shown.names(), ElementsAre("Height", "Code", "WantsHeight"));
    EXPECT_THAT(shown.set().getTogglesToValues(), ElementsAre(Pair("HasHeight", "Width")));
}

TEST_F(SetDefinitions, AToggleMayBeTheValueOfAnotherToggle)
{
    formatter->related = {{"HasHeight", "Height"}, {"WantsHeight", "HasHeight"}};
    ShownSet const shown(toggles(), {wall}, withFormatter());

    EXPECT_THAT(shown.names(), ElementsAre("Code", "Height", "HasHeight"));
}

TEST_F(SetDefinitions, AToggleThatTheFilterLeavesOutIsNotAskedForAValue)
{
    formatter->related["HasHeight"] = "Height";
    filter->excludedProperties = {"HasHeight"};
    ShownSet shown(toggles(), {wall}, withFormatter());

    EXPECT_THAT(shown.names(), ElementsAre("Height", "Code", "WantsHeight"));
    EXPECT_THAT(shown.set().getTogglesToValues(), IsEmpty());
}

TEST_F(SetDefinitions, KindsThatCannotHaveAToggleHaveNoRow)
{
    formatter->related["HasStatus"] = "Status";
    ShownSet const shown(
        SetBuilder("Pset").enumerated("Status", {"NEW"}).single("HasStatus", "IfcBoolean").take(), {wall},
        withFormatter());

    EXPECT_THAT(takeReportTexts(),
                ElementsAre("Only single value properties support being accompanied by a boolean toggle "
                            "property."));
    EXPECT_THAT(shown.names(), IsEmpty());
}

/// Keeps by which names it is asked.
class NameLog : public LogFormatter
{
public:
    mutable std::vector<std::string> asked;
    [[nodiscard]] std::optional<std::string> getRelatedValueProperty(std::string const& setName,
                                                                     std::string const& name) const override
    {
        asked.push_back(setName + " " + name);
        return std::nullopt;
    }
};

TEST_F(SetDefinitions, TheFormatterIsAskedByTheNameOfTheSetAndTheFilterByThatOfTheDefinition)
{
    auto const definition = SetBuilder("Definition").single("Code", "IfcLabel").take();
    PropertySetDefinitionInfo info(*definition);
    info.name = "Set";
    auto const names = std::make_shared<NameLog>();

    auto const set = PropertySetDefinition::create(info, {}, names, filter, {}, nullptr);

    EXPECT_THAT(names->asked, ElementsAre("Set Code"));
    EXPECT_THAT(filter->askedSets, ElementsAre("Definition"));
    EXPECT_THAT(filter->askedProperties, AllOf(Not(IsEmpty()), Each("Definition Code")));
    EXPECT_EQ(set->getName(), "Set");
    EXPECT_EQ(set->getProperties().front()->getPropertySetName(), "Set");
    EXPECT_EQ(set->getLocalizedName({}), "Set");
}

TEST_F(SetDefinitions, WithoutAFormatterTheFilterIsAskedByTheNameOfTheDefinitionToo)
{
    auto const definition = SetBuilder("Definition").single("Code", "IfcLabel").take();
    PropertySetDefinitionInfo info(*definition);
    info.name = "Set";

    auto const set = PropertySetDefinition::create(info, {}, nullptr, filter, {}, nullptr);

    EXPECT_THAT(filter->askedSets, ElementsAre("Definition"));
    EXPECT_THAT(filter->askedProperties, ElementsAre("Definition Code"));
    EXPECT_EQ(set->getProperties().size(), 1u);
}

/// Gives a property another name when it is asked for its value.
class RenamingFormatter : public LogFormatter
{
public:
    qev::ifc::def::pset::PropertyDef* property = nullptr;
    [[nodiscard]] std::optional<std::string> getRelatedValueProperty(std::string const& /*setName*/,
                                                                     std::string const& name) const override
    {
        if (name != property->name)
            return std::nullopt;
        property->name = "Renamed";
        return "Height";
    }
};

TEST_F(SetDefinitions, AToggleThatIsNotFoundByItsNameIsReported)
{
    auto definition = toggles();
    auto const renaming = std::make_shared<RenamingFormatter>();
    renaming->property = definition->propertyDefs[2].get();
    auto options = withFormatter();
    options.formatter = renaming;

    ShownSet const shown(std::move(definition), {wall}, options);

    expectReport("Toggle property definition not found.",
                 "qev::fc::ui::PropertySet::populatePropertiesByQueryingFormatterAndFilter",
                 "UI/FoundationClasses/Set/PropertySet");
    EXPECT_THAT(shown.names(), ElementsAre("Code", "WantsHeight"));
}

TEST_F(SetDefinitions, OfTwoPropertiesOfOneNameTheFirstIsTheValue)
{
    formatter->related["HasHeight"] = "Height";
    ShownSet const shown(SetBuilder("Pset")
                             .single("Height", "IfcLengthMeasure")
                             .single("Height", "IfcLabel")
                             .single("HasHeight", "IfcBoolean")
                             .take(),
                         {wall}, withFormatter());

    ASSERT_THAT(shown.names(), ElementsAre("Height"));
    EXPECT_NE(shown.as<FcPropertySingleValue>("Height").quantityPresentation(), nullptr);
}

// --- Quantities ---------------------------------------------------------------------------------

TEST_F(SetDefinitions, NeitherFilterNorFormatterDecidesOnQuantities)
{
    filter->excludedSets = {"Qto"};
    filter->excludedProperties = {"Area"};
    formatter->related["Area"] = "Length";
    ShownSet shown(everyQuantity("Qto"), {wall}, withFormatter());

    EXPECT_THAT(shown.names(), ElementsAre("Area", "Count", "Length", "Time", "Volume", "Weight"));
    EXPECT_THAT(shown.set().getTogglesToValues(), IsEmpty());
}

/// Has a presentation for everything.
class GeneralOverride : public PropertyTypePropertySetAndPropertyNameQppOverrideInterface
{
public:
    std::unique_ptr<qev::unit::QuantityPresentationBase>
    createQuantityPresentation(std::string /*type*/, std::string /*set*/, std::string /*name*/) override
    {
        return qev::unit::makeQuantityPresentation<qev::unit::AreaUnit>();
    }
};

TEST_F(SetDefinitions, AQuantitySetHasNoOverride)
{
    ShownSet::Options options;
    options.qppOverride = std::make_shared<GeneralOverride>();
    ShownSet quantities(everyQuantity("Qto"), {wall}, options);
    ShownSet properties(SetBuilder("Pset").take(), {wall}, options);

    EXPECT_EQ(quantities.set().quantityPresentationOverride("AreaMeasure", "Qto", "Area"), nullptr);
    EXPECT_NE(properties.set().quantityPresentationOverride("AreaMeasure", "Pset", "Area"), nullptr);
}

// --- Texts --------------------------------------------------------------------------------------

TEST_F(SetDefinitions, WithoutATextTheLabelIsTheFallbackOrTheName)
{
    ShownSet shown(SetBuilder("Pset").description("All about it").take(), {wall});

    EXPECT_EQ(shown.set().getName(), "Pset");
    EXPECT_EQ(shown.set().getDescription(), "All about it");
    EXPECT_EQ(shown.set().getLocalizedName({}), "Pset");
    EXPECT_EQ(shown.set().getLocalizedName([] { return std::string("Else"); }), "Else");
    EXPECT_EQ(shown.set().getLocalizedDescription({}), "All about it");
    EXPECT_EQ(shown.set().getLocalizedDescription([] { return std::string("Else"); }), "Else");
}

TEST_F(SetDefinitions, WithoutADefinitionThereIsNoDescription)
{
    ShownSet shown("Own", Type::PropertySet, {wall});

    EXPECT_EQ(shown.set().getLocalizedName({}), "Own");
    EXPECT_EQ(shown.set().getDescription(), "");
    EXPECT_EQ(shown.set().getLocalizedDescription([] { return std::string("Else"); }), "");
}

TEST_F(SetDefinitions, ADefinitionWithoutANameIsNoKey)
{
    auto const definition = SetBuilder("").description("All about it").take();
    PropertySetDefinitionInfo info(*definition);
    info.name = "Own";
    auto const set = PropertySetDefinition::create(info, {}, nullptr, nullptr, {}, nullptr);

    EXPECT_EQ(set->getLocalizedName({}), "Own");
    EXPECT_EQ(set->getLocalizedDescription({}), "");
}

TEST_F(SetDefinitions, TextsAreLookedUpByTheNameOfTheDefinition)
{
    TranslationScope texts;
    texts.addIn("Host", "Definition", "Our set");
    texts.addIn("Host", "Definition_Description", "All about our set");
    texts.addIn("Host", "Set", "Not this one");
    texts.addIn("Host", "Set_Description", "Nor this one");
    auto const definition = SetBuilder("Definition").description("All about it").take();
    PropertySetDefinitionInfo info(*definition);
    info.name = "Set";

    auto const set = PropertySetDefinition::create(info, {}, nullptr, nullptr, {"Host"}, nullptr);

    EXPECT_EQ(set->getLocalizedName({}), "Our set");
    EXPECT_EQ(set->getLocalizedDescription({}), "All about our set");
}

TEST_F(SetDefinitions, TextsComeFromTheFirstContextThatHasOne)
{
    auto& admin = qev::resource::localization::getAdminInstance();
    auto const language = admin.language();
    admin.setLanguage(qev::locale::Locale("de", ""));
    ShownSet::Options options;
    options.contexts = {"NoSuchContext"};
    for (auto const& context : qev::localization::Dictionaries::getContexts("IFC"))
        options.contexts.push_back(context);
    ShownSet shown(SetBuilder("Pset_WallCommon").single("IsExternal", "IfcBoolean").take(), {wall}, options);

    EXPECT_EQ(shown.set().getLocalizedName({}), "Wand allgemein");
    EXPECT_NE(shown["IsExternal"].getLocalizedName(), "IsExternal");
    EXPECT_NE(shown["IsExternal"].getLocalizedName(), "Pset_WallCommon.IsExternal");
    admin.setLanguage(language);
}

// --- Services of a set --------------------------------------------------------------------------

TEST_F(SetDefinitions, ObjectsComeFromTheGetterAtEachCall)
{
    model.addSet(wall, "Pset", {{"Code", label("A")}});
    ShownSet shown(SetBuilder("Pset").single("Code", "IfcLabel").take(), {});
    EXPECT_EQ(shown["Code"].getValue(), "");

    shown.objects = {wall};

    EXPECT_EQ(shown["Code"].getValue(), "A");
}

TEST_F(SetDefinitions, WithoutAGetterThereAreNoObjects)
{
    auto const set = PropertySetDefinition::create(PropertySetDefinitionInfo("S", Type::PropertySet), {},
                                                   nullptr, nullptr, {}, nullptr);

    EXPECT_THAT(set->getObjects(), IsEmpty());
}

TEST_F(SetDefinitions, WithoutAFormatterAButtonIsReported)
{
    ShownSet const shown(SetBuilder("Pset").single("Code", "IfcLabel").take(), {wall});

    shown["Code"].onPropertyCustomButtonClicked();

    expectReport("Expected function to be called only when we have a formatter.",
                 "qev::fc::ui::PropertySetDefinition::onPropertyCustomButtonClicked",
                 "UI/FoundationClasses/Set/PropertySetDefinition");
}

TEST_F(SetDefinitions, WithoutAnOverrideThereIsNoPresentation)
{
    ShownSet shown(SetBuilder("Pset").take(), {wall});

    EXPECT_EQ(shown.set().quantityPresentationOverride("LengthMeasure", "Pset", "P"), nullptr);
}

} // namespace
