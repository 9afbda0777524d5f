#include "Ui/Window/DialogControl.h"

#include "Core/Assert/Assert.h"

namespace qev::ui {

void DialogControl::attachToWindow(WindowHandle const& handle)
{
    if (hasInterface())
        detach(false);
    attach(handle);
}

void DialogControl::resetInterface()
{
    m_dialogControlInterface = nullptr;
    Window::resetInterface();
}

void DialogControl::setInterface(WindowInterface& windowInterface)
{
    Window::setInterface(windowInterface);
    m_dialogControlInterface = dynamic_cast<DialogControlInterface*>(&windowInterface);
    if (!m_dialogControlInterface)
        assert::report("Not a dialog control interface.", "qev::ui::DialogControl::setInterface",
                       "Ui/Window/DialogControl");
}

bool DialogControl::isCompatibleWith(WindowClass windowClass) const
{
    return windowClass == WindowClass::DialogControl;
}

} // namespace qev::ui
