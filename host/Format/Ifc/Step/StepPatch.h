#pragma once

#include "Core/Platform/FileStamp.h"
#include "Format/Ifc/Step/StepFile.h"
#include "HostStepExport.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace qev::step {

/// What became of a save.
struct StepSaveResult
{
    enum class Status : std::uint8_t
    {
        Saved,
        ChangedMeanwhile, ///< Another program wrote the file since it was read; nothing was written.
        Failed,           ///< No permission, disk full and the like; the old file stands as it was.
        Cancelled,
    };

    Status status = Status::Failed;
    /// For people; empty when saved.
    std::string text;

    [[nodiscard]] bool saved() const { return status == Status::Saved; }
};

/// Changes to a file, laid over its bytes when it is saved.
///
/// Each byte that no change touches is written as it was read. A changed argument changes
/// between its commas only; a removed record takes its line along when it is alone there; new records
/// follow the last one, with the line ends, indentation and blanks of the file.
/// Without changes a save gives the same bytes.
///
/// A patch describes the difference to what the file held when it was read, so it stays good
/// after a save and may be changed further. It must not outlive the file.
class HOSTSTEP_EXPORT StepPatch
{
public:
    using Sink = std::function<void(std::string_view)>;
    using Progress = StepFile::Progress;

    explicit StepPatch(StepFile const& file);

    /// Each text stands in the place of the argument whose slot it is paired with, as STEP spells it.
    /// A later call for the same argument takes the place of the earlier one.
    /// \returns false, and changes nothing, when the record is broken or lacks one of the arguments.
    bool replaceArguments(RecordIndex record, std::span<std::pair<std::size_t, std::string> const> texts);

    /// \returns false for a record that does not end properly, for then nobody knows what would be removed.
    bool removeRecord(RecordIndex record);

    /// A new record with an id that is free (`StepFile::firstFreeId`); \p arguments as they stand between the
    /// parentheses.
    void appendRecord(InstanceId id, std::string_view keyword, std::string_view arguments);

    [[nodiscard]] bool empty() const;

    /// The whole new content, piece by piece.
    void write(Sink const& sink) const;
    [[nodiscard]] std::string toText() const;

    enum class IfChanged : std::uint8_t
    {
        Refuse,
        Overwrite
    };

    /// Writes the new content to \p target in one step; the target may be the file itself.
    /// \p ifChanged says what to do when that is where the bytes came from and another program wrote
    /// it since. After a save to a path, \p file takes it for its own.
    static StepSaveResult save(StepFile& file, StepPatch const& patch, std::filesystem::path const& target,
                               IfChanged ifChanged = IfChanged::Refuse, Progress const& progress = {});

private:
    struct Piece;

    [[nodiscard]] std::vector<Piece> pieces() const;
    [[nodiscard]] Piece removal(RecordIndex record) const;
    [[nodiscard]] Piece insertion() const;

    struct Appended
    {
        InstanceId id;
        std::string keyword;
        std::string arguments;
    };

    struct Replacement
    {
        std::size_t position;
        std::size_t length;
        std::string text;
    };

    StepFile const* m_file;
    std::map<RecordIndex, std::map<std::size_t, Replacement>> m_replaced;
    std::set<RecordIndex> m_removed;
    std::vector<Appended> m_appended;
};

} // namespace qev::step
