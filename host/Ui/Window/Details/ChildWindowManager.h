#pragma once

#include "HostUiExport.h"
#include "Ui/Window/Details/WindowHolder.h"

#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace qev::ui::details {

/// The child windows of one window: per child class, and in each class by control id.
///
/// The manager shares the ownership of the children; a child leaves when it is detached.
/// A class is known by the text of its `getClassName()`.
class HOSTUI_EXPORT ChildWindowManager
{
public:
    /// This control id stands for "no id" and may be taken any number of times.
    static constexpr int noControlId = 65535;

    /// Adds a child under \p id; a child with id 0 is kept without id.
    /// A null \p window is reported with "window == nullptr", and nothing is added.
    template <class T>
    void vWindowAdd(int id, std::shared_ptr<T> const& window)
    {
        if (!window) {
            reportFrom("vWindowAdd", "window == nullptr");
            return;
        }
        auto* const holder = findOrMakeHolder<T>();
        if (!holder)
            return;
        if (id == 0)
            holder->addWindowWithoutId(window);
        else
            holder->addWindowWithId(id, window);
    }

    /// Tells if there is a child of class \p T with that id, and puts it in \p out.
    template <class T>
    bool boWindowGet(int id, std::shared_ptr<T>& out) const
    {
        auto const* const base = findHolder(T::getClassName());
        if (!base)
            return false;
        auto const* const holder = dynamic_cast<WindowHolder<T> const*>(base);
        if (!holder) {
            reportFrom("boWindowGet", "Invalid window holder type");
            return false;
        }
        if (!holder->findWindow(id))
            return false;
        out = holder->windowGet(id);
        return out != nullptr;
    }

    /// The child of class \p T with that id; null, with a report, when there is none.
    template <class T>
    [[nodiscard]] std::shared_ptr<T> windowGet(int id) const
    {
        auto const* const holder = dynamic_cast<WindowHolder<T> const*>(findHolder(T::getClassName()));
        if (!holder) {
            reportFrom("windowGet", "Invalid window holder type");
            return nullptr;
        }
        return holder->windowGet(id);
    }

    /// The child of that id, of whatever class; null when there is none.
    [[nodiscard]] std::shared_ptr<Window> findWindow(int id) const;
    /// All children.
    [[nodiscard]] std::vector<std::shared_ptr<Window>> getWindows() const;
    /// Lets go of \p window. Its id can be taken again.
    void removeWindow(Window const& window);

    /// Marks \p id as used and tells if it was free until now. An id taken twice is
    /// reported with "Control id already taken", except `noControlId`.
    bool boControlIdFlagAsTaken(int id);
    [[nodiscard]] bool isControlIdTaken(int id) const { return m_takenControlIds.contains(id); }
    /// A control id that is not taken. It stays free until it is flagged.
    [[nodiscard]] int getFreeControlId() const;

private:
    static void reportFrom(std::string_view operation, std::string_view text);

    [[nodiscard]] WindowHolderBase const* findHolder(std::string const& className) const;
    [[nodiscard]] WindowHolderBase* findHolder(std::string const& className);
    /// False when there is a holder of that name already, or the name is empty.
    bool insertHolder(std::string const& className, std::unique_ptr<WindowHolderBase> holder);

    template <class T>
    WindowHolder<T>* findOrMakeHolder()
    {
        auto const className = std::string(T::getClassName());
        if (!findHolder(className) && !insertHolder(className, std::make_unique<WindowHolder<T>>())) {
            reportFrom("vWindowAdd", "Unable to insert window holder into list.");
            return nullptr;
        }
        auto* const holder = dynamic_cast<WindowHolder<T>*>(findHolder(className));
        if (!holder)
            reportFrom("vWindowAdd", "Invalid window holder type");
        return holder;
    }

    std::map<std::string, std::unique_ptr<WindowHolderBase>> m_holders;
    std::set<int> m_takenControlIds;
};

} // namespace qev::ui::details
