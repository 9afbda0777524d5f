#include "Ui/Window/Window.h"

#include "Core/Assert/Assert.h"

#include <utility>

namespace qev::ui {

namespace {

void reportFrom(std::string_view operation, std::string_view text)
{
    assert::report(text, "qev::ui::Window::" + std::string(operation), "Ui/Window/Window");
}

} // namespace

Window::~Window()
{
    if (m_interface)
        letGo(true);
}

void Window::show()
{
    if (auto* const windowInterface = requireInterface("show"))
        windowInterface->show();
}

void Window::hide()
{
    if (auto* const windowInterface = requireInterface("hide"))
        windowInterface->hide();
}

bool Window::isVisible() const
{
    auto const* const windowInterface = requireInterface("isVisible");
    return windowInterface && windowInterface->isVisible();
}

void Window::enable(bool enabled)
{
    if (auto* const windowInterface = requireInterface("enable"))
        windowInterface->enable(enabled);
}

bool Window::isEnabled() const
{
    auto const* const windowInterface = requireInterface("isEnabled");
    return windowInterface && windowInterface->isEnabled();
}

void Window::setFocus()
{
    if (auto* const windowInterface = requireInterface("setFocus"))
        windowInterface->setFocus();
}

RedrawGuard Window::suspendRedraw()
{
    auto* const windowInterface = requireInterface("suspendRedraw");
    if (!windowInterface)
        return {};
    windowInterface->suspendRedraw();
    return RedrawGuard(m_self);
}

int Window::getDialogControlId() const
{
    auto const* const windowInterface = requireInterface("getDialogControlId");
    return windowInterface ? windowInterface->getDialogControlId() : 0;
}

WindowPlacement Window::getPlacement() const
{
    auto const* const windowInterface = requireInterface("getPlacement");
    return windowInterface ? windowInterface->getPlacement() : WindowPlacement();
}

void Window::setPlacement(WindowPlacement const& placement)
{
    if (auto* const windowInterface = requireInterface("setPlacement"))
        windowInterface->setPlacement(placement);
}

void Window::setTabOrder(std::shared_ptr<Window> const& predecessor)
{
    if (auto* const windowInterface = requireInterface("setTabOrder"))
        windowInterface->setTabOrder(predecessor ? predecessor->getHandle() : WindowHandle());
}

Size Window::getClientAreaSize() const
{
    auto const* const windowInterface = requireInterface("getClientAreaSize");
    return windowInterface ? windowInterface->getClientAreaSize() : Size();
}

Size Window::getSize() const
{
    auto const* const windowInterface = requireInterface("getSize");
    return windowInterface ? windowInterface->getSize() : Size();
}

Position Window::getPositionOnScreen() const
{
    auto const* const windowInterface = requireInterface("getPositionOnScreen");
    return windowInterface ? windowInterface->getPositionOnScreen() : Position();
}

Position Window::getOffscreenOffset() const
{
    auto const* const windowInterface = requireInterface("getOffscreenOffset");
    return windowInterface ? windowInterface->getOffscreenOffset() : Position();
}

void Window::moveDelta(Position const& delta)
{
    if (auto* const windowInterface = requireInterface("moveDelta"))
        windowInterface->moveDelta(delta);
}

WindowHandle Window::getHandle() const
{
    auto const* const windowInterface = requireInterface("getHandle");
    return windowInterface ? windowInterface->getHandle() : WindowHandle();
}

details::ChildWindowManager* Window::getChildWindowManager() const
{
    auto* const windowInterface = requireInterface("getChildWindowManager");
    return windowInterface ? &windowInterface->getChildWindowManager() : nullptr;
}

void Window::onInterfaceCreated(std::unique_ptr<WindowInterface> windowInterface)
{
    if (m_interface)
        reportFrom("onInterfaceCreated", "Window interface already set.");
    if (!windowInterface) {
        reportFrom("onInterfaceCreated", "Window interface not given.");
        return;
    }
    if (m_interface)
        letGo(true);
    m_interface = std::move(windowInterface);
    m_interface->setWindow(m_self);
    details::WindowInterfaceFactory::registerWindow(m_interface->getHandle(), m_self);
    setInterface(*m_interface);
}

void Window::attach(WindowHandle const& handle)
{
    if (m_interface) {
        reportFrom("attach", "Already attached to a window");
        return;
    }
    auto windowInterface = details::WindowInterfaceFactory::pWindowInterface_(handle);
    if (windowInterface && !isCompatibleWith(windowInterface->getWindowClass())) {
        reportFrom("attach", "*this* isn't compatible with WINDOWCLASS.");
        return;
    }
    onInterfaceCreated(std::move(windowInterface));
}

void Window::detach(bool destroyPlatformWindow)
{
    if (!requireInterface("detach"))
        return;
    auto const keepAlive = m_self.lock();
    m_isBeingDetached = true;
    if (auto const owner = m_owner.lock(); owner && owner->m_interface) {
        owner->onChildWindowDetach(*this);
        owner->m_interface->getChildWindowManager().removeWindow(*this);
    }
    resetInterface();
    letGo(destroyPlatformWindow);
    m_owner.reset();
    m_isBeingDetached = false;
}

void Window::setInterface(WindowInterface&) {}

void Window::resetInterface() {}

bool Window::isCompatibleWith(WindowClass) const { return true; }

void Window::reportOwnerWithoutInterface(Window const* owner)
{
    if (owner && !owner->m_interface)
        reportFrom("create", "Owner window doesn't exist");
}

WindowHandle Window::createWindow(Window* owner, char const* className, unsigned int style,
                                  unsigned int extendedStyle, WindowPlacement const& placement, int controlId)
{
    WindowHandle ownerHandle;
    if (owner) {
        ownerHandle = owner->m_interface ? owner->m_interface->getHandle() : WindowHandle();
        if (!ownerHandle.isValid()) {
            reportFrom("createWindow", "Owner window not attached to OS window");
            return {};
        }
        auto& manager = owner->m_interface->getChildWindowManager();
        if (controlId == 0 || manager.isControlIdTaken(controlId))
            controlId = manager.getFreeControlId();
    }
    auto const handle = details::WindowInterfaceFactory::createWindow_(*this, ownerHandle, className, style,
                                                                       extendedStyle, placement, controlId);
    if (!handle.isValid()) {
        reportFrom("createWindow", "Unable to create window");
        return {};
    }
    if (owner)
        owner->m_interface->getChildWindowManager().boControlIdFlagAsTaken(controlId);
    return handle;
}

WindowInterface* Window::requireInterface(std::string_view operation) const
{
    if (!m_interface)
        reportFrom(operation, "Window interface not set");
    return m_interface.get();
}

void Window::resumeRedraw()
{
    if (m_interface)
        m_interface->resumeRedraw();
}

void Window::letGo(bool destroyPlatformWindow)
{
    auto const children = m_interface->getChildWindowManager().getWindows();
    for (auto const& child : children)
        if (child->m_interface)
            child->detach(destroyPlatformWindow);
    details::WindowInterfaceFactory::unregisterWindow(m_interface->getHandle());
    auto const released = std::move(m_interface);
    released->releasePlatformWindow(destroyPlatformWindow);
}

} // namespace qev::ui
