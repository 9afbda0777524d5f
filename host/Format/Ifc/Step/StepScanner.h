#pragma once

#include "Core/String/Ascii.h"
#include "Format/Ifc/Step/StepFile.h"
#include "Format/Ifc/Step/StructuralScanner.h"

#include <cstddef>
#include <string_view>

namespace qev::step {

/// The tokens that lie between and around records: blanks, comments, heads and ends of records.
///
/// All positions count from the start of the content. The content needs
/// `platform::FileBytes::padding` readable zero bytes behind it.
class StepScanner
{
public:
    /// Where a record ends.
    struct RecordEnd
    {
        /// One past its last byte.
        std::size_t end = 0;
        StepFile::Ending ending = StepFile::Ending::Complete;
        /// False when a text of it ends with `\S\`, so that the apostrophe behind does close the text.
        bool escapesHideApostrophes = true;
    };

    /// What stands before the arguments: `#7=IFCWALL(`.
    struct RecordHead
    {
        enum class Problem : std::uint8_t
        {
            None,
            NoId,
            IdTooLarge,
            NoEqualsSign,
            NoKeyword,
            NoParenthesis
        };

        InstanceId id = 0;
        std::string_view keyword;
        /// Behind the parenthesis, or where reading stopped.
        std::size_t arguments = 0;
        /// A record of several keywords, which has its parenthesis at once.
        bool isComplex = false;
        Problem problem = Problem::None;
    };

    StepScanner(char const* data, std::size_t size)
        : m_data(data)
        , m_size(size)
        , m_structural(data, size)
    {
    }

    [[nodiscard]] char at(std::size_t position) const { return m_data[position]; }
    [[nodiscard]] char const* data() const { return m_data; }
    [[nodiscard]] std::size_t size() const { return m_size; }

    /// Behind blanks, line ends, control characters and comments.
    std::size_t skipBlanks(std::size_t position);

    /// Reads the head of the record whose `#` is at \p position.
    RecordHead readHead(std::size_t position);

    /// Finds the end of a record, or of any statement that `;` ends, from a \p position outside texts.
    RecordEnd findEnd(std::size_t position)
    {
        // Most records hold numbers and references only: the first byte that matters ends them.
        m_structural.seek(position);
        std::size_t const first = m_structural.next();
        if (m_data[first] == ';' && first < m_size)
            return {first + 1, StepFile::Ending::Complete, true};
        return findUnusualEnd(position);
    }

    /// Whether a record or the end of the section begins at \p position, blanks aside.
    /// Used at the beginning of lines, to notice a record that was never ended.
    [[nodiscard]] bool startsStatement(std::size_t position) const;

private:
    RecordEnd findUnusualEnd(std::size_t position);
    RecordEnd findEnd(std::size_t position, bool escapesHideApostrophes, bool& hidApostrophe);
    /// Looks for the end of a text whose content begins at \p begin; the size without one.
    /// Stops at a line that begins a record, and then gives that line in \p brokenAt.
    std::size_t findTextEnd(std::size_t begin, bool escapesHideApostrophes, bool& hidApostrophe,
                            std::size_t& brokenAt);
    /// Behind `*/`; nothing when no comment ends any more, in which case `/*` begins none.
    std::size_t commentEnd(std::size_t position);
    [[nodiscard]] std::size_t trimmedEnd(std::size_t begin, std::size_t end) const;

    char const* m_data;
    std::size_t m_size;
    StructuralScanner m_structural;
    /// No `*/` begins here or further on.
    std::size_t m_noCommentEndFrom = ~std::size_t{0};
};

/// Whether the apostrophe at \p position belongs to an escape `\S\'` of the text that begins at \p begin.
bool isHiddenApostrophe(char const* begin, char const* position);

using str::isDigit;
inline bool isBlank(char c) { return static_cast<unsigned char>(c) <= ' '; }
inline bool isLetter(char c) { return static_cast<unsigned char>((c | 0x20) - 'a') < 26; }
inline bool isKeywordStart(char c) { return isLetter(c) || c == '_' || c == '!'; }
inline bool isKeywordCharacter(char c) { return isLetter(c) || isDigit(c) || c == '_'; }

} // namespace qev::step
