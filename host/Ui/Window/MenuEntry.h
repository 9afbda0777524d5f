#pragma once

#include "HostUiExport.h"

#include <string>
#include <utility>

namespace qev::ui {

/// One entry of a popup menu.
class HOSTUI_EXPORT MenuEntry
{
public:
    /// A text of two parts with a tab between them is an entry and the keys that stand for it.
    explicit MenuEntry(std::string text, bool enabled = true, bool beginsGroup = false)
        : m_text(std::move(text))
        , m_enabled(enabled)
        , m_beginsGroup(beginsGroup)
    {
    }
    virtual ~MenuEntry() = default;
    MenuEntry(MenuEntry const&) = default;
    MenuEntry(MenuEntry&&) = default;
    MenuEntry& operator=(MenuEntry const&) = default;
    MenuEntry& operator=(MenuEntry&&) = default;

    [[nodiscard]] std::string const& getText() const { return m_text; }
    [[nodiscard]] bool isEnabled() const { return m_enabled; }
    /// A line sets the entry off from those above it.
    [[nodiscard]] bool beginsGroup() const { return m_beginsGroup; }

private:
    std::string m_text;
    bool m_enabled = true;
    bool m_beginsGroup = false;
};

} // namespace qev::ui
