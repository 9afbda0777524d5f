#pragma once

#include "HostUiExport.h"

#include <string>
#include <utility>

namespace qev::ui {

/// One entry of a popup menu.
class HOSTUI_EXPORT MenuEntry
{
public:
    explicit MenuEntry(std::string text, bool enabled = true)
        : m_text(std::move(text))
        , m_enabled(enabled)
    {
    }
    virtual ~MenuEntry() = default;
    MenuEntry(MenuEntry const&) = default;
    MenuEntry(MenuEntry&&) = default;
    MenuEntry& operator=(MenuEntry const&) = default;
    MenuEntry& operator=(MenuEntry&&) = default;

    [[nodiscard]] std::string const& getText() const { return m_text; }
    [[nodiscard]] bool isEnabled() const { return m_enabled; }

private:
    std::string m_text;
    bool m_enabled = true;
};

} // namespace qev::ui
