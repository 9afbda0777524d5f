#include "Core/Unit/QuantityPresentation.h"

#include "Core/Unit/QuantityPresentationFactory.h"
#include "ReportRecorder.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using namespace qev;
using namespace qev::unit;

TEST(QuantityPresentation, HoldsNegativeZeroAsZero)
{
    auto const presentation = makeQuantityPresentation<LengthUnit>(-0.0);
    EXPECT_FALSE(std::signbit(presentation->value()));
    presentation->setValue(-0.0);
    EXPECT_FALSE(std::signbit(presentation->value()));
    presentation->setValue(-2.0);
    EXPECT_EQ(presentation->value(), -2.0);
}

TEST(QuantityPresentation, ReportsSettingsOfAnotherQuantityAndStaysUsable)
{
    QuantityPresentation<LengthUnit> presentation(AreaUnit::get().quantity().qppDefault(), LengthUnit::get(),
                                                  2.5, "");
    test::expectReport("QuantityPresentation: QppSetting and internal unit are incompatible.",
                       "qev::unit::QuantityPresentationBase::QuantityPresentationBase",
                       "Core/Unit/QuantityPresentation");
    EXPECT_EQ(presentation.value(), 2.5);
    EXPECT_EQ(presentation.text(), "2.5 m");
    EXPECT_EQ(presentation.parse("250 mm"), 0.25);
}

TEST(QuantityPresentation, HasAPrivateCopyOfTheSettings)
{
    auto const changed = makeQuantityPresentation<LengthUnit>(2);
    changed->settingsNonConst().setShowsUnit(false);
    EXPECT_EQ(changed->text(), "2");
    EXPECT_EQ(makeQuantityPresentation<LengthUnit>(2)->text(), "2 m");
}

TEST(QuantityPresentation, TakesTheSettingsOfItsContext)
{
    auto const& quantity = LengthUnit::get().quantity();
    QuantityQpp parameters{QppSettings(quantity)};
    QppSettings millimetres(quantity);
    millimetres.setDisplayUnit(*quantity.unitFromText("mm"));
    parameters.setSettings("drawing", millimetres);
    EXPECT_EQ((QuantityPresentation<LengthUnit>(parameters, LengthUnit::get(), 0.25, "drawing").text()),
              "250 mm");
    EXPECT_EQ((QuantityPresentation<LengthUnit>(parameters, LengthUnit::get(), 0.25, "").text()), "0.25 m");
}

TEST(QuantityPresentation, ACloneIsIndependent)
{
    auto const original = makeQuantityPresentation<LengthUnit>(2);
    auto const clone = original->clone();
    clone->setValue(3);
    clone->settingsNonConst().setShowsUnit(false);
    EXPECT_EQ(original->text(), "2 m");
    EXPECT_EQ(clone->text(), "3");
}

TEST(QuantityPresentation, GeographicAnglesAreOfDegreesAndWrittenWithMinutesAndSeconds)
{
    auto const presentation = makeGeographicAnglePresentation(48.2085);
    EXPECT_EQ(&presentation->unit(), &DegreeUnit::get());
    EXPECT_EQ(presentation->text(), "48° 12' 30.6\"");
    EXPECT_EQ(presentation->parse(presentation->fullDigits()), 48.2085);
    EXPECT_NEAR(*presentation->parse("48° 12' 30.6\""), 48.2085, 1e-12);
}

TEST(QuantityPresentation, TheParametersOfGeographicAnglesAreRegisteredWithTheQuantity)
{
    DegreeUnit::get();
    int count = 0;
    for (auto const& entry : QppBase::registration()) {
        QppBase const& parameters = *entry;
        count += typeid(parameters) == typeid(GeographicAngleQpp) ? 1 : 0;
    }
    EXPECT_EQ(count, 1);
}

TEST(QuantityPresentationFactory, HasNothingForAPropertyThatNobodyRegistered)
{
    EXPECT_EQ(QuantityPresentationFactory::createNewBaseUniqueFromIfcPropertyIdWithSanityCheck(
                  nullptr, "Pset_Toy.Width", ""),
              nullptr);
}

TEST(QuantityPresentationFactory, MakesWhatIsRegisteredForAProperty)
{
    QuantityPresentationFactory factory;
    factory.registerIfcProperty("Pset_Toy.Width", [](double value, std::string const& context) {
        auto presentation = makeQuantityPresentation<LengthUnit>(value, context);
        presentation->settingsNonConst().setDisplayUnit(*LengthUnit::get().quantity().unitFromText("mm"));
        return presentation;
    });
    ASSERT_NE(factory.createFromIfcPropertyId(nullptr, "Pset_Toy.Width", ""), nullptr);
    EXPECT_EQ(factory.createFromIfcPropertyId(nullptr, "Pset_Toy.Height", ""), nullptr);

    auto const given = makeQuantityPresentation<LengthUnit>(0.25);
    EXPECT_EQ(factory.createFromIfcPropertyId(given.get(), "Pset_Toy.Width", "")->text(), "250 mm");

    auto const otherQuantity = makeQuantityPresentation<AreaUnit>(0.25);
    EXPECT_EQ(factory.createFromIfcPropertyId(otherQuantity.get(), "Pset_Toy.Width", ""), nullptr);

    factory.registerIfcProperty("Pset_Toy.Width", nullptr);
    EXPECT_EQ(factory.createFromIfcPropertyId(nullptr, "Pset_Toy.Width", ""), nullptr);
}

TEST(MeasurePresentation, FollowsTheTypeOfTheMeasure)
{
    auto const shown = [](char const* measure, double value) {
        auto const presentation = createPresentationForMeasure(measure);
        presentation->setValue(value);
        return presentation->text();
    };
    EXPECT_EQ(shown("LengthMeasure", 2.5), "2.5 m");
    EXPECT_EQ(shown("PositiveLengthMeasure", 2.5), "2.5 m");
    EXPECT_EQ(shown("AreaMeasure", 12.3456), "12.35 m²");
    EXPECT_EQ(shown("VolumeMeasure", 1.2), "1.2 m³");
    EXPECT_EQ(shown("PlaneAngleMeasure", std::acos(-1.0) / 4), "45°");
    EXPECT_EQ(shown("ThermodynamicTemperatureMeasure", 294.15), "21 °C");
    EXPECT_EQ(shown("RatioMeasure", 0.125), "0.125");
    EXPECT_EQ(shown("CountMeasure", 12), "12");
    EXPECT_EQ(shown("ThermalConductivityMeasure", 0.035), "0.035 W/(m·K)");
    EXPECT_EQ(shown("MassDensityMeasure", 2400), "2400 kg/m³");
    EXPECT_EQ(shown("ModulusOfElasticityMeasure", 3.0e10), "30000 N/mm²");
    EXPECT_EQ(shown("WarpingMomentMeasure", 1), "1 N·m²");
}

TEST(MeasurePresentation, TheUnitIsTheOneInstanceInAllLibraries)
{
    EXPECT_EQ(&createPresentationForMeasure("LengthMeasure")->unit(), &LengthUnit::get());
    EXPECT_EQ(&createPresentationForMeasure("PowerMeasure")->unit().quantity(), &PowerUnit::get().quantity());
}

TEST(MeasurePresentation, ThereIsNoneForOtherTypes)
{
    EXPECT_EQ(createPresentationForMeasure("Label"), nullptr);
    EXPECT_EQ(createPresentationForMeasure("MonetaryMeasure"), nullptr);
    EXPECT_EQ(createPresentationForMeasure("IfcLengthMeasure"), nullptr);
    EXPECT_EQ(createPresentationForMeasure(""), nullptr);
}

TEST(MeasurePresentation, EveryQuantityCanBeShownAndReadBack)
{
    for (char const* const measure :
         {"AbsorbedDoseMeasure", "AccelerationMeasure", "EnergyMeasure", "ElectricVoltageMeasure",
          "FrequencyMeasure", "IlluminanceMeasure", "MassMeasure", "MolecularWeightMeasure",
          "SoundPowerLevelMeasure", "TorqueMeasure", "VaporPermeabilityMeasure", "VolumetricFlowRateMeasure",
          "ThermalResistanceMeasure", "MomentOfInertiaMeasure", "WarpingConstantMeasure",
          "LinearVelocityMeasure"}) {
        auto const presentation = createPresentationForMeasure(measure);
        ASSERT_NE(presentation, nullptr) << measure;
        presentation->setValue(12.5);
        auto const value = presentation->parse(presentation->text());
        ASSERT_TRUE(value) << measure << ": " << presentation->text();
        EXPECT_DOUBLE_EQ(*value, 12.5) << measure;
    }
}

} // namespace
