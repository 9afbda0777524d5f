#pragma once

#include "Core/Assert/Assert.h"
#include "Ui/Window/Controls/PopupControl/PopupControlBase.h"
#include "Ui/Window/Details/WindowInterfaceFactory.h"
#include "Ui/Window/Dialog.h"
#include "Ui/Window/PopupMenu.h"
#include "Ui/Window/Window.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace qev::ui {

/// Where a popup is to stand, and how the user has left its list.
struct PopupPlacement
{
    WindowPlacement placement;
    std::optional<ListControlSettings> listSettings;
};

/// A popup that shows one \p Control, a `ListControl`. It lives until it loses the focus to a window outside
/// of it, and keeps its size with the dialog that owns its control.
///
/// To open one: ask `getControlPlacement`, create the control there as a child of the dialog with
/// `getStyleFlags` in its style, and hand it over with `setControl` and `onControlCreated`.
template <class Control>
class PopupControl : public PopupControlBase
{
public:
    static constexpr unsigned int defaultWidth = 500;
    static constexpr unsigned int defaultHeight = 300;

    /// \p popupId is the id that the size is kept under; nothing is kept without one.
    explicit PopupControl(std::optional<std::string> popupId)
        : m_popupId(std::move(popupId))
    {
    }

    ~PopupControl() override { destroyControl(); }

    [[nodiscard]] std::shared_ptr<Window> getWindow() const override { return m_control; }
    [[nodiscard]] std::shared_ptr<Control> const& getControl() const { return m_control; }
    [[nodiscard]] std::optional<std::string> const& getPopupId() const { return m_popupId; }

    /// What the popup adds to the style of its control.
    [[nodiscard]] virtual unsigned int getStyleFlags() const { return 1; }

    /// Works out where a new control is to stand, and ends the one there is.
    ///
    /// The size is the one kept under the popup's id, else that of the present control, else the default. The
    /// place is \p position on the screen, else just beside the cursor. A \p settingsName replaces the
    /// popup's id.
    [[nodiscard]] PopupPlacement getControlPlacement(std::shared_ptr<Dialog> const& parent,
                                                     std::optional<std::string_view> settingsName,
                                                     std::optional<Position> position)
    {
        if (settingsName)
            m_popupId = std::string(*settingsName);
        auto size = m_control ? m_control->getSize() : Size(defaultWidth, defaultHeight);
        auto const corner = position.value_or(getPositionAtCursor());
        destroyControl();
        std::optional<ListControlSettings> listSettings;
        if (m_popupId) {
            if (auto const stored = getStoredSettings(parent)) {
                size = stored->size.value_or(size);
                listSettings = stored->listSettings;
            }
        }
        return {{corner.x, corner.y, corner.x + static_cast<int>(size.first),
                 corner.y + static_cast<int>(size.second)},
                std::move(listSettings)};
    }

    void setControl(std::shared_ptr<Control> control)
    {
        m_focusHandler.reset();
        m_control = std::move(control);
    }

    /// Puts the new control wholly on the screen, has it closed when it loses the focus, and arranges
    /// it as the user left it. Reports "Error creating popup control." without a control.
    void onControlCreated(std::optional<ListControlSettings> const& listSettings)
    {
        if (!m_control) {
            reportFrom("onControlCreated", "Error creating popup control.");
            return;
        }
        m_control->moveDelta(m_control->getOffscreenOffset());
        m_focusHandler.emplace(m_control->onFocus, [this](bool hasFocus) { onFocus(hasFocus); });
        if (listSettings)
            m_control->loadSettings(*listSettings);
    }

    /// Hides the popup, keeps its size and runs the handlers of `closed`. False, and nothing happens, while
    /// a menu is open or the popup is not to be seen.
    bool close() override
    {
        if (PopupMenu::isBeingShown())
            return false;
        if (m_isBeingHidden || !m_control || !m_control->hasInterface() || !m_control->isVisible())
            return false;
        if (m_popupId)
            storeSettings();
        // A window that is being hidden loses the focus, and may count as visible still.
        m_isBeingHidden = true;
        hideControl();
        m_isBeingHidden = false;
        return PopupControlBase::close();
    }

    void hideControl() override
    {
        if (m_control)
            m_control->hide();
    }

    /// Keeps size and arrangement with the dialog that owns the control. Reports
    /// "Only to be called when id is set." without an id.
    void storeSettings() const
    {
        if (!m_popupId)
            reportFrom("storeSettings", "Only to be called when id is set.");
        auto const owner = m_control ? m_control->getOwner() : nullptr;
        auto const dialog = owner
                                ? std::dynamic_pointer_cast<Dialog>(
                                      details::WindowInterfaceFactory::pWindowFromHandle_(owner->getHandle()))
                                : nullptr;
        if (dialog)
            dialog->storeSettings(m_popupId.value_or(""),
                                  {Control::getClassName(), m_control->getSize(), m_control->getSettings()});
    }

    /// What \p parent keeps for the popup; nothing without a parent. Reports
    /// "Only to be called when popup id is set." without an id.
    [[nodiscard]] std::optional<StoredPopupSettings>
    getStoredSettings(std::shared_ptr<Dialog> const& parent) const
    {
        if (!m_popupId)
            reportFrom("getStoredSettings", "Only to be called when popup id is set.");
        return parent ? parent->getStoredSettings(m_popupId.value_or("")) : std::nullopt;
    }

private:
    static void reportFrom(std::string_view operation, std::string_view text)
    {
        assert::report(text, "qev::ui::PopupControl<ListControl>::" + std::string(operation),
                       "Ui/Window/Controls/PopupControl/PopupControl");
    }

    static Position getPositionAtCursor()
    {
        Position cursor;
        details::WindowInterfaceFactory::boCursorPosGet_(cursor);
        return {cursor.x + 1, cursor.y + 1};
    }

    void onFocus(bool hasFocus)
    {
        if (hasFocus)
            return;
        // An editor inside the list is part of the popup.
        auto const focused = WindowHandle::getFocusedWindow();
        if (!focused.isValid() || !focused.isDescendantOf(m_control->getHandle()))
            close();
    }

    void destroyControl()
    {
        m_focusHandler.reset();
        auto const control = std::exchange(m_control, nullptr);
        if (control && control->hasInterface())
            control->detach(true);
    }

    std::shared_ptr<Control> m_control;
    std::optional<std::string> m_popupId;
    std::optional<fc::ui::EventHandlerRAII> m_focusHandler;
    bool m_isBeingHidden = false;
};

} // namespace qev::ui
