#pragma once

#include "Format/Ifc/Model/FileUnits.h"
#include "Format/Ifc/Schema/VersionMapping.h"
#include "Format/Ifc/Step/StepFile.h"
#include "Format/Ifc/Step/StepRecordParser.h"
#include "FoundationClasses/EntityClass.h"
#include "FoundationClasses/EntitySource.h"
#include "HostIfcModelExport.h"

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace qev::ifc {

/// The records of a STEP file as entities of the model, whatever version of the standard the file has.
///
/// An index of the model is the position of a record in the file. Attributes are matched by name and
/// numbers converted to SI when a record is read. What does not fit is left unset and told in `messages`.
class HOSTIFCMODEL_EXPORT FileSource final : public fc::EntitySource
{
public:
    /// Pairs of target and record.
    using References = std::vector<std::pair<fc::EntityIndex, fc::EntityIndex>>;

    /// \p file is indexed with `keywordTable(version)`.
    FileSource(std::unique_ptr<step::StepFile> file, VersionSchema const& version);
    ~FileSource() override;

    /// The keywords of a version, each with the number that stands for it in the index of the file.
    [[nodiscard]] static step::StepKeywordTable keywordTable(VersionSchema const& version);
    /// The mapping behind such a number; null for an unknown keyword.
    [[nodiscard]] ClassMapping const* mappingFromNumber(std::uint16_t number) const;
    /// The mapping of a record's class; null for an unknown keyword.
    [[nodiscard]] ClassMapping const* mappingOf(fc::EntityIndex index) const;

    [[nodiscard]] std::size_t count() const override;
    [[nodiscard]] std::uint16_t classNumber(fc::EntityIndex index) const override;
    void read(fc::EntityIndex index, fc::Data& data, fc::FcBase& entity) override;
    void forEachReference(fc::EntityIndex index, unsigned int slot,
                          std::function<void(fc::EntityIndex)> const& visit) const override;
    void appendReferences(std::span<fc::EntityIndex const> records, unsigned int slot,
                          References& references) const override;
    void appendReferring(std::span<fc::EntityIndex const> records, unsigned int slot, fc::EntityIndex target,
                         std::vector<fc::EntityIndex>& referring) const override;
    bool readText(fc::EntityIndex index, unsigned int slot, std::optional<std::string>& text) const override;
    void appendRecordsOfClass(std::uint16_t number, std::vector<fc::EntityIndex>& records) const override;

    [[nodiscard]] step::StepFile& file() { return *m_file; }
    [[nodiscard]] step::StepFile const& file() const { return *m_file; }
    [[nodiscard]] VersionSchema const& version() const { return m_version; }
    [[nodiscard]] FileUnits const& units() const { return m_units; }
    /// What was found wrong in the records read so far.
    [[nodiscard]] step::StepMessages const& messages() const { return m_messages; }
    /// Reads a record only to find out what is wrong with it.
    void check(fc::EntityIndex index, fc::Data& data);

private:
    class Reader;

    /// How an attribute is read from a record.
    struct SlotReading
    {
        unsigned int slot = 0;
        std::size_t fileSlot = 0;
        /// Where a unit of the value's own stands; `ClassMapping::noSlot` for a value that has none.
        int unitFileSlot = 0;
        bool changesValueForm = false;
    };
    using ClassReading = std::vector<SlotReading>;

    [[nodiscard]] ClassReading const& readingOf(fc::EntityIndex index, fc::EntityClass const& entityClass);
    [[nodiscard]] static ClassReading makeReading(ClassMapping const& mapping,
                                                  fc::EntityClass const& entityClass);
    void readRecord(fc::EntityIndex index, fc::Data& data, fc::FcBase& entity);
    /// The slot of the file that a slot of the model is read from; negative when the file has none.
    [[nodiscard]] int fileSlotOf(fc::EntityIndex index, unsigned int slot) const;
    void visitReferencesOf(fc::EntityIndex index, std::size_t fileSlot,
                           std::function<void(fc::EntityIndex)> const& visit) const;
    [[nodiscard]] bool isLong(fc::EntityIndex index) const;
    /// Several threads may do so at a time once the file is prepared for it.
    void readReferences(std::span<fc::EntityIndex const> records, unsigned int slot,
                        References& references) const;
    void checkReferences(fc::EntityIndex index);
    /// A property made of properties, and the like, that is a part of one of its parts.
    [[nodiscard]] bool containsItself(fc::EntityIndex index) const;
    /// The class of a record in the file's own version; null for none and for an unknown keyword.
    [[nodiscard]] def::schema::Entity const* fileEntityOf(step::InstanceId id) const;

    std::unique_ptr<step::StepFile> m_file;
    VersionSchema const& m_version;
    step::StepRecordParser m_parser;
    FileUnits m_units;
    step::StepMessages m_messages;
    std::vector<step::StepValue> m_arguments;
    /// By the numbers of keywords: the class in the model, and how its records are read once one was.
    std::vector<std::uint16_t> m_classNumbers;
    std::vector<std::optional<ClassReading>> m_readings;
    /// By class of the model: the numbers of its keywords.
    std::vector<std::vector<std::uint16_t>> m_keywordNumbers;
    /// Of long records, by record and slot of the file: what an argument with few references refers to. Who
    /// asks one object after the other comes back to the same relation of thousands of them.
    mutable std::map<std::pair<fc::EntityIndex, std::size_t>, std::vector<fc::EntityIndex>> m_longRecords;
    /// Records whose messages are known already: one that is let go and read again has no new ones.
    std::vector<bool> m_told;
    std::set<fc::EntityIndex> m_toldCycles;
};

} // namespace qev::ifc
