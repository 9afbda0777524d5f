#pragma once

#include "Core/Utilities/Events/EventHandlerRAII.h"
#include "Ui/Window/Controls/ListControl/ListControl.h"
#include "Ui/Window/Controls/PopupControl/PopupControl.h"

#include <memory>
#include <string_view>
#include <utility>
#include <vector>

namespace qev::fc::ui {

/// The window of a popup controller: owns the popup control, and the handlers on its list.
///
/// A controller may be destroyed by the callback that one of its handlers runs: a handler calls a copy of the
/// callback, as the last thing it does.
class ListPopup
{
public:
    using Control = qev::ui::PopupControl<qev::ui::ListControl>;

    /// Takes \p control in place of the present one. \returns false, with no control in place, when it has no
    /// list.
    bool attach(std::unique_ptr<Control> control)
    {
        m_handlers.clear();
        m_control = control && control->getControl() ? std::move(control) : nullptr;
        return m_control != nullptr;
    }

    /// For a controller with a control only.
    [[nodiscard]] Control& control() const { return *m_control; }
    [[nodiscard]] qev::ui::ListControl& list() const { return *m_control->getControl(); }

    /// Adds \p handler to an event of the control or its list, until another control is attached.
    template <class Container, class Handler>
    void handle(Container& event, Handler handler)
    {
        m_handlers.emplace_back(event, std::move(handler));
    }

    /// Shows the list. \returns false without a control, which is reported for `show` of the class
    /// \p controllerName.
    bool show(std::string_view controllerName) const;

private:
    // The handlers go before what they are attached to.
    std::unique_ptr<Control> m_control;
    std::vector<EventHandlerRAII> m_handlers;
};

/// Reports a programming error of \p operation of the popup controller \p controllerName.
void reportOfPopup(std::string_view controllerName, std::string_view operation, std::string_view text);

/// Tells if there is exactly one object to edit, and reports for the constructor of \p controllerName if not.
template <class Object>
[[nodiscard]] bool holdsOneObject(std::vector<std::shared_ptr<Object>> const& objects,
                                  std::string_view controllerName)
{
    if (objects.size() != 1)
        reportOfPopup(controllerName, controllerName, "Multi edit not supported yet.");
    else if (!objects.front())
        reportOfPopup(controllerName, controllerName, "Objet was nullptr");
    else
        return true;
    return false;
}

/// The row and the column of a cell, 0 where it names none.
[[nodiscard]] inline std::size_t rowOf(qev::ui::ListControl::ItemInfo const& item)
{
    return item.item.value_or(0);
}
[[nodiscard]] inline std::size_t columnOf(qev::ui::ListControl::ItemInfo const& item)
{
    return item.column.value_or(0);
}

} // namespace qev::fc::ui
