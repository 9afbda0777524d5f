#include "Core/Localization/Dictionary.h"

#include <utility>

namespace qev::localization {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

std::string withoutEscapes(std::string_view text)
{
    std::string result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        char const next = text[i] == '\\' && i + 1 < text.size() ? text[i + 1] : '\0';
        if (next == 'n' || next == 't' || next == '\\') {
            result += next == 'n' ? '\n' : next == 't' ? '\t' : '\\';
            ++i;
        } else {
            result += text[i];
        }
    }
    return result;
}

} // namespace

Dictionary::ParseResult Dictionary::parse(std::string_view fileText)
{
    ParseResult result;
    if (fileText.starts_with(byteOrderMark))
        fileText.remove_prefix(byteOrderMark.size());
    for (std::size_t lineNumber = 1; !fileText.empty(); ++lineNumber) {
        auto const end = std::min(fileText.find('\n'), fileText.size());
        auto line = fileText.substr(0, end);
        fileText.remove_prefix(std::min(end + 1, fileText.size()));
        if (line.ends_with('\r'))
            line.remove_suffix(1);
        if (line.empty() || line.front() == '#')
            continue;
        auto const tab = line.find('\t');
        if (tab == std::string_view::npos || tab == 0)
            result.errors.push_back({lineNumber, "expected a key, a tab and a text"});
        else
            result.dictionary.set(std::string(line.substr(0, tab)), withoutEscapes(line.substr(tab + 1)));
    }
    return result;
}

void Dictionary::set(std::string key, std::string text)
{
    m_texts.insert_or_assign(std::move(key), std::move(text));
}

std::optional<std::string> Dictionary::text(std::string_view key) const
{
    auto const entry = m_texts.find(key);
    return entry == m_texts.end() ? std::nullopt : std::optional(entry->second);
}

void Dictionary::merge(Dictionary const& other)
{
    for (auto const& [key, text] : other.m_texts)
        m_texts.insert_or_assign(key, text);
}

} // namespace qev::localization
