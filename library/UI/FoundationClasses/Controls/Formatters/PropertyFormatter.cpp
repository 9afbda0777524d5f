#include "UI/FoundationClasses/Controls/Formatters/PropertyFormatter.h"

#include "UI/FoundationClasses/Controls/Formatters/StrategyAnswers.h"

namespace qev::fc::ui {

PropertyFormatter::PropertyFormatter() = default;
PropertyFormatter::~PropertyFormatter() = default;

void PropertyFormatter::addStrategy(std::shared_ptr<PropertyFormatterStrategyInterface> const& strategy)
{
    appendStrategy(m_strategies, strategy, "PropertyFormatter");
}

void PropertyFormatter::setObject(std::shared_ptr<Data> data, std::shared_ptr<FcBase> object)
{
    tellAll(m_strategies, [&](auto& strategy) { strategy.setObject(data, object); });
}

void PropertyFormatter::onPropertySetPropertyChanged(
    std::shared_ptr<core::kernel::FcPropertySet const> const& set, std::string const& propertyName)
{
    tellAll(m_strategies, [&](auto& strategy) { strategy.onPropertySetPropertyChanged(set, propertyName); });
}

void PropertyFormatter::onPropertyCustomButtonClicked(std::string const& setName,
                                                      std::string const& propertyName)
{
    tellAll(m_strategies,
            [&](auto& strategy) { strategy.onPropertyCustomButtonClicked(setName, propertyName); });
}

std::optional<std::string> PropertyFormatter::getRelatedValueProperty(std::string const& setName,
                                                                      std::string const& propertyName) const
{
    return firstAnswer(
        m_strategies,
        [&](auto const& strategy) { return strategy.getRelatedValueProperty(setName, propertyName); },
        std::optional<std::string>());
}

bool PropertyFormatter::isEnabled(std::string const& setName, std::string const& propertyName) const
{
    return firstAnswer(
        m_strategies, [&](auto const& strategy) { return strategy.isEnabled(setName, propertyName); }, true);
}

bool PropertyFormatter::isReadOnly(std::string const& setName, std::string const& propertyName) const
{
    return firstAnswer(
        m_strategies, [&](auto const& strategy) { return strategy.isReadOnly(setName, propertyName); },
        false);
}

std::optional<attr::Colour> PropertyFormatter::getBackgroundColour(std::string const& setName,
                                                                   std::string const& propertyName) const
{
    return firstAnswer(
        m_strategies,
        [&](auto const& strategy) { return strategy.getBackgroundColour(setName, propertyName); },
        std::optional<attr::Colour>());
}

} // namespace qev::fc::ui
