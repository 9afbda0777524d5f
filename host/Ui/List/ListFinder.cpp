#include "Ui/List/ListFinder.h"

#include "Core/String/Fold.h"

namespace qev::ui {

ListFinder::ListFinder(std::string_view text, std::size_t rows, std::size_t columns, Place start,
                       bool forwards)
    : m_text(str::foldCase(text))
    , m_rows(rows)
    , m_columns(columns)
    , m_place(start)
    , m_forwards(forwards)
    , m_remaining(m_text.empty() ? 0 : rows * columns)
{
}

ListFinder::State ListFinder::advance(std::size_t cells, CellText const& text)
{
    for (; m_remaining > 0 && cells > 0; --cells) {
        --m_remaining;
        step();
        if (str::foldCase(text(m_place)).find(m_text) != std::string::npos)
            return State::Found;
    }
    return m_remaining > 0 ? State::Searching : State::NotFound;
}

void ListFinder::step()
{
    if (m_forwards) {
        if (++m_place.column < m_columns)
            return;
        m_place.column = 0;
        m_place.row = m_place.row + 1 < m_rows ? m_place.row + 1 : 0;
        return;
    }
    if (m_place.column > 0) {
        --m_place.column;
        return;
    }
    m_place.column = m_columns - 1;
    m_place.row = m_place.row > 0 ? m_place.row - 1 : m_rows - 1;
}

} // namespace qev::ui
