#pragma once

namespace qev::ui {

/// State of a check box.
enum class CheckState : int
{
    Checked = 0,
    Unchecked = 1,
    /// Neither: the box stands for several things that differ.
    Indeterminate = 2,
};

} // namespace qev::ui
