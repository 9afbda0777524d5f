#include "Ui/Window/MessageBox.h"

#include "Ui/Window/Details/WindowInterfaceFactory.h"
#include "Ui/WindowBackend.h"

#include <utility>

namespace qev::ui {

void MessageBox::vShowOk(std::string_view text, std::string_view title, Icon icon,
                         DefaultButton defaultButton, std::function<void()> onClosed)
{
    if (auto const backend = details::WindowInterfaceFactory::getBackend())
        backend->showMessage(
            {std::string(text), std::string(title), icon, defaultButton, std::move(onClosed)});
    else if (onClosed)
        onClosed();
}

} // namespace qev::ui
