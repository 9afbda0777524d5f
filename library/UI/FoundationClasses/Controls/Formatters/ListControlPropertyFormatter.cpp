#include "UI/FoundationClasses/Controls/Formatters/ListControlPropertyFormatter.h"

#include "UI/FoundationClasses/Controls/Formatters/StrategyAnswers.h"

#include <iterator>

namespace qev::fc::ui {

ListControlPropertyFormatter::ListControlPropertyFormatter() = default;
ListControlPropertyFormatter::~ListControlPropertyFormatter() = default;

void ListControlPropertyFormatter::addStrategy(
    std::shared_ptr<ListControlPropertyFormatterStrategyInterface> const& strategy)
{
    appendStrategy(m_strategies, strategy, "ListControlPropertyFormatter");
}

void ListControlPropertyFormatter::setObject(std::shared_ptr<Data> data, std::shared_ptr<FcBase> object)
{
    tellAll(m_strategies, [&](auto& strategy) { strategy.setObject(data, object); });
}

void ListControlPropertyFormatter::setListControl(std::shared_ptr<qev::ui::ListControl> const& listControl)
{
    tellAll(m_strategies, [&](auto& strategy) { strategy.setListControl(listControl); });
}

void ListControlPropertyFormatter::onItemAndColumnCountUpdated()
{
    tellAll(m_strategies, [](auto& strategy) { strategy.onItemAndColumnCountUpdated(); });
}

bool ListControlPropertyFormatter::doesItemContainLocalValue(std::string const& setName,
                                                             std::string const& propertyName) const
{
    return firstAnswer(
        m_strategies,
        [&](auto const& strategy) { return strategy.doesItemContainLocalValue(setName, propertyName); },
        false);
}

void ListControlPropertyFormatter::onResetItemToGlobalValue(std::string const& setName,
                                                            std::string const& propertyName)
{
    tellAll(m_strategies, [&](auto& strategy) { strategy.onResetItemToGlobalValue(setName, propertyName); });
}

bool ListControlPropertyFormatter::isPropertyToBeHiddenByDefault(std::string const& setName,
                                                                 std::string const& propertyName) const
{
    return firstAnswer(
        m_strategies,
        [&](auto const& strategy) { return strategy.isPropertyToBeHiddenByDefault(setName, propertyName); },
        false);
}

std::vector<ListControlPropertyFormatter::CustomColumn> ListControlPropertyFormatter::getCustomColumns() const
{
    std::vector<CustomColumn> columns;
    tellAll(m_strategies, [&](auto const& strategy) {
        if (auto more = strategy.getCustomColumns())
            columns.insert(columns.end(), std::make_move_iterator(more->begin()),
                           std::make_move_iterator(more->end()));
    });
    return columns;
}

std::string ListControlPropertyFormatter::getCustomColumnItemString(std::string const& columnId) const
{
    return firstAnswer(
        m_strategies, [&](auto const& strategy) { return strategy.getCustomColumnItemString(columnId); },
        std::string());
}

} // namespace qev::fc::ui
