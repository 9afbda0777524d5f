#pragma once

#include "FigureTable.h"

namespace qev::benchmarks {

/// Measures the list on the screen over real property values, against a bare table of Qt of the same size in
/// the same run.
///
/// Needs a `QApplication`.
class ListFigures
{
public:
    static constexpr int rows = 1'000'000;
    static constexpr int sortedRows = 200'000;
    static constexpr int pages = 200;

    /// The medians of \p runs runs, which take turns.
    [[nodiscard]] static FigureTable measure(unsigned int runs);
};

} // namespace qev::benchmarks
