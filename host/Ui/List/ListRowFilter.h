#pragma once

#include "HostUiExport.h"
#include "Ui/List/ListFilter.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qev::ui {

/// A `ListFilter` made ready to be asked about many rows. The case of letters does not count.
class HOSTUI_EXPORT ListRowFilter
{
public:
    /// Gives the text of a cell of the row in question.
    using ColumnText = std::function<std::string(std::size_t column)>;

    explicit ListRowFilter(ListFilter const& filter);

    /// Asks for no more cells than it needs.
    [[nodiscard]] bool passes(ColumnText const& text) const;

private:
    enum class Relation
    {
        Contains,
        Equal,
        Unequal,
        Less,
        LessOrEqual,
        Greater,
        GreaterOrEqual,
    };

    struct Condition
    {
        std::size_t column = 0;
        Relation relation = Relation::Contains;
        std::string text;
        std::vector<std::string> words;
        /// The number to compare with; nothing when the condition names none.
        std::optional<double> number;
    };

    [[nodiscard]] static Condition makeCondition(std::size_t column, std::string_view text);
    [[nodiscard]] static bool meets(Condition const& condition, std::string const& text);
    [[nodiscard]] static bool meetsNumber(Condition const& condition, std::string const& text);
    [[nodiscard]] bool containsWords(ColumnText const& text) const;

    std::vector<std::string> m_words;
    std::vector<std::size_t> m_searchedColumns;
    std::vector<Condition> m_conditions;
};

} // namespace qev::ui
