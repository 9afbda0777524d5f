#include "Ui/List/ListSortKeys.h"

#include "Core/String/Compare.h"
#include "Ui/List/ListCellNumber.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <optional>
#include <utility>

namespace qev::ui {

namespace {

constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();

/// Empty cells come last; nothing when neither is empty.
std::optional<int> compareEmpty(bool isLeftEmpty, bool isRightEmpty)
{
    if (!isLeftEmpty && !isRightEmpty)
        return std::nullopt;
    return static_cast<int>(isLeftEmpty) - static_cast<int>(isRightEmpty);
}

} // namespace

ListSortKeys::ListSortKeys(std::vector<ListSortColumn> const& columns)
{
    for (auto const& column : columns)
        m_keys.push_back({column.isDescending, {}, {}, true});
}

void ListSortKeys::add(std::size_t row, std::vector<ListSortCell> cells)
{
    m_rows.push_back(row);
    for (std::size_t i = 0; i < m_keys.size(); ++i) {
        auto& keys = m_keys[i];
        auto& cell = cells[i];
        keys.hasNumbers = keys.hasNumbers && (cell.number || cell.text.empty());
        if (keys.hasNumbers)
            keys.numbers.push_back(cell.text.empty() ? noNumber : *cell.number);
        keys.texts.push_back(std::move(cell.text));
    }
}

std::vector<std::size_t> ListSortKeys::takeSorted()
{
    for (auto& keys : m_keys)
        prepare(keys);
    std::vector<std::size_t> positions(m_rows.size());
    std::iota(positions.begin(), positions.end(), std::size_t{0});
    std::sort(positions.begin(), positions.end(), [this](std::size_t left, std::size_t right) {
        for (auto const& keys : m_keys)
            if (int const order = compare(keys, left, right))
                return order < 0;
        return left < right;
    });
    for (auto& position : positions)
        position = m_rows[position];
    m_rows.clear();
    m_keys.clear();
    return positions;
}

void ListSortKeys::prepare(Keys& keys)
{
    if (keys.hasNumbers)
        return;
    keys.numbers.clear();
    if (readNumbers(keys))
        return;
    keys.numbers.clear();
    for (auto& text : keys.texts)
        if (!text.empty())
            text = str::details::sortKey(text, str::details::CaseLevel::Counted);
}

bool ListSortKeys::readNumbers(Keys& keys)
{
    std::optional<std::string> unit;
    keys.numbers.reserve(keys.texts.size());
    for (auto const& text : keys.texts) {
        if (text.empty()) {
            keys.numbers.push_back(noNumber);
            continue;
        }
        auto const number = ListCellNumber::read(text);
        if (!number || (unit && *unit != number->unit))
            return false;
        unit = number->unit;
        keys.numbers.push_back(number->value);
    }
    return true;
}

int ListSortKeys::compare(Keys const& keys, std::size_t left, std::size_t right)
{
    int order = 0;
    if (!keys.numbers.empty()) {
        auto const first = keys.numbers[left];
        auto const second = keys.numbers[right];
        if (auto const empty = compareEmpty(std::isnan(first), std::isnan(second)))
            return *empty;
        order = static_cast<int>(first > second) - static_cast<int>(first < second);
    } else {
        auto const& first = keys.texts[left];
        auto const& second = keys.texts[right];
        if (auto const empty = compareEmpty(first.empty(), second.empty()))
            return *empty;
        order = first.compare(second);
    }
    return keys.isDescending ? -order : order;
}

} // namespace qev::ui
