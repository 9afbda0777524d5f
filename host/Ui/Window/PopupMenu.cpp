#include "Ui/Window/PopupMenu.h"

#include "Core/Utilities/ScopeGuard.h"
#include "Ui/Window/Details/WindowInterfaceFactory.h"
#include "Ui/WindowBackend.h"

#include <utility>

namespace qev::ui {

namespace {

int openMenus = 0;

} // namespace

int PopupMenu::iMenuElemAdd(std::unique_ptr<MenuEntry>&& entry)
{
    m_entries.push_back(std::move(entry));
    return static_cast<int>(m_entries.size()) - 1;
}

std::optional<std::size_t> PopupMenu::show(Position const& position) const
{
    auto const backend = details::WindowInterfaceFactory::getBackend();
    if (!backend || m_entries.empty())
        return std::nullopt;
    ++openMenus;
    ScopeGuard const closed([] { --openMenus; });
    return backend->showPopupMenu(*this, position);
}

bool PopupMenu::isBeingShown() { return openMenus > 0; }

} // namespace qev::ui
