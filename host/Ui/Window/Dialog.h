#pragma once

#include "Ui/Window/Controls/ListControl/ListControlSettings.h"
#include "Ui/Window/DialogInterface.h"
#include "Ui/Window/Window.h"

#include <cstddef>
#include <map>
#include <optional>
#include <string>

namespace qev::ui {

/// What a dialog keeps for one popup.
struct StoredPopupSettings
{
    /// Name of the control's class, such as "ListControl".
    std::string typeName;
    std::optional<Size> size;
    std::optional<ListControlSettings> listSettings;

    friend bool operator==(StoredPopupSettings const&, StoredPopupSettings const&) = default;
};

/// A window with child controls.
class HOSTUI_EXPORT Dialog : public Window
{
public:
    [[nodiscard]] static char const* getClassName() { return "Dialog"; }

    /// Fired when this dialog's page of a property sheet is activated, with the indices of the page
    /// that was active and of the one that is.
    EventHandlerContainer<Window, void, std::size_t, std::size_t> onPropertySheetPageActivate;

    /// The child of that control id, of whatever class; null when there is none.
    [[nodiscard]] std::shared_ptr<Window> getChildWindow(int controlId) const;

    /// Keeps \p settings under \p popupId, in place of what was there.
    void storeSettings(std::string const& popupId, StoredPopupSettings settings);
    /// What was kept under \p popupId.
    [[nodiscard]] std::optional<StoredPopupSettings> getStoredSettings(std::string const& popupId) const;
    /// All that is kept, by popup id, for whoever makes it last beyond the dialog.
    [[nodiscard]] std::map<std::string, StoredPopupSettings> const& getAllStoredSettings() const
    {
        return m_storedSettings;
    }

    void setTitle(std::string const& title);

protected:
    void setInterface(WindowInterface& windowInterface) override;
    void resetInterface() override;
    [[nodiscard]] bool isCompatibleWith(WindowClass windowClass) const override;

private:
    DialogInterface* m_dialogInterface = nullptr;
    std::map<std::string, StoredPopupSettings> m_storedSettings;
};

} // namespace qev::ui
