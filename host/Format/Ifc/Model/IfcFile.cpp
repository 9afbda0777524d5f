#include "Format/Ifc/Model/IfcFile.h"

#include "Format/Ifc/Model/FileSource.h"
#include "Format/Ifc/Model/OwnUnits.h"
#include "Format/Ifc/Model/Spelling.h"
#include "Format/Ifc/Model/ValueConversion.h"
#include "Format/Ifc/Schema/Entity.h"
#include "Format/Ifc/Step/RecordSearch.h"
#include "Format/Ifc/Step/StepWriter.h"
#include "FoundationClasses/AttributeOperations.h"
#include "FoundationClasses/AttributeWriter.h"
#include "FoundationClasses/Core/Kernel/FcRelationship.h"
#include "FoundationClasses/Core/Kernel/FcRoot.h"

#include <algorithm>

namespace qev::ifc {

namespace {

using fc::core::kernel::FcRelationship;
using fc::core::kernel::FcRoot;
using step::StepMessage;
using step::StepValue;

StepMessage inexactVersion(std::string const& name, VersionMapping::Version const& version)
{
    bool const isClose = version.certainty == VersionMapping::Certainty::Close;
    return {isClose ? StepMessage::Severity::Warning : StepMessage::Severity::Error, 0, std::nullopt,
            "expected an IFC schema that is known in FILE_SCHEMA, found '" + name + "'; it is read as " +
                version.schema->fileSchema().name()};
}

bool holdsNoEntity(fc::AttributeBase const& value, fc::AttributeDescriptor const& attribute)
{
    bool isEmpty = true;
    attribute.operations->visitReferences(
        value, [&isEmpty](fc::ReferenceBase const& reference) { isEmpty = isEmpty && !reference.isSet(); });
    return isEmpty;
}

/// Whether edits took away all entities at an end of a relation. A file must not have such a relation, and it
/// says nothing; the model keeps it, for an undone edit brings the entities back.
bool hasLostAnEnd(fc::FcBase const& relation, bool isCreated)
{
    auto const attributes = relation.getEntityClass().attributes;
    for (unsigned int slot = 0; slot < attributes.size(); ++slot) {
        auto const& attribute = *attributes[slot];
        bool const isEnd =
            attribute.depth > 0 && !attribute.isOptional &&
            (attribute.kind == fc::ValueKind::Reference || attribute.kind == fc::ValueKind::Select);
        bool const isEdited = isCreated || (relation.changedSlots() >> slot & 1) != 0;
        if (isEnd && isEdited && holdsNoEntity(relation.attribute(slot), attribute))
            return true;
    }
    return false;
}

} // namespace

/// Writes entities in the version and the units of the file.
class IfcFile::Writer final : public fc::AttributeWriter
{
public:
    explicit Writer(IfcFile const& file)
        : m_file(file)
    {
    }

    void setOwnUnit(step::InstanceId unit) { m_ownUnit = unit; }

    [[nodiscard]] step::InstanceId idOf(fc::ReferenceBase const& reference) const override
    {
        return reference.isSet() ? m_file.idOf(reference.index()) : 0;
    }

    [[nodiscard]] fc::UnitScale scaleOf(std::string_view measureType) const override
    {
        FileUnits const& units = m_file.m_source.units();
        return m_ownUnit == 0 ? units.scaleOf(measureType) : units.scaleOf(measureType, m_ownUnit);
    }

    /// The attribute at a slot as the file's version has it. No value when it has no form for it.
    std::optional<StepValue> value(fc::FcBase const& entity, unsigned int slot,
                                   def::schema::Attribute const& fileAttribute)
    {
        fc::EntityClass const& entityClass = entity.getEntityClass();
        fc::AttributeDescriptor const& attribute = *entityClass.attributes[slot];
        setOwnUnit(0);
        if (auto const unitSlot = ownUnitSlot(entityClass, slot)) {
            fc::AttributeDescriptor const& unit = *entityClass.attributes[*unitSlot];
            unit.operations->visitReferences(
                entity.attribute(*unitSlot),
                [this](fc::ReferenceBase const& reference) { setOwnUnit(idOf(reference)); });
        }
        auto value =
            toFileForm(attribute.operations->write(entity.attribute(slot), attribute, *this), fileAttribute);
        return value && value->kind() == StepValue::Kind::Reference
                   ? permittedReference(entity, slot, fileAttribute)
                   : value;
    }

    /// The arguments of a new record.
    std::vector<StepValue> arguments(fc::FcBase const& entity, ClassMapping const& mapping,
                                     std::vector<std::string>& notStored)
    {
        auto const& fileAttributes = mapping.fileEntity().attributes();
        std::vector<StepValue> values(fileAttributes.size());
        for (std::size_t i = 0; i < fileAttributes.size(); ++i) {
            if (mapping.fileEntity().isDerived(*fileAttributes[i]))
                values[i] = StepValue::derived();
        }
        auto const attributes = entity.getEntityClass().attributes;
        for (unsigned int slot = 0; slot < attributes.size(); ++slot) {
            if (attributes[slot]->operations->isUnset(entity.attribute(slot)))
                continue;
            int const fileSlot = mapping.fileSlot(slot);
            if (fileSlot < 0) {
                notStored.push_back(m_file.nameOf(entity, slot));
                continue;
            }
            StepValue& place = values[static_cast<std::size_t>(fileSlot)];
            if (place.kind() == StepValue::Kind::Derived)
                continue;
            if (auto value = this->value(entity, slot, *mapping.fileAttribute(slot)))
                place = std::move(*value);
            else
                notStored.push_back(m_file.nameOf(entity, slot));
        }
        for (std::size_t i = 0; i < values.size(); ++i) {
            if (values[i].isUnset())
                values[i] = toFileFormOfUnset(*fileAttributes[i]);
        }
        return values;
    }

private:
    /// The entity that an attribute refers to. Where the file's version does not let it refer there, what
    /// that entity itself refers to by the same attribute: older versions know no chains of classification
    /// codes.
    std::optional<StepValue> permittedReference(fc::FcBase const& entity, unsigned int slot,
                                                def::schema::Attribute const& fileAttribute)
    {
        // Longer chains lead back to where they began.
        constexpr int mostSteps = 100;
        auto index = referenceOf(entity, slot);
        for (int step = 0; step < mostSteps && index; ++step) {
            def::schema::Entity const* const fileClass = m_file.fileClassOf(*index);
            if (!fileClass || takesClass(fileAttribute, *fileClass))
                return StepValue::reference(m_file.idOf(*index));
            auto const next = m_file.m_data->entity(*index);
            bool const isOfSameClass = next && &next->getEntityClass() == &entity.getEntityClass();
            index = isOfSameClass ? referenceOf(*next, slot) : std::nullopt;
        }
        return std::nullopt;
    }

    static std::optional<fc::EntityIndex> referenceOf(fc::FcBase const& entity, unsigned int slot)
    {
        std::optional<fc::EntityIndex> index;
        fc::AttributeDescriptor const& attribute = *entity.getEntityClass().attributes[slot];
        attribute.operations->visitReferences(entity.attribute(slot),
                                              [&index](fc::ReferenceBase const& reference) {
                                                  if (reference.isSet())
                                                      index = reference.index();
                                              });
        return index;
    }

    IfcFile const& m_file;
    step::InstanceId m_ownUnit = 0;
};

OpenResult IfcFile::open(std::filesystem::path const& path, Progress const& progress)
{
    return index(step::StepFile::open(path, progress), progress);
}

OpenResult IfcFile::fromText(std::string_view text) { return index(step::StepFile::fromText(text), {}); }

OpenResult IfcFile::index(step::StepOpenResult opened, Progress const& progress)
{
    OpenResult result;
    result.messages = opened.messages.all();
    result.cancelled = opened.cancelled;
    if (!opened.file)
        return result;
    auto const names = opened.file->header().schemaNames();
    std::string const name = names.empty() ? std::string() : names.front();
    VersionMapping::Version const version = VersionMapping::curr().fromFileSchema(name);
    if (!opened.file->index(FileSource::keywordTable(*version.schema), progress)) {
        result.cancelled = true;
        return result;
    }
    auto source = std::make_unique<FileSource>(std::move(opened.file), *version.schema);
    FileSource& reference = *source;
    auto data = fc::Data::create(std::move(source));
    result.file.reset(new IfcFile(std::move(data), reference));
    result.file->m_schemaName = name;
    if (version.certainty != VersionMapping::Certainty::Exact)
        result.file->m_versionMessage = inexactVersion(name, version);
    result.messages = result.file->messages();
    return result;
}

IfcFile::IfcFile(std::shared_ptr<fc::Data> data, FileSource& source)
    : m_data(std::move(data))
    , m_source(source)
{
}

IfcFile::~IfcFile() = default;

std::filesystem::path const& IfcFile::path() const { return m_source.file().path(); }

std::string IfcFile::originatingSystem() const { return m_source.file().header().originatingSystem(); }

std::string IfcFile::timeStamp() const { return m_source.file().header().timeStamp(); }

std::size_t IfcFile::recordCount() const { return m_source.file().recordCount(); }

std::map<std::string, std::size_t> IfcFile::countsByClass() const
{
    std::map<std::string, std::size_t> counts;
    step::StepFile const& file = m_source.file();
    auto const& byNumber = file.classCounts();
    for (std::uint16_t number = 1; number < byNumber.size(); ++number) {
        if (byNumber[number] > 0)
            counts[m_source.mappingFromNumber(number)->fileEntity().name()] = byNumber[number];
    }
    for (step::RecordIndex const record : file.recordsOf(step::StepKeywordTable::unknown))
        ++counts[std::string(file.keywordOf(record))];
    return counts;
}

std::vector<StepMessage> IfcFile::messages() const
{
    std::vector<StepMessage> all;
    if (m_versionMessage)
        all.push_back(*m_versionMessage);
    for (auto const* const messages : {&m_source.file().messages().all(), &m_source.messages().all()})
        all.insert(all.end(), messages->begin(), messages->end());
    return all;
}

std::uint64_t IfcFile::droppedMessages() const
{
    return m_source.file().messages().dropped() + m_source.messages().dropped();
}

void IfcFile::check()
{
    std::size_t const count = m_source.count();
    for (std::size_t i = 0; i < count; ++i)
        m_source.check(static_cast<fc::EntityIndex>(i), *m_data);
}

step::InstanceId IfcFile::idOf(fc::EntityIndex index) const
{
    if (index < m_source.count())
        return m_source.file().idOf(index);
    auto const found = m_newIds.find(index);
    return found == m_newIds.end() ? 0 : found->second;
}

std::shared_ptr<fc::FcBase> IfcFile::entityFromId(step::InstanceId id) const
{
    step::RecordIndex const record = m_source.file().indexOf(id);
    if (record != step::StepFile::noRecord)
        return m_data->entity(record);
    auto const found = std::find_if(m_newIds.begin(), m_newIds.end(),
                                    [id](auto const& entry) { return entry.second == id; });
    return found == m_newIds.end() ? nullptr : m_data->entity(found->first);
}

std::shared_ptr<fc::FcBase> IfcFile::entityFromGlobalId(std::string_view globalId) const
{
    if (auto const place = placeOfGlobalId(globalId)) {
        constexpr std::uint64_t globalIdBit = 1; // that of slot 0
        auto entity = m_data->entity(*place);
        if (entity && (entity->changedSlots() & globalIdBit) == 0)
            return entity;
    }
    for (fc::EntityIndex const index : m_data->touchedEntities()) {
        auto entity = m_data->entity(index);
        if (auto const root = fc::entityCast<FcRoot>(entity); root && root->GlobalId.get() == globalId)
            return entity;
    }
    return nullptr;
}

std::optional<fc::EntityIndex> IfcFile::placeOfGlobalId(std::string_view globalId) const
{
    if (auto const found = m_globalIds.find(globalId); found != m_globalIds.end())
        return found->second;
    if (!m_rooted) {
        m_rooted.emplace();
        for (unsigned int number = FcRoot::idFirst; number <= FcRoot::idLast; ++number)
            m_source.appendRecordsOfClass(static_cast<std::uint16_t>(number), *m_rooted);
    }
    // Who asks for one object or two does not wait until the global ids of others are taken from their
    // records.
    constexpr unsigned int searchesBeforeReading = 3;
    if (m_globalIdSearches < searchesBeforeReading && !globalId.empty()) {
        ++m_globalIdSearches;
        return searchGlobalId(globalId);
    }
    // Mostly it is an object that is asked for, and sets and relations, which come last, are many.
    std::vector<fc::EntityIndex> const& records = *m_rooted;
    while (m_nextRooted < records.size()) {
        m_source.file().expectNext(records, m_nextRooted);
        fc::EntityIndex const record = records[m_nextRooted++];
        auto const found = globalIdAt(record);
        if (!found)
            continue;
        m_globalIds.emplace(*found, record);
        if (*found == globalId)
            return record;
    }
    return std::nullopt;
}

std::optional<fc::EntityIndex> IfcFile::searchGlobalId(std::string_view globalId) const
{
    std::vector<fc::EntityIndex> const& records = *m_rooted;
    auto const search = step::RecordSearch::forBytes(m_source.file(), globalId);
    for (std::size_t i = search.next(records, 0); i < records.size(); i = search.next(records, i + 1)) {
        if (globalIdAt(records[i]) == globalId)
            return records[i];
    }
    return std::nullopt;
}

std::optional<std::string_view> IfcFile::globalIdAt(fc::EntityIndex index) const
{
    int const slot = m_source.mappingOf(index)->fileSlot(0);
    if (slot < 0)
        return std::nullopt;
    auto const span =
        step::StepRecordParser(m_source.file()).argumentSpan(index, static_cast<std::size_t>(slot));
    return span && span->size() >= 2 ? std::optional(span->substr(1, span->size() - 2)) : std::nullopt;
}

std::string IfcFile::nameOf(fc::FcBase const& entity, unsigned int slot) const
{
    std::string name(entity.getEntityName());
    name += " #" + std::to_string(idOf(entity.getIndex())) + ".";
    name += entity.getEntityClass().attributes[slot]->name;
    return name;
}

def::schema::Entity const* IfcFile::fileClassOf(fc::EntityIndex index) const
{
    ClassMapping const* const mapping = index < m_source.count()
                                            ? m_source.mappingOf(index)
                                            : m_source.version().forNewObject(m_data->classNumber(index));
    return mapping ? &mapping->fileEntity() : nullptr;
}

void IfcFile::giveIds()
{
    for (fc::EntityIndex const index : m_data->touchedEntities()) {
        if (!m_data->isCreated(index) || m_data->isDeleted(index) || m_newIds.contains(index))
            continue;
        // A free id takes a look at every reference of the file, and most edits create nothing.
        if (m_nextId == 0)
            m_nextId = m_source.file().firstFreeId();
        m_newIds.emplace(index, m_nextId++);
    }
}

void IfcFile::patchChanges(step::StepPatch& patch, fc::EntityIndex index, std::vector<std::string>& notStored)
{
    auto const entity = m_data->entity(index);
    ClassMapping const& mapping = *m_source.mappingOf(index);
    step::StepRecordParser const parser(m_source.file());
    Writer writer(*this);
    std::vector<std::pair<std::size_t, std::string>> texts;
    for (unsigned int slot = 0; slot < entity->getEntityClass().attributes.size(); ++slot) {
        if ((entity->changedSlots() >> slot & 1) == 0)
            continue;
        int const fileSlot = mapping.fileSlot(slot);
        auto const place = static_cast<std::size_t>(fileSlot);
        auto const value =
            fileSlot >= 0 ? writer.value(*entity, slot, *mapping.fileAttribute(slot)) : std::nullopt;
        auto const before = fileSlot >= 0 ? parser.argumentSpan(index, place) : std::nullopt;
        if (value && before)
            texts.emplace_back(place, respelled(*before, *value));
        else
            notStored.push_back(nameOf(*entity, slot));
    }
    if (!texts.empty() && !patch.replaceArguments(index, texts))
        notStored.push_back(std::string(entity->getEntityName()) + " #" + std::to_string(idOf(index)));
}

void IfcFile::patchAddition(step::StepPatch& patch, fc::EntityIndex index,
                            std::vector<std::string>& notStored)
{
    auto const entity = m_data->entity(index);
    ClassMapping const* const mapping = m_source.version().forNewObject(m_data->classNumber(index));
    if (!mapping) {
        notStored.push_back(std::string(entity->getEntityName()) + " #" + std::to_string(idOf(index)));
        return;
    }
    Writer writer(*this);
    patch.appendRecord(idOf(index), mapping->fileEntity().nameUpper(),
                       step::StepWriter::arguments(writer.arguments(*entity, *mapping, notStored)));
}

step::StepPatch IfcFile::makePatch(std::vector<std::string>& notStored)
{
    giveIds();
    step::StepPatch patch(m_source.file());
    for (fc::EntityIndex const index : m_data->touchedEntities()) {
        bool const isCreated = m_data->isCreated(index);
        auto const relation = fc::entityCast<FcRelationship>(m_data->entity(index));
        if (m_data->isDeleted(index) || (relation && hasLostAnEnd(*relation, isCreated))) {
            if (!isCreated)
                patch.removeRecord(index);
        } else if (isCreated) {
            patchAddition(patch, index, notStored);
        } else {
            patchChanges(patch, index, notStored);
        }
    }
    return patch;
}

SaveResult IfcFile::save(std::filesystem::path const& target, step::StepPatch::IfChanged ifChanged,
                         Progress const& progress)
{
    SaveResult result;
    step::StepPatch const patch = makePatch(result.notStored);
    auto const saved = step::StepPatch::save(m_source.file(), patch, target, ifChanged, progress);
    result.status = saved.status;
    result.text = saved.text;
    if (saved.saved())
        m_data->changes().setSaved();
    return result;
}

std::string IfcFile::toText()
{
    std::vector<std::string> notStored;
    return makePatch(notStored).toText();
}

} // namespace qev::ifc
