#include "Output/SourceText.h"

#include "Core/String/Ascii.h"

#include <algorithm>
#include <vector>

namespace qev::schemacompiler {

SourceText::SourceText(std::string const& source)
    : m_text("// Made by schema-compiler from " + source + ". Do not edit.\n")
{
}

SourceText& SourceText::line(std::string_view text)
{
    m_text += text;
    m_text += '\n';
    return *this;
}

SourceText& SourceText::blank() { return line({}); }

SourceText& SourceText::includes(std::set<std::string> const& paths)
{
    // The formatter of the project sorts includes without regard to case.
    std::vector<std::string> sorted(paths.begin(), paths.end());
    std::stable_sort(sorted.begin(), sorted.end(), [](std::string const& a, std::string const& b) {
        return str::toLower(a) < str::toLower(b);
    });
    for (auto const& path : sorted)
        line("#include \"" + path + "\"");
    return *this;
}

SourceText& SourceText::openNamespace(std::string const& name)
{
    return line(name.empty() ? "namespace {" : "namespace " + name + " {").blank();
}

SourceText& SourceText::closeNamespace(std::string const& name)
{
    return blank().line(name.empty() ? "} // namespace" : "} // namespace " + name);
}

} // namespace qev::schemacompiler
