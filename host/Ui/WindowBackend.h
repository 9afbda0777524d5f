#pragma once

#include "HostUiExport.h"
#include "Ui/PropertyGrid/PropertyGridRowState.h"
#include "Ui/Window/Geometry.h"
#include "Ui/Window/MessageBox.h"
#include "Ui/Window/WindowClass.h"
#include "Ui/Window/WindowHandle.h"
#include "Ui/Window/WindowPlacement.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>

namespace qev::ui {

class PopupMenu;
class ProgressBarInterface;
class PropertyGridPropertyInterface;
class Window;
class WindowInterface;

/// What a platform window is to be made from.
struct WindowCreation
{
    /// The window it is made for. Not attached yet.
    Window& self;
    /// Invalid for a window that stands alone.
    WindowHandle owner;
    std::string className;
    unsigned int style = 0;
    unsigned int extendedStyle = 0;
    WindowPlacement placement;
    int controlId = 0;
};

/// A toolkit below the windows of this program.
///
/// One back end is current at a time (`details::WindowInterfaceFactory::setBackend`). A back end
/// draws, collects input and fires events; what is shown and what input means is decided above it.
class HOSTUI_EXPORT WindowBackend
{
public:
    virtual ~WindowBackend() = default;

    /// Makes a platform window of `creation.className`; an invalid handle when it cannot.
    virtual WindowHandle createWindow(WindowCreation const& creation) = 0;
    /// A new interface for a platform window; null when the handle names none of this back end.
    virtual std::unique_ptr<WindowInterface> createInterface(WindowHandle const& handle) = 0;

    [[nodiscard]] virtual Size getDefaultWindowSize(WindowClass windowClass) const;
    /// The cursor on the screen; nothing when there is none.
    [[nodiscard]] virtual std::optional<Position> getCursorPosition() const = 0;
    [[nodiscard]] virtual WindowHandle getFocusedWindow() const = 0;
    /// True when \p window is \p ancestor or stands below it.
    [[nodiscard]] virtual bool isDescendant(WindowHandle const& window,
                                            WindowHandle const& ancestor) const = 0;

    /// A new row of a property grid, which stands in no grid yet.
    [[nodiscard]] virtual std::unique_ptr<PropertyGridPropertyInterface>
    createPropertyGridRow(PropertyGridRowState state);

    /// Shows a message and calls its `onClosed` when the user has closed it.
    virtual void showMessage(MessageBox::Message message) = 0;
    /// Lets the user choose from \p menu. \returns the index of the entry; nothing when the user chose none.
    virtual std::optional<std::size_t> showPopupMenu(PopupMenu const& menu, Position const& position) = 0;
    /// A progress bar for a long operation that is about to begin.
    [[nodiscard]] virtual std::unique_ptr<ProgressBarInterface>
    createProgressBar(std::string const& title) = 0;
};

} // namespace qev::ui
