#include "Ui/Window/Details/WindowClassName.h"

#include "Ui/Window/Controls/ListControl/ListControl.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridControl.h"
#include "Ui/Window/Dialog.h"
#include "Ui/Window/DialogControl.h"
#include "Ui/Window/GroupBox.h"

namespace qev::ui::details {

std::optional<WindowClass> windowClassFromName(std::string_view name)
{
    if (name == PropertyGridControl::getClassName())
        return WindowClass::PropertyGridControl;
    if (name == ListControl::getClassName())
        return WindowClass::ListControl;
    if (name == Dialog::getClassName())
        return WindowClass::Dialog;
    if (name == DialogControl::getClassName())
        return WindowClass::DialogControl;
    if (name == GroupBox::getClassName())
        return WindowClass::GroupBox;
    if (name == Window::getClassName())
        return WindowClass::Window;
    return std::nullopt;
}

} // namespace qev::ui::details
