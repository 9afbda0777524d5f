#pragma once

#include "reference-reader/StepDocument.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace qev::test::reference {

/// Reads the text of a STEP file by recursive descent, one character after the other.
class StepParser
{
public:
    explicit StepParser(std::string_view text)
        : m_text(text)
    {
    }

    [[nodiscard]] StepDocument parse();

private:
    [[nodiscard]] bool atEnd() const { return m_position >= m_text.size(); }
    [[nodiscard]] char peek() const { return atEnd() ? '\0' : m_text[m_position]; }
    void skipBlanks();
    bool accept(char character);
    void expect(char character);
    [[noreturn]] void fail(std::string const& expected) const;

    void parseStatement();
    void parseRecord();
    void parseHeaderRecord(std::string const& keyword);
    void goOnAfter(std::size_t start, std::string const& problem);
    [[nodiscard]] std::size_t lineOf(std::size_t position);

    [[nodiscard]] std::string parseKeyword();
    [[nodiscard]] std::uint64_t parseId();
    [[nodiscard]] std::vector<StepArgument> parseArguments();
    [[nodiscard]] StepArgument parseArgument();
    [[nodiscard]] StepArgument parseNumber();
    [[nodiscard]] StepArgument parseText();
    [[nodiscard]] StepArgument parseEnumeration();
    [[nodiscard]] StepArgument parseBinary();
    [[nodiscard]] StepArgument parseTyped();

    std::string_view m_text;
    std::size_t m_position = 0;
    int m_depth = 0;
    std::size_t m_countedTo = 0;
    std::size_t m_line = 1;
    StepDocument m_document;
};

} // namespace qev::test::reference
