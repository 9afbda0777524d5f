#pragma once

#include "Core/Utilities/Events/EventHandlerContainer.h"
#include "HostUiExport.h"
#include "Ui/Window/Details/ChildWindowManager.h"
#include "Ui/Window/Details/WindowInterfaceFactory.h"
#include "Ui/Window/Geometry.h"
#include "Ui/Window/RedrawGuard.h"
#include "Ui/Window/WindowClass.h"
#include "Ui/Window/WindowHandle.h"
#include "Ui/Window/WindowInterface.h"
#include "Ui/Window/WindowPlacement.h"

#include <memory>
#include <string>
#include <string_view>

namespace qev::ui {

class Dialog;

/// The base of all windows: what the program knows of one window of the platform.
///
/// The platform side stands behind a `WindowInterface`, which is there between `attach` and
/// `detach`. Without it each operation reports "Window interface not set" and does nothing,
/// or gives a zero value.
///
/// Windows are made by `create` or `attachTo`, and held by `std::shared_ptr`. The owner of a
/// child shares its ownership until the child is detached. A window that ends takes its
/// platform window and its children's with it.
class HOSTUI_EXPORT Window
{
public:
    Window() = default;
    virtual ~Window();
    Window(Window const&) = delete;
    Window& operator=(Window const&) = delete;

    [[nodiscard]] static char const* getClassName() { return "Window"; }

    /// Makes a window of class \p T with its platform window.
    ///
    /// \p owner may be null for a window that stands alone. \p controlId is taken when it is not 0
    /// and still free with the owner, else the owner gives a free one. The window follows
    /// \p predecessor in the tab order of the owner, or all others when that is null.
    /// \returns null, with a report, when the platform window cannot be made.
    template <class T>
    [[nodiscard]] static std::shared_ptr<T> create(std::shared_ptr<Window> const& owner, unsigned int style,
                                                   unsigned int extendedStyle,
                                                   WindowPlacement const& placement, int controlId = 0,
                                                   std::shared_ptr<Window> const& predecessor = nullptr)
    {
        reportOwnerWithoutInterface(owner.get());
        auto window = std::make_shared<T>();
        window->setSelf(window);
        auto const handle =
            window->createWindow(owner.get(), T::getClassName(), style, extendedStyle, placement, controlId);
        if (!handle.isValid())
            return nullptr;
        window->attach(handle);
        if (!window->hasInterface())
            return nullptr;
        if (owner) {
            window->m_owner = owner;
            owner->m_interface->getChildWindowManager().template vWindowAdd<T>(window->getDialogControlId(),
                                                                               window);
            owner->m_interface->onChildCreated(handle);
            window->setTabOrder(predecessor);
        }
        return window;
    }

    /// Makes a window of class \p T for a platform window that stands already.
    /// \returns a window without interface, with a report, when the classes do not fit.
    template <class T>
    [[nodiscard]] static std::shared_ptr<T> attachTo(WindowHandle const& handle)
    {
        auto window = std::make_shared<T>();
        window->setSelf(window);
        window->attach(handle);
        return window;
    }

    /// Makes a window of class \p T for a platform window that stands already below \p owner, as the
    /// controls of a dialog's layout do, and adds it to the owner's children under its control id.
    template <class T>
    [[nodiscard]] static std::shared_ptr<T> attachToChild(std::shared_ptr<Window> const& owner,
                                                          WindowHandle const& handle)
    {
        auto window = attachTo<T>(handle);
        if (!owner->hasInterface() || !window->hasInterface())
            return window;
        window->m_owner = owner;
        auto const id = window->getDialogControlId();
        auto& manager = owner->m_interface->getChildWindowManager();
        manager.boControlIdFlagAsTaken(id);
        manager.template vWindowAdd<T>(id, window);
        return window;
    }

    virtual void show();
    virtual void hide();
    [[nodiscard]] bool isVisible() const;
    void enable(bool enabled);
    [[nodiscard]] bool isEnabled() const;
    void setFocus();

    /// Painting stops until the guard ends.
    [[nodiscard]] RedrawGuard suspendRedraw();

    [[nodiscard]] int getDialogControlId() const;
    [[nodiscard]] WindowPlacement getPlacement() const;
    void setPlacement(WindowPlacement const& placement);
    /// Puts the window behind \p predecessor in the tab order of its owner; behind all others when that is
    /// null.
    void setTabOrder(std::shared_ptr<Window> const& predecessor);
    [[nodiscard]] Size getClientAreaSize() const;
    [[nodiscard]] Size getSize() const;
    [[nodiscard]] Position getPositionOnScreen() const;
    /// How far the window has to be moved to stand wholly on the screen.
    [[nodiscard]] Position getOffscreenOffset() const;
    void moveDelta(Position const& delta);

    [[nodiscard]] WindowHandle getHandle() const;
    /// The children; null, with a report, without an interface.
    [[nodiscard]] details::ChildWindowManager* getChildWindowManager() const;
    /// The window this one belongs to; null for one that stands alone.
    [[nodiscard]] std::shared_ptr<Window> getOwner() const { return m_owner.lock(); }

    /// This window, shared. Null for a window made without `create` or `attachTo`.
    [[nodiscard]] std::shared_ptr<Window> shared_from_this() const { return m_self.lock(); }

    /// Takes the platform side over. Null is reported with "Window interface not given." and changes nothing;
    /// an interface that is there already is reported with "Window interface already set." and replaced.
    void onInterfaceCreated(std::unique_ptr<WindowInterface> windowInterface);

    /// Connects this window with a platform window. Reports "Already attached to a window" when it has one,
    /// and "*this* isn't compatible with WINDOWCLASS." when the window is of another class;
    /// nothing changes then.
    void attach(WindowHandle const& handle);

    /// Lets go of the platform window, its children first. The platform window is closed when
    /// \p destroyPlatformWindow is true, else it stays as it is.
    void detach(bool destroyPlatformWindow);
    [[nodiscard]] bool isBeingDetached() const { return m_isBeingDetached; }

    [[nodiscard]] bool hasInterface() const { return m_interface != nullptr; }
    /// The platform side; null without one.
    [[nodiscard]] WindowInterface* getInterface() const { return m_interface.get(); }

    /// The focus came to the window (true) or left it (false).
    EventHandlerContainer<Window, void, bool> onFocus;

    /// Hooks for derived windows; they do nothing here. A back end calls those it has an occasion for: the
    /// ones of this program call `onFocusChanged`, `onSizeChanged` of dialogs, and
    /// `onContextMenuItemSelected` of lists.
    virtual void onPaint() {}
    virtual void onEraseBackground() {}
    virtual void onCustomDraw() {}
    virtual void onOwnerDraw() {}
    virtual void onScroll(Position const& /*offset*/) {}
    virtual void onContextMenu(Position const& /*position*/) {}
    virtual void onContextMenuItemSelected(int /*command*/) {}
    virtual void onSizeChanged(Size const& /*size*/) {}
    virtual void onSetCursor() {}
    virtual void onMouseButtonEvent(Position const& /*position*/) {}
    virtual void onMouseMoveEvent(Position const& /*position*/) {}
    virtual void onPropertiesShortCutKeyDown() {}
    virtual void onKeyUp(int /*key*/) {}
    virtual void onKeyDown(int /*key*/) {}
    virtual void onFocusChanged(bool /*hasFocus*/) {}
    virtual void onChildWindowDetach(Window& /*child*/) {}

protected:
    /// Called with each new platform side; derived windows keep their own view of it.
    virtual void setInterface(WindowInterface& windowInterface);
    /// Called when the platform side is about to go.
    virtual void resetInterface();
    /// Tells if this window can stand for a platform window of that class.
    [[nodiscard]] virtual bool isCompatibleWith(WindowClass windowClass) const;

private:
    friend class RedrawGuard;

    static void reportOwnerWithoutInterface(Window const* owner);
    void setSelf(std::weak_ptr<Window> self) { m_self = std::move(self); }
    WindowHandle createWindow(Window* owner, char const* className, unsigned int style,
                              unsigned int extendedStyle, WindowPlacement const& placement, int controlId);
    /// The interface; null, with a report for \p operation, when there is none.
    [[nodiscard]] WindowInterface* requireInterface(std::string_view operation) const;
    void resumeRedraw();
    void letGo(bool destroyPlatformWindow);

    std::unique_ptr<WindowInterface> m_interface;
    std::weak_ptr<Window> m_self;
    std::weak_ptr<Window> m_owner;
    bool m_isBeingDetached = false;
};

} // namespace qev::ui
