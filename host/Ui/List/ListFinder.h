#pragma once

#include "HostUiExport.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace qev::ui {

/// Looks through the cells of a list for a text, one after the other and round from the end to the beginning,
/// bit by bit. The case of letters does not count.
class HOSTUI_EXPORT ListFinder
{
public:
    /// A cell by its place on the screen: which row from above, which shown column from the left.
    struct Place
    {
        std::size_t row = 0;
        std::size_t column = 0;

        friend bool operator==(Place const&, Place const&) = default;
    };

    enum class State
    {
        Searching,
        Found,
        NotFound,
    };

    using CellText = std::function<std::string(Place const& place)>;

    /// Begins behind \p start, or before it when not \p forwards; the very cell comes last. There are
    /// \p rows times \p columns cells.
    ListFinder(std::string_view text, std::size_t rows, std::size_t columns, Place start, bool forwards);

    /// Looks at up to \p cells more cells.
    State advance(std::size_t cells, CellText const& text);
    /// The cell that was found, once one was.
    [[nodiscard]] Place const& getPlace() const { return m_place; }

private:
    void step();

    std::string m_text;
    std::size_t m_rows;
    std::size_t m_columns;
    Place m_place;
    bool m_forwards;
    std::size_t m_remaining;
};

} // namespace qev::ui
