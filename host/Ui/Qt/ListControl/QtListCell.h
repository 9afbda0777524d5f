#pragma once

#include "Ui/Window/CheckState.h"

#include <optional>
#include <QColor>
#include <QString>

namespace qev::ui {

/// What is to be drawn in one cell of a list.
struct QtListCell
{
    QString text;
    /// Nothing for a cell without a box.
    std::optional<CheckState> checkState;
    /// There is no value beside the box, so it stands in the middle.
    bool isBoxAlone = false;
    /// The box cannot be changed.
    bool isBoxGrey = false;
    /// The value is the cell's own, and could be given up for the global one.
    bool isLocal = false;
    bool isEmphasised = false;
    /// Invalid for the usual colour.
    QColor textColour;
    /// Invalid for the usual colour.
    QColor backgroundColour;
};

} // namespace qev::ui
