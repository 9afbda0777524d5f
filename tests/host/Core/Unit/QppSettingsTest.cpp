#include "Core/Unit/QppSettings.h"

#include "Core/Unit/QuantityPresentation.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>
#include <random>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using namespace qev::unit;

using PressureUnit = SiUnitOf<QuantityId::Pressure>;

template <std::size_t... Positions>
std::vector<QuantityBase const*> allQuantities(std::index_sequence<Positions...>)
{
    return {&SiUnitOf<quantityFacts[Positions].id>::get().quantity()...};
}

template <class Function>
void forEachQuantity(Function const& function)
{
    for (auto const* const quantity : allQuantities(std::make_index_sequence<quantityFacts.size()>()))
        function(*quantity);
}

template <class U>
QppSettings settingsOf(char const* displayUnit = nullptr)
{
    auto const& quantity = U::get().quantity();
    QppSettings settings(quantity);
    if (displayUnit) {
        EXPECT_TRUE(settings.setDisplayUnit(*quantity.unitFromText(displayUnit)));
    }
    return settings;
}

std::string length(double metres, char const* displayUnit = nullptr)
{
    return settingsOf<LengthUnit>(displayUnit).writeToString(metres, LengthUnit::get());
}

std::optional<double> readLength(char const* text, char const* displayUnit = nullptr)
{
    return settingsOf<LengthUnit>(displayUnit).parse(text, LengthUnit::get());
}

TEST(QppSettingsWrite, RoundsToTheDecimalsAndTrimsZeros)
{
    EXPECT_EQ(length(2), "2 m");
    EXPECT_EQ(length(2.5), "2.5 m");
    EXPECT_EQ(length(2.5004), "2.5 m");
    EXPECT_EQ(length(2.5006), "2.501 m");
    EXPECT_EQ(length(-2.5), "-2.5 m");
    EXPECT_EQ(length(100), "100 m");
    EXPECT_EQ(length(1234567.125), "1234567.125 m");
}

TEST(QppSettingsWrite, KeepsZerosWhenAskedTo)
{
    auto settings = settingsOf<LengthUnit>();
    settings.setTrimsZeros(false);
    EXPECT_EQ(settings.writeToString(2.5, LengthUnit::get()), "2.500 m");
    EXPECT_EQ(settings.writeToString(0, LengthUnit::get()), "0.000 m");
    settings.setDecimals(0);
    EXPECT_EQ(settings.writeToString(2.6, LengthUnit::get()), "3 m");
    settings.setDecimals(-4);
    EXPECT_EQ(settings.decimals(), 0);
}

TEST(QppSettingsWrite, ConvertsToTheDisplayUnit)
{
    EXPECT_EQ(length(0.25, "mm"), "250 mm");
    EXPECT_EQ(length(3.048, "ft"), "10 ft");
    EXPECT_EQ(settingsOf<TemperatureUnit>().writeToString(294.15, TemperatureUnit::get()), "21 °C");
    EXPECT_EQ(settingsOf<TemperatureUnit>("°F").writeToString(294.15, TemperatureUnit::get()), "69.8 °F");
    EXPECT_EQ(settingsOf<VolumeFlowUnit>("l/s").writeToString(0.05, VolumeFlowUnit::get()), "50 l/s");
}

TEST(QppSettingsWrite, ZeroHasNoSign)
{
    EXPECT_EQ(length(0.0), "0 m");
    EXPECT_EQ(length(-0.0), "0 m");
    EXPECT_EQ(settingsOf<TemperatureUnit>().writeToString(273.15, TemperatureUnit::get()), "0 °C");
}

TEST(QppSettingsWrite, ANumberThatRoundingWouldMakeZeroShowsItsDigits)
{
    EXPECT_EQ(length(0.0004), "0.0004 m");
    EXPECT_EQ(length(-0.000123456), "-0.000123 m");
    EXPECT_EQ(length(1.5e-9), "1.5e-09 m");
}

TEST(QppSettingsWrite, TheNoiseOfAnOffsetIsNoNumber)
{
    double const almostFreezing = std::nextafter(273.15, 300.0);
    EXPECT_EQ(settingsOf<TemperatureUnit>().writeToString(almostFreezing, TemperatureUnit::get()), "0 °C");
}

TEST(QppSettingsWrite, PlainNumbersHaveNoUnitAndAnglesNoBlank)
{
    EXPECT_EQ(settingsOf<RatioUnit>().writeToString(0.5, RatioUnit::get()), "0.5");
    EXPECT_EQ(settingsOf<RatioUnit>("%").writeToString(0.5, RatioUnit::get()), "50 %");
    EXPECT_EQ(settingsOf<PlaneAngleUnit>().writeToString(std::numbers::pi / 2, PlaneAngleUnit::get()), "90°");
    EXPECT_EQ(settingsOf<PlaneAngleUnit>("rad").writeToString(1.5, PlaneAngleUnit::get()), "1.5 rad");
}

TEST(QppSettingsWrite, LeavesTheUnitOutWhenAskedTo)
{
    auto settings = settingsOf<LengthUnit>();
    EXPECT_EQ(settings.writeNumberToString(2.5, LengthUnit::get()), "2.5");
    settings.setShowsUnit(false);
    EXPECT_EQ(settings.writeToString(2.5, LengthUnit::get()), "2.5");
}

TEST(QppSettingsWrite, UsesTheDecimalSignOfTheNumberFormat)
{
    auto settings = settingsOf<LengthUnit>();
    settings.setNumberFormat({','});
    EXPECT_EQ(settings.writeToString(2.5, LengthUnit::get()), "2,5 m");
    EXPECT_EQ(settings.fullDigits(2.5, LengthUnit::get()), "2,5");
}

TEST(QppSettingsWrite, HugeAndUndefinedNumbersAreShownAsTheyAre)
{
    EXPECT_EQ(length(1e300), "1e+300 m");
    EXPECT_EQ(length(std::numeric_limits<double>::infinity()), "inf m");
    EXPECT_EQ(length(std::numeric_limits<double>::quiet_NaN()), "nan m");
}

TEST(QppSettingsWrite, FeetAndInchesHaveSixteenths)
{
    auto settings = settingsOf<LengthUnit>("ft");
    settings.setStyle(QppSettings::Style::FeetAndInches);
    auto const written = [&](double feet, double inches) {
        return settings.writeToString(feet * 0.3048 + inches * 0.0254, LengthUnit::get());
    };
    EXPECT_EQ(written(8, 2.5), "8' 2 1/2\"");
    EXPECT_EQ(written(8, 0), "8' 0\"");
    EXPECT_EQ(written(0, 2.5), "2 1/2\"");
    EXPECT_EQ(written(0, 0.375), "3/8\"");
    EXPECT_EQ(written(7, 11.99), "8' 0\"");
    EXPECT_EQ(written(-8, -2.5), "-8' 2 1/2\"");
    EXPECT_EQ(written(0, 0), "0\"");
    EXPECT_EQ(written(0, 0.01), "0.001 ft");
}

TEST(QppSettingsWrite, DegreesMinutesAndSecondsCarryOver)
{
    auto settings = settingsOf<PlaneAngleUnit>();
    settings.setStyle(QppSettings::Style::DegreesMinutesSeconds);
    settings.setDecimals(1);
    EXPECT_EQ(settings.writeToString(48.2085, DegreeUnit::get()), "48° 12' 30.6\"");
    EXPECT_EQ(settings.writeToString(-0.5, DegreeUnit::get()), "-0° 30' 0\"");
    EXPECT_EQ(settings.writeToString(59.999999999, DegreeUnit::get()), "60° 0' 0\"");
    EXPECT_EQ(settings.writeToString(0, DegreeUnit::get()), "0° 0' 0\"");
}

TEST(QppSettingsWrite, AUnitOfAnotherQuantityIsWrittenAsItIs)
{
    EXPECT_EQ(settingsOf<LengthUnit>().writeToString(3, AreaUnit::get()), "3 m²");
    auto settings = settingsOf<LengthUnit>();
    EXPECT_FALSE(settings.setDisplayUnit(AreaUnit::get()));
    EXPECT_EQ(settings.displayUnit().symbol(), "m");
}

TEST(QppSettingsParse, ANumberAloneIsOfTheDisplayUnit)
{
    EXPECT_EQ(readLength("2.5"), 2.5);
    EXPECT_EQ(readLength("2,5"), 2.5);
    EXPECT_EQ(readLength("  2.5\t"), 2.5);
    EXPECT_EQ(readLength("-2.5"), -2.5);
    EXPECT_EQ(readLength("+2.5"), 2.5);
    EXPECT_EQ(readLength("\u22122,5"), -2.5);
    EXPECT_EQ(readLength(".5"), 0.5);
    EXPECT_EQ(readLength("5."), 5.0);
    EXPECT_EQ(readLength("1e3"), 1000.0);
    EXPECT_EQ(readLength("1.5E-3"), 0.0015);
    EXPECT_EQ(readLength("250", "mm"), 0.25);
}

TEST(QppSettingsParse, AUnitOfTheQuantityMayFollow)
{
    EXPECT_EQ(readLength("2.5 m"), 2.5);
    EXPECT_EQ(readLength("250 mm"), 0.25);
    EXPECT_EQ(readLength("250mm"), 0.25);
    EXPECT_EQ(readLength("25\u00A0cm"), 0.25);
    EXPECT_EQ(readLength("2 KM"), 2000.0);
    EXPECT_EQ(readLength("10 feet"), 3.048);
    EXPECT_EQ(settingsOf<AreaUnit>().parse("3 m2", AreaUnit::get()), 3.0);
    EXPECT_EQ(settingsOf<AreaUnit>().parse("3 m²", AreaUnit::get()), 3.0);
    EXPECT_EQ(settingsOf<RatioUnit>().parse("50 %", RatioUnit::get()), 0.5);
    EXPECT_EQ(settingsOf<PowerUnit>().parse("2 MW", PowerUnit::get()), 2e6);
    EXPECT_EQ(settingsOf<PowerUnit>().parse("2 mW", PowerUnit::get()), 2e-3);
    EXPECT_EQ(settingsOf<TemperatureUnit>().parse("-10 °C", TemperatureUnit::get()), 263.15);
    EXPECT_EQ(settingsOf<ThermalTransmittanceUnit>().parse("0.24 W/m2K", ThermalTransmittanceUnit::get()),
              0.24);
}

TEST(QppSettingsParse, DecimalUnitsMoveThePointAndRoundNothing)
{
    EXPECT_EQ(readLength("250.1 mm"), 0.2501);
    EXPECT_EQ(readLength("33.3 cm"), 0.333);
    EXPECT_EQ(readLength("0.0007 km"), 0.7);
    EXPECT_EQ(settingsOf<RatioUnit>().parse("12.3 %", RatioUnit::get()), 0.123);
}

TEST(QppSettingsParse, SeveralUnitsGoFromTheLargerToTheSmaller)
{
    EXPECT_DOUBLE_EQ(*readLength("8' 2 1/2\""), 98.5 * 0.0254);
    EXPECT_DOUBLE_EQ(*readLength("8'2\""), 98 * 0.0254);
    EXPECT_DOUBLE_EQ(*readLength("8'-2 1/2\""), 98.5 * 0.0254);
    EXPECT_DOUBLE_EQ(*readLength("-8 ft 2.5 in"), -98.5 * 0.0254);
    EXPECT_DOUBLE_EQ(*readLength("8\u2032 2\u2033"), 98 * 0.0254);
    EXPECT_DOUBLE_EQ(*readLength("2 m 5 cm"), 2.05);
    EXPECT_EQ(settingsOf<TimeUnit>().parse("1 h 30 min", TimeUnit::get()), 5400.0);
    EXPECT_DOUBLE_EQ(*settingsOf<PlaneAngleUnit>().parse("30° 15'", PlaneAngleUnit::get()),
                     30.25 * std::numbers::pi / 180);
    EXPECT_FALSE(readLength("2\" 8'"));
    EXPECT_FALSE(readLength("8' 2"));
    EXPECT_FALSE(readLength("8 ft -2 in"));
    EXPECT_FALSE(settingsOf<TemperatureUnit>().parse("20 °C 5 K", TemperatureUnit::get()));
}

TEST(QppSettingsParse, FractionsAreNumbers)
{
    EXPECT_EQ(readLength("1/2"), 0.5);
    EXPECT_EQ(readLength("2 1/2 m"), 2.5);
    EXPECT_FALSE(readLength("1/0"));
    EXPECT_FALSE(readLength("1/"));
}

TEST(QppSettingsParse, ThousandsMayBeGrouped)
{
    EXPECT_EQ(readLength("1.234,5"), 1234.5);
    EXPECT_EQ(readLength("1,234.5 mm"), 1.2345);
    EXPECT_EQ(readLength("1,234,567"), 1234567.0);
    EXPECT_FALSE(readLength("1,23,456"));
    EXPECT_FALSE(readLength("12.34,5"));
    EXPECT_FALSE(readLength("1.2.3"));
    EXPECT_FALSE(readLength("1,2.3,4"));
}

TEST(QppSettingsParse, ACommaOrPointThatMayMeanThousandsIsRefused)
{
    auto settings = settingsOf<LengthUnit>();
    EXPECT_FALSE(settings.parse("1,234 m", LengthUnit::get()));
    EXPECT_EQ(settings.parse("1.234 m", LengthUnit::get()), 1.234);
    EXPECT_EQ(settings.parse("0,234 m", LengthUnit::get()), 0.234);
    EXPECT_EQ(settings.parse("1,2345 m", LengthUnit::get()), 1.2345);
    settings.setNumberFormat({','});
    EXPECT_FALSE(settings.parse("1.234 m", LengthUnit::get()));
    EXPECT_EQ(settings.parse("1,234 m", LengthUnit::get()), 1.234);
    EXPECT_EQ(settings.parse("2.5 m", LengthUnit::get()), 2.5);
    EXPECT_EQ(settings.describeExpected("1.234 m", LengthUnit::get()),
              "1.234 can be read in two ways. Write 1,234 or 1234.");
}

TEST(QppSettingsParse, WhatIsExpectedIsToldWithUnitsAndDecimalSign)
{
    EXPECT_EQ(settingsOf<PressureUnit>().describeExpected("x", PressureUnit::get()),
              "A number is expected, such as 2.5 for 2.5 Pa, or a number with one of these units: "
              "Pa, kPa, MPa, bar, mbar, psi.");
    auto settings = settingsOf<RatioUnit>();
    settings.setNumberFormat({','});
    EXPECT_EQ(settings.describeExpected("x", RatioUnit::get()),
              "A number is expected, such as 2,5, or a number with one of these units: %, ‰.");
    EXPECT_EQ(settingsOf<CountUnit>().describeExpected("x", CountUnit::get()),
              "A number is expected, such as 2.5.");
}

TEST(QppSettingsParse, OtherTextsAreRefused)
{
    for (char const* const text :
         {"",      " ",   "abc", "m",    "2.5 x",  "2.5 m x", "2.5 kg", "2..5",  "-", "--2", "1e",
          "1e999", "nan", "inf", "0x10", "2.5mm2", "2 5",     "'",      "1/2/3", ".", ","})
        EXPECT_FALSE(readLength(text)) << text;
}

TEST(QppSettingsParse, AnyTextGivesAFiniteNumberOrNothing)
{
    static constexpr std::string_view pieces[] = {"0", "1",  "9",  "25", ".",    ",",    "-", "+",
                                                  "'", "\"", "/",  " ",  "e",    "E",    "m", "mm",
                                                  "f", "t",  "in", "°",  "\xC2", "\xFF", "\0"};
    std::mt19937 random(1);
    std::uniform_int_distribution<std::size_t> piece(0, std::size(pieces) - 1);
    std::uniform_int_distribution<int> count(1, 12);
    auto const settings = settingsOf<LengthUnit>();
    int understood = 0;
    for (int i = 0; i < 5000; ++i) {
        std::string text;
        for (int left = count(random); left > 0; --left)
            text += pieces[piece(random)];
        auto const value = settings.parse(text, LengthUnit::get());
        EXPECT_TRUE(!value || std::isfinite(*value)) << text;
        understood += value.has_value() ? 1 : 0;
    }
    EXPECT_GT(understood, 0);
    std::string const manyDigits(1000, '9');
    EXPECT_FALSE(settings.parse(manyDigits, LengthUnit::get()));
    EXPECT_FALSE(settings.parse(manyDigits + "/" + manyDigits, LengthUnit::get()));
    EXPECT_FALSE(settings.parse("1 1/" + manyDigits + " m", LengthUnit::get()));
    EXPECT_FALSE(settings.parse("1e" + manyDigits, LengthUnit::get()));
}

TEST(QppSettingsParse, NegativeZeroIsZero) { EXPECT_FALSE(std::signbit(*readLength("-0"))); }

TEST(QppSettingsParse, TheInternalValueOfOtherTextsIsNoNumber)
{
    auto const settings = settingsOf<LengthUnit>();
    EXPECT_EQ(settings.dInternal("250 mm", LengthUnit::get()), 0.25);
    EXPECT_TRUE(std::isnan(settings.dInternal("abc", LengthUnit::get())));
    EXPECT_TRUE(std::isnan(settings.dInternal("", LengthUnit::get())));
}

TEST(QppSettingsParse, ANumberCanBeReadWithoutAnyUnit)
{
    auto const settings = settingsOf<LengthUnit>("mm");
    NumberFormat const comma{','};
    NumberFormat const point{'.'};
    EXPECT_EQ(settings.dValueWithoutApplyingUnit(" 250 ", nullptr), 250.0);
    EXPECT_EQ(settings.dValueWithoutApplyingUnit("2,5", nullptr), 2.5);
    EXPECT_EQ(settings.dValueWithoutApplyingUnit("2,5", &comma), 2.5);
    EXPECT_EQ(settings.dValueWithoutApplyingUnit("2.5", &point), 2.5);
    EXPECT_TRUE(std::isnan(settings.dValueWithoutApplyingUnit("2.5", &comma)));
    EXPECT_TRUE(std::isnan(settings.dValueWithoutApplyingUnit("2,5", &point)));
    EXPECT_TRUE(std::isnan(settings.dValueWithoutApplyingUnit("250 mm", nullptr)));
    EXPECT_TRUE(std::isnan(settings.dValueWithoutApplyingUnit("", nullptr)));
}

TEST(QppSettingsFullDigits, AreShortForNumbersThatPeopleType)
{
    EXPECT_EQ(settingsOf<LengthUnit>().fullDigits(-0.0, LengthUnit::get()), "0");
    EXPECT_EQ(settingsOf<LengthUnit>().fullDigits(0.1, LengthUnit::get()), "0.1");
    EXPECT_EQ(settingsOf<LengthUnit>("mm").fullDigits(0.3, LengthUnit::get()), "300");
    EXPECT_EQ(settingsOf<LengthUnit>().fullDigits(100000, LengthUnit::get()), "100000");
    EXPECT_EQ(settingsOf<TemperatureUnit>().fullDigits(21 + 273.15, TemperatureUnit::get()), "21");
    EXPECT_EQ(settingsOf<PlaneAngleUnit>().fullDigits(std::numbers::pi / 4, PlaneAngleUnit::get()), "45");
}

TEST(QppSettingsFullDigits, ReadBackAsExactlyTheSameValue)
{
    std::mt19937_64 random(1);
    std::uniform_real_distribution<double> mantissa(-10, 10);
    std::uniform_int_distribution<int> exponent(-12, 12);
    auto const check = [](QppSettings const& settings, UnitBase const& unit, double value) {
        std::string const text = settings.fullDigits(value, unit);
        EXPECT_EQ(settings.parse(text, unit), value) << text;
    };
    for (int i = 0; i < 500; ++i) {
        double const value = mantissa(random) * std::pow(10.0, exponent(random));
        check(settingsOf<LengthUnit>(), LengthUnit::get(), value);
        check(settingsOf<LengthUnit>("ft"), LengthUnit::get(), value);
        check(settingsOf<PlaneAngleUnit>(), PlaneAngleUnit::get(), value);
        check(settingsOf<TemperatureUnit>(), TemperatureUnit::get(), value);
        check(settingsOf<TemperatureUnit>("°F"), TemperatureUnit::get(), value);
        check(settingsOf<RatioUnit>("%"), RatioUnit::get(), value);
    }
}

/// Every quantity in each of its units, with both decimal signs.
TEST(QppSettingsFullDigits, ReadBackInEveryUnit)
{
    std::mt19937_64 random(2);
    std::uniform_real_distribution<double> mantissa(-10, 10);
    std::uniform_int_distribution<int> exponent(-6, 6);
    forEachQuantity([&](QuantityBase const& quantity) {
        UnitBase const& internal = *quantity.units().front();
        for (auto const& unit : quantity.units()) {
            QppSettings settings(quantity);
            ASSERT_TRUE(settings.setDisplayUnit(*unit));
            for (char const sign : {'.', ','}) {
                settings.setNumberFormat({sign});
                for (int i = 0; i < 8; ++i) {
                    double const value = mantissa(random) * std::pow(10.0, exponent(random));
                    std::string const text = settings.fullDigits(value, internal);
                    EXPECT_EQ(settings.parse(text, internal), value) << text << ' ' << unit->symbol();
                }
            }
        }
    });
}

TEST(QppSettingsFullDigits, AreInTheStyleWhereItLosesNothing)
{
    auto settings = settingsOf<LengthUnit>("ft");
    settings.setStyle(QppSettings::Style::FeetAndInches);
    EXPECT_EQ(settings.fullDigits(98.5 * 254 / 10000, LengthUnit::get()), "8' 2 1/2\"");
    EXPECT_EQ(settings.fullDigits(3.048, LengthUnit::get()), "10' 0\"");
    EXPECT_EQ(settings.parse(settings.fullDigits(2.5, LengthUnit::get()), LengthUnit::get()), 2.5);
}

TEST(QppSettingsFullDigits, NameTheInternalUnitWhereTheDisplayUnitCannotHoldTheValue)
{
    EXPECT_EQ(settingsOf<TemperatureUnit>().fullDigits(1e-20, TemperatureUnit::get()), "1e-20 K");
}

} // namespace
