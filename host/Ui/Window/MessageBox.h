#pragma once

#include "HostUiExport.h"

#include <functional>
#include <string>
#include <string_view>

namespace qev::ui {

/// Messages that the user has to close.
class HOSTUI_EXPORT MessageBox
{
public:
    enum class Icon : int
    {
        None = 0,
        Error = 1,
        Warning = 2,
        Information = 3,
    };

    enum class DefaultButton : int
    {
        First = 0,
        Second = 1,
        Third = 2,
    };

    struct Message
    {
        std::string text;
        std::string title;
        Icon icon = Icon::None;
        DefaultButton defaultButton = DefaultButton::First;
        /// Called once the message is closed; may be empty.
        std::function<void()> onClosed;
    };

    /// Shows a message with one button, and returns once it is closed; events go on meanwhile. Without a back
    /// end nobody can see it: \p onClosed is called at once.
    static void vShowOk(std::string_view text, std::string_view title, Icon icon, DefaultButton defaultButton,
                        std::function<void()> onClosed);
};

} // namespace qev::ui
