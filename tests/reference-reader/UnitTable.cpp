#include "reference-reader/UnitTable.h"

#include "reference-reader/StepNumber.h"

#include <cmath>

namespace qev::test::reference {
namespace {

constexpr int deepest = 20;

int prefixExponent(std::string const& prefix)
{
    static std::map<std::string, int> const exponents = {
        {"EXA", 18},  {"PETA", 15},  {"TERA", 12},   {"GIGA", 9},   {"MEGA", 6},   {"KILO", 3},
        {"HECTO", 2}, {"DECA", 1},   {"DECI", -1},   {"CENTI", -2}, {"MILLI", -3}, {"MICRO", -6},
        {"NANO", -9}, {"PICO", -12}, {"FEMTO", -15}, {"ATTO", -18}};
    auto const found = exponents.find(prefix);
    return found == exponents.end() ? 0 : found->second;
}

UnitScale siScale(StepRecord const& unit)
{
    std::string const& name = unit.argument(3).text;
    int exponent = prefixExponent(unit.argument(2).text);
    if (name == "SQUARE_METRE")
        exponent *= 2;
    if (name == "CUBIC_METRE")
        exponent *= 3;
    if (name == "GRAM")
        exponent -= 3;
    return {std::pow(10.0, exponent), name == "DEGREE_CELSIUS" ? 273.15 : 0.0};
}

/// A measure that only narrows the range of another one is in the same unit.
std::string withoutRange(std::string name)
{
    for (std::string const& range : {std::string("POSITIVE"), std::string("NONNEGATIVE")}) {
        if (name.starts_with(range))
            return name.substr(range.size());
    }
    return name;
}

} // namespace

UnitTable::UnitTable(StepDocument const& document)
    : m_document(document)
{
    StepRecord const* assignment = nullptr;
    for (StepRecord const& record : document.records()) {
        if (record.keyword == "IFCPROJECT" ||
            (record.keyword == "IFCPROJECTLIBRARY" && assignment == nullptr))
            assignment = document.find(record.argument(8).reference);
        if (record.keyword == "IFCPROJECT")
            break;
    }
    if (assignment == nullptr)
        return;
    for (StepArgument const& item : assignment->argument(0).items) {
        StepRecord const* const unit = document.find(item.reference);
        if (unit == nullptr || unit->keyword == "IFCMONETARYUNIT")
            continue;
        m_project.emplace(unit->argument(1).text, ofUnit(item));
    }
}

UnitScale UnitTable::ofMeasure(std::string const& measure) const
{
    auto const found = m_project.find(unitTypeOf(measure));
    return found == m_project.end() ? UnitScale{} : found->second;
}

UnitScale UnitTable::ofUnit(StepArgument const& unit) const { return scale(unit, 0); }

std::string UnitTable::unitTypeOf(std::string const& measure)
{
    if (measure == "IFCSECTIONALAREAINTEGRALMEASURE")
        return "SECTIONAREAINTEGRALUNIT";
    if (!measure.starts_with("IFC") || !measure.ends_with("MEASURE"))
        return {};
    return withoutRange(measure.substr(3, measure.size() - 10)) + "UNIT";
}

UnitScale UnitTable::scale(StepArgument const& argument, int depth) const
{
    StepRecord const* const unit = m_document.find(argument.reference);
    if (unit == nullptr || depth > deepest)
        return {};
    if (unit->keyword == "IFCSIUNIT")
        return siScale(*unit);
    if (unit->keyword.starts_with("IFCCONVERSIONBASEDUNIT"))
        return conversionScale(*unit, depth);
    if (unit->keyword == "IFCDERIVEDUNIT")
        return derivedScale(*unit, depth);
    return {};
}

UnitScale UnitTable::conversionScale(StepRecord const& unit, int depth) const
{
    StepRecord const* const measure = m_document.find(unit.argument(3).reference);
    if (measure == nullptr)
        return {};
    double const factor = numberOf(measure->argument(0)).value_or(1.0);
    double const offset = numberOf(unit.argument(4)).value_or(0.0);
    UnitScale const base = scale(measure->argument(1), depth + 1);
    return {factor * base.factor, offset * base.factor + base.offset};
}

UnitScale UnitTable::derivedScale(StepRecord const& unit, int depth) const
{
    double factor = 1.0;
    for (StepArgument const& item : unit.argument(0).items) {
        StepRecord const* const element = m_document.find(item.reference);
        if (element == nullptr)
            continue;
        double const exponent = numberOf(element->argument(1)).value_or(1.0);
        factor *= std::pow(scale(element->argument(0), depth + 1).factor, exponent);
    }
    return {factor, 0.0};
}

} // namespace qev::test::reference
