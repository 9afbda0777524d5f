#pragma once

#include <set>
#include <string>
#include <string_view>

namespace qev::schemacompiler {

/// A C++ source being written, line by line.
class SourceText
{
public:
    /// Begins with the line that says what made the file from what.
    explicit SourceText(std::string const& source);

    SourceText& line(std::string_view text);
    SourceText& blank();
    /// One `#include "..."` line for each path, in order.
    SourceText& includes(std::set<std::string> const& paths);
    SourceText& openNamespace(std::string const& name);
    SourceText& closeNamespace(std::string const& name);

    [[nodiscard]] std::string const& text() const { return m_text; }

private:
    std::string m_text;
};

} // namespace qev::schemacompiler
