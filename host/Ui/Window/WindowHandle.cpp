#include "Ui/Window/WindowHandle.h"

#include "Ui/Window/Details/WindowInterfaceFactory.h"
#include "Ui/WindowBackend.h"

namespace qev::ui {

bool WindowHandle::isDescendantOf(WindowHandle const& ancestor) const
{
    auto const backend = details::WindowInterfaceFactory::getBackend();
    return backend && isValid() && ancestor.isValid() && backend->isDescendant(*this, ancestor);
}

WindowHandle WindowHandle::getFocusedWindow()
{
    auto const backend = details::WindowInterfaceFactory::getBackend();
    return backend ? backend->getFocusedWindow() : WindowHandle();
}

} // namespace qev::ui
