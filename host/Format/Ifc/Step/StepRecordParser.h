#pragma once

#include "Format/Ifc/Step/StepFile.h"
#include "Format/Ifc/Step/StepMessage.h"
#include "Format/Ifc/Step/StepValue.h"
#include "HostStepExport.h"

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace qev::step {

/// Takes the arguments of single records apart.
///
/// What cannot be read becomes an unset value, and a message names its place. The parser keeps
/// no values; it is cheap to make and to copy, and must not outlive its file.
class HOSTSTEP_EXPORT StepRecordParser
{
public:
    /// Lists and typed values inside each other beyond this are an error.
    static constexpr unsigned int maximumDepth = 64;

    explicit StepRecordParser(StepFile const& file)
        : m_file(&file)
    {
    }

    /// Reads all arguments of \p record into \p values, replacing what is there.
    /// A record of several keywords gives no values and no message.
    /// \returns false when something was wrong; \p messages, if given, say what.
    bool parse(RecordIndex record, std::vector<StepValue>& values, StepMessages* messages = nullptr) const;

    /// The bytes of argument \p slot (from 0) without blanks and comments around it.
    /// Nothing when the record has fewer arguments or is broken before the argument's end.
    [[nodiscard]] std::optional<std::string_view> argumentSpan(RecordIndex record, std::size_t slot) const;

    /// The bytes of all arguments; nothing when the record is broken or has several keywords.
    [[nodiscard]] std::optional<std::vector<std::string_view>> argumentSpans(RecordIndex record) const;

    /// Reads one argument only; nothing when there is none or it is malformed.
    [[nodiscard]] std::optional<StepValue> parseArgument(RecordIndex record, std::size_t slot) const;

    /// Calls \p function(InstanceId) for each reference in argument \p slot, in lists too,
    /// without making values. A broken record gives what comes before the break.
    template <typename Function>
    void forEachReference(RecordIndex record, std::size_t slot, Function&& function) const
    {
        ReferenceCursor cursor = argumentCursor(record, slot);
        for (InstanceId id = 0; nextReference(cursor, id);)
            function(id);
    }

    /// The same for all arguments of the record, of records of several keywords too.
    template <typename Function>
    void forEachReference(RecordIndex record, Function&& function) const
    {
        ReferenceCursor cursor = recordCursor(record);
        for (InstanceId id = 0; nextReference(cursor, id);)
            function(id);
    }

private:
    /// Where a walk over references stands.
    struct ReferenceCursor
    {
        char const* position = nullptr;
        char const* end = nullptr;
        bool escapesHideApostrophes = true;
        /// Goes on behind the comma that ends the argument.
        bool everything = false;
        int depth = 0;
    };

    [[nodiscard]] ReferenceCursor argumentCursor(RecordIndex record, std::size_t slot) const;
    [[nodiscard]] ReferenceCursor recordCursor(RecordIndex record) const;
    static bool nextReference(ReferenceCursor& cursor, InstanceId& id);

    StepFile const* m_file;
};

/// Reads the arguments in \p text, which begins behind an opening parenthesis and goes up to
/// and including the closing one. For values that stand outside a file.
/// \returns false when something is wrong with it; \p values then has what could be read.
HOSTSTEP_EXPORT bool parseArguments(std::string_view text, std::vector<StepValue>& values);

} // namespace qev::step
