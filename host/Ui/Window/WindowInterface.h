#pragma once

#include "HostUiExport.h"
#include "Ui/Window/Details/ChildWindowManager.h"
#include "Ui/Window/Geometry.h"
#include "Ui/Window/WindowClass.h"
#include "Ui/Window/WindowHandle.h"
#include "Ui/Window/WindowPlacement.h"

#include <memory>

namespace qev::ui {

class Window;

/// The platform side of one `Window`: what a back end has to supply for it.
///
/// Owned by its `Window`. It knows its window weakly, to hand events up.
class HOSTUI_EXPORT WindowInterface
{
public:
    WindowInterface() = default;
    virtual ~WindowInterface() = default;
    WindowInterface(WindowInterface const&) = delete;
    WindowInterface& operator=(WindowInterface const&) = delete;

    [[nodiscard]] virtual WindowHandle getHandle() const = 0;
    [[nodiscard]] virtual WindowClass getWindowClass() const = 0;
    [[nodiscard]] virtual int getDialogControlId() const = 0;

    virtual void show() = 0;
    virtual void hide() = 0;
    [[nodiscard]] virtual bool isVisible() const = 0;
    virtual void enable(bool enabled) = 0;
    [[nodiscard]] virtual bool isEnabled() const = 0;
    virtual void setFocus() = 0;

    /// Painting stops at the first call and goes on after as many calls of `resumeRedraw`.
    virtual void suspendRedraw() = 0;
    virtual void resumeRedraw() = 0;

    [[nodiscard]] virtual WindowPlacement getPlacement() const = 0;
    virtual void setPlacement(WindowPlacement const& placement) = 0;
    [[nodiscard]] virtual Size getClientAreaSize() const = 0;
    [[nodiscard]] virtual Size getSize() const = 0;
    [[nodiscard]] virtual Position getPositionOnScreen() const = 0;
    /// How far the window has to be moved to stand wholly on the screen.
    [[nodiscard]] virtual Position getOffscreenOffset() const = 0;
    virtual void moveDelta(Position const& delta) = 0;

    /// Puts the window behind \p predecessor in the tab order of its owner; behind all others for an
    /// invalid handle.
    virtual void setTabOrder(WindowHandle const& predecessor) = 0;
    /// A child has been created below this window.
    virtual void onChildCreated(WindowHandle const& child) = 0;

    /// The platform window is let go of. It is closed and gone afterwards when \p destroy is
    /// true, else it stays as it is, with nobody listening to it.
    virtual void releasePlatformWindow(bool destroy) = 0;

    [[nodiscard]] details::ChildWindowManager& getChildWindowManager() { return m_childWindowManager; }

    void setWindow(std::weak_ptr<Window> window) { m_window = std::move(window); }
    /// The window in front of this interface; null when it is gone.
    [[nodiscard]] std::shared_ptr<Window> getWindow() const { return m_window.lock(); }

private:
    details::ChildWindowManager m_childWindowManager;
    std::weak_ptr<Window> m_window;
};

} // namespace qev::ui
