#include "Icons/BuiltInIcons.h"

namespace qev::platform::qt {

namespace {

struct Picture
{
    std::string_view path;
    std::string_view drawing;
};

constexpr Picture pictures[] = {
#include "IconTable.inc"
};

} // namespace

IconSource::~IconSource() = default;

BuiltInIcons::BuiltInIcons()
{
    for (auto const& picture : pictures)
        m_pictures.emplace(picture.path, picture.drawing);
}

BuiltInIcons::~BuiltInIcons() = default;

std::optional<std::string_view> BuiltInIcons::find(std::string_view path) const
{
    auto const found = m_pictures.find(path);
    return found == m_pictures.end() ? std::nullopt : std::optional(found->second);
}

} // namespace qev::platform::qt
