#pragma once

#include "Format/Ifc/Step/StepValue.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qev::step {

/// Reads the arguments of one record, from behind the opening parenthesis.
///
/// After an error reading goes on at the next comma or parenthesis, so that one bad value
/// costs nothing but itself. The first error is kept.
class ArgumentReader
{
public:
    struct Error
    {
        char const* position = nullptr;
        std::string expected;
    };

    /// Reads from \p position up to \p end. With \p escapesHideApostrophes an apostrophe behind
    /// `\S\` does not end a text.
    ArgumentReader(char const* position, char const* end, bool escapesHideApostrophes)
        : m_position(position)
        , m_end(end)
        , m_escapesHideApostrophes(escapesHideApostrophes)
    {
    }

    /// Reads all values up to the parenthesis that closes them, and moves behind it.
    void readList(std::vector<StepValue>& values) { readItems(values, 0); }
    [[nodiscard]] StepValue readValue() { return readValue(0); }

    /// Moves over one argument; false when none ends here properly.
    /// \p argument is what was passed, without blanks and comments around it.
    bool skipArgument(std::string_view& argument);
    /// The character that ended the argument: a comma, the closing parenthesis or 0. Moves over it.
    char takeSeparator();

    /// The next reference of the argument that begins here, or of all that follows when \p everything.
    bool nextReference(InstanceId& id, int& depth, bool everything);

    /// Skips blanks and comments.
    void skipBlanks();
    /// Notes an error unless \p character comes next; moves behind it.
    void expect(char character, char const* expected);

    [[nodiscard]] char const* position() const { return m_position; }
    [[nodiscard]] bool atEnd() const { return m_position == m_end; }
    [[nodiscard]] std::optional<Error> const& error() const { return m_error; }

private:
    /// How many items of a list there are up to the next parenthesis or text.
    [[nodiscard]] std::size_t itemsAhead() const;
    void readItems(std::vector<StepValue>& values, unsigned int depth);
    StepValue readValue(unsigned int depth);
    StepValue readText();
    StepValue readNumber();
    StepValue readNumberText(std::string_view number, bool isReal);
    StepValue readReference();
    StepValue readEnumeration();
    StepValue readBinary();
    StepValue readTyped(unsigned int depth);
    StepValue fail(char const* position, char const* expected);

    /// Behind the apostrophe that closes the text beginning at the position; null without one.
    [[nodiscard]] char const* findTextEnd() const;
    char const* findCommentEnd();
    /// To the comma or parenthesis that ends the present value.
    void recover();
    void skipDelimited(char delimiter);
    [[nodiscard]] char peek() const { return m_position < m_end ? *m_position : '\0'; }

    char const* m_position;
    char const* m_end;
    bool m_escapesHideApostrophes;
    /// `/*` from here on begins no comment.
    bool m_noCommentEnds = false;
    std::optional<Error> m_error;
};

} // namespace qev::step
