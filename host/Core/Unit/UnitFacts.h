#pragma once

#include "Core/Unit/QuantityId.h"

#include <array>
#include <cstddef>
#include <numbers>

namespace qev::unit {

/// What is fixed about a quantity.
struct QuantityFacts
{
    QuantityId id = QuantityId::Time;
    /// Stable name for files, and the key of the name and the description for people.
    char const* xmlName = "";
    /// Exponents of length, mass, time, electric current, temperature, amount of substance and
    /// luminous intensity.
    std::array<int, 7> exponents{};
    int siUnit = 0;
    /// The unit in which values are shown unless the user chooses another one.
    int displayUnit = 0;
    /// How many decimals are shown at most unless the user chooses otherwise.
    int decimals = 0;
};

/// What is fixed about a unit. A value v of it is (v + offset) * numerator / denominator of the SI unit.
struct UnitFacts
{
    int id = 0;
    QuantityId quantity = QuantityId::Time;
    char const* symbol = "";
    char const* name = "";
    /// Other spellings that users type, separated by blanks.
    char const* spellings = "";
    double numerator = 1;
    double denominator = 1;
    double offset = 0;
};

// clang-format off
inline constexpr std::array quantityFacts = std::to_array<QuantityFacts>({
    {QuantityId::Time, "time", {0, 0, 1, 0, 0, 0, 0}, 0, 0, 3},
    {QuantityId::Length, "length", {1, 0, 0, 0, 0, 0, 0}, 4, 4, 3},
    {QuantityId::Area, "area", {2, 0, 0, 0, 0, 0, 0}, 11, 11, 2},
    {QuantityId::Volume, "volume", {3, 0, 0, 0, 0, 0, 0}, 14, 14, 3},
    {QuantityId::PlaneAngle, "planeAngle", {0, 0, 0, 0, 0, 0, 0}, 17, 18, 3},
    {QuantityId::Count, "count", {0, 0, 0, 0, 0, 0, 0}, 19, 19, 3},
    {QuantityId::Ratio, "ratio", {0, 0, 0, 0, 0, 0, 0}, 21, 21, 4},
    {QuantityId::Temperature, "temperature", {0, 0, 0, 0, 1, 0, 0}, 37, 112, 2},
    {QuantityId::Power, "power", {2, 1, -3, 0, 0, 0, 0}, 46, 46, 2},
    {QuantityId::ThermalTransmittance, "thermalTransmittance", {0, 1, -3, 0, -1, 0, 0}, 49, 49, 3},
    {QuantityId::VolumeFlow, "volumeFlow", {3, 0, -1, 0, 0, 0, 0}, 33, 33, 5},
    {QuantityId::Mass, "mass", {0, 1, 0, 0, 0, 0, 0}, 200, 200, 3},
    {QuantityId::ElectricCurrent, "electricCurrent", {0, 0, 0, 1, 0, 0, 0}, 204, 204, 3},
    {QuantityId::AmountOfSubstance, "amountOfSubstance", {0, 0, 0, 0, 0, 1, 0}, 206, 206, 4},
    {QuantityId::LuminousIntensity, "luminousIntensity", {0, 0, 0, 0, 0, 0, 1}, 207, 207, 2},
    {QuantityId::SolidAngle, "solidAngle", {0, 0, 0, 0, 0, 0, 0}, 208, 208, 4},
    {QuantityId::Force, "force", {1, 1, -2, 0, 0, 0, 0}, 209, 209, 2},
    {QuantityId::Pressure, "pressure", {-1, 1, -2, 0, 0, 0, 0}, 213, 213, 2},
    {QuantityId::ModulusOfElasticity, "modulusOfElasticity", {-1, 1, -2, 0, 0, 0, 0}, 220, 221, 2},
    {QuantityId::Energy, "energy", {2, 1, -2, 0, 0, 0, 0}, 224, 224, 2},
    {QuantityId::Frequency, "frequency", {0, 0, -1, 0, 0, 0, 0}, 229, 229, 3},
    {QuantityId::Velocity, "velocity", {1, 0, -1, 0, 0, 0, 0}, 234, 234, 3},
    {QuantityId::AngularVelocity, "angularVelocity", {0, 0, -1, 0, 0, 0, 0}, 237, 237, 3},
    {QuantityId::Acceleration, "acceleration", {1, 0, -2, 0, 0, 0, 0}, 239, 239, 3},
    {QuantityId::MassDensity, "massDensity", {-3, 1, 0, 0, 0, 0, 0}, 240, 240, 2},
    {QuantityId::AreaDensity, "areaDensity", {-2, 1, 0, 0, 0, 0, 0}, 242, 242, 3},
    {QuantityId::MassPerLength, "massPerLength", {-1, 1, 0, 0, 0, 0, 0}, 243, 243, 3},
    {QuantityId::MassFlow, "massFlow", {0, 1, -1, 0, 0, 0, 0}, 244, 244, 4},
    {QuantityId::MolecularWeight, "molecularWeight", {0, 1, 0, 0, 0, -1, 0}, 246, 247, 3},
    {QuantityId::MomentOfInertia, "momentOfInertia", {4, 0, 0, 0, 0, 0, 0}, 248, 248, 9},
    {QuantityId::RotationalMass, "rotationalMass", {2, 1, 0, 0, 0, 0, 0}, 250, 250, 4},
    {QuantityId::SectionModulus, "sectionModulus", {3, 0, 0, 0, 0, 0, 0}, 251, 251, 9},
    {QuantityId::SectionalAreaIntegral, "sectionalAreaIntegral", {5, 0, 0, 0, 0, 0, 0}, 253, 253, 12},
    {QuantityId::WarpingConstant, "warpingConstant", {6, 0, 0, 0, 0, 0, 0}, 254, 254, 15},
    {QuantityId::WarpingMoment, "warpingMoment", {3, 1, -2, 0, 0, 0, 0}, 255, 255, 3},
    {QuantityId::Torque, "torque", {2, 1, -2, 0, 0, 0, 0}, 256, 256, 2},
    {QuantityId::LinearForce, "linearForce", {0, 1, -2, 0, 0, 0, 0}, 258, 258, 2},
    {QuantityId::LinearMoment, "linearMoment", {1, 1, -2, 0, 0, 0, 0}, 260, 260, 2},
    {QuantityId::LinearStiffness, "linearStiffness", {0, 1, -2, 0, 0, 0, 0}, 261, 261, 2},
    {QuantityId::RotationalStiffness, "rotationalStiffness", {2, 1, -2, 0, 0, 0, 0}, 262, 262, 2},
    {QuantityId::LinearSubgradeReaction, "linearSubgradeReaction", {-1, 1, -2, 0, 0, 0, 0}, 263, 263, 2},
    {QuantityId::RotationalSubgradeReaction, "rotationalSubgradeReaction", {1, 1, -2, 0, 0, 0, 0}, 264, 264, 2},
    {QuantityId::SubgradeReaction, "subgradeReaction", {-2, 1, -2, 0, 0, 0, 0}, 265, 265, 2},
    {QuantityId::Curvature, "curvature", {-1, 0, 0, 0, 0, 0, 0}, 266, 266, 5},
    {QuantityId::DynamicViscosity, "dynamicViscosity", {-1, 1, -1, 0, 0, 0, 0}, 267, 267, 6},
    {QuantityId::KinematicViscosity, "kinematicViscosity", {2, 0, -1, 0, 0, 0, 0}, 268, 268, 9},
    {QuantityId::ThermalConductivity, "thermalConductivity", {1, 1, -3, 0, -1, 0, 0}, 269, 269, 4},
    {QuantityId::ThermalResistance, "thermalResistance", {0, -1, 3, 0, 1, 0, 0}, 270, 270, 3},
    {QuantityId::ThermalExpansion, "thermalExpansion", {0, 0, 0, 0, -1, 0, 0}, 271, 271, 9},
    {QuantityId::HeatFluxDensity, "heatFluxDensity", {0, 1, -3, 0, 0, 0, 0}, 272, 272, 2},
    {QuantityId::HeatingValue, "heatingValue", {2, 0, -2, 0, 0, 0, 0}, 273, 273, 2},
    {QuantityId::SpecificHeatCapacity, "specificHeatCapacity", {2, 0, -2, 0, -1, 0, 0}, 275, 275, 2},
    {QuantityId::TemperatureGradient, "temperatureGradient", {-1, 0, 0, 0, 1, 0, 0}, 276, 276, 3},
    {QuantityId::TemperatureRateOfChange, "temperatureRateOfChange", {0, 0, -1, 0, 1, 0, 0}, 277, 277, 4},
    {QuantityId::VaporPermeability, "vaporPermeability", {0, 0, 1, 0, 0, 0, 0}, 278, 278, 15},
    {QuantityId::MoistureDiffusivity, "moistureDiffusivity", {3, 0, -1, 0, 0, 0, 0}, 279, 279, 9},
    {QuantityId::IsothermalMoistureCapacity, "isothermalMoistureCapacity", {3, -1, 0, 0, 0, 0, 0}, 280, 280, 9},
    {QuantityId::IonConcentration, "ionConcentration", {-3, 1, 0, 0, 0, 0, 0}, 281, 281, 5},
    {QuantityId::LuminousFlux, "luminousFlux", {0, 0, 0, 0, 0, 0, 1}, 283, 283, 1},
    {QuantityId::LuminousIntensityDistribution, "luminousIntensityDistribution", {0, 0, 0, 0, 0, 0, 0}, 284, 284, 4},
    {QuantityId::Illuminance, "illuminance", {-2, 0, 0, 0, 0, 0, 1}, 285, 285, 1},
    {QuantityId::ElectricVoltage, "electricVoltage", {2, 1, -3, -1, 0, 0, 0}, 286, 286, 2},
    {QuantityId::ElectricCharge, "electricCharge", {0, 0, 1, 1, 0, 0, 0}, 289, 289, 3},
    {QuantityId::ElectricResistance, "electricResistance", {2, 1, -3, -2, 0, 0, 0}, 291, 291, 3},
    {QuantityId::ElectricConductance, "electricConductance", {-2, -1, 3, 2, 0, 0, 0}, 294, 294, 6},
    {QuantityId::ElectricCapacitance, "electricCapacitance", {-2, -1, 4, 2, 0, 0, 0}, 295, 295, 9},
    {QuantityId::Inductance, "inductance", {2, 1, -2, -2, 0, 0, 0}, 297, 297, 6},
    {QuantityId::MagneticFlux, "magneticFlux", {2, 1, -2, -1, 0, 0, 0}, 299, 299, 6},
    {QuantityId::MagneticFluxDensity, "magneticFluxDensity", {0, 1, -2, -1, 0, 0, 0}, 300, 300, 6},
    {QuantityId::RadioActivity, "radioActivity", {0, 0, -1, 0, 0, 0, 0}, 301, 301, 2},
    {QuantityId::AbsorbedDose, "absorbedDose", {2, 0, -2, 0, 0, 0, 0}, 302, 302, 6},
    {QuantityId::DoseEquivalent, "doseEquivalent", {2, 0, -2, 0, 0, 0, 0}, 303, 303, 6},
    {QuantityId::SoundLevel, "soundLevel", {0, 0, 0, 0, 0, 0, 0}, 304, 304, 1},
});

inline constexpr std::array unitFacts = std::to_array<UnitFacts>({
    {0, QuantityId::Time, "s", "second", "sec", 1, 1, 0},
    {100, QuantityId::Time, "min", "minute", "", 60, 1, 0},
    {101, QuantityId::Time, "h", "hour", "hr", 3600, 1, 0},
    {102, QuantityId::Time, "d", "day", "", 86400, 1, 0},
    {103, QuantityId::Time, "wk", "week", "", 604800, 1, 0},
    {104, QuantityId::Time, "a", "year", "yr", 31557600, 1, 0},
    {105, QuantityId::Time, "ms", "millisecond", "", 1, 1000, 0},
    {4, QuantityId::Length, "m", "metre", "", 1, 1, 0},
    {106, QuantityId::Length, "cm", "centimetre", "", 1, 100, 0},
    {107, QuantityId::Length, "mm", "millimetre", "", 1, 1000, 0},
    {108, QuantityId::Length, "km", "kilometre", "", 1000, 1, 0},
    {109, QuantityId::Length, "in", "inch", "\" inch", 254, 10000, 0},
    {110, QuantityId::Length, "ft", "foot", "' foot feet", 3048, 10000, 0},
    {111, QuantityId::Length, "dm", "decimetre", "", 1, 10, 0},
    {113, QuantityId::Length, "µm", "micrometre", "um", 1, 1000000, 0},
    {114, QuantityId::Length, "yd", "yard", "", 9144, 10000, 0},
    {115, QuantityId::Length, "mi", "mile", "", 1609344, 1000, 0},
    {11, QuantityId::Area, "m²", "square metre", "m2 m^2 sqm", 1, 1, 0},
    {116, QuantityId::Area, "cm²", "square centimetre", "cm2 cm^2", 1, 10000, 0},
    {117, QuantityId::Area, "mm²", "square millimetre", "mm2 mm^2", 1, 1000000, 0},
    {118, QuantityId::Area, "km²", "square kilometre", "km2 km^2", 1000000, 1, 0},
    {119, QuantityId::Area, "ha", "hectare", "", 10000, 1, 0},
    {120, QuantityId::Area, "ft²", "square foot", "ft2 ft^2 sqft", 9290304, 100000000, 0},
    {121, QuantityId::Area, "in²", "square inch", "in2 in^2", 64516, 100000000, 0},
    {312, QuantityId::Area, "yd²", "square yard", "yd2 yd^2 sqyd", 83612736, 100000000, 0},
    {313, QuantityId::Area, "acre", "acre", "ac", 40468564224, 10000000, 0},
    {14, QuantityId::Volume, "m³", "cubic metre", "m3 m^3", 1, 1, 0},
    {122, QuantityId::Volume, "l", "litre", "L dm³ dm3", 1, 1000, 0},
    {123, QuantityId::Volume, "cm³", "cubic centimetre", "cm3 cm^3", 1, 1000000, 0},
    {124, QuantityId::Volume, "mm³", "cubic millimetre", "mm3 mm^3", 1, 1000000000, 0},
    {125, QuantityId::Volume, "ft³", "cubic foot", "ft3 ft^3", 28316846592, 1000000000000, 0},
    {126, QuantityId::Volume, "in³", "cubic inch", "in3 in^3", 16387064, 1000000000000, 0},
    {314, QuantityId::Volume, "yd³", "cubic yard", "yd3 yd^3", 764554857984, 1000000000000, 0},
    {315, QuantityId::Volume, "gal", "US gallon", "", 3785411784, 1000000000000, 0},
    {17, QuantityId::PlaneAngle, "rad", "radian", "", 1, 1, 0},
    {18, QuantityId::PlaneAngle, "°", "degree", "deg", std::numbers::pi, 180, 0},
    {127, QuantityId::PlaneAngle, "gon", "gon", "grad", std::numbers::pi, 200, 0},
    {128, QuantityId::PlaneAngle, "'", "minute of arc", "′ arcmin", std::numbers::pi, 10800, 0},
    {129, QuantityId::PlaneAngle, "\"", "second of arc", "″ arcsec", std::numbers::pi, 648000, 0},
    {19, QuantityId::Count, "", "one", "", 1, 1, 0},
    {21, QuantityId::Ratio, "", "one", "", 1, 1, 0},
    {130, QuantityId::Ratio, "%", "percent", "", 1, 100, 0},
    {131, QuantityId::Ratio, "‰", "permille", "", 1, 1000, 0},
    {37, QuantityId::Temperature, "K", "kelvin", "", 1, 1, 0},
    {112, QuantityId::Temperature, "°C", "degree Celsius", "C degC", 1, 1, 273.15},
    {132, QuantityId::Temperature, "°F", "degree Fahrenheit", "F degF", 5, 9, 459.67},
    {46, QuantityId::Power, "W", "watt", "", 1, 1, 0},
    {133, QuantityId::Power, "kW", "kilowatt", "", 1000, 1, 0},
    {134, QuantityId::Power, "MW", "megawatt", "", 1000000, 1, 0},
    {135, QuantityId::Power, "mW", "milliwatt", "", 1, 1000, 0},
    {136, QuantityId::Power, "BTU/h", "British thermal unit per hour", "Btu/h", 1055.05585262, 3600, 0},
    {316, QuantityId::Power, "hp", "mechanical horsepower", "", 745.69987158227022, 1, 0},
    {49, QuantityId::ThermalTransmittance, "W/(m²·K)", "watt per square metre and kelvin", "W/(m2K) W/m2K W/m²K W/(m²K) W/(m2.K) W/(m2*K)", 1, 1, 0},
    {320, QuantityId::ThermalTransmittance, "BTU/(h·ft²·°F)", "British thermal unit per hour, square foot and degree Fahrenheit", "Btu/(h·ft²·°F) BTU/(h*ft2*F)", 1055.05585262 * 9, 3600 * 0.09290304 * 5, 0},
    {33, QuantityId::VolumeFlow, "m³/s", "cubic metre per second", "m3/s", 1, 1, 0},
    {137, QuantityId::VolumeFlow, "l/s", "litre per second", "L/s", 1, 1000, 0},
    {138, QuantityId::VolumeFlow, "m³/h", "cubic metre per hour", "m3/h", 1, 3600, 0},
    {139, QuantityId::VolumeFlow, "l/min", "litre per minute", "L/min", 1, 60000, 0},
    {140, QuantityId::VolumeFlow, "l/h", "litre per hour", "L/h", 1, 3600000, 0},
    {141, QuantityId::VolumeFlow, "cfm", "cubic foot per minute", "ft³/min ft3/min", 28316846592, 60000000000000, 0},
    {200, QuantityId::Mass, "kg", "kilogram", "", 1, 1, 0},
    {201, QuantityId::Mass, "g", "gram", "", 1, 1000, 0},
    {202, QuantityId::Mass, "t", "tonne", "", 1000, 1, 0},
    {203, QuantityId::Mass, "lb", "pound", "", 45359237, 100000000, 0},
    {317, QuantityId::Mass, "oz", "ounce", "", 28349523125, 1000000000000, 0},
    {318, QuantityId::Mass, "ton", "short ton", "", 90718474, 100000, 0},
    {204, QuantityId::ElectricCurrent, "A", "ampere", "", 1, 1, 0},
    {205, QuantityId::ElectricCurrent, "mA", "milliampere", "", 1, 1000, 0},
    {310, QuantityId::ElectricCurrent, "kA", "kiloampere", "", 1000, 1, 0},
    {206, QuantityId::AmountOfSubstance, "mol", "mole", "", 1, 1, 0},
    {207, QuantityId::LuminousIntensity, "cd", "candela", "", 1, 1, 0},
    {208, QuantityId::SolidAngle, "sr", "steradian", "", 1, 1, 0},
    {209, QuantityId::Force, "N", "newton", "", 1, 1, 0},
    {210, QuantityId::Force, "kN", "kilonewton", "", 1000, 1, 0},
    {211, QuantityId::Force, "MN", "meganewton", "", 1000000, 1, 0},
    {212, QuantityId::Force, "lbf", "pound-force", "", 44482216152605, 10000000000000, 0},
    {213, QuantityId::Pressure, "Pa", "pascal", "N/m² N/m2", 1, 1, 0},
    {214, QuantityId::Pressure, "kPa", "kilopascal", "kN/m² kN/m2", 1000, 1, 0},
    {215, QuantityId::Pressure, "MPa", "megapascal", "N/mm² N/mm2", 1000000, 1, 0},
    {216, QuantityId::Pressure, "bar", "bar", "", 100000, 1, 0},
    {217, QuantityId::Pressure, "mbar", "millibar", "hPa", 100, 1, 0},
    {218, QuantityId::Pressure, "psi", "pound per square inch", "", 6894.757293168, 1, 0},
    {220, QuantityId::ModulusOfElasticity, "Pa", "pascal", "N/m² N/m2", 1, 1, 0},
    {221, QuantityId::ModulusOfElasticity, "N/mm²", "newton per square millimetre", "N/mm2 MPa", 1000000, 1, 0},
    {222, QuantityId::ModulusOfElasticity, "kN/mm²", "kilonewton per square millimetre", "kN/mm2 GPa", 1000000000, 1, 0},
    {342, QuantityId::ModulusOfElasticity, "psi", "pound per square inch", "", 6894.757293168, 1, 0},
    {224, QuantityId::Energy, "J", "joule", "", 1, 1, 0},
    {225, QuantityId::Energy, "kJ", "kilojoule", "", 1000, 1, 0},
    {226, QuantityId::Energy, "MJ", "megajoule", "", 1000000, 1, 0},
    {227, QuantityId::Energy, "kWh", "kilowatt-hour", "", 3600000, 1, 0},
    {228, QuantityId::Energy, "Wh", "watt-hour", "", 3600, 1, 0},
    {322, QuantityId::Energy, "BTU", "British thermal unit", "Btu", 1055.05585262, 1, 0},
    {229, QuantityId::Frequency, "Hz", "hertz", "1/s", 1, 1, 0},
    {230, QuantityId::Frequency, "kHz", "kilohertz", "", 1000, 1, 0},
    {231, QuantityId::Frequency, "MHz", "megahertz", "", 1000000, 1, 0},
    {232, QuantityId::Frequency, "1/min", "one per minute", "rpm", 1, 60, 0},
    {234, QuantityId::Velocity, "m/s", "metre per second", "", 1, 1, 0},
    {235, QuantityId::Velocity, "km/h", "kilometre per hour", "kph", 1000, 3600, 0},
    {236, QuantityId::Velocity, "mph", "mile per hour", "mi/h", 1609344, 3600000, 0},
    {311, QuantityId::Velocity, "ft/min", "foot per minute", "fpm", 3048, 600000, 0},
    {237, QuantityId::AngularVelocity, "rad/s", "radian per second", "", 1, 1, 0},
    {238, QuantityId::AngularVelocity, "°/s", "degree per second", "deg/s", std::numbers::pi, 180, 0},
    {239, QuantityId::Acceleration, "m/s²", "metre per square second", "m/s2 m/s^2", 1, 1, 0},
    {323, QuantityId::Acceleration, "ft/s²", "foot per square second", "ft/s2 ft/s^2", 3048, 10000, 0},
    {240, QuantityId::MassDensity, "kg/m³", "kilogram per cubic metre", "kg/m3", 1, 1, 0},
    {241, QuantityId::MassDensity, "g/cm³", "gram per cubic centimetre", "g/cm3 kg/l t/m³ t/m3", 1000, 1, 0},
    {324, QuantityId::MassDensity, "lb/ft³", "pound per cubic foot", "lb/ft3", 453592370000, 28316846592, 0},
    {242, QuantityId::AreaDensity, "kg/m²", "kilogram per square metre", "kg/m2", 1, 1, 0},
    {325, QuantityId::AreaDensity, "lb/ft²", "pound per square foot", "lb/ft2", 45359237, 9290304, 0},
    {243, QuantityId::MassPerLength, "kg/m", "kilogram per metre", "", 1, 1, 0},
    {326, QuantityId::MassPerLength, "lb/ft", "pound per foot", "", 45359237, 30480000, 0},
    {244, QuantityId::MassFlow, "kg/s", "kilogram per second", "", 1, 1, 0},
    {245, QuantityId::MassFlow, "kg/h", "kilogram per hour", "", 1, 3600, 0},
    {327, QuantityId::MassFlow, "lb/h", "pound per hour", "", 45359237, 360000000000, 0},
    {246, QuantityId::MolecularWeight, "kg/mol", "kilogram per mole", "", 1, 1, 0},
    {247, QuantityId::MolecularWeight, "g/mol", "gram per mole", "", 1, 1000, 0},
    {248, QuantityId::MomentOfInertia, "m⁴", "metre to the fourth power", "m4 m^4", 1, 1, 0},
    {249, QuantityId::MomentOfInertia, "cm⁴", "centimetre to the fourth power", "cm4 cm^4", 1, 100000000, 0},
    {337, QuantityId::MomentOfInertia, "in⁴", "inch to the fourth power", "in4 in^4", 4162314256, 10000000000000000, 0},
    {250, QuantityId::RotationalMass, "kg·m²", "kilogram square metre", "kgm2 kg*m2 kg.m2", 1, 1, 0},
    {251, QuantityId::SectionModulus, "m³", "cubic metre", "m3 m^3", 1, 1, 0},
    {252, QuantityId::SectionModulus, "cm³", "cubic centimetre", "cm3 cm^3", 1, 1000000, 0},
    {338, QuantityId::SectionModulus, "in³", "cubic inch", "in3 in^3", 16387064, 1000000000000, 0},
    {253, QuantityId::SectionalAreaIntegral, "m⁵", "metre to the fifth power", "m5 m^5", 1, 1, 0},
    {254, QuantityId::WarpingConstant, "m⁶", "metre to the sixth power", "m6 m^6", 1, 1, 0},
    {255, QuantityId::WarpingMoment, "N·m²", "newton square metre", "Nm2 Nm²", 1, 1, 0},
    {256, QuantityId::Torque, "N·m", "newton metre", "Nm", 1, 1, 0},
    {257, QuantityId::Torque, "kN·m", "kilonewton metre", "kNm", 1000, 1, 0},
    {328, QuantityId::Torque, "lbf·ft", "pound-force foot", "lbf*ft lbfft", 44482216152605 * 0.3048, 10000000000000, 0},
    {258, QuantityId::LinearForce, "N/m", "newton per metre", "", 1, 1, 0},
    {259, QuantityId::LinearForce, "kN/m", "kilonewton per metre", "", 1000, 1, 0},
    {329, QuantityId::LinearForce, "lbf/ft", "pound-force per foot", "", 44482216152605, 10000000000000 * 0.3048, 0},
    {260, QuantityId::LinearMoment, "N·m/m", "newton metre per metre", "Nm/m", 1, 1, 0},
    {340, QuantityId::LinearMoment, "lbf·ft/ft", "pound-force foot per foot", "lbf*ft/ft", 44482216152605, 10000000000000, 0},
    {261, QuantityId::LinearStiffness, "N/m", "newton per metre", "", 1, 1, 0},
    {341, QuantityId::LinearStiffness, "lbf/ft", "pound-force per foot", "", 44482216152605, 10000000000000 * 0.3048, 0},
    {262, QuantityId::RotationalStiffness, "N·m/rad", "newton metre per radian", "Nm/rad", 1, 1, 0},
    {263, QuantityId::LinearSubgradeReaction, "N/m²", "newton per square metre", "N/m2", 1, 1, 0},
    {264, QuantityId::RotationalSubgradeReaction, "N·m/(m·rad)", "newton metre per metre and radian", "Nm/(m*rad)", 1, 1, 0},
    {265, QuantityId::SubgradeReaction, "N/m³", "newton per cubic metre", "N/m3", 1, 1, 0},
    {339, QuantityId::SubgradeReaction, "lbf/ft³", "pound-force per cubic foot", "lbf/ft3", 44482216152605, 10000000000000 * 0.028316846592, 0},
    {266, QuantityId::Curvature, "rad/m", "radian per metre", "1/m", 1, 1, 0},
    {267, QuantityId::DynamicViscosity, "Pa·s", "pascal second", "Pas", 1, 1, 0},
    {268, QuantityId::KinematicViscosity, "m²/s", "square metre per second", "m2/s", 1, 1, 0},
    {269, QuantityId::ThermalConductivity, "W/(m·K)", "watt per metre and kelvin", "W/(mK) W/mK W/(m*K)", 1, 1, 0},
    {330, QuantityId::ThermalConductivity, "BTU/(h·ft·°F)", "British thermal unit per hour, foot and degree Fahrenheit", "Btu/(h·ft·°F) BTU/(h*ft*F)", 1055.05585262 * 9, 3600 * 0.3048 * 5, 0},
    {270, QuantityId::ThermalResistance, "m²·K/W", "square metre kelvin per watt", "m2K/W m²K/W", 1, 1, 0},
    {331, QuantityId::ThermalResistance, "h·ft²·°F/BTU", "hour square foot degree Fahrenheit per British thermal unit", "h·ft²·°F/Btu h*ft2*F/BTU", 3600 * 0.09290304 * 5, 1055.05585262 * 9, 0},
    {271, QuantityId::ThermalExpansion, "1/K", "one per kelvin", "", 1, 1, 0},
    {332, QuantityId::ThermalExpansion, "1/°F", "one per degree Fahrenheit", "1/F", 9, 5, 0},
    {272, QuantityId::HeatFluxDensity, "W/m²", "watt per square metre", "W/m2", 1, 1, 0},
    {333, QuantityId::HeatFluxDensity, "BTU/(h·ft²)", "British thermal unit per hour and square foot", "Btu/(h·ft²) BTU/(h*ft2)", 1055.05585262, 3600 * 0.09290304, 0},
    {273, QuantityId::HeatingValue, "J/kg", "joule per kilogram", "", 1, 1, 0},
    {274, QuantityId::HeatingValue, "MJ/kg", "megajoule per kilogram", "", 1000000, 1, 0},
    {334, QuantityId::HeatingValue, "BTU/lb", "British thermal unit per pound", "Btu/lb", 2326, 1, 0},
    {275, QuantityId::SpecificHeatCapacity, "J/(kg·K)", "joule per kilogram and kelvin", "J/(kgK) J/kgK J/(kg*K)", 1, 1, 0},
    {335, QuantityId::SpecificHeatCapacity, "BTU/(lb·°F)", "British thermal unit per pound and degree Fahrenheit", "Btu/(lb·°F) BTU/(lb*F)", 41868, 10, 0},
    {276, QuantityId::TemperatureGradient, "K/m", "kelvin per metre", "", 1, 1, 0},
    {277, QuantityId::TemperatureRateOfChange, "K/s", "kelvin per second", "", 1, 1, 0},
    {278, QuantityId::VaporPermeability, "kg/(s·m·Pa)", "kilogram per second, metre and pascal", "kg/(smPa) kg/(s*m*Pa)", 1, 1, 0},
    {279, QuantityId::MoistureDiffusivity, "m³/s", "cubic metre per second", "m3/s", 1, 1, 0},
    {280, QuantityId::IsothermalMoistureCapacity, "m³/kg", "cubic metre per kilogram", "m3/kg", 1, 1, 0},
    {281, QuantityId::IonConcentration, "kg/m³", "kilogram per cubic metre", "kg/m3", 1, 1, 0},
    {282, QuantityId::IonConcentration, "mg/l", "milligram per litre", "mg/L", 1, 1000, 0},
    {283, QuantityId::LuminousFlux, "lm", "lumen", "", 1, 1, 0},
    {284, QuantityId::LuminousIntensityDistribution, "cd/lm", "candela per lumen", "", 1, 1, 0},
    {285, QuantityId::Illuminance, "lx", "lux", "lm/m² lm/m2", 1, 1, 0},
    {336, QuantityId::Illuminance, "fc", "foot-candle", "lm/ft² lm/ft2", 100000000, 9290304, 0},
    {286, QuantityId::ElectricVoltage, "V", "volt", "", 1, 1, 0},
    {287, QuantityId::ElectricVoltage, "kV", "kilovolt", "", 1000, 1, 0},
    {288, QuantityId::ElectricVoltage, "mV", "millivolt", "", 1, 1000, 0},
    {289, QuantityId::ElectricCharge, "C", "coulomb", "As", 1, 1, 0},
    {290, QuantityId::ElectricCharge, "Ah", "ampere-hour", "", 3600, 1, 0},
    {291, QuantityId::ElectricResistance, "Ω", "ohm", "Ohm", 1, 1, 0},
    {292, QuantityId::ElectricResistance, "kΩ", "kiloohm", "kOhm", 1000, 1, 0},
    {293, QuantityId::ElectricResistance, "mΩ", "milliohm", "mOhm", 1, 1000, 0},
    {294, QuantityId::ElectricConductance, "S", "siemens", "", 1, 1, 0},
    {295, QuantityId::ElectricCapacitance, "F", "farad", "", 1, 1, 0},
    {296, QuantityId::ElectricCapacitance, "µF", "microfarad", "uF", 1, 1000000, 0},
    {297, QuantityId::Inductance, "H", "henry", "", 1, 1, 0},
    {298, QuantityId::Inductance, "mH", "millihenry", "", 1, 1000, 0},
    {299, QuantityId::MagneticFlux, "Wb", "weber", "", 1, 1, 0},
    {300, QuantityId::MagneticFluxDensity, "T", "tesla", "", 1, 1, 0},
    {301, QuantityId::RadioActivity, "Bq", "becquerel", "", 1, 1, 0},
    {302, QuantityId::AbsorbedDose, "Gy", "gray", "", 1, 1, 0},
    {303, QuantityId::DoseEquivalent, "Sv", "sievert", "", 1, 1, 0},
    {304, QuantityId::SoundLevel, "dB", "decibel", "", 1, 1, 0},
});
// clang-format on

/// The facts about a quantity; those of an unnamed one without dimension when the id is unknown.
constexpr QuantityFacts factsOfQuantity(QuantityId id)
{
    for (auto const& facts : quantityFacts) {
        if (facts.id == id)
            return facts;
    }
    QuantityFacts unknown;
    unknown.id = id;
    return unknown;
}

/// The facts about a unit; those of an unnamed one when the id is unknown.
constexpr UnitFacts factsOfUnit(int id)
{
    for (auto const& facts : unitFacts) {
        if (facts.id == id)
            return facts;
    }
    UnitFacts unknown;
    unknown.id = id;
    return unknown;
}

} // namespace qev::unit
