#pragma once

#include <optional>
#include <string_view>
#include <vector>

namespace qev::ifc::def {

/// Goes through a text line by line, leaving out empty lines and comments.
class LineScanner
{
public:
    explicit LineScanner(std::string_view text)
        : m_rest(text)
    {
    }

    /// Goes to the next line that says something; false at the end of the text.
    bool next()
    {
        while (!m_rest.empty()) {
            std::size_t const end = m_rest.find('\n');
            m_line = m_rest.substr(0, end);
            m_rest = end == std::string_view::npos ? std::string_view() : m_rest.substr(end + 1);
            ++m_number;
            if (m_line.ends_with('\r'))
                m_line.remove_suffix(1);
            std::size_t const start = m_line.find_first_not_of(' ');
            if (start != std::string_view::npos && m_line[start] != '#')
                return true;
        }
        return false;
    }

    [[nodiscard]] std::string_view line() const { return m_line; }
    /// Counted from 1.
    [[nodiscard]] std::size_t number() const { return m_number; }
    [[nodiscard]] bool isIndented() const { return m_line.starts_with(' '); }

private:
    std::string_view m_rest;
    std::string_view m_line;
    std::size_t m_number = 0;
};

/// Takes a line apart into words separated by blanks.
class WordScanner
{
public:
    explicit WordScanner(std::string_view line)
        : m_rest(line)
    {
        skipBlanks();
    }

    /// The next word, empty at the end of the line.
    std::string_view next()
    {
        std::size_t const end = m_rest.find(' ');
        std::string_view const word = m_rest.substr(0, end);
        m_rest.remove_prefix(word.size());
        skipBlanks();
        return word;
    }

    /// What has not been taken yet.
    [[nodiscard]] std::string_view rest() const { return m_rest; }
    [[nodiscard]] bool atEnd() const { return m_rest.empty(); }

private:
    void skipBlanks()
    {
        std::size_t const start = m_rest.find_first_not_of(' ');
        m_rest = start == std::string_view::npos ? std::string_view() : m_rest.substr(start);
    }

    std::string_view m_rest;
};

} // namespace qev::ifc::def
