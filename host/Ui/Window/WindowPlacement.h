#pragma once

namespace qev::ui {

/// Where a window stands: its edges in pixels, relative to the client area of its
/// owner, or to the screen for a popup and a window without owner. Right and bottom lie just
/// outside the window.
struct WindowPlacement
{
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    friend bool operator==(WindowPlacement const&, WindowPlacement const&) = default;
};

} // namespace qev::ui
