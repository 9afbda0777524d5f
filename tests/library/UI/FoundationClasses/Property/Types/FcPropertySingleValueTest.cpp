#include "UI/FoundationClasses/Property/Types/FcPropertySingleValue.h"

#include "Core/Unit/Quantity.h"
#include "Core/Unit/QuantityPresentation.h"
#include "Core/Unit/QuantityPresentationFactory.h"
#include "FoundationClasses/AllEntities.h"
#include "kit/ModelBuilder.h"
#include "kit/ReportRecorder.h"
#include "library/kit/SetBuilder.h"
#include "library/kit/ShownSet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>

namespace {

using namespace qev::fc;
using namespace qev::fc::ui;
using namespace qev::test;
using testing::IsEmpty;
using testing::SizeIs;

PropertyOrQuantityValue text(std::string value)
{
    return PropertyOrQuantityValue::fromText(std::move(value));
}
PropertyOrQuantityValue metres(double value) { return PropertyOrQuantityValue::fromNumber(value); }

std::string written(std::string const& measure, double value)
{
    auto const presentation = qev::unit::createPresentationForMeasure(measure);
    presentation->setValue(value);
    return presentation->text();
}

class SingleValue : public testing::Test
{
protected:
    static std::unique_ptr<qev::ifc::def::pset::PropertySetDef> definition()
    {
        return SetBuilder("Pset")
            .single("Code", "IfcLabel")
            .single("Real", "IfcReal")
            .single("Length", "IfcLengthMeasure")
            .single("Untyped", "")
            .take();
    }
    ShownSet show(Entities objects) { return {definition(), std::move(objects)}; }

    FcValue stored(Model::Object const& object, std::string const& name)
    {
        auto const set = object->getPropertySetDefinitionNonConst<core::kernel::FcPropertySet>("Pset");
        for (auto const& property : set->HasProperties.getProperties()) {
            auto const single =
                entityCast<resource::property::FcPropertySingleValue>(std::shared_ptr<FcBase>(property));
            if (single && property->Name.get() == name)
                return single->NominalValue.get();
        }
        return {};
    }

    Model model;
    std::shared_ptr<core::kernel::FcObjectDefinition> wall = model.wall("W1");
    std::shared_ptr<core::kernel::FcObjectDefinition> other = model.wall("W2");
};

TEST_F(SingleValue, MayBeEditedAndValidated)
{
    auto const shown = show({wall});

    EXPECT_TRUE(shown["Code"].isAllowedToEdit());
    EXPECT_TRUE(shown["Code"].isValidValue());
}

TEST_F(SingleValue, EqualNumbersAreOneValueWhateverTextTheyWereTypedIn)
{
    model.addSet(wall, "Pset", {{"Real", valueOf("Real", "2.50")}});
    model.addSet(other, "Pset", {{"Real", valueOf("Real", "25e-1")}});

    EXPECT_EQ(show({wall, other})["Real"].getValue(), "2.500000");
}

TEST_F(SingleValue, DifferentValuesAreEmptyAndWithAPresentationAFormattedZero)
{
    model.addSet(wall, "Pset", {{"Code", label("A")}, {"Length", length(1.0)}});
    model.addSet(other, "Pset", {{"Code", label("B")}, {"Length", length(2.0)}});
    auto const shown = show({wall, other});

    EXPECT_EQ(shown["Code"].getValue(), "");
    EXPECT_EQ(shown["Length"].getValue(), written("LengthMeasure", 0.0));
    EXPECT_TRUE(shown.as<FcPropertySingleValue>("Length").getFcValue().isEmpty());
}

TEST_F(SingleValue, APropertyOfOneObjectAloneIsLikeDifferentValues)
{
    model.addSet(wall, "Pset", {{"Code", label("A")}, {"Length", length(1.0)}});
    auto const shown = show({wall, other});

    EXPECT_EQ(shown["Code"].getValue(), "");
    EXPECT_EQ(shown["Length"].getValue(), written("LengthMeasure", 0.0));
}

TEST_F(SingleValue, AValueOfAllObjectsIsShown)
{
    model.addSet(wall, "Pset", {{"Code", label("A")}, {"Length", length(1.5)}});
    model.addSet(other, "Pset", {{"Code", label("A")}, {"Length", length(1.5)}});
    auto const shown = show({wall, other});

    EXPECT_EQ(shown["Code"].getValue(), "A");
    EXPECT_EQ(shown["Length"].getValue(), written("LengthMeasure", 1.5));
}

TEST_F(SingleValue, ANegativeZeroIsShownWithoutSign)
{
    model.addSet(wall, "Pset", {{"Length", length(-0.0)}});

    EXPECT_EQ(show({wall})["Length"].getValue(), written("LengthMeasure", 0.0));
}

TEST_F(SingleValue, APropertyOfAnotherClassCountsAsAbsent)
{
    auto const set = model.addSet(wall, "Pset");
    set->HasProperties.addProperty(listValue("Code", {label("A")}));

    EXPECT_EQ(show({wall})["Code"].getValue(), "");
}

TEST_F(SingleValue, AnEditBesideAPropertyOfAnotherClassAddsASecondOne)
{
    auto const set = model.addSet(wall, "Pset");
    set->HasProperties.addProperty(listValue("Code", {label("A")}));
    auto const shown = show({wall});

    EXPECT_TRUE(shown["Code"].updateValue(*model.data(), text("B")));

    EXPECT_THAT(set->HasProperties.getProperties(), SizeIs(2));
    EXPECT_EQ(stored(wall, "Code"), label("B"));
}

TEST_F(SingleValue, AFirstValueGetsTheTypeOfTheDefinition)
{
    auto const shown = show({wall});

    EXPECT_TRUE(shown["Real"].updateValue(*model.data(), text("2.5")));
    EXPECT_TRUE(shown["Length"].updateValue(*model.data(), metres(0.25)));

    EXPECT_EQ(stored(wall, "Real"), real(2.5));
    EXPECT_EQ(stored(wall, "Length"), length(0.25));
}

TEST_F(SingleValue, AnEmptyValueGetsTheTypeOfTheDefinitionToo)
{
    model.addSet(wall, "Pset", {{"Real", FcValue()}});

    EXPECT_TRUE(show({wall})["Real"].updateValue(*model.data(), text("2.5")));

    EXPECT_EQ(stored(wall, "Real"), real(2.5));
}

TEST_F(SingleValue, ARefusedTextLeavesAnEmptyValueEmpty)
{
    model.addSet(wall, "Pset", {{"Real", FcValue()}});

    EXPECT_FALSE(show({wall})["Real"].updateValue(*model.data(), text("many")));

    EXPECT_TRUE(stored(wall, "Real").isEmpty());
}

TEST_F(SingleValue, AValueKeepsItsTypeWhateverTheDefinitionSays)
{
    model.addSet(wall, "Pset", {{"Real", label("old")}});

    EXPECT_TRUE(show({wall})["Real"].updateValue(*model.data(), text("new")));

    EXPECT_EQ(stored(wall, "Real"), label("new"));
}

TEST_F(SingleValue, WithoutATypeAFirstValueIsRefused)
{
    EXPECT_FALSE(show({wall})["Untyped"].updateValue(*model.data(), text("A")));
    EXPECT_THAT(wall->attachedSets(), IsEmpty());
}

TEST_F(SingleValue, ANumberForATextIsRefused)
{
    model.addSet(wall, "Pset", {{"Code", label("A")}});

    EXPECT_FALSE(show({wall})["Code"].updateValue(*model.data(), metres(1.0)));

    EXPECT_EQ(stored(wall, "Code"), label("A"));
}

TEST_F(SingleValue, TheSameValueAgainIsNoChange)
{
    model.addSet(wall, "Pset", {{"Code", label("A")}});
    model.data()->changes().setSaved();

    EXPECT_TRUE(show({wall})["Code"].updateValue(*model.data(), text("A")));

    EXPECT_FALSE(model.data()->changes().isModified());
}

// --- Types and presentations --------------------------------------------------------------------

TEST_F(SingleValue, EveryMeasureOfTheTableHasAPresentation)
{
    for (auto const* const type :
         {"IfcAreaMeasure", "IfcVolumetricFlowRateMeasure", "IfcCountMeasure",
          "IfcThermodynamicTemperatureMeasure", "IfcPowerMeasure", "IfcLengthMeasure",
          "IfcPositiveLengthMeasure", "IfcNonNegativeLengthMeasure", "IfcVolumeMeasure",
          "IfcPositiveRatioMeasure", "IfcRatioMeasure", "IfcTimeMeasure", "IfcThermalTransmittanceMeasure",
          "IfcPlaneAngleMeasure"}) {
        ShownSet const shown(SetBuilder("Pset").single("P", type).take(), {wall});
        auto const presentation = shown.as<FcPropertySingleValue>("P").quantityPresentation();
        ASSERT_NE(presentation, nullptr) << type;
        EXPECT_EQ(presentation->value(), 0.0);
    }
}

TEST_F(SingleValue, PresentationsAreInTheSiUnitOfTheTable)
{
    auto const unitOf = [this](std::string const& type) {
        ShownSet const shown(SetBuilder("Pset").single("P", type).take(), {wall});
        return &shown.as<FcPropertySingleValue>("P").quantityPresentation()->unit();
    };

    EXPECT_EQ(unitOf("IfcAreaMeasure"),
              (&qev::unit::SiUnit<11, qev::unit::Quantity<2, 2, 0, 0, 0, 0, 0, 0>>::get()));
    EXPECT_EQ(unitOf("IfcVolumetricFlowRateMeasure"),
              (&qev::unit::SiUnit<33, qev::unit::Quantity<16, 3, 0, -1, 0, 0, 0, 0>>::get()));
    EXPECT_EQ(unitOf("IfcCountMeasure"),
              (&qev::unit::SiUnit<19, qev::unit::Quantity<6, 0, 0, 0, 0, 0, 0, 0>>::get()));
    EXPECT_EQ(unitOf("IfcThermodynamicTemperatureMeasure"),
              (&qev::unit::SiUnit<37, qev::unit::Quantity<9, 0, 0, 0, 0, 1, 0, 0>>::get()));
    EXPECT_EQ(unitOf("IfcPowerMeasure"),
              (&qev::unit::SiUnit<46, qev::unit::Quantity<11, 2, 1, -3, 0, 0, 0, 0>>::get()));
    EXPECT_EQ(unitOf("IfcLengthMeasure"),
              (&qev::unit::SiUnit<4, qev::unit::Quantity<1, 1, 0, 0, 0, 0, 0, 0>>::get()));
    EXPECT_EQ(unitOf("IfcPositiveLengthMeasure"), &qev::unit::LengthUnit::get());
    EXPECT_EQ(unitOf("IfcNonNegativeLengthMeasure"), &qev::unit::LengthUnit::get());
    EXPECT_EQ(unitOf("IfcPositiveRatioMeasure"), &qev::unit::RatioUnit::get());
    EXPECT_EQ(unitOf("IfcVolumeMeasure"),
              (&qev::unit::SiUnit<14, qev::unit::Quantity<3, 3, 0, 0, 0, 0, 0, 0>>::get()));
    EXPECT_EQ(unitOf("IfcRatioMeasure"),
              (&qev::unit::SiUnit<21, qev::unit::Quantity<8, 0, 0, 0, 0, 0, 0, 0>>::get()));
    EXPECT_EQ(unitOf("IfcTimeMeasure"),
              (&qev::unit::SiUnit<0, qev::unit::Quantity<0, 0, 0, 1, 0, 0, 0, 0>>::get()));
    EXPECT_EQ(unitOf("IfcThermalTransmittanceMeasure"),
              (&qev::unit::SiUnit<49, qev::unit::Quantity<12, 0, 1, -3, 0, -1, 0, 0>>::get()));
    EXPECT_EQ(unitOf("IfcPlaneAngleMeasure"),
              (&qev::unit::SiUnit<17, qev::unit::Quantity<5, 0, 0, 0, 0, 0, 0, 0>>::get()));
}

TEST_F(SingleValue, OtherTypesHaveNone)
{
    auto const shown = show({wall});

    EXPECT_EQ(shown.as<FcPropertySingleValue>("Code").quantityPresentation(), nullptr);
    EXPECT_EQ(shown.as<FcPropertySingleValue>("Real").quantityPresentation(), nullptr);
}

TEST_F(SingleValue, APresentationWithoutAValueShowsAZero)
{
    EXPECT_EQ(show({})["Length"].getValue(), written("LengthMeasure", 0.0));
    EXPECT_EQ(show({wall})["Length"].getValue(), written("LengthMeasure", 0.0));
    model.addSet(wall, "Pset", {{"Length", label("long")}});
    EXPECT_EQ(show({wall})["Length"].getValue(), written("LengthMeasure", 0.0));
}

TEST_F(SingleValue, TheTypeOfTheDefinitionDecidesOnThePresentationAndNotThatOfTheValue)
{
    model.addSet(wall, "Pset", {{"Real", length(1.5)}});

    EXPECT_EQ(show({wall})["Real"].getValue(), "1.500000");
}

TEST_F(SingleValue, NumbersOfUnequalTypesDiffer)
{
    model.addSet(wall, "Pset", {{"Real", real(2)}});
    model.addSet(other, "Pset", {{"Real", integer(2)}});

    EXPECT_EQ(show({wall, other})["Real"].getValue(), "");
}

TEST_F(SingleValue, TwoEmptyValuesAgreeAndShowNothing)
{
    model.addSet(wall, "Pset", {{"Code", FcValue()}});
    model.addSet(other, "Pset", {{"Code", FcValue()}});
    auto const shown = show({wall, other});

    EXPECT_EQ(shown["Code"].getValue(), "");
    EXPECT_TRUE(shown.as<FcPropertySingleValue>("Code").getFcValue().isEmpty());
}

TEST_F(SingleValue, TheValueIsThatOfTheModel)
{
    model.addSet(wall, "Pset", {{"Code", label("A")}});
    model.addSet(other, "Pset", {{"Code", label("A")}});

    EXPECT_EQ(show({wall, other}).as<FcPropertySingleValue>("Code").getFcValue(), label("A"));
}

TEST_F(SingleValue, AnAbsentPropertyEndsTheWalk)
{
    // The null behind the object without the property is not come to.
    EXPECT_EQ(show({wall, nullptr})["Code"].getValue(), "");
    EXPECT_THAT(takeReportTexts(), IsEmpty());
}

TEST_F(SingleValue, AStrangeTypeNameIsReportedAndCut)
{
    ShownSet const shown(SetBuilder("Pset").single("Short", "Ifc").single("Other", "XyzLabel").take(),
                         {wall});

    EXPECT_EQ(shown.as<FcPropertySingleValue>("Short").quantityPresentation(), nullptr);
    expectReport("Prefix is equal or has exceeded length of string", "qev::ifc::details::removePrefix",
                 "Format/Ifc/IfcHelperFunction");
    EXPECT_TRUE(shown["Other"].updateValue(*model.data(), text("A")));
    for (auto const& reportText : takeReportTexts())
        EXPECT_EQ(reportText, "Prefix not found");
    EXPECT_EQ(stored(wall, "Other"), label("A"));
}

/// Gives feet for the set and property it is made for, and keeps what it is asked.
class ToyOverride : public PropertyTypePropertySetAndPropertyNameQppOverrideInterface
{
public:
    std::vector<std::string> asked;
    std::unique_ptr<qev::unit::QuantityPresentationBase>
    createQuantityPresentation(std::string type, std::string set, std::string name) override
    {
        asked.push_back(type + "|" + set + "|" + name);
        return name == "Code" ? qev::unit::makeQuantityPresentation<qev::unit::AreaUnit>() : nullptr;
    }
};

TEST_F(SingleValue, TheOverrideOfTheHostGoesFirst)
{
    auto const toyOverride = std::make_shared<ToyOverride>();
    ShownSet::Options options;
    options.qppOverride = toyOverride;
    ShownSet const shown(definition(), {wall}, options);

    auto const code = shown.as<FcPropertySingleValue>("Code").quantityPresentation();
    auto const lengthPresentation = shown.as<FcPropertySingleValue>("Length").quantityPresentation();

    ASSERT_NE(code, nullptr);
    EXPECT_EQ(&code->unit(), &qev::unit::AreaUnit::get());
    ASSERT_NE(lengthPresentation, nullptr);
    EXPECT_EQ(&lengthPresentation->unit(), &qev::unit::LengthUnit::get());
    EXPECT_THAT(toyOverride->asked, testing::ElementsAre("Label|Pset|Code", "LengthMeasure|Pset|Length"));
}

/// Stands for units that are not there.
class FailingOverride : public PropertyTypePropertySetAndPropertyNameQppOverrideInterface
{
public:
    std::unique_ptr<qev::unit::QuantityPresentationBase>
    createQuantityPresentation(std::string /*type*/, std::string /*set*/, std::string /*name*/) override
    {
        throw std::runtime_error("unit not registered");
    }
};

TEST_F(SingleValue, AMissingUnitReachesTheCaller)
{
    ShownSet::Options options;
    options.qppOverride = std::make_shared<FailingOverride>();
    ShownSet const shown(definition(), {wall}, options);

    EXPECT_THROW(static_cast<void>(shown["Length"].getValue()), std::runtime_error);
}

TEST_F(SingleValue, APropertyRegisteredByItsIdGoesBeforeItsType)
{
    auto& factory = qev::unit::QuantityPresentationFactory::current();
    factory.registerIfcProperty("Pset.Length", [](double value, std::string const& context) {
        return qev::unit::makeQuantityPresentation<qev::unit::VolumeUnit>(value, context);
    });
    auto const shown = show({wall});

    auto const presentation = shown.as<FcPropertySingleValue>("Length").quantityPresentation();
    factory.registerIfcProperty("Pset.Length", nullptr);

    ASSERT_NE(presentation, nullptr);
    EXPECT_EQ(&presentation->unit(), &qev::unit::VolumeUnit::get());
}

} // namespace
