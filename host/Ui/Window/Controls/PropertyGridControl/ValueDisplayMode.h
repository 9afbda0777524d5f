#pragma once

namespace qev::ui {

/// Whether a check box row shows its value.
enum class ValueDisplayMode : int
{
    Hidden = 0,
    BesideCheckBox = 1,
};

} // namespace qev::ui
