#include "Ui/Window/MessageBox.h"

#include "Ui/Window/Details/WindowInterfaceFactory.h"
#include "Ui/WindowBackend.h"

#include <utility>

namespace qev::ui {

void MessageBox::vShowOk(std::string const& text, std::string const& title, Icon icon,
                         DefaultButton defaultButton, std::function<void()> onClosed)
{
    if (auto const backend = details::WindowInterfaceFactory::getBackend())
        backend->showMessage({text, title, icon, defaultButton, std::move(onClosed)});
    else if (onClosed)
        onClosed();
}

} // namespace qev::ui
