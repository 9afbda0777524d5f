#pragma once

#include "Ui/Window/DialogControlInterface.h"
#include "Ui/Window/Window.h"

namespace qev::ui {

/// A child control of a dialog.
class HOSTUI_EXPORT DialogControl : public Window
{
public:
    [[nodiscard]] static char const* getClassName() { return "DialogControl"; }

    /// Lets go of the present platform window, which stays as it is, and attaches to \p handle.
    void attachToWindow(WindowHandle const& handle);

    /// Forgets the typed view of the platform side.
    void resetInterface() override;

    /// The typed view of the platform side; null without one.
    [[nodiscard]] DialogControlInterface* getDialogControlInterface() const
    {
        return m_dialogControlInterface;
    }

protected:
    /// Reports "Not a dialog control interface." when the platform side is none.
    void setInterface(WindowInterface& windowInterface) override;
    [[nodiscard]] bool isCompatibleWith(WindowClass windowClass) const override;

private:
    DialogControlInterface* m_dialogControlInterface = nullptr;
};

} // namespace qev::ui
