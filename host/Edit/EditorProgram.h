#pragma once

#include <functional>
#include <memory>
#include <string>

namespace qev {
class Guid;
}

namespace qev::ui::edit {

/// What the program around an object editor does for it. A function that is empty does nothing.
struct EditorProgram
{
    /// Begins an action of the user, of that name; it ends with the last who holds the result.
    std::function<std::shared_ptr<void>(std::string const& name)> beginAction;
    /// Makes anew what depends on the edited objects, after a value was written or a part of them changed.
    std::function<void()> regenerateObjects;
    /// Opens a path or an address with the program that the system has for it.
    std::function<void(std::string const& reference)> openReference;
    /// Selects the object of that global id.
    std::function<void(Guid const& globalId)> goToObject;
    /// The selected reference, or whether it can be used, has changed.
    std::function<void()> onReferenceChanged;
};

} // namespace qev::ui::edit
