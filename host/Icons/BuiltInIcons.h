#pragma once

#include "Icons/IconSource.h"

#include <functional>
#include <map>
#include <string_view>

namespace qev::platform::qt {

/// The pictures that are compiled into the program: those of `data/icons`.
class HOSTICONS_EXPORT BuiltInIcons final : public IconSource
{
public:
    BuiltInIcons();
    ~BuiltInIcons() override;

    [[nodiscard]] std::optional<std::string_view> find(std::string_view path) const override;
    /// All pictures by path.
    [[nodiscard]] std::map<std::string_view, std::string_view> const& getPictures() const
    {
        return m_pictures;
    }

private:
    std::map<std::string_view, std::string_view> m_pictures;
};

} // namespace qev::platform::qt
