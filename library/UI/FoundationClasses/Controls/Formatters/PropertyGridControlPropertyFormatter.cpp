#include "UI/FoundationClasses/Controls/Formatters/PropertyGridControlPropertyFormatter.h"

#include "UI/FoundationClasses/Controls/Formatters/StrategyAnswers.h"

namespace qev::fc::ui {

PropertyGridControlPropertyFormatter::PropertyGridControlPropertyFormatter() = default;
PropertyGridControlPropertyFormatter::~PropertyGridControlPropertyFormatter() = default;

void PropertyGridControlPropertyFormatter::addStrategy(
    std::shared_ptr<PropertyGridControlPropertyFormatterStrategyInterface> const& strategy)
{
    appendStrategy(m_strategies, strategy, "PropertyGridControlPropertyFormatter");
}

void PropertyGridControlPropertyFormatter::setObject(std::shared_ptr<Data> data,
                                                     std::shared_ptr<FcBase> object)
{
    tellAll(m_strategies, [&](auto& strategy) { strategy.setObject(data, object); });
}

bool PropertyGridControlPropertyFormatter::wantCustomButtonProperties() const
{
    return firstAnswer(
        m_strategies, [](auto const& strategy) { return strategy.wantCustomButtonProperties(); }, false);
}

bool PropertyGridControlPropertyFormatter::wantButton(std::string const& setName,
                                                      std::string const& propertyName) const
{
    return firstAnswer(
        m_strategies, [&](auto const& strategy) { return strategy.wantButton(setName, propertyName); },
        false);
}

void PropertyGridControlPropertyFormatter::onButtonClicked(std::string const& setName,
                                                           std::string const& propertyName)
{
    tellAll(m_strategies, [&](auto& strategy) { strategy.onButtonClicked(setName, propertyName); });
}

void PropertyGridControlPropertyFormatter::onPropertyCreated(std::string const& setName,
                                                             std::string const& propertyName,
                                                             qev::ui::PropertyGridProperty& property)
{
    tellAll(m_strategies,
            [&](auto& strategy) { strategy.onPropertyCreated(setName, propertyName, property); });
}

PropertyGridControlPropertyFormatter::Alignment
PropertyGridControlPropertyFormatter::getAlignment(std::string const& setName,
                                                   std::string const& propertyName) const
{
    return firstAnswer(
        m_strategies, [&](auto const& strategy) { return strategy.getAlignment(setName, propertyName); },
        Alignment::Alignment0);
}

PropertyGridControlPropertyFormatter::EmptyLineState
PropertyGridControlPropertyFormatter::getEmptyLineState(std::string const& setName,
                                                        std::string const& propertyName) const
{
    return firstAnswer(
        m_strategies, [&](auto const& strategy) { return strategy.getEmptyLineState(setName, propertyName); },
        EmptyLineState::None);
}

PropertyGridControlPropertyFormatter::HorizontalLineState
PropertyGridControlPropertyFormatter::getHorizontalLineState(std::string const& setName,
                                                             std::string const& propertyName) const
{
    return firstAnswer(
        m_strategies,
        [&](auto const& strategy) { return strategy.getHorizontalLineState(setName, propertyName); },
        HorizontalLineState::None);
}

bool PropertyGridControlPropertyFormatter::wantBoldFontStyleForNameAndValue(
    std::string const& setName, std::string const& propertyName) const
{
    return firstAnswer(
        m_strategies,
        [&](auto const& strategy) {
            return strategy.wantBoldFontStyleForNameAndValue(setName, propertyName);
        },
        false);
}

unsigned int PropertyGridControlPropertyFormatter::getPropertyNameIndentationInCharacters(
    std::string const& setName, std::string const& propertyName) const
{
    return firstAnswer(
        m_strategies,
        [&](auto const& strategy) {
            return strategy.getPropertyNameIndentationInCharacters(setName, propertyName);
        },
        0U);
}

std::optional<std::vector<std::string>> PropertyGridControlPropertyFormatter::getPropertySetOrder() const
{
    return firstAnswer(
        m_strategies, [](auto const& strategy) { return strategy.getPropertySetOrder(); },
        std::optional<std::vector<std::string>>());
}

} // namespace qev::fc::ui
