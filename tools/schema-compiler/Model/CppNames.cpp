#include "Model/CppNames.h"

#include "Core/String/Ascii.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace qev::schemacompiler {

namespace {

/// Macros that the C library or the headers of Windows define.
constexpr std::array<std::string_view, 24> macros = {
    "ABSOLUTE", "ALTERNATE", "CALLBACK", "CONST",  "DELETE", "DIFFERENCE", "DOMAIN",   "EOF",
    "ERROR",    "FALSE",     "FAR",      "IGNORE", "IN",     "INFINITE",   "INFINITY", "NAN",
    "NEAR",     "NULL",      "OPAQUE",   "OUT",    "PASCAL", "STRICT",     "TRUE",     "VOID",
};

std::string replacedDot(std::string const& group, std::string_view replacement)
{
    auto const dot = group.find('.');
    return group.substr(0, dot) + std::string(replacement) + group.substr(dot + 1);
}

std::string qualified(std::string const& name, std::string const& group, std::string const& fromGroup)
{
    return group == fromGroup || group.empty() ? name : groupNamespace(group) + "::" + name;
}

} // namespace

std::string withoutPrefix(std::string const& schemaName)
{
    return schemaName.starts_with("Ifc") ? schemaName.substr(3) : schemaName;
}

std::string className(std::string const& schemaName) { return "Fc" + withoutPrefix(schemaName); }

std::string generatedName(EntityModel const& entity)
{
    return className(entity.name) + (entity.isHandwritten ? "Attributes" : "");
}

std::string generatedName(SelectModel const& select)
{
    return className(select.name) + (select.isHandwritten ? "Members" : "");
}

std::string groupNamespace(std::string const& group) { return str::toLower(replacedDot(group, "::")); }

std::string groupFolder(std::string const& group) { return "FoundationClasses/" + replacedDot(group, "/"); }

std::string groupFileName(std::string const& group) { return replacedDot(group, ""); }

std::string shortGroupName(std::string const& group) { return group.substr(group.find('.') + 1); }

std::string qualified(EntityModel const& entity, std::string const& fromGroup)
{
    return qualified(className(entity.name), entity.group, fromGroup);
}

std::string qualified(SelectModel const& select, std::string const& fromGroup)
{
    return qualified(className(select.name), select.group, fromGroup);
}

std::string qualifiedBase(ClassModel const& model, EntityModel const& entity)
{
    return entity.supertype.empty() ? "FcBase" : qualified(model.entity(entity.supertype), entity.group);
}

std::string header(EntityModel const& entity)
{
    return groupFolder(entity.group) + "/" + className(entity.name) + ".h";
}

std::string header(SelectModel const& select)
{
    return "FoundationClasses/Selects/" + className(select.name) + ".h";
}

std::string enumerationHeader(std::string const& schemaName)
{
    return "FoundationClasses/Enumerations/" + className(schemaName) + ".h";
}

std::string generatedHeader(EntityModel const& entity)
{
    return groupFolder(entity.group) + "/" + generatedName(entity) + ".h";
}

std::string generatedHeader(SelectModel const& select)
{
    return "FoundationClasses/Selects/" + generatedName(select) + ".h";
}

std::string enumerator(std::string const& item)
{
    return std::find(macros.begin(), macros.end(), item) == macros.end() ? item : item + "_";
}

} // namespace qev::schemacompiler
