#include "Ui/Window/Dialog.h"

#include "Core/Assert/Assert.h"

#include <utility>

namespace qev::ui {

std::shared_ptr<Window> Dialog::getChildWindow(int controlId) const
{
    auto const* const manager = getChildWindowManager();
    return manager ? manager->findWindow(controlId) : nullptr;
}

void Dialog::storeSettings(std::string const& popupId, StoredPopupSettings settings)
{
    m_storedSettings.insert_or_assign(popupId, std::move(settings));
}

std::optional<StoredPopupSettings> Dialog::getStoredSettings(std::string const& popupId) const
{
    auto const found = m_storedSettings.find(popupId);
    return found == m_storedSettings.end() ? std::nullopt : std::optional(found->second);
}

void Dialog::setTitle(std::string const& title)
{
    if (!m_dialogInterface) {
        assert::report("Window interface not set", "qev::ui::Dialog::setTitle", "Ui/Window/Dialog");
        return;
    }
    m_dialogInterface->setTitle(title);
}

void Dialog::setInterface(WindowInterface& windowInterface)
{
    Window::setInterface(windowInterface);
    m_dialogInterface = dynamic_cast<DialogInterface*>(&windowInterface);
}

void Dialog::resetInterface()
{
    m_dialogInterface = nullptr;
    Window::resetInterface();
}

bool Dialog::isCompatibleWith(WindowClass windowClass) const { return windowClass == WindowClass::Dialog; }

} // namespace qev::ui
