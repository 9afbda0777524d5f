#pragma once

#include "HostUiExport.h"
#include "Ui/Window/Geometry.h"
#include "Ui/Window/MenuEntry.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

namespace qev::ui {

/// A context menu: filled by whoever offers something, then shown once.
class HOSTUI_EXPORT PopupMenu
{
public:
    PopupMenu() = default;

    /// Appends \p entry. \returns its index.
    int iMenuElemAdd(std::unique_ptr<MenuEntry>&& entry);

    [[nodiscard]] std::vector<std::unique_ptr<MenuEntry>> const& getEntries() const { return m_entries; }

    /// Lets the user choose. \returns the index of the entry; nothing when none was chosen or the menu is
    /// empty.
    [[nodiscard]] std::optional<std::size_t> show(Position const& position) const;

    /// True while a menu of this program is open.
    [[nodiscard]] static bool isBeingShown();

private:
    std::vector<std::unique_ptr<MenuEntry>> m_entries;
};

} // namespace qev::ui
