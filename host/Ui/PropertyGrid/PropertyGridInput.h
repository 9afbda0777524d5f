#pragma once

#include "Ui/Window/CheckState.h"

#include <optional>
#include <string>

namespace qev::ui {

/// What a user wants a row to hold, before the row holds it.
struct PropertyGridInput
{
    /// The text of a text row; of a number row what was typed.
    std::string text;
    /// The number in internal units; nothing for an input that blanks the row, and for other rows.
    std::optional<double> number;
    /// The new state of a check box; nothing for an input to the value.
    std::optional<CheckState> checkState;
};

} // namespace qev::ui
