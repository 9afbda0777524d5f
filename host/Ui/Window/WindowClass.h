#pragma once

namespace qev::ui {

/// The kinds of platform window.
enum class WindowClass : int
{
    Window = 0,
    Dialog = 1,
    /// A child control without a kind of its own, such as the placeholder of a dialog's layout.
    DialogControl = 2,
    GroupBox = 3,
    ListControl = 8,
    PropertyGridControl = 9,
};

} // namespace qev::ui
