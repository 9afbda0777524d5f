#pragma once

#include "Core/Platform/FileBytes.h"
#include "Core/Platform/FileStamp.h"
#include "Format/Ifc/Step/StepHeader.h"
#include "Format/Ifc/Step/StepKeywordTable.h"
#include "Format/Ifc/Step/StepMessage.h"
#include "Format/Ifc/Step/StepValue.h"
#include "HostStepExport.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace qev::step {

struct StepOpenResult;

/// Where a record stands in the order of the file, counted from 0.
using RecordIndex = std::uint32_t;

struct StepRecordExtent;

/// A STEP file (ISO 10303-21): its bytes as they were read, and an index of its records.
///
/// Nothing of a record is taken apart before somebody asks; the bytes never change. Opening
/// has two steps, as the header tells which keywords there can be:
/// \code
/// StepOpenResult opened = StepFile::open(path);
/// if (opened.file && opened.file->index(tableFor(opened.file->header().schemaNames())))
///     use(*opened.file);
/// \endcode
///
/// Broken records do not end the reading: it goes on at the next record, and `messages` tells.
/// Look-up tables are made when first needed, inside const operations too; use one file from one
/// thread at a time. After `prepareReading` several threads may take records apart and look up ids.
class HOSTSTEP_EXPORT StepFile
{
public:
    using ClassNumber = StepKeywordTable::ClassNumber;
    /// Told how many bytes of how many are done; false asks to stop.
    using Progress = std::function<bool(std::uint64_t done, std::uint64_t total)>;

    /// "There is no such record."
    static constexpr RecordIndex noRecord = 0xffffffffU;

    /// How the bytes of a record end.
    enum class Ending : std::uint8_t
    {
        Complete,         ///< With its `;`.
        MissingSemicolon, ///< The next record begins before there is one.
        UnclosedText,     ///< The next record begins inside a text.
        EndOfFile,        ///< The file ends before.
    };

    ~StepFile();
    StepFile(StepFile const&) = delete;
    StepFile& operator=(StepFile const&) = delete;

    /// Reads \p path and its header. Records are there after `index`.
    static StepOpenResult open(std::filesystem::path const& path, Progress const& progress = {});
    static StepOpenResult fromBytes(platform::FileBytes bytes);
    static StepOpenResult fromText(std::string_view text);

    [[nodiscard]] StepHeader const& header() const;

    /// Finds all records, in one pass over the bytes. Calling it again makes the index anew.
    ///
    /// A record that is not ended is taken to end before the next line that begins one. The escape
    /// `\S\'` hides its apostrophe, unless a text would have no end that way.
    /// \returns false when \p progress asked to stop.
    bool index(StepKeywordTable const& table, Progress const& progress = {});

    /// What was found wrong so far.
    [[nodiscard]] StepMessages const& messages() const;

    [[nodiscard]] RecordIndex recordCount() const;
    [[nodiscard]] InstanceId idOf(RecordIndex record) const;
    /// The number the table gives its keyword; `StepKeywordTable::unknown` for other keywords
    /// and for records of several keywords.
    [[nodiscard]] ClassNumber classOf(RecordIndex record) const;
    /// The keyword as it stands; empty for a record of several keywords.
    [[nodiscard]] std::string_view keywordOf(RecordIndex record) const;
    /// From `#` up to and including `;`. A record that is cut off ends before the next one.
    [[nodiscard]] std::string_view bytesOf(RecordIndex record) const;
    [[nodiscard]] Ending endingOf(RecordIndex record) const;
    /// All places within a record, found in one go.
    [[nodiscard]] StepRecordExtent extentOf(RecordIndex record) const;
    /// What stands behind the opening parenthesis of the arguments, up to the end of the record:
    /// the arguments, the closing parenthesis and the rest. Empty for a record of several keywords.
    [[nodiscard]] std::string_view argumentsOf(RecordIndex record) const;

    /// Makes what `extentOf`, `classOf` and `indexOf` need, so that several threads may call them and read
    /// records with `StepRecordParser`.
    void prepareReading() const;
    /// The record with this id; the first, when several have it. `noRecord` without one.
    [[nodiscard]] RecordIndex indexOf(InstanceId id) const;
    /// The same for many ids, in their order.
    [[nodiscard]] std::vector<RecordIndex> indicesOf(std::span<InstanceId const> ids) const;
    /// Whether an earlier record has the same id, so that no reference leads to this one.
    [[nodiscard]] bool isDuplicate(RecordIndex record) const;
    /// Records of a class in the order of the file. Valid until the next `index`.
    [[nodiscard]] std::span<RecordIndex const> recordsOf(ClassNumber number) const;
    /// How many records each class has, by its number.
    [[nodiscard]] std::vector<std::uint32_t> const& classCounts() const;

    /// The highest id of a record, 0 without records.
    [[nodiscard]] InstanceId highestId() const;
    /// An id that no record has and no record refers to, though there may be no such record;
    /// so are all ids above it. 0 when the file uses up all numbers.
    [[nodiscard]] InstanceId firstFreeId() const;

    [[nodiscard]] std::string_view bytes() const;
    /// Line of a byte, counted from 1; lines end with LF, CR LF or CR.
    [[nodiscard]] std::uint64_t lineOf(std::size_t position) const;
    [[nodiscard]] std::uint64_t lineOfRecord(RecordIndex record) const;
    [[nodiscard]] std::size_t positionOf(RecordIndex record) const;
    /// A hint for who asks for \p records one after the other and has come to the one at \p position: those a
    /// little further on are brought near. What is no record of the file does not matter.
    void expectNext(std::span<RecordIndex const> records, std::size_t position) const;

    /// Just behind the last complete record of the last DATA section, or behind the section's
    /// head when it has none: where new records go. 0 without a DATA section.
    [[nodiscard]] std::size_t insertPosition() const;

    /// Where the bytes came from; empty without a file.
    [[nodiscard]] std::filesystem::path const& path() const;
    [[nodiscard]] std::optional<platform::FileStamp> const& stamp() const;
    /// Says that \p path now has the state \p stamp through our own doing.
    void noteSaved(std::filesystem::path const& path, platform::FileStamp const& stamp);

private:
    struct Private;

    explicit StepFile(platform::FileBytes bytes);

    std::unique_ptr<Private> m_private;
};

/// Where the parts of a record stand.
struct StepRecordExtent
{
    /// As `StepFile::bytesOf`.
    std::string_view bytes;
    /// What stands behind the equals sign.
    std::string_view body;
    /// As `StepFile::keywordOf` and `StepFile::argumentsOf`.
    std::string_view keyword;
    std::string_view arguments;
    StepFile::Ending ending = StepFile::Ending::Complete;
    bool isComplex = false;
    /// False when an apostrophe behind `\S\` ends a text in this record; see `StepFile::index`.
    bool escapesHideApostrophes = true;
};

/// What opening a file gives.
struct HOSTSTEP_EXPORT StepOpenResult
{
    /// Null when the file is refused or reading was cancelled; the messages say why.
    std::unique_ptr<StepFile> file;
    StepMessages messages;
    bool cancelled = false;
};

} // namespace qev::step
