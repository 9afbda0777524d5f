#include "UI/FoundationClasses/ObjectIcons.h"

#include "FoundationClasses/Core/Kernel/FcObjectDefinition.h"
#include "Icons/IconResources.h"

#include <array>
#include <string>
#include <vector>

namespace qev::fc::ui {

namespace {

using core::kernel::FcObjectDefinition;
using platform::qt::IconResources;

std::optional<std::string> findIconPath(std::string const& name, IconSize size)
{
    std::array<char const*, 2> const smallFirst{"_16x16.svg", "_20x20.svg"};
    std::array<char const*, 2> const largeFirst{"_20x20.svg", "_16x16.svg"};
    for (auto const* const ending : size == IconSize::Small ? smallFirst : largeFirst) {
        auto path = "/IFC/" + name + ending;
        if (IconResources::existsIcon(path))
            return path;
    }
    return std::nullopt;
}

std::string getBaseName(std::string_view className)
{
    if (className.ends_with("Type"))
        className.remove_suffix(4);
    if (className.starts_with("Ifc"))
        className.remove_prefix(3);
    return std::string(className);
}

/// The names to try, from the most special to the most general.
std::vector<std::string> getIconNames(std::string_view className,
                                      std::optional<std::string_view> predefinedType)
{
    auto const base = getBaseName(className);
    std::vector<std::string> names;
    if (predefinedType) {
        auto const special = base + "TypeEnum." + std::string(*predefinedType);
        names.push_back(special);
        names.push_back("Ifc" + special);
    }
    names.push_back(base);
    names.push_back("Ifc" + base);
    names.emplace_back("IfcGeneric");
    return names;
}

std::optional<std::string> resolveIcon(std::string_view className,
                                       std::optional<std::string_view> predefinedType, IconSize size)
{
    for (auto const& name : getIconNames(className, predefinedType))
        if (auto path = findIconPath(name, size))
            return path;
    return std::nullopt;
}

} // namespace

Guid getIcon(std::string_view className, std::optional<std::string_view> predefinedType, IconSize size)
{
    return IconResources::getImageId(resolveIcon(className, predefinedType, size).value());
}

Guid getIconForObject(FcBase const& object, IconSize size)
{
    if (!isOfClass<FcObjectDefinition>(object))
        return getIcon(object.getEntityName(), std::nullopt, size);
    auto const* const predefinedType = static_cast<FcObjectDefinition const&>(object).getPredefinedTypeText();
    return getIcon(object.getEntityName(), predefinedType ? predefinedType : "", size);
}

} // namespace qev::fc::ui
