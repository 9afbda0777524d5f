#pragma once

#include "Core/Utilities/Events/EventHandlerContainer.h"
#include "Core/Utilities/Events/EventHandlerRAII.h"
#include "HostUiExport.h"

#include <memory>

namespace qev::ui {

class Window;

/// A window that stands over the others and closes when the user turns elsewhere.
class HOSTUI_EXPORT PopupControlBase
{
public:
    PopupControlBase();
    virtual ~PopupControlBase();
    PopupControlBase(PopupControlBase const&) = delete;
    PopupControlBase& operator=(PopupControlBase const&) = delete;

    /// The popup's window; null until it is made.
    [[nodiscard]] virtual std::shared_ptr<Window> getWindow() const = 0;
    /// Closes the popup and runs the handlers of `closed`, the last of which may end this object.
    /// \returns whether it closed.
    virtual bool close();
    virtual void hideControl() = 0;

    /// Fires when the popup closes.
    EventHandlerContainer<void, void> closed;

private:
    fc::ui::EventHandlerRAII m_abortHandler;
    fc::ui::EventHandlerRAII m_openPopupHandler;
};

} // namespace qev::ui
