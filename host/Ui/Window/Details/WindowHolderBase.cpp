#include "Ui/Window/Details/WindowHolderBase.h"

#include "Core/Assert/Assert.h"
#include "Ui/Window/Window.h"

#include <algorithm>

namespace qev::ui::details {

namespace {

constexpr auto sourcePath = "Ui/Window/Details/WindowHolder";

} // namespace

void WindowHolderBase::addWindowWithId(int id, std::shared_ptr<Window> window)
{
    if (!m_windowsWithId.try_emplace(id, std::move(window)).second)
        assert::report("Window already added", "qev::ui::details::WindowHolder::addWindowWithId", sourcePath);
}

void WindowHolderBase::removeWindowWithId(int id)
{
    if (m_windowsWithId.erase(id) == 0)
        assert::report("Window doesn't exist", "qev::ui::details::WindowHolder::removeWindowWithId",
                       sourcePath);
}

void WindowHolderBase::addWindowWithoutId(std::shared_ptr<Window> window)
{
    m_windowsWithoutId.push_back(std::move(window));
}

bool WindowHolderBase::removeWindow(Window const& window)
{
    auto const removedWithId =
        std::erase_if(m_windowsWithId, [&](auto const& entry) { return entry.second.get() == &window; });
    auto const removedWithoutId =
        std::erase_if(m_windowsWithoutId, [&](auto const& child) { return child.get() == &window; });
    return removedWithId + removedWithoutId > 0;
}

std::shared_ptr<Window> WindowHolderBase::findWindow(int id) const
{
    auto const found = m_windowsWithId.find(id);
    return found == m_windowsWithId.end() ? nullptr : found->second;
}

std::vector<std::shared_ptr<Window>> WindowHolderBase::getWindows() const
{
    std::vector<std::shared_ptr<Window>> windows;
    for (auto const& [id, window] : m_windowsWithId)
        windows.push_back(window);
    windows.insert(windows.end(), m_windowsWithoutId.begin(), m_windowsWithoutId.end());
    return windows;
}

int WindowHolderBase::getDialogControlId(Window const& window) { return window.getDialogControlId(); }

} // namespace qev::ui::details
