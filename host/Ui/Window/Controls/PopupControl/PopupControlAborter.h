#pragma once

#include "Core/Utilities/Events/EventHandlerContainer.h"
#include "HostUiExport.h"

#include <memory>

namespace qev::ui {

class Window;

/// Reaches all popups of the program at once.
class HOSTUI_EXPORT PopupControlAborter
{
public:
    PopupControlAborter() = default;

    /// The one that popups attach themselves to.
    [[nodiscard]] static PopupControlAborter& current();

    /// Asks each popup to close. \returns true when one did.
    bool abort() const;
    /// The window of the popup that is open; null when none is.
    [[nodiscard]] std::shared_ptr<Window> getOpenPopup() const;

    /// Asks to close; a handler tells whether its popup did.
    EventHandlerContainer<void, bool> onAbort;
    /// Asks for the window of the popup; a handler gives null while its popup is not open.
    EventHandlerContainer<void, std::shared_ptr<Window>> onGetOpenPopup;
};

} // namespace qev::ui
