#pragma once

#include "Core/Assert/Assert.h"
#include "Ui/Window/Details/WindowHolderBase.h"

namespace qev::ui::details {

/// The child windows of class \p T.
template <class T>
class WindowHolder final : public WindowHolderBase
{
public:
    /// The window of that id. Gives null, with the report "Window doesn't exist" when there is none,
    /// and "Element doesn't correspond to expected window" when the window of that id is of another class.
    [[nodiscard]] std::shared_ptr<T> windowGet(int id) const
    {
        auto const window = findWindow(id);
        if (!window) {
            reportFromWindowGet("Window doesn't exist");
            return nullptr;
        }
        auto const typed = std::dynamic_pointer_cast<T>(window);
        if (!typed)
            reportFromWindowGet("Element doesn't correspond to expected window");
        return typed;
    }

private:
    static void reportFromWindowGet(char const* text)
    {
        assert::report(text, "qev::ui::details::WindowHolder::windowGet", "Ui/Window/Details/WindowHolder");
    }
};

} // namespace qev::ui::details
