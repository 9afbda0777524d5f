#pragma once

#include "HostUiExport.h"

#include <functional>

namespace qev::ui {

/// Names one platform window of the current back end. A value; owns nothing.
///
/// A handle says nothing about whether its window still lives: ask the back end.
class HOSTUI_EXPORT WindowHandle
{
public:
    WindowHandle() = default;
    explicit WindowHandle(void* nativeWindow)
        : m_nativeWindow(nativeWindow)
    {
    }

    [[nodiscard]] bool isValid() const { return m_nativeWindow != nullptr; }
    [[nodiscard]] void* getNativeWindow() const { return m_nativeWindow; }

    /// True when this window is \p ancestor or stands anywhere below it.
    [[nodiscard]] bool isDescendantOf(WindowHandle const& ancestor) const;

    /// The window that has the keyboard focus; an invalid handle when none of this program has it.
    [[nodiscard]] static WindowHandle getFocusedWindow();

    friend bool operator==(WindowHandle const&, WindowHandle const&) = default;

private:
    void* m_nativeWindow = nullptr;
};

} // namespace qev::ui

template <>
struct std::hash<qev::ui::WindowHandle>
{
    std::size_t operator()(qev::ui::WindowHandle const& handle) const noexcept
    {
        return std::hash<void*>()(handle.getNativeWindow());
    }
};
