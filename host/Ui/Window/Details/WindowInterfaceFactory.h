#pragma once

#include "HostUiExport.h"
#include "Ui/Window/Geometry.h"
#include "Ui/Window/WindowClass.h"
#include "Ui/Window/WindowHandle.h"
#include "Ui/Window/WindowPlacement.h"

#include <memory>
#include <string>

namespace qev::ui {

class PropertyGridPropertyInterface;
class Window;
class WindowBackend;
class WindowInterface;
struct PropertyGridRowState;

namespace details {

/// The one door from windows to the current back end.
///
/// Without a back end nothing can be created: handles are invalid, interfaces null.
class HOSTUI_EXPORT WindowInterfaceFactory
{
public:
    /// Makes \p backend the current one and gives the previous. Windows that stand already stay with
    /// the back end that made them.
    static std::shared_ptr<WindowBackend> setBackend(std::shared_ptr<WindowBackend> backend);
    [[nodiscard]] static std::shared_ptr<WindowBackend> getBackend();

    /// Makes the platform window for \p self. An invalid handle when there is none to be had.
    [[nodiscard]] static WindowHandle createWindow_(Window& self, WindowHandle const& ownerHandle,
                                                    std::string const& className, unsigned int style,
                                                    unsigned int extendedStyle,
                                                    WindowPlacement const& placement, int controlId);
    /// A new interface for the platform window of \p handle; null when there is no such window.
    [[nodiscard]] static std::unique_ptr<WindowInterface> pWindowInterface_(WindowHandle const& handle);
    /// The window that is attached to \p handle; null when none is.
    [[nodiscard]] static std::shared_ptr<Window> pWindowFromHandle_(WindowHandle const& handle);
    /// Width and height that a window of that class has by default.
    [[nodiscard]] static Size defaultWindowSize_(WindowClass windowClass);
    /// Puts the cursor's position on the screen in \p position; false when there is no cursor.
    static bool boCursorPosGet_(Position& position);

    /// A new row of a property grid; null without a back end.
    [[nodiscard]] static std::unique_ptr<PropertyGridPropertyInterface>
    createPropertyGridRow(PropertyGridRowState state);

    static void registerWindow(WindowHandle const& handle, std::weak_ptr<Window> window);
    static void unregisterWindow(WindowHandle const& handle);
};

} // namespace details
} // namespace qev::ui
