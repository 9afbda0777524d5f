#include "Ui/Window/Details/WindowInterfaceFactory.h"

#include "Ui/PropertyGrid/PropertyGridRow.h"
#include "Ui/Window/Window.h"
#include "Ui/WindowBackend.h"

#include <unordered_map>
#include <utility>

namespace qev::ui::details {

namespace {

std::shared_ptr<WindowBackend>& currentBackend()
{
    static std::shared_ptr<WindowBackend> backend;
    return backend;
}

std::unordered_map<WindowHandle, std::weak_ptr<Window>>& attachedWindows()
{
    // Windows may end after the other statics of the program; the map has to be there for the last of them.
    static auto* const windows = new std::unordered_map<WindowHandle, std::weak_ptr<Window>>;
    return *windows;
}

} // namespace

std::shared_ptr<WindowBackend> WindowInterfaceFactory::setBackend(std::shared_ptr<WindowBackend> backend)
{
    return std::exchange(currentBackend(), std::move(backend));
}

std::shared_ptr<WindowBackend> WindowInterfaceFactory::getBackend() { return currentBackend(); }

WindowHandle WindowInterfaceFactory::createWindow_(Window& self, WindowHandle const& ownerHandle,
                                                   std::string const& className, unsigned int style,
                                                   unsigned int extendedStyle,
                                                   WindowPlacement const& placement, int controlId)
{
    auto const backend = getBackend();
    if (!backend)
        return {};
    return backend->createWindow({self, ownerHandle, className, style, extendedStyle, placement, controlId});
}

std::unique_ptr<WindowInterface> WindowInterfaceFactory::pWindowInterface_(WindowHandle const& handle)
{
    auto const backend = getBackend();
    return backend && handle.isValid() ? backend->createInterface(handle) : nullptr;
}

std::shared_ptr<Window> WindowInterfaceFactory::pWindowFromHandle_(WindowHandle const& handle)
{
    auto const found = attachedWindows().find(handle);
    return found == attachedWindows().end() ? nullptr : found->second.lock();
}

Size WindowInterfaceFactory::defaultWindowSize_(WindowClass windowClass)
{
    auto const backend = getBackend();
    return backend ? backend->getDefaultWindowSize(windowClass) : Size();
}

bool WindowInterfaceFactory::boCursorPosGet_(Position& position)
{
    auto const backend = getBackend();
    auto const cursor = backend ? backend->getCursorPosition() : std::nullopt;
    if (cursor)
        position = *cursor;
    return cursor.has_value();
}

std::unique_ptr<PropertyGridPropertyInterface>
WindowInterfaceFactory::createPropertyGridRow(PropertyGridRowState state)
{
    auto const backend = getBackend();
    return backend ? backend->createPropertyGridRow(std::move(state)) : nullptr;
}

void WindowInterfaceFactory::registerWindow(WindowHandle const& handle, std::weak_ptr<Window> window)
{
    attachedWindows()[handle] = std::move(window);
}

void WindowInterfaceFactory::unregisterWindow(WindowHandle const& handle) { attachedWindows().erase(handle); }

} // namespace qev::ui::details
