#include "Core/Unit/UnitPreferences.h"

#include "Core/String/NumberText.h"
#include "Core/Unit/UnitFacts.h"
#include "Core/Unit/UnitIds.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace qev::unit {

namespace {

using Style = QppSettings::Style;

constexpr std::array<std::pair<Style, std::string_view>, 3> styleNames = {{
    {Style::Decimal, "decimal"},
    {Style::FeetAndInches, "feetAndInches"},
    {Style::DegreesMinutesSeconds, "degreesMinutesSeconds"},
}};

/// Stands for the unit of plain numbers, which has no symbol.
constexpr std::string_view plainNumberSymbol = "1";

/// The unit of each quantity that has an imperial one.
constexpr std::array imperialUnits = {footId, 120, 125, 132, 136, 141, 203, 212, 218, 311, 320,
                                      322,    323, 324, 325, 326, 327, 328, 329, 330, 331, 332,
                                      333,    334, 335, 336, 337, 338, 339, 340, 341, 342};

bool isKnown(QuantityId quantity) { return *factsOfQuantity(quantity).xmlName != '\0'; }

UnitPreferences::Choice metricChoice(QuantityId quantity)
{
    auto const facts = factsOfQuantity(quantity);
    return {facts.displayUnit, facts.decimals, Style::Decimal};
}

std::string_view symbolOf(int unit)
{
    std::string_view const symbol = factsOfUnit(unit).symbol;
    return symbol.empty() ? plainNumberSymbol : symbol;
}

std::optional<int> unitFromSymbol(QuantityId quantity, std::string_view symbol)
{
    auto const unit = std::find_if(unitFacts.begin(), unitFacts.end(), [&](UnitFacts const& facts) {
        return facts.quantity == quantity && symbolOf(facts.id) == symbol;
    });
    return unit == unitFacts.end() ? std::nullopt : std::optional(unit->id);
}

std::optional<QuantityId> quantityFromXmlName(std::string_view name)
{
    auto const quantity = std::find_if(quantityFacts.begin(), quantityFacts.end(),
                                       [&](QuantityFacts const& facts) { return facts.xmlName == name; });
    return quantity == quantityFacts.end() ? std::nullopt : std::optional(quantity->id);
}

std::string_view nameOf(Style style)
{
    auto const entry = std::find_if(styleNames.begin(), styleNames.end(),
                                    [&](auto const& candidate) { return candidate.first == style; });
    return entry == styleNames.end() ? std::string_view() : entry->second;
}

std::optional<Style> styleFromName(std::string_view name)
{
    auto const entry = std::find_if(styleNames.begin(), styleNames.end(),
                                    [&](auto const& candidate) { return candidate.second == name; });
    return entry == styleNames.end() ? std::nullopt : std::optional(entry->first);
}

/// Cuts the text before \p separator off \p rest, and the separator with it.
std::string_view takeUpTo(std::string_view& rest, char separator)
{
    auto const end = std::min(rest.find(separator), rest.size());
    auto const result = rest.substr(0, end);
    rest.remove_prefix(std::min(end + 1, rest.size()));
    return result;
}

} // namespace

std::optional<UnitPreferences::System> UnitPreferences::systemFromName(std::string_view name)
{
    if (name == "metric")
        return System::Metric;
    return name == "imperial" ? std::optional(System::Imperial) : std::nullopt;
}

UnitPreferences::UnitPreferences(System system)
{
    if (system == System::Metric)
        return;
    for (int const unit : imperialUnits) {
        auto choice = choiceOfUnit(unit);
        if (unit == footId)
            choice.style = Style::FeetAndInches;
        setChoice(factsOfUnit(unit).quantity, choice);
    }
}

UnitPreferences::Choice UnitPreferences::choice(QuantityId quantity) const
{
    auto const entry = m_choices.find(quantity);
    return entry == m_choices.end() ? metricChoice(quantity) : entry->second;
}

bool UnitPreferences::setChoice(QuantityId quantity, Choice const& choice)
{
    auto const unit = factsOfUnit(choice.unit);
    if (!isKnown(quantity) || unit.quantity != quantity || *unit.name == '\0')
        return false;
    Choice taken = choice;
    taken.decimals = std::clamp(choice.decimals, 0, QppSettings::maximumDecimals);
    if (taken == metricChoice(quantity))
        m_choices.erase(quantity);
    else
        m_choices.insert_or_assign(quantity, taken);
    return true;
}

UnitPreferences::Choice UnitPreferences::choiceOfUnit(int unit)
{
    auto const facts = factsOfUnit(unit);
    auto const metric = metricChoice(facts.quantity);
    auto const metricFacts = factsOfUnit(metric.unit);
    double const size = facts.numerator / facts.denominator * metricFacts.denominator / metricFacts.numerator;
    auto const decimals = metric.decimals + static_cast<int>(std::lround(std::log10(size)));
    return {unit, std::clamp(decimals, 0, QppSettings::maximumDecimals), Style::Decimal};
}

std::optional<UnitPreferences::System> UnitPreferences::system() const
{
    for (auto const system : {System::Metric, System::Imperial}) {
        if (m_choices == UnitPreferences(system).m_choices)
            return system;
    }
    return std::nullopt;
}

void UnitPreferences::apply(QppSettings& settings) const
{
    settings.setNumberFormat(m_numberFormat);
    auto const& quantity = settings.quantity();
    if (!isKnown(quantity.id()))
        return;
    auto const taken = choice(quantity.id());
    if (auto const* const unit = quantity.unitFromId(taken.unit))
        settings.setDisplayUnit(*unit);
    settings.setStyle(taken.style);
    settings.setDecimals(taken.decimals);
}

std::vector<std::string> UnitPreferences::toLines() const
{
    std::vector<std::string> lines;
    for (auto const& [quantity, choice] : m_choices) {
        std::string line = factsOfQuantity(quantity).xmlName;
        line.append("=").append(symbolOf(choice.unit));
        line.append(";").append(std::to_string(choice.decimals));
        line.append(";").append(nameOf(choice.style));
        lines.push_back(std::move(line));
    }
    return lines;
}

UnitPreferences UnitPreferences::fromLines(std::vector<std::string> const& lines)
{
    UnitPreferences result;
    for (auto const& line : lines)
        result.readLine(line);
    return result;
}

void UnitPreferences::readLine(std::string_view line)
{
    auto const quantity = quantityFromXmlName(takeUpTo(line, '='));
    if (!quantity)
        return;
    auto const unit = unitFromSymbol(*quantity, takeUpTo(line, ';'));
    auto const decimals = str::parseDouble(takeUpTo(line, ';'));
    auto const style = styleFromName(line);
    if (unit && decimals && style && std::abs(*decimals) <= QppSettings::maximumDecimals)
        setChoice(*quantity, {*unit, static_cast<int>(*decimals), *style});
}

} // namespace qev::unit
