#include "Ui/List/ListColumns.h"

#include <algorithm>
#include <utility>

namespace qev::ui {

void ListColumns::setCheckBoxes(std::size_t column, std::optional<int> mode)
{
    for (auto* const said : {&m_said, &m_saidSince}) {
        if (mode)
            said->checkBoxes[column] = *mode;
        else
            said->checkBoxes.erase(column);
    }
}

void ListColumns::activateComboBox(std::size_t column)
{
    for (auto* const said : {&m_said, &m_saidSince})
        said->comboBoxes.insert(column);
}

void ListColumns::setDefaultHidden(std::set<std::size_t> columns)
{
    m_saidSince.defaultHidden = columns;
    m_said.defaultHidden = std::move(columns);
}

void ListColumns::setTitles(std::vector<std::string> titles)
{
    if (titles.empty())
        m_said = {};
    else if (!m_titles.empty() && titles != m_titles)
        m_said = m_saidSince;
    m_saidSince = {};
    m_keys = makeKeys(titles);
    m_titles = std::move(titles);
    if (m_titles.empty())
        return;
    if (auto const settings = std::exchange(m_settingsForLater, std::nullopt))
        arrange(*settings);
}

std::optional<int> ListColumns::getCheckBoxMode(std::size_t column) const
{
    auto const found = m_said.checkBoxes.find(column);
    return found == m_said.checkBoxes.end() ? std::nullopt : std::optional(found->second);
}

bool ListColumns::isHidden(std::size_t column) const
{
    auto const* const arranged = findArranged(column);
    return arranged && arranged->isHidden ? *arranged->isHidden : m_said.defaultHidden.contains(column);
}

void ListColumns::setHidden(std::size_t column, bool hidden)
{
    if (column < m_keys.size())
        m_arranged[m_keys[column]].isHidden = hidden;
}

std::optional<unsigned int> ListColumns::getWidth(std::size_t column) const
{
    auto const* const arranged = findArranged(column);
    return arranged ? arranged->width : std::nullopt;
}

void ListColumns::setWidth(std::size_t column, unsigned int width)
{
    if (column < m_keys.size())
        m_arranged[m_keys[column]].width = width;
}

std::vector<std::size_t> ListColumns::getOrder() const
{
    std::vector<std::size_t> order;
    for (auto const& key : m_order)
        if (auto const found = std::find(m_keys.begin(), m_keys.end(), key); found != m_keys.end())
            order.push_back(static_cast<std::size_t>(found - m_keys.begin()));
    // Columns that the user has not seen yet come behind their neighbour on the left.
    for (std::size_t column = 0; column < m_keys.size(); ++column) {
        if (std::find(m_order.begin(), m_order.end(), m_keys[column]) != m_order.end())
            continue;
        auto const place =
            column == 0 ? order.begin() : std::find(order.begin(), order.end(), column - 1) + 1;
        order.insert(place, column);
    }
    return order;
}

void ListColumns::setOrder(std::vector<std::size_t> const& columns)
{
    m_order.clear();
    for (auto const column : columns)
        if (column < m_keys.size())
            m_order.push_back(m_keys[column]);
}

void ListColumns::resetArrangement()
{
    m_arranged.clear();
    m_order.clear();
}

std::optional<std::size_t> ListColumns::findColumn(std::vector<std::string> const& titles,
                                                   std::size_t column) const
{
    auto const keys = makeKeys(titles);
    if (column >= keys.size())
        return std::nullopt;
    auto const found = std::find(m_keys.begin(), m_keys.end(), keys[column]);
    if (found == m_keys.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - m_keys.begin());
}

ListControlSettings ListColumns::getSettings() const
{
    if (m_settingsForLater)
        return *m_settingsForLater;
    ListControlSettings settings;
    for (std::size_t column = 0; column < m_keys.size(); ++column) {
        if (isHidden(column))
            settings.hiddenColumns.insert(column);
        if (auto const width = getWidth(column)) {
            settings.columnWidths.resize(column + 1);
            settings.columnWidths[column] = *width;
        }
    }
    if (!m_order.empty())
        settings.columnOrder = getOrder();
    return settings;
}

void ListColumns::loadSettings(ListControlSettings const& settings)
{
    if (m_keys.empty())
        m_settingsForLater = settings;
    else
        arrange(settings);
}

std::vector<ListColumns::Key> ListColumns::makeKeys(std::vector<std::string> const& titles)
{
    std::map<std::string, std::size_t> occurrences;
    std::vector<Key> keys;
    for (auto const& title : titles)
        keys.emplace_back(title, occurrences[title]++);
    return keys;
}

ListColumns::Arranged const* ListColumns::findArranged(std::size_t column) const
{
    if (column >= m_keys.size())
        return nullptr;
    auto const found = m_arranged.find(m_keys[column]);
    return found == m_arranged.end() ? nullptr : &found->second;
}

void ListColumns::arrange(ListControlSettings const& settings)
{
    for (std::size_t column = 0; column < m_keys.size(); ++column) {
        auto const width = column < settings.columnWidths.size() ? settings.columnWidths[column] : 0;
        m_arranged[m_keys[column]] = {settings.hiddenColumns.contains(column),
                                      width == 0 ? std::nullopt : std::optional(width)};
    }
    setOrder(settings.columnOrder);
}

} // namespace qev::ui
