#include "Format/Ifc/IfcHelperFunction.h"

#include "Core/Assert/Assert.h"

namespace qev::ifc::details {

namespace {

constexpr std::string_view function = "qev::ifc::details::removePrefix";
constexpr std::string_view path = "Format/Ifc/IfcHelperFunction";

} // namespace

std::string removePrefix(std::string_view name)
{
    constexpr std::string_view prefix = "Ifc";
    if (name.size() <= prefix.size()) {
        assert::report("Prefix is equal or has exceeded length of string", function, path);
        return {};
    }
    if (!name.starts_with(prefix))
        assert::report("Prefix not found", function, path);
    return std::string(name.substr(prefix.size()));
}

} // namespace qev::ifc::details
