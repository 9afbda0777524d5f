#include "Core/Unit/UnitPreferences.h"

#include "Core/Unit/QppBase.h"
#include "Core/Unit/QuantityPresentation.h"
#include "Core/Unit/QuantityPresentationFactory.h"
#include "Core/Utilities/ScopeGuard.h"

#include <gmock/gmock.h>

namespace {

using namespace qev;
using namespace qev::unit;
using testing::ElementsAre;
using testing::IsEmpty;
using Choice = UnitPreferences::Choice;
using Style = QppSettings::Style;
using System = UnitPreferences::System;

constexpr int millimetre = 107;
constexpr int foot = 110;
constexpr int squareMetre = 11;

/// What a value of the quantity looks like with \p preferences.
std::string shown(char const* measure, double value, UnitPreferences const& preferences)
{
    auto& registration = QppBase::registrationNonConst();
    ScopeGuard const restore(
        [&registration, before = registration.preferences()] { registration.setPreferences(before); });
    registration.setPreferences(preferences);
    auto const presentation = createPresentationForMeasure(measure);
    presentation->setValue(value);
    return presentation->text();
}

TEST(UnitPreferences, BeginWithTheMetricChoices)
{
    UnitPreferences const preferences;
    EXPECT_EQ(preferences, UnitPreferences(System::Metric));
    EXPECT_EQ(preferences.system(), System::Metric);
    EXPECT_EQ(preferences.choice(QuantityId::Length), (Choice{4, 3, Style::Decimal}));
    EXPECT_EQ(shown("LengthMeasure", 2.5, preferences), "2.5 m");
}

TEST(UnitPreferences, ImperialChoicesAreThoseOfNorthAmerica)
{
    UnitPreferences const preferences(System::Imperial);
    EXPECT_EQ(preferences.system(), System::Imperial);
    EXPECT_EQ(shown("LengthMeasure", 98.5 * 0.0254, preferences), "8' 2 1/2\"");
    EXPECT_EQ(shown("AreaMeasure", 9.290304, preferences), "100 ft²");
    EXPECT_EQ(shown("VolumeMeasure", 2.8316846592, preferences), "100 ft³");
    EXPECT_EQ(shown("ThermodynamicTemperatureMeasure", 294.15, preferences), "69.8 °F");
    EXPECT_EQ(shown("MassMeasure", 45.359237, preferences), "100 lb");
    EXPECT_EQ(shown("PressureMeasure", 6894.757293168, preferences), "1 psi");
    EXPECT_EQ(shown("ThermalTransmittanceMeasure", 5.678263337, preferences), "1 BTU/(h·ft²·°F)");
    EXPECT_EQ(shown("MassDensityMeasure", 16.018463374, preferences), "1 lb/ft³");
    EXPECT_EQ(shown("ThermalConductivityMeasure", 1.730734666, preferences), "1 BTU/(h·ft·°F)");
    EXPECT_EQ(shown("ThermalResistanceMeasure", 0.176110184, preferences), "1 h·ft²·°F/BTU");
    EXPECT_EQ(shown("IlluminanceMeasure", 10.76391042, preferences), "1 fc");
    EXPECT_EQ(shown("TorqueMeasure", 1.355817948, preferences), "1 lbf·ft");
    EXPECT_EQ(shown("LinearForceMeasure", 14.593902937, preferences), "1 lbf/ft");
    EXPECT_EQ(shown("SpecificHeatCapacityMeasure", 4186.8, preferences), "1 BTU/(lb·°F)");
    EXPECT_EQ(shown("MomentOfInertiaMeasure", 4.162314256e-7, preferences), "1 in⁴");
    EXPECT_EQ(shown("PlaneAngleMeasure", 1.5707963267948966, preferences), "90°");
}

TEST(UnitPreferences, SystemsHaveNames)
{
    EXPECT_EQ(UnitPreferences::systemFromName("metric"), System::Metric);
    EXPECT_EQ(UnitPreferences::systemFromName("imperial"), System::Imperial);
    EXPECT_EQ(UnitPreferences::systemFromName("Metric"), std::nullopt);
}

TEST(UnitPreferences, AChoiceIsOneQuantitysOwn)
{
    UnitPreferences preferences;
    EXPECT_TRUE(preferences.setChoice(QuantityId::Length, {millimetre, 1, Style::Decimal}));
    EXPECT_EQ(shown("LengthMeasure", 0.25, preferences), "250 mm");
    EXPECT_EQ(shown("AreaMeasure", 0.25, preferences), "0.25 m²");
    EXPECT_EQ(preferences.system(), std::nullopt);
    EXPECT_TRUE(preferences.setChoice(QuantityId::Length, UnitPreferences().choice(QuantityId::Length)));
    EXPECT_EQ(preferences.system(), System::Metric);
}

TEST(UnitPreferences, AUnitOfAnotherQuantityIsRefused)
{
    UnitPreferences preferences;
    EXPECT_FALSE(preferences.setChoice(QuantityId::Length, {squareMetre, 1, Style::Decimal}));
    EXPECT_FALSE(preferences.setChoice(QuantityId::Length, {99999, 1, Style::Decimal}));
    EXPECT_FALSE(preferences.setChoice(QuantityId::Time, {99999, 1, Style::Decimal}));
    EXPECT_FALSE(preferences.setChoice(static_cast<QuantityId>(9000), {millimetre, 1, Style::Decimal}));
    EXPECT_EQ(preferences, UnitPreferences());
}

TEST(UnitPreferences, DecimalsStayInTheirRange)
{
    UnitPreferences preferences;
    preferences.setChoice(QuantityId::Length, {millimetre, -3, Style::Decimal});
    EXPECT_EQ(preferences.choice(QuantityId::Length).decimals, 0);
    preferences.setChoice(QuantityId::Length, {millimetre, 99, Style::Decimal});
    EXPECT_EQ(preferences.choice(QuantityId::Length).decimals, QppSettings::maximumDecimals);
}

TEST(UnitPreferences, AUnitAloneHasTheDecimalsThatItsSizeAsksFor)
{
    EXPECT_EQ(UnitPreferences::choiceOfUnit(millimetre), (Choice{millimetre, 0, Style::Decimal}));
    EXPECT_EQ(UnitPreferences::choiceOfUnit(108), (Choice{108, 6, Style::Decimal})) << "km";
    EXPECT_EQ(UnitPreferences::choiceOfUnit(foot).decimals, 2);
    EXPECT_EQ(UnitPreferences::choiceOfUnit(124).decimals, 0) << "mm³";
}

TEST(UnitPreferences, LinesBringThemBack)
{
    EXPECT_THAT(UnitPreferences().toLines(), IsEmpty());
    UnitPreferences preferences;
    preferences.setChoice(QuantityId::Length, {foot, 2, Style::FeetAndInches});
    preferences.setChoice(QuantityId::Ratio, {21, 1, Style::Decimal});
    EXPECT_THAT(preferences.toLines(), ElementsAre("length=ft;2;feetAndInches", "ratio=1;1;decimal"));
    EXPECT_EQ(UnitPreferences::fromLines(preferences.toLines()), preferences);
    UnitPreferences const imperial(System::Imperial);
    EXPECT_EQ(UnitPreferences::fromLines(imperial.toLines()), imperial);
}

TEST(UnitPreferences, LinesThatAreNotUnderstoodChangeNothing)
{
    auto const preferences = UnitPreferences::fromLines(
        {"", "length", "length=", "length=mm", "length=m²;1;decimal", "length=mm;x;decimal",
         "length=mm;1;roman", "length=mm;nan;decimal", "length=mm;1e30;decimal", "luck=mm;1;decimal"});
    EXPECT_EQ(preferences, UnitPreferences());
}

TEST(UnitPreferences, ReachParametersThatAreMadeLater)
{
    QppRegistration registration;
    UnitPreferences preferences;
    preferences.setChoice(QuantityId::Length, {millimetre, 0, Style::Decimal});
    preferences.setNumberFormat({','});
    registration.setPreferences(preferences);
    auto const& settings = registration.defaultOf(LengthUnit::get().quantity()).settingsFromContext("");
    EXPECT_EQ(settings.writeToString(0.25, LengthUnit::get()), "250 mm");
    EXPECT_EQ(settings.numberFormat().decimalSign, ',');
    EXPECT_EQ(registration.preferences(), preferences);
}

TEST(UnitPreferences, LeavePresentationsAndContextsTheirUnit)
{
    auto const& quantity = LengthUnit::get().quantity();
    QppRegistration registration;
    QppBase& parameters = registration.defaultOf(quantity);
    QppSettings centimetres(quantity);
    centimetres.setDisplayUnit(*quantity.unitFromText("cm"));
    parameters.setSettings("drawing", centimetres);
    QuantityPresentation<LengthUnit> const before(parameters, LengthUnit::get(), 2.5, "");
    UnitPreferences imperial(System::Imperial);
    imperial.setNumberFormat({','});
    registration.setPreferences(imperial);
    EXPECT_EQ(before.text(), "2.5 m");
    EXPECT_EQ(parameters.settingsFromContext("drawing").writeToString(0.125, LengthUnit::get()), "12,5 cm");
    EXPECT_EQ(parameters.settingsFromContext("").displayUnit().symbol(), "ft");
}

TEST(UnitPreferences, LeaveGeographicAnglesTheirDegrees)
{
    QppRegistration registration;
    registration.defaultOf(PlaneAngleUnit::get().quantity());
    UnitPreferences preferences;
    preferences.setChoice(QuantityId::PlaneAngle, {17, 4, Style::Decimal});
    preferences.setNumberFormat({','});
    registration.setPreferences(preferences);
    std::vector<std::string> texts;
    for (auto const& parameters : registration)
        texts.push_back(parameters->settingsFromContext("").writeToString(48.2085, DegreeUnit::get()));
    EXPECT_THAT(texts, ElementsAre("0,8414 rad", "48° 12' 30,6\""));
}

TEST(UnitPreferences, TheFormatOfPlainNumbersIsThatOfTheProgramsPreferences)
{
    auto& registration = QppBase::registrationNonConst();
    ScopeGuard const restore([&registration] { registration.setPreferences(UnitPreferences()); });
    UnitPreferences preferences;
    preferences.setNumberFormat({','});
    registration.setPreferences(preferences);
    EXPECT_EQ(NumberFormat::current().write(2.5), "2,5");
}

} // namespace
