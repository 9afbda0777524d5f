#pragma once

#include "HostUiExport.h"

#include <memory>

namespace qev::ui {

class Window;

/// Keeps a window from painting until the guard ends. A window that goes first takes the suspension with it.
class HOSTUI_EXPORT RedrawGuard
{
public:
    /// A guard over nothing.
    RedrawGuard() = default;
    explicit RedrawGuard(std::weak_ptr<Window> window);
    ~RedrawGuard();
    RedrawGuard(RedrawGuard&& other) noexcept;
    RedrawGuard& operator=(RedrawGuard&& other) noexcept;
    RedrawGuard(RedrawGuard const&) = delete;
    RedrawGuard& operator=(RedrawGuard const&) = delete;

private:
    void release();

    std::weak_ptr<Window> m_window;
};

} // namespace qev::ui
