#pragma once

#include "HostUiExport.h"
#include "Ui/Window/WindowClass.h"

#include <optional>
#include <string_view>

namespace qev::ui::details {

/// The kind of platform window that the class answering \p name to `getClassName()` stands in front of.
[[nodiscard]] HOSTUI_EXPORT std::optional<WindowClass> windowClassFromName(std::string_view name);

} // namespace qev::ui::details
