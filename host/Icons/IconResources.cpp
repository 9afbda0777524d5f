#include "Icons/IconResources.h"

#include "Icons/BuiltInIcons.h"

#include <functional>
#include <map>
#include <utility>

namespace qev::platform::qt {

namespace {

struct Registry
{
    std::shared_ptr<IconSource const> source;
    std::map<std::string, Guid, std::less<>> ids;
    std::map<Guid, std::string> paths;
};

Registry& getRegistry()
{
    static Registry registry;
    return registry;
}

IconSource const& getSource()
{
    static BuiltInIcons const builtIn;
    auto const& source = getRegistry().source;
    return source ? *source : builtIn;
}

} // namespace

bool IconResources::existsIcon(std::string_view path) { return getSource().find(path).has_value(); }

Guid IconResources::getImageId(std::string_view path)
{
    auto& registry = getRegistry();
    if (auto const found = registry.ids.find(path); found != registry.ids.end())
        return found->second;
    auto const id = Guid::generate();
    registry.ids.emplace(path, id);
    registry.paths.emplace(id, path);
    return id;
}

std::string IconResources::getPath(Guid const& imageId)
{
    auto const& paths = getRegistry().paths;
    auto const found = paths.find(imageId);
    return found == paths.end() ? std::string() : found->second;
}

std::string_view IconResources::getDrawing(std::string_view path)
{
    return getSource().find(path).value_or(std::string_view());
}

std::shared_ptr<IconSource const> IconResources::setSource(std::shared_ptr<IconSource const> source)
{
    return std::exchange(getRegistry().source, std::move(source));
}

} // namespace qev::platform::qt
