#pragma once

#include "HostUiExport.h"
#include "Ui/Window/Geometry.h"
#include "Ui/Window/WindowClass.h"
#include "Ui/Window/WindowHandle.h"
#include "Ui/Window/WindowPlacement.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace qev::ui {

class HeadlessBackend;
class Window;
class WindowInterface;

/// A platform window without a screen: place, visibility and the windows below it as plain data.
///
/// The window above owns it, or the back end when it stands alone.
class HOSTUI_EXPORT HeadlessWindow : public std::enable_shared_from_this<HeadlessWindow>
{
public:
    HeadlessWindow(WindowClass windowClass, int controlId, WindowPlacement const& placement);
    virtual ~HeadlessWindow();
    HeadlessWindow(HeadlessWindow const&) = delete;
    HeadlessWindow& operator=(HeadlessWindow const&) = delete;

    [[nodiscard]] virtual std::unique_ptr<WindowInterface> createInterface();

    [[nodiscard]] WindowHandle getHandle() const { return WindowHandle(const_cast<HeadlessWindow*>(this)); }
    [[nodiscard]] WindowClass getWindowClass() const { return m_windowClass; }
    [[nodiscard]] int getControlId() const { return m_controlId; }
    /// The window of the program that is attached to this one; null when none is.
    [[nodiscard]] std::shared_ptr<Window> getWindow() const;

    [[nodiscard]] std::string const& getTitle() const { return m_title; }
    void setTitle(std::string title) { m_title = std::move(title); }

    [[nodiscard]] WindowPlacement const& getPlacement() const { return m_placement; }
    void setPlacement(WindowPlacement const& placement);
    [[nodiscard]] Size getSize() const;
    [[nodiscard]] Position getPositionOnScreen() const;
    [[nodiscard]] Position getOffscreenOffset() const;
    /// A popup belongs to its owner, and its placement is on the screen all the same.
    void setPlacedOnScreen(bool placedOnScreen) { m_isPlacedOnScreen = placedOnScreen; }

    virtual void setVisible(bool visible);
    /// True when the window and all above it are shown.
    [[nodiscard]] bool isVisible() const;
    void setEnabled(bool enabled) { m_isEnabled = enabled; }
    /// True when the window and all above it are enabled.
    [[nodiscard]] bool isEnabled() const;
    /// True when a user can get at the window: it stands, is visible and enabled.
    [[nodiscard]] virtual bool isReachable() const;

    void suspendRedraw() { ++m_redrawSuspensions; }
    void resumeRedraw() { --m_redrawSuspensions; }
    [[nodiscard]] bool isRedrawSuspended() const { return m_redrawSuspensions > 0; }

    void setFocus();
    [[nodiscard]] bool hasFocus() const;

    [[nodiscard]] HeadlessWindow* getOwner() const { return m_owner; }
    /// The windows below, in tab order.
    [[nodiscard]] std::vector<std::shared_ptr<HeadlessWindow>> const& getChildren() const
    {
        return m_children;
    }
    void addChild(std::shared_ptr<HeadlessWindow> child);
    /// Puts this window behind \p predecessor in the tab order of its owner; behind all others for null.
    void moveBehind(HeadlessWindow const* predecessor);
    [[nodiscard]] bool isDescendantOf(HeadlessWindow const& ancestor) const;

    void setBackend(std::weak_ptr<HeadlessBackend> backend) { m_backend = std::move(backend); }
    [[nodiscard]] std::shared_ptr<HeadlessBackend> getBackend() const { return m_backend.lock(); }

    /// This window and those below it, as lines of text indented by depth: class, control id, title,
    /// placement, states that differ from the usual, and what the window shows.
    [[nodiscard]] std::string dumpTree() const;

    /// Takes the window off the screen for good, with those below it.
    void destroy();
    [[nodiscard]] bool isDestroyed() const { return m_isDestroyed; }

protected:
    /// What the window shows, as lines of text; none for a window that is a mere area.
    [[nodiscard]] virtual std::string dumpContent() const { return {}; }

private:
    void markDestroyed();
    void appendTree(std::string& text, std::size_t depth) const;

    WindowClass m_windowClass;
    int m_controlId;
    WindowPlacement m_placement;
    std::string m_title;
    bool m_isPlacedOnScreen = false;
    bool m_isShown = true;
    bool m_isEnabled = true;
    bool m_isDestroyed = false;
    int m_redrawSuspensions = 0;
    HeadlessWindow* m_owner = nullptr;
    std::vector<std::shared_ptr<HeadlessWindow>> m_children;
    std::weak_ptr<HeadlessBackend> m_backend;
};

} // namespace qev::ui
