#include "Core/Localization/LocalizationAdmin.h"
#include "FoundationClasses/AllEntities.h"
#include "kit/ModelBuilder.h"
#include "kit/ReportRecorder.h"
#include "library/kit/SetBuilder.h"
#include "library/kit/ShownSet.h"
#include "library/kit/TranslationScope.h"
#include "UI/FoundationClasses/Property/Types/FcPropertyBoundedValue.h"
#include "UI/FoundationClasses/Property/Types/FcPropertyEnumeratedValue.h"
#include "UI/FoundationClasses/Property/Types/FcPropertyListValue.h"

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

/// Enumerated, bounded and list values: kinds of which a property holds several values.
class SeveralValues : public testing::Test
{
protected:
    ShownSet show(Entities objects)
    {
        return {SetBuilder("Pset")
                    .enumerated("Status", {"NEW", "EXISTING"})
                    .bounded("Range", "IfcReal")
                    .list("Codes", "IfcLabel")
                    .take(),
                std::move(objects)};
    }
    std::string shownFor(std::string const& name,
                         std::shared_ptr<resource::property::FcProperty> const& property)
    {
        auto const object = model.wall("W");
        model.addSet(object, "Pset")->HasProperties.addProperty(property);
        return show({object})[name].getValue();
    }
    void add(std::shared_ptr<core::kernel::FcObjectDefinition> const& object,
             std::shared_ptr<resource::property::FcProperty> const& property)
    {
        model.addSet(object, "Pset")->HasProperties.addProperty(property);
    }
    std::vector<FcValue> storedStatus(std::shared_ptr<core::kernel::FcObjectDefinition> const& object)
    {
        auto const set = object->getPropertySetDefinitionNonConst<core::kernel::FcPropertySet>("Pset");
        std::shared_ptr<FcBase> const property = set->HasProperties.getProperties().front();
        return entityCast<resource::property::FcPropertyEnumeratedValue>(property)
            ->EnumerationValues.get()
            .value();
    }

    Model model;
    std::shared_ptr<core::kernel::FcObjectDefinition> wall = model.wall("W1");
    std::shared_ptr<core::kernel::FcObjectDefinition> other = model.wall("W2");
};

// --- Enumerated values --------------------------------------------------------------------------

TEST_F(SeveralValues, WhatMayBeEditedInPlace)
{
    auto const shown = show({wall});

    EXPECT_TRUE(shown["Status"].isAllowedToEdit());
    EXPECT_TRUE(shown["Status"].isValidValue());
    EXPECT_FALSE(shown["Range"].isAllowedToEdit());
    EXPECT_FALSE(shown["Range"].isValidValue());
    EXPECT_FALSE(shown["Codes"].isAllowedToEdit());
    EXPECT_TRUE(shown["Codes"].isValidValue());
}

TEST_F(SeveralValues, AnEnumerationOffersWhatTheDefinitionLists)
{
    auto const shown = show({wall});
    auto const& status = shown.as<FcPropertyEnumeratedValue>("Status");

    EXPECT_THAT(status.getEnumeratedValues(), ElementsAre("NEW", "EXISTING"));
    EXPECT_THAT(status.getLocalizedEnumeratedValues(), ElementsAre("NEW", "EXISTING"));
}

TEST_F(SeveralValues, AnEnumeratedValueIsShownPlainAndSeveralInBrackets)
{
    EXPECT_EQ(shownFor("Status", enumeratedValue("Status", {label("NEW")}, {})), "NEW");
    EXPECT_EQ(shownFor("Status", enumeratedValue("Status", {label("NEW"), label("EXISTING")}, {})),
              "(NEW, EXISTING)");
    EXPECT_EQ(shownFor("Status", enumeratedValue("Status", {label("NEW"), FcValue()}, {})), "(NEW, )");
    EXPECT_EQ(shownFor("Status", enumeratedValue("Status", {}, {})), "");
}

TEST_F(SeveralValues, AnEnumerationWithoutAListOfValuesShowsNothing)
{
    auto const property = enumeratedValue("Status", {}, {});
    property->EnumerationValues = std::nullopt;

    EXPECT_EQ(shownFor("Status", property), "");
}

TEST_F(SeveralValues, EnumeratedNumbersAndTruthValuesAreShownAsTheirText)
{
    EXPECT_EQ(shownFor("Status", enumeratedValue("Status", {real(2.5), boolean(true)}, {})), "(2.5, true)");
}

/// The enumeration with texts of a language of its own.
class LocalizedEnumeration : public SeveralValues
{
protected:
    LocalizedEnumeration()
    {
        auto& admin = qev::resource::localization::getAdminInstance();
        qev::localization::Dictionary dictionary;
        dictionary.set("Pset.Status.NEW", "brand new");
        dictionary.set("Pset.Status.STRANGE", "out of the ordinary");
        admin.add("FcPropertyListsTest", admin.language(), dictionary);
    }
    ShownSet showLocalized(Entities objects)
    {
        ShownSet::Options options;
        options.contexts = {"FcPropertyListsTest"};
        return {SetBuilder("Pset").enumerated("Status", {"NEW", "EXISTING"}).take(), std::move(objects),
                options};
    }
};

TEST_F(LocalizedEnumeration, OffersTextsInTheOrderOfTheValues)
{
    auto const shown = showLocalized({wall});
    auto const& status = shown.as<FcPropertyEnumeratedValue>("Status");

    EXPECT_THAT(status.getEnumeratedValues(), ElementsAre("NEW", "EXISTING"));
    EXPECT_THAT(status.getLocalizedEnumeratedValues(), ElementsAre("brand new", "EXISTING"));
}

TEST_F(LocalizedEnumeration, ShowsEachValueByItsTextAlsoOneOutsideOfTheList)
{
    add(wall, enumeratedValue("Status", {label("NEW"), label("EXISTING"), label("STRANGE")}, {}));

    EXPECT_EQ(showLocalized({wall})["Status"].getValue(), "(brand new, EXISTING, out of the ordinary)");
}

TEST_F(LocalizedEnumeration, AChosenTextIsStoredAsTheValueItStandsFor)
{
    auto const shown = showLocalized({wall});

    EXPECT_TRUE(shown["Status"].updateValue(*model.data(), text("brand new")));
    EXPECT_THAT(storedStatus(wall), ElementsAre(label("NEW")));
    EXPECT_EQ(shown["Status"].getValue(), "brand new");
}

TEST_F(SeveralValues, OfTwoValuesWithOneTextTheFirstIsStored)
{
    TranslationScope texts;
    texts.addIn("Host", "Pset.Status.NEW", "Neu");
    texts.addIn("Host", "Pset.Status.RECENT", "Neu");
    ShownSet::Options options;
    options.contexts = {"Host"};
    ShownSet const shown(SetBuilder("Pset").enumerated("Status", {"EXISTING", "NEW", "RECENT"}).take(),
                         {wall}, options);

    EXPECT_TRUE(shown["Status"].updateValue(*model.data(), text("Neu")));

    EXPECT_THAT(storedStatus(wall), ElementsAre(label("NEW")));
}

TEST_F(LocalizedEnumeration, AValueThatIsNoOfferedTextIsStoredAsTyped)
{
    auto const shown = showLocalized({wall});

    for (auto const* const typed : {"NEW", "Brand new", "out of the ordinary"}) {
        EXPECT_TRUE(shown["Status"].updateValue(*model.data(), text(typed)));
        EXPECT_THAT(storedStatus(wall), ElementsAre(label(typed)));
    }
}

TEST_F(SeveralValues, AValueOutsideOfTheListIsShownAsItIs)
{
    EXPECT_EQ(shownFor("Status", enumeratedValue("Status", {label("STRANGE")}, {})), "STRANGE");
}

TEST_F(SeveralValues, DifferentEnumeratedValuesAreEmpty)
{
    add(wall, enumeratedValue("Status", {label("NEW")}, {}));
    add(other, enumeratedValue("Status", {label("EXISTING")}, {}));

    EXPECT_EQ(show({wall, other})["Status"].getValue(), "");
    EXPECT_EQ(show({wall, wall})["Status"].getValue(), "NEW");
}

TEST_F(SeveralValues, AChoiceIsStoredAsALabelAndFreeTextAsTyped)
{
    auto const shown = show({wall});

    EXPECT_TRUE(shown["Status"].updateValue(*model.data(), text("EXISTING")));
    EXPECT_THAT(storedStatus(wall), ElementsAre(label("EXISTING")));
    EXPECT_TRUE(shown["Status"].updateValue(*model.data(), text("Whatever")));
    EXPECT_THAT(storedStatus(wall), ElementsAre(label("Whatever")));
}

TEST_F(SeveralValues, OnlyTheFirstOfSeveralEnumeratedValuesIsReplacedWithAReport)
{
    add(wall, enumeratedValue("Status", {label("NEW"), label("EXISTING")}, {}));

    EXPECT_TRUE(show({wall})["Status"].updateValue(*model.data(), text("OLD")));

    expectReport("Currently only support for enumerated values containing one entry.",
                 "qev::fc::ui::FcPropertyEnumeratedValue::setNewValue",
                 "UI/FoundationClasses/Property/Types/FcPropertyEnumeratedValue");
    EXPECT_THAT(storedStatus(wall), ElementsAre(label("OLD"), label("EXISTING")));
}

TEST_F(SeveralValues, AnEnumeratedValueThatIsNoLabelStaysAndTheEditCountsAsTaken)
{
    add(wall, enumeratedValue("Status", {integer(3)}, {}));

    EXPECT_TRUE(show({wall})["Status"].updateValue(*model.data(), text("NEW")));

    EXPECT_THAT(storedStatus(wall), ElementsAre(integer(3)));
}

TEST_F(SeveralValues, AnEmptyListOfEnumeratedValuesStaysAndTheEditCountsAsTaken)
{
    add(wall, enumeratedValue("Status", {}, {}));

    EXPECT_TRUE(show({wall})["Status"].updateValue(*model.data(), text("NEW")));

    EXPECT_THAT(storedStatus(wall), IsEmpty());
}

TEST_F(SeveralValues, SeveralEnumeratedValuesOfWhichTheFirstIsNoLabelStayWithAReport)
{
    add(wall, enumeratedValue("Status", {identifier("NEW"), label("EXISTING")}, {}));

    EXPECT_TRUE(show({wall})["Status"].updateValue(*model.data(), text("OLD")));

    EXPECT_THAT(takeReportTexts(),
                ElementsAre("Currently only support for enumerated values containing one entry."));
    EXPECT_THAT(storedStatus(wall), ElementsAre(identifier("NEW"), label("EXISTING")));
}

TEST_F(SeveralValues, TheSameChoiceAgainIsNoChange)
{
    add(wall, enumeratedValue("Status", {label("NEW")}, {}));
    model.data()->changes().setSaved();

    EXPECT_TRUE(show({wall})["Status"].updateValue(*model.data(), text("NEW")));

    EXPECT_FALSE(model.data()->changes().isModified());
}

TEST_F(SeveralValues, AnEnumerationOfObjectsAloneOffersNothingAndStoresWhatIsTyped)
{
    add(wall, enumeratedValue("Status", {label("A")}, {label("A"), label("B")}));
    ShownSet const shown("Pset", PropertySetDefinitionType::PropertySet, {wall});

    EXPECT_THAT(shown.as<FcPropertyEnumeratedValue>("Status").getLocalizedEnumeratedValues(), IsEmpty());
    EXPECT_TRUE(shown["Status"].updateValue(*model.data(), text("C")));
    EXPECT_THAT(storedStatus(wall), ElementsAre(label("C")));
}

// --- Bounded values -----------------------------------------------------------------------------

TEST_F(SeveralValues, BoundsStandInBracketsAndTheSetPointBehindThem)
{
    auto const range = [this](FcValue lower, FcValue upper, FcValue setPoint) {
        return shownFor("Range",
                        boundedValue("Range", std::move(lower), std::move(upper), std::move(setPoint)));
    };

    EXPECT_EQ(range(real(1.5), real(3), {}), "(1.500000, 3.000000)");
    EXPECT_EQ(range({}, real(3), {}), "(, 3.000000)");
    EXPECT_EQ(range(real(1), real(2), real(1.5)), "(1.000000, 2.000000) 1.500000");
    EXPECT_EQ(range({}, {}, real(1.5)), "1.500000");
    EXPECT_EQ(range({}, {}, {}), "");
    EXPECT_EQ(range(label("low"), {}, {}), "(low, )");
    EXPECT_EQ(range(real(1), {}, label("now")), "(1.000000, ) now");
    EXPECT_EQ(range(integer(1), integer(-2), {}), "(1.000000, -2.000000)");
}

TEST_F(SeveralValues, BoundedValuesAreInSiUnitsWithoutPresentation)
{
    EXPECT_EQ(shownFor("Range", boundedValue("Range", length(0.25), length(0.5), {})),
              "(0.250000, 0.500000)");
}

// --- Lists --------------------------------------------------------------------------------------

TEST_F(SeveralValues, ValuesOfAListAreKeptApartBySemicolons)
{
    EXPECT_EQ(shownFor("Codes", listValue("Codes", {integer(1), integer(2)})), "1; 2");
    EXPECT_EQ(shownFor("Codes", listValue("Codes", {label("A"), FcValue(), label("B")})), "A; B");
    EXPECT_EQ(shownFor("Codes", listValue("Codes", {})), "");
}

TEST_F(SeveralValues, AListThatIsAbsentShowsNothing)
{
    auto const property = listValue("Codes", {});
    property->ListValues = std::nullopt;

    EXPECT_EQ(shownFor("Codes", property), "");
}

TEST_F(SeveralValues, OnlyTheLastSeparatorOfAListIsCutOff)
{
    EXPECT_EQ(shownFor("Codes", listValue("Codes", {label("; ")})), "; ");
    EXPECT_EQ(shownFor("Codes", listValue("Codes", {label(""), label("")})), "; ");
    EXPECT_EQ(shownFor("Codes", listValue("Codes", {FcValue(), FcValue()})), "");
}

TEST_F(SeveralValues, DifferentListsAreEmpty)
{
    add(wall, listValue("Codes", {label("A")}));
    add(other, listValue("Codes", {label("A"), label("B")}));

    EXPECT_EQ(show({wall, other})["Codes"].getValue(), "");
}

// --- What they have in common -------------------------------------------------------------------

TEST_F(SeveralValues, NullIsReportedByEachAndPassedOver)
{
    add(wall, enumeratedValue("Status", {label("NEW")}, {}));
    add(wall, boundedValue("Range", {}, {}, real(1)));
    add(wall, listValue("Codes", {label("A")}));
    auto const shown = show({nullptr, wall});

    EXPECT_EQ(shown["Status"].getValue(), "NEW");
    expectReport("Object is nullptr.", "qev::fc::ui::FcPropertyEnumeratedValue::getValue",
                 "UI/FoundationClasses/Property/Types/FcPropertyEnumeratedValue");
    EXPECT_EQ(shown["Range"].getValue(), "1.000000");
    expectReport("Object is nullptr.", "qev::fc::ui::FcPropertyBoundedValue::getValue",
                 "UI/FoundationClasses/Property/Types/FcPropertyBoundedValue");
    EXPECT_EQ(shown["Codes"].getValue(), "A");
    expectReport("Object is nullptr.", "qev::fc::ui::FcPropertyListValue::getValue",
                 "UI/FoundationClasses/Property/Types/FcPropertyListValue");
}

TEST_F(SeveralValues, AnEditOfABoundedOrListValueIsTakenAddsNoPropertyAndLeavesTheSet)
{
    for (auto const* const name : {"Range", "Codes"}) {
        auto const object = model.wall(name);

        EXPECT_TRUE(show({object})[name].updateValue(*model.data(), text("1")));

        auto const set = object->getPropertySetDefinitionNonConst<core::kernel::FcPropertySet>("Pset");
        ASSERT_NE(set, nullptr);
        EXPECT_THAT(set->HasProperties.getProperties(), IsEmpty());
    }
}

TEST_F(SeveralValues, TheEmptyTextRemovesThemLikeAnyOther)
{
    add(wall, boundedValue("Range", {}, {}, real(1)));
    add(wall, listValue("Codes", {label("A")}));
    auto const shown = show({wall});

    EXPECT_TRUE(shown["Range"].updateValue(*model.data(), text("")));
    EXPECT_TRUE(shown["Codes"].updateValue(*model.data(), text("")));

    EXPECT_THAT(wall->attachedSets(), IsEmpty());
}

} // namespace
