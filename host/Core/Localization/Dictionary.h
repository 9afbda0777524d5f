#pragma once

#include "HostCoreExport.h"

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qev::localization {

/// The texts of one context in one language, by key.
///
/// As a file: UTF-8, one "key<TAB>text" a line; "\n", "\t" and "\\" stand for a line break, a tab and a
/// backslash within a text. Empty lines and lines that begin with "#" are comments.
class HOSTCORE_EXPORT Dictionary
{
public:
    /// A line that was not understood, counted from 1.
    struct Error
    {
        std::size_t line = 0;
        std::string text;
    };

    struct ParseResult;

    /// Reads the text of a file. Lines that are not understood are left out and told.
    /// A key that stands twice has its last text.
    static ParseResult parse(std::string_view fileText);

    void set(std::string key, std::string text);
    [[nodiscard]] std::optional<std::string> text(std::string_view key) const;
    [[nodiscard]] std::size_t size() const { return m_texts.size(); }
    [[nodiscard]] std::map<std::string, std::string, std::less<>> const& texts() const { return m_texts; }

    /// Adds all texts of \p other, which replace those of the same key.
    void merge(Dictionary const& other);

private:
    std::map<std::string, std::string, std::less<>> m_texts;
};

struct Dictionary::ParseResult
{
    Dictionary dictionary;
    std::vector<Error> errors;
};

} // namespace qev::localization
