#include "Format/Ifc/Model/FileUnits.h"

#include "Core/String/Ascii.h"
#include "FoundationClasses/EntityClass.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace qev::ifc {

namespace {

using fc::UnitScale;
using step::InstanceId;
using step::StepValue;
using Kind = StepValue::Kind;

constexpr double zeroCelsius = 273.15;

/// Powers of ten of the SI prefixes.
int powerOfPrefix(std::string_view prefix)
{
    static std::map<std::string_view, int> const powers = {
        {"EXA", 18},  {"PETA", 15},  {"TERA", 12},   {"GIGA", 9},   {"MEGA", 6},   {"KILO", 3},
        {"HECTO", 2}, {"DECA", 1},   {"DECI", -1},   {"CENTI", -2}, {"MILLI", -3}, {"MICRO", -6},
        {"NANO", -9}, {"PICO", -12}, {"FEMTO", -15}, {"ATTO", -18}};
    auto const found = powers.find(prefix);
    return found == powers.end() ? 0 : found->second;
}

UnitScale powerOfTen(int power)
{
    return power >= 0 ? UnitScale{std::pow(10.0, power), 1.0, 0.0}
                      : UnitScale{1.0, std::pow(10.0, -power), 0.0};
}

/// Takes a common factor out, so that kilogram stays exactly 1.
UnitScale reduced(UnitScale scale)
{
    if (scale.factor == scale.divisor)
        return {1.0, 1.0, scale.offset};
    if (scale.factor > scale.divisor && std::fmod(scale.factor, scale.divisor) == 0.0)
        return {scale.factor / scale.divisor, 1.0, scale.offset};
    if (scale.divisor > scale.factor && std::fmod(scale.divisor, scale.factor) == 0.0)
        return {1.0, scale.divisor / scale.factor, scale.offset};
    return scale;
}

UnitScale raised(UnitScale scale, int exponent)
{
    UnitScale result{std::pow(scale.factor, std::abs(exponent)), std::pow(scale.divisor, std::abs(exponent)),
                     0.0};
    if (exponent < 0)
        std::swap(result.factor, result.divisor);
    return result;
}

UnitScale product(UnitScale const& a, UnitScale const& b)
{
    return reduced({a.factor * b.factor, a.divisor * b.divisor, 0.0});
}

std::string_view itemOf(StepValue const& value)
{
    return value.kind() == Kind::Enumeration ? std::string_view(value.textValue()) : std::string_view();
}

/// An SI unit: prefix and name. The prefix of a square or cubic metre is raised with the metre.
UnitScale scaleOfSiUnit(std::string_view prefix, std::string_view name)
{
    int const dimension = name == "SQUARE_METRE" ? 2 : name == "CUBIC_METRE" ? 3 : 1;
    int const gram = name == "GRAM" ? -3 : 0;
    UnitScale scale = powerOfTen(powerOfPrefix(prefix) * dimension + gram);
    if (name == "DEGREE_CELSIUS")
        scale.offset = zeroCelsius;
    return scale;
}

/// A unit of temperature with an offset, which by the standard is added after the factor was applied: 255.37
/// for degrees Fahrenheit. Where that would put the zero of the scale below absolute zero, the offset is
/// meant in the unit itself: -459.67. The standard's own example goes the other way round altogether, with
/// the factor 1.8.
UnitScale withOffset(UnitScale scale, double offset, double baseOffset)
{
    constexpr double inverseFahrenheit = 1.8;
    double const zero = offset + baseOffset;
    if (zero >= 0.0)
        return {scale.factor, scale.divisor, zero};
    if (scale.factor == inverseFahrenheit * scale.divisor)
        std::swap(scale.factor, scale.divisor);
    scale.offset = -offset * scale.factor / scale.divisor;
    return scale;
}

} // namespace

FileUnits::FileUnits(step::StepFile const& file, std::optional<step::RecordIndex> project)
    : m_file(file)
    , m_parser(file)
{
    if (project)
        readAssignment(*project);
}

std::string FileUnits::unitTypeOf(std::string_view measureType)
{
    constexpr std::string_view prefix = "Ifc";
    constexpr std::string_view suffix = "Measure";
    if (measureType.size() <= prefix.size() + suffix.size() || !measureType.starts_with(prefix) ||
        !measureType.ends_with(suffix))
        return {};
    auto name = measureType.substr(prefix.size(), measureType.size() - prefix.size() - suffix.size());
    for (std::string_view const restriction : {"Positive", "NonNegative"}) {
        if (name.starts_with(restriction))
            name.remove_prefix(restriction.size());
    }
    // The one unit type that is spelled differently from its measure.
    if (name == "SectionalAreaIntegral")
        return "SECTIONAREAINTEGRALUNIT";
    return str::toUpper(name) + "UNIT";
}

UnitScale FileUnits::scaleOf(std::string_view measureType) const
{
    if (auto const known = m_scaleByMeasure.find(measureType); known != m_scaleByMeasure.end())
        return known->second;
    auto const found = m_scaleByUnitType.find(unitTypeOf(measureType));
    UnitScale const scale = found == m_scaleByUnitType.end() ? UnitScale() : found->second;
    // Type names are asked for by constants of the schema, which outlive the file.
    m_scaleByMeasure.emplace(measureType, scale);
    return scale;
}

UnitScale FileUnits::scaleOf(std::string_view measureType, InstanceId unit) const
{
    auto const own = unitFromId(unit);
    std::string const unitType = unitTypeOf(measureType);
    // A plain number has no unit but this one.
    bool const isPlain = measureType == "IfcReal" || measureType == "IfcNumericMeasure";
    bool const isOfTheKind =
        own && !unitType.empty() && (own->unitType == unitType || own->unitType == "USERDEFINED");
    if (own && (isPlain || isOfTheKind))
        return own->scale;
    return scaleOf(measureType);
}

std::optional<FileUnits::Unit> FileUnits::unitFromId(InstanceId id) const
{
    auto const [place, isNew] = m_units.try_emplace(id);
    if (isNew)
        place->second = readUnit(id, 0);
    return place->second;
}

void FileUnits::readAssignment(step::RecordIndex project)
{
    constexpr std::size_t unitsInContext = 8;
    auto const units = m_parser.parseArgument(project, unitsInContext);
    InstanceId const assignment = units ? units->referenceId() : 0;
    std::string keyword;
    auto const arguments = argumentsOf(assignment, keyword);
    if (keyword != "IFCUNITASSIGNMENT" || arguments.empty())
        return;
    for (StepValue const& item : arguments.front().items()) {
        if (auto const unit = unitFromId(item.referenceId()))
            m_scaleByUnitType.emplace(unit->unitType, unit->scale);
    }
}

std::vector<StepValue> FileUnits::argumentsOf(InstanceId id, std::string& keyword) const
{
    std::vector<StepValue> arguments;
    keyword.clear();
    step::RecordIndex const record = id == 0 ? step::StepFile::noRecord : m_file.indexOf(id);
    if (record == step::StepFile::noRecord)
        return arguments;
    keyword = str::toUpper(m_file.keywordOf(record));
    m_parser.parse(record, arguments);
    return arguments;
}

std::optional<FileUnits::Unit> FileUnits::readUnit(InstanceId id, unsigned int depth) const
{
    if (depth > maximumDepth)
        return std::nullopt;
    std::string keyword;
    auto const arguments = argumentsOf(id, keyword);
    if (keyword == "IFCSIUNIT" && arguments.size() >= 4)
        return Unit{std::string(itemOf(arguments[1])),
                    scaleOfSiUnit(itemOf(arguments[2]), itemOf(arguments[3]))};
    if (keyword.starts_with("IFCCONVERSIONBASEDUNIT") && arguments.size() >= 4)
        return readConversion(arguments, depth);
    if (keyword == "IFCDERIVEDUNIT" && arguments.size() >= 2)
        return readDerived(arguments, depth);
    return std::nullopt;
}

std::optional<FileUnits::Unit> FileUnits::readConversion(std::vector<StepValue> const& arguments,
                                                         unsigned int depth) const
{
    std::string keyword;
    auto const factor = argumentsOf(arguments[3].referenceId(), keyword);
    if (keyword != "IFCMEASUREWITHUNIT" || factor.size() < 2)
        return std::nullopt;
    StepValue const& number = factor[0].kind() == Kind::Typed ? factor[0].items().front() : factor[0];
    auto const base = readUnit(factor[1].referenceId(), depth + 1);
    if (!number.isNumber() || number.realValue() == 0.0 || !base)
        return std::nullopt;
    Unit unit{std::string(itemOf(arguments[1])), product({number.realValue(), 1.0, 0.0}, base->scale)};
    if (arguments.size() >= 5 && arguments[4].isNumber())
        unit.scale = withOffset(unit.scale, arguments[4].realValue(), base->scale.offset);
    return unit;
}

std::optional<FileUnits::Unit> FileUnits::readDerived(std::vector<StepValue> const& arguments,
                                                      unsigned int depth) const
{
    Unit unit{std::string(itemOf(arguments[1])), {}};
    for (StepValue const& item : arguments[0].items()) {
        std::string keyword;
        auto const element = argumentsOf(item.referenceId(), keyword);
        if (keyword != "IFCDERIVEDUNITELEMENT" || element.size() < 2 || !element[1].isNumber())
            return std::nullopt;
        auto const base = readUnit(element[0].referenceId(), depth + 1);
        if (!base)
            return std::nullopt;
        unit.scale = product(unit.scale, raised(base->scale, static_cast<int>(element[1].realValue())));
    }
    return unit;
}

} // namespace qev::ifc
