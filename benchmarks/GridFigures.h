#pragma once

#include "FigureTable.h"

namespace qev::benchmarks {

/// Measures the property grid on the screen against a bare tree of Qt with as many rows, in the same run.
///
/// Needs a `QApplication`.
class GridFigures
{
public:
    static constexpr int sets = 60;
    static constexpr int rowsPerSet = 15;

    /// The medians of \p runs runs, which take turns.
    [[nodiscard]] static FigureTable measure(unsigned int runs);
};

} // namespace qev::benchmarks
