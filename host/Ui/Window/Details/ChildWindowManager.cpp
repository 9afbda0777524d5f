#include "Ui/Window/Details/ChildWindowManager.h"

#include "Core/Assert/Assert.h"
#include "Ui/Window/Window.h"

namespace qev::ui::details {

namespace {

/// Ids below are left to the layouts of dialogs.
constexpr int firstFreeControlId = 20000;

} // namespace

std::shared_ptr<Window> ChildWindowManager::findWindow(int id) const
{
    for (auto const& [name, holder] : m_holders)
        if (auto window = holder->findWindow(id))
            return window;
    return nullptr;
}

std::vector<std::shared_ptr<Window>> ChildWindowManager::getWindows() const
{
    std::vector<std::shared_ptr<Window>> windows;
    for (auto const& [name, holder] : m_holders) {
        auto const held = holder->getWindows();
        windows.insert(windows.end(), held.begin(), held.end());
    }
    return windows;
}

void ChildWindowManager::removeWindow(Window const& window)
{
    m_takenControlIds.erase(window.getDialogControlId());
    for (auto const& [name, holder] : m_holders)
        holder->removeWindow(window);
}

bool ChildWindowManager::boControlIdFlagAsTaken(int id)
{
    bool const isNew = m_takenControlIds.insert(id).second;
    if (!isNew && id != noControlId)
        reportFrom("boControlIdFlagAsTaken", "Control id already taken");
    return isNew;
}

int ChildWindowManager::getFreeControlId() const
{
    int id = firstFreeControlId;
    while (m_takenControlIds.contains(id))
        ++id;
    return id;
}

void ChildWindowManager::reportFrom(std::string_view operation, std::string_view text)
{
    assert::report(text, "qev::ui::details::ChildWindowManager::" + std::string(operation),
                   "Ui/Window/Details/ChildWindowManager");
}

WindowHolderBase const* ChildWindowManager::findHolder(std::string const& className) const
{
    auto const found = m_holders.find(className);
    return found == m_holders.end() ? nullptr : found->second.get();
}

WindowHolderBase* ChildWindowManager::findHolder(std::string const& className)
{
    auto const found = m_holders.find(className);
    return found == m_holders.end() ? nullptr : found->second.get();
}

bool ChildWindowManager::insertHolder(std::string const& className, std::unique_ptr<WindowHolderBase> holder)
{
    return !className.empty() && m_holders.try_emplace(className, std::move(holder)).second;
}

} // namespace qev::ui::details
