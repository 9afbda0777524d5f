#include "Ui/List/ListRowFilter.h"

#include "Core/String/Ascii.h"
#include "Core/String/Fold.h"
#include "Ui/List/ListCellNumber.h"

#include <algorithm>
#include <array>
#include <utility>

namespace qev::ui {

namespace {

bool contains(std::string const& text, std::string const& word)
{
    return text.find(word) != std::string::npos;
}

} // namespace

ListRowFilter::ListRowFilter(ListFilter const& filter)
    : m_words(str::foldedWords(filter.text))
    , m_searchedColumns(filter.searchedColumns)
{
    for (auto const& [column, text] : filter.columnTexts)
        m_conditions.push_back(makeCondition(column, str::trimmed(text)));
}

bool ListRowFilter::passes(ColumnText const& text) const
{
    for (auto const& condition : m_conditions)
        if (!meets(condition, text(condition.column)))
            return false;
    return containsWords(text);
}

ListRowFilter::Condition ListRowFilter::makeCondition(std::size_t column, std::string_view text)
{
    // The longer signs first, as the shorter ones are their beginnings.
    static constexpr std::array<std::pair<std::string_view, Relation>, 7> signs{{
        {"!=", Relation::Unequal},
        {"<>", Relation::Unequal},
        {"<=", Relation::LessOrEqual},
        {">=", Relation::GreaterOrEqual},
        {"<", Relation::Less},
        {">", Relation::Greater},
        {"=", Relation::Equal},
    }};
    Condition condition;
    condition.column = column;
    for (auto const& [sign, relation] : signs) {
        if (!text.starts_with(sign))
            continue;
        condition.relation = relation;
        text = str::trimmed(text.substr(sign.size()));
        break;
    }
    condition.text = str::foldCase(text);
    if (condition.relation == Relation::Contains)
        condition.words = str::foldedWords(text);
    else if (auto const number = ListCellNumber::read(text))
        condition.number = number->value;
    return condition;
}

bool ListRowFilter::meets(Condition const& condition, std::string const& text)
{
    switch (condition.relation) {
    case Relation::Contains: {
        auto const folded = str::foldCase(text);
        return std::all_of(condition.words.begin(), condition.words.end(),
                           [&](std::string const& word) { return contains(folded, word); });
    }
    case Relation::Equal:
        return str::foldCase(text) == condition.text;
    case Relation::Unequal:
        return str::foldCase(text) != condition.text;
    default:
        return meetsNumber(condition, text);
    }
}

bool ListRowFilter::meetsNumber(Condition const& condition, std::string const& text)
{
    auto const number = ListCellNumber::read(text);
    // Somebody who has typed no more than the sign so far is shown everything.
    if (!condition.number)
        return condition.text.empty();
    if (!number)
        return false;
    switch (condition.relation) {
    case Relation::Less:
        return number->value < *condition.number;
    case Relation::LessOrEqual:
        return number->value <= *condition.number;
    case Relation::Greater:
        return number->value > *condition.number;
    default:
        return number->value >= *condition.number;
    }
}

bool ListRowFilter::containsWords(ColumnText const& text) const
{
    auto missing = m_words;
    for (auto const column : m_searchedColumns) {
        if (missing.empty())
            return true;
        auto const folded = str::foldCase(text(column));
        std::erase_if(missing, [&](std::string const& word) { return contains(folded, word); });
    }
    return missing.empty();
}

} // namespace qev::ui
