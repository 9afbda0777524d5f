#pragma once

#include "Format/Ifc/Step/StepMessage.h"
#include "Format/Ifc/Step/StepPatch.h"
#include "FoundationClasses/Data.h"
#include "HostIfcModelExport.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace qev::ifc::def::schema {
class Entity;
}

namespace qev::ifc {

class FileSource;
class IfcFile;

/// What opening a file gives: the file, or the reason why there is none.
struct OpenResult
{
    /// Null when the file is refused or opening was cancelled.
    std::unique_ptr<IfcFile> file;
    /// What was found wrong; the reason of a refusal among it.
    std::vector<step::StepMessage> messages;
    bool cancelled = false;
};

/// What became of a save.
struct SaveResult
{
    step::StepSaveResult::Status status = step::StepSaveResult::Status::Saved;
    /// Why it was not saved.
    std::string text;
    /// Changes that the file's version of the standard has no place for, each with its entity. They stay
    /// in the model and are not in the file.
    std::vector<std::string> notStored;

    [[nodiscard]] bool saved() const { return status == step::StepSaveResult::Status::Saved; }
};

/// An IFC file and its model.
///
/// Opening reads the bytes and indexes the records; entities are made when asked for. Saving writes every
/// record that no edit touched byte for byte as it was read, in the file's own version of the standard, and
/// replaces the target in one step.
class HOSTIFCMODEL_EXPORT IfcFile
{
public:
    /// Told how many bytes of how many are done, at first as they are read and then, anew, as their records
    /// are found; false asks to stop.
    using Progress = std::function<bool(std::uint64_t done, std::uint64_t total)>;

    /// Opens a file. What can be read of a broken one is opened, with messages; only a file without
    /// a usable header or data section is refused.
    static OpenResult open(std::filesystem::path const& path, Progress const& progress = {});
    /// The same for the text of a file.
    static OpenResult fromText(std::string_view text);

    ~IfcFile();
    IfcFile(IfcFile const&) = delete;
    IfcFile& operator=(IfcFile const&) = delete;

    [[nodiscard]] std::shared_ptr<fc::Data> const& data() const { return m_data; }
    /// Empty for a model that did not come from a file.
    [[nodiscard]] std::filesystem::path const& path() const;

    /// The FILE_SCHEMA name as it stands in the file.
    [[nodiscard]] std::string const& schemaName() const { return m_schemaName; }
    [[nodiscard]] std::string originatingSystem() const;
    [[nodiscard]] std::string timeStamp() const;
    /// How many records each class of the file has, by its schema name; unknown ones by their keyword.
    [[nodiscard]] std::map<std::string, std::size_t> countsByClass() const;
    [[nodiscard]] std::size_t recordCount() const;

    /// What was found wrong so far: at opening, and in the records that became entities since.
    [[nodiscard]] std::vector<step::StepMessage> messages() const;
    /// How many messages were only counted, for there were too many.
    [[nodiscard]] std::uint64_t droppedMessages() const;
    /// Reads every record to find out what is wrong with it. Entities made meanwhile are let go again.
    void check();

    /// The id of an entity's record, also of one that will be new in the file.
    [[nodiscard]] step::InstanceId idOf(fc::EntityIndex index) const;
    [[nodiscard]] std::shared_ptr<fc::FcBase> entityFromId(step::InstanceId id) const;
    /// The entity with this global id; when several have it, the first one of the class with the lowest
    /// number.
    [[nodiscard]] std::shared_ptr<fc::FcBase> entityFromGlobalId(std::string_view globalId) const;

    /// Saves to \p target, which may be the file itself.
    SaveResult save(std::filesystem::path const& target,
                    step::StepPatch::IfChanged ifChanged = step::StepPatch::IfChanged::Refuse,
                    Progress const& progress = {});
    /// The text of the file as `save` would write it.
    [[nodiscard]] std::string toText();

private:
    class Writer;

    IfcFile(std::shared_ptr<fc::Data> data, FileSource& source);
    static OpenResult index(step::StepOpenResult opened, Progress const& progress);

    step::StepPatch makePatch(std::vector<std::string>& notStored);
    void patchChanges(step::StepPatch& patch, fc::EntityIndex index, std::vector<std::string>& notStored);
    void patchAddition(step::StepPatch& patch, fc::EntityIndex index, std::vector<std::string>& notStored);
    /// The class by which an entity stands in the file; null when it has none there.
    [[nodiscard]] def::schema::Entity const* fileClassOf(fc::EntityIndex index) const;
    /// "IfcWall #12.Name", for messages.
    [[nodiscard]] std::string nameOf(fc::FcBase const& entity, unsigned int slot) const;
    void giveIds();
    /// The record with this global id as it stands in the file.
    [[nodiscard]] std::optional<fc::EntityIndex> placeOfGlobalId(std::string_view globalId) const;
    /// The same without taking the global ids of other records.
    [[nodiscard]] std::optional<fc::EntityIndex> searchGlobalId(std::string_view globalId) const;
    /// The global id of a record as it stands in the bytes of the file; nothing when there is none.
    [[nodiscard]] std::optional<std::string_view> globalIdAt(fc::EntityIndex index) const;

    std::shared_ptr<fc::Data> m_data;
    FileSource& m_source;
    std::string m_schemaName;
    /// There for a file of a version that is not known exactly.
    std::optional<step::StepMessage> m_versionMessage;
    /// Ids of entities that were created since the file was read. Once given, an id stays.
    std::map<fc::EntityIndex, step::InstanceId> m_newIds;
    step::InstanceId m_nextId = 0;
    /// The records of all entities with a global id, once somebody asked for one, and the first of them that
    /// is not in `m_globalIds` yet: reading ends with the one that was asked for.
    mutable std::optional<std::vector<fc::EntityIndex>> m_rooted;
    mutable std::size_t m_nextRooted = 0;
    mutable unsigned int m_globalIdSearches = 0;
    /// Places by global id as it stands in the bytes of the file.
    mutable std::unordered_map<std::string_view, fc::EntityIndex> m_globalIds;
};

} // namespace qev::ifc
