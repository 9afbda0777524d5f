#pragma once

#include "HostUiExport.h"

#include <map>
#include <memory>
#include <vector>

namespace qev::ui {

class Window;

namespace details {

/// The child windows of one class, by control id. Owns them together with whoever else uses them.
class HOSTUI_EXPORT WindowHolderBase
{
public:
    virtual ~WindowHolderBase() = default;

    /// Reports "Window already added", and changes nothing, when there is a window of that id.
    void addWindowWithId(int id, std::shared_ptr<Window> window);
    /// Reports "Window doesn't exist" when there is no window of that id.
    void removeWindowWithId(int id);
    /// Adds a window that no id leads to.
    void addWindowWithoutId(std::shared_ptr<Window> window);

    /// Removes \p window, whether it has an id or not, and tells if it was there.
    bool removeWindow(Window const& window);

    /// The window of that id; null when there is none.
    [[nodiscard]] std::shared_ptr<Window> findWindow(int id) const;
    /// All windows: those with an id first, in its order, then the others in the order they came.
    [[nodiscard]] std::vector<std::shared_ptr<Window>> getWindows() const;

    [[nodiscard]] static int getDialogControlId(Window const& window);

private:
    std::map<int, std::shared_ptr<Window>> m_windowsWithId;
    std::vector<std::shared_ptr<Window>> m_windowsWithoutId;
};

} // namespace details
} // namespace qev::ui
