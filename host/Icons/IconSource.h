#pragma once

#include "HostIconsExport.h"

#include <optional>
#include <string_view>

namespace qev::platform::qt {

/// Where the pictures of a program come from.
class HOSTICONS_EXPORT IconSource
{
public:
    virtual ~IconSource();
    IconSource(IconSource const&) = delete;
    IconSource& operator=(IconSource const&) = delete;

    /// The SVG text at \p path, such as "/IFC/Wall_16x16.svg", which lasts as long as the source; nothing
    /// where there is no such picture.
    [[nodiscard]] virtual std::optional<std::string_view> find(std::string_view path) const = 0;

protected:
    IconSource() = default;
};

} // namespace qev::platform::qt
