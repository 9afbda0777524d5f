#include "Format/Ifc/Model/FileSource.h"

#include "Core/Platform/HelperThread.h"
#include "Format/Ifc/Model/OwnUnits.h"
#include "Format/Ifc/Model/ValueConversion.h"
#include "Format/Ifc/Step/RecordSearch.h"
#include "FoundationClasses/AttributeOperations.h"
#include "FoundationClasses/AttributeReader.h"
#include "FoundationClasses/Data.h"
#include "FoundationClasses/Resource/GeometricConstraint/FcLocalPlacement.h"
#include "FoundationClasses/Resource/Property/FcComplexProperty.h"
#include "FoundationClasses/Resource/Quantity/FcPhysicalComplexQuantity.h"

#include <algorithm>
#include <utility>

namespace qev::ifc {

namespace {

using step::StepMessage;
using step::StepValue;

std::string describe(StepValue const& value)
{
    switch (value.kind()) {
    case StepValue::Kind::Unset:
        return "$";
    case StepValue::Kind::Derived:
        return "*";
    case StepValue::Kind::Integer:
    case StepValue::Kind::Real:
        return "a number";
    case StepValue::Kind::Text:
        return "a text";
    case StepValue::Kind::Enumeration:
        return "." + value.textValue() + ".";
    case StepValue::Kind::Binary:
        return "a binary";
    case StepValue::Kind::Reference:
        return "#" + std::to_string(value.referenceId());
    case StepValue::Kind::Typed:
        return value.textValue() + "(...)";
    case StepValue::Kind::List:
        return "a list";
    }
    return {};
}

template <class Whole>
std::optional<unsigned int> slotIfA(std::uint16_t classNumber, char const* attribute)
{
    if (classNumber < Whole::idFirst || classNumber > Whole::idLast)
        return std::nullopt;
    return fc::slotFromName(Whole::staticEntityClass(), attribute);
}

/// The attribute that leads from a record to others of its like, of which it must not be one itself.
std::optional<unsigned int> slotOfParts(std::uint16_t classNumber)
{
    if (auto const slot = slotIfA<fc::resource::property::FcComplexProperty>(classNumber, "HasProperties"))
        return slot;
    if (auto const slot =
            slotIfA<fc::resource::quantity::FcPhysicalComplexQuantity>(classNumber, "HasQuantities"))
        return slot;
    return slotIfA<fc::resource::geometricconstraint::FcLocalPlacement>(classNumber, "PlacementRelTo");
}

std::optional<step::RecordIndex> projectOf(step::StepFile const& file, VersionSchema const& version)
{
    ClassMapping const* const project = version.find("IFCPROJECT");
    if (!project)
        return std::nullopt;
    // The table of keywords counts the mappings from 1.
    auto const number = static_cast<std::uint16_t>(project - version.mappings().data() + 1);
    auto const projects = file.recordsOf(number);
    return projects.empty() ? std::nullopt : std::optional(projects.front());
}

} // namespace

/// Knows the record being read: its units, and where messages about it belong.
class FileSource::Reader final : public fc::AttributeReader
{
public:
    Reader(FileSource& source, fc::Data& data, fc::EntityIndex index)
        : m_source(source)
        , m_data(data)
        , m_index(index)
    {
    }

    void setOwnUnit(step::InstanceId unit) { m_ownUnit = unit; }

    [[nodiscard]] fc::Data& data() const override { return m_data; }

    [[nodiscard]] fc::EntityIndex indexFromId(step::InstanceId id) const override
    {
        step::RecordIndex const record = m_source.m_file->indexOf(id);
        return record == step::StepFile::noRecord ? fc::noEntity : record;
    }

    [[nodiscard]] fc::UnitScale scaleOf(std::string_view measureType) const override
    {
        return m_ownUnit == 0 ? m_source.m_units.scaleOf(measureType)
                              : m_source.m_units.scaleOf(measureType, m_ownUnit);
    }

    /// What the file's own version says of the attribute being read; null when it is the model's version.
    void setFileAttribute(def::schema::Attribute const* attribute) { m_fileAttribute = attribute; }

    void mismatch(fc::AttributeDescriptor const& attribute, std::string_view expected,
                  StepValue const& found) override
    {
        auto const classOf = [this](step::InstanceId id) { return m_source.fileEntityOf(id); };
        if (m_fileAttribute && fitsFileVersion(found, *m_fileAttribute, classOf))
            return;
        std::string text(attribute.name);
        text += ": expected ";
        text += expected;
        text += ", found " + describe(found);
        tell(std::move(text));
    }

    void tell(std::string text)
    {
        if (m_source.m_told[m_index] || m_source.m_messages.full())
            return;
        step::StepFile const& file = *m_source.m_file;
        m_source.m_messages.add(
            {StepMessage::Severity::Error, file.lineOfRecord(m_index), file.idOf(m_index), std::move(text)});
    }

private:
    FileSource& m_source;
    fc::Data& m_data;
    fc::EntityIndex m_index;
    step::InstanceId m_ownUnit = 0;
    def::schema::Attribute const* m_fileAttribute = nullptr;
};

FileSource::FileSource(std::unique_ptr<step::StepFile> file, VersionSchema const& version)
    : m_file(std::move(file))
    , m_version(version)
    , m_parser(*m_file)
    , m_units(*m_file, projectOf(*m_file, version))
    , m_classNumbers(version.mappings().size() + 1)
    , m_readings(m_classNumbers.size())
    , m_keywordNumbers(fc::FcBase::idLast + 1)
    , m_told(m_file->recordCount())
{
    for (std::size_t i = 0; i < version.mappings().size(); ++i)
        m_classNumbers[i + 1] = version.mappings()[i].classNumber();
    for (std::size_t i = 0; i < m_classNumbers.size(); ++i)
        m_keywordNumbers[m_classNumbers[i]].push_back(static_cast<std::uint16_t>(i));
}

FileSource::~FileSource() = default;

step::StepKeywordTable FileSource::keywordTable(VersionSchema const& version)
{
    step::StepKeywordTable table;
    std::uint16_t number = step::StepKeywordTable::unknown;
    for (ClassMapping const& mapping : version.mappings())
        table.add(mapping.fileEntity().name(), ++number);
    return table;
}

ClassMapping const* FileSource::mappingFromNumber(std::uint16_t number) const
{
    return number == step::StepKeywordTable::unknown ? nullptr : &m_version.mappings()[number - 1u];
}

ClassMapping const* FileSource::mappingOf(fc::EntityIndex index) const
{
    return mappingFromNumber(m_file->classOf(index));
}

std::size_t FileSource::count() const { return m_file->recordCount(); }

std::uint16_t FileSource::classNumber(fc::EntityIndex index) const
{
    return m_classNumbers[m_file->classOf(index)];
}

void FileSource::appendRecordsOfClass(std::uint16_t number, std::vector<fc::EntityIndex>& records) const
{
    auto const before = static_cast<std::ptrdiff_t>(records.size());
    for (std::uint16_t const keyword : m_keywordNumbers[number]) {
        auto const found = m_file->recordsOf(keyword);
        records.insert(records.end(), found.begin(), found.end());
    }
    // Several classes of an older version may be one of the model.
    if (m_keywordNumbers[number].size() > 1)
        std::sort(records.begin() + before, records.end());
}

void FileSource::read(fc::EntityIndex index, fc::Data& data, fc::FcBase& entity)
{
    readRecord(index, data, entity);
    m_told[index] = true;
}

void FileSource::readRecord(fc::EntityIndex index, fc::Data& data, fc::FcBase& entity)
{
    Reader reader(*this, data, index);
    // Reading may lead to other records, so each takes the buffer with it for its time.
    std::vector<StepValue> arguments = std::move(m_arguments);
    m_parser.parse(index, arguments, m_told[index] ? nullptr : &m_messages);
    ClassMapping const& mapping = *mappingOf(index);
    if (arguments.size() != mapping.fileSlotCount())
        reader.tell("expected " + std::to_string(mapping.fileSlotCount()) + " arguments of " +
                    mapping.fileEntity().name() + ", found " + std::to_string(arguments.size()));
    fc::EntityClass const& entityClass = entity.getEntityClass();
    bool const isOtherVersion = &m_version.fileSchema() != &m_version.modelSchema();
    for (SlotReading const& reading : readingOf(index, entityClass)) {
        if (reading.fileSlot >= arguments.size())
            continue;
        StepValue const& argument = arguments[reading.fileSlot];
        if (argument.isUnset() || argument.kind() == StepValue::Kind::Derived)
            continue;
        auto const unitSlot = static_cast<std::size_t>(reading.unitFileSlot);
        bool const hasUnit = reading.unitFileSlot != ClassMapping::noSlot && unitSlot < arguments.size();
        reader.setOwnUnit(hasUnit ? arguments[unitSlot].referenceId() : 0);
        def::schema::Attribute const& fileAttribute = *mapping.fileAttribute(reading.slot);
        if (isFileFormOfUnsetList(argument, fileAttribute))
            continue;
        reader.setFileAttribute(isOtherVersion ? &fileAttribute : nullptr);
        fc::AttributeDescriptor const& attribute = *entityClass.attributes[reading.slot];
        auto const& operations = *attribute.operations;
        if (!reading.changesValueForm)
            operations.read(entity.attribute(reading.slot), attribute, argument, reader);
        else
            operations.read(entity.attribute(reading.slot), attribute,
                            toModelForm(argument, fileAttribute, attribute, *m_file), reader);
    }
    m_arguments = std::move(arguments);
}

FileSource::ClassReading const& FileSource::readingOf(fc::EntityIndex index,
                                                      fc::EntityClass const& entityClass)
{
    auto& reading = m_readings[m_file->classOf(index)];
    if (!reading)
        reading = makeReading(*mappingOf(index), entityClass);
    return *reading;
}

FileSource::ClassReading FileSource::makeReading(ClassMapping const& mapping,
                                                 fc::EntityClass const& entityClass)
{
    ClassReading readings;
    for (unsigned int slot = 0; slot < entityClass.attributes.size(); ++slot) {
        int const fileSlot = mapping.fileSlot(slot);
        if (fileSlot == ClassMapping::noSlot)
            continue;
        auto const unitSlot = ownUnitSlot(entityClass, slot);
        readings.push_back({slot, static_cast<std::size_t>(fileSlot),
                            unitSlot ? mapping.fileSlot(*unitSlot) : ClassMapping::noSlot,
                            mapping.changesValueForm(slot)});
    }
    return readings;
}

int FileSource::fileSlotOf(fc::EntityIndex index, unsigned int slot) const
{
    ClassMapping const* const mapping = mappingOf(index);
    return mapping ? mapping->fileSlot(slot) : ClassMapping::noSlot;
}

void FileSource::forEachReference(fc::EntityIndex index, unsigned int slot,
                                  std::function<void(fc::EntityIndex)> const& visit) const
{
    int const fileSlot = fileSlotOf(index, slot);
    if (fileSlot < 0)
        return;
    auto const slotOfRecord = static_cast<std::size_t>(fileSlot);
    if (!isLong(index)) {
        visitReferencesOf(index, slotOfRecord, visit);
        return;
    }
    auto known = m_longRecords.find({index, slotOfRecord});
    if (known == m_longRecords.end()) {
        constexpr std::size_t few = 16;
        std::vector<fc::EntityIndex> references;
        visitReferencesOf(index, slotOfRecord,
                          [&references](fc::EntityIndex found) { references.push_back(found); });
        if (references.size() > few) {
            std::for_each(references.begin(), references.end(), visit);
            return;
        }
        known = m_longRecords.emplace(std::pair(index, slotOfRecord), std::move(references)).first;
    }
    std::for_each(known->second.begin(), known->second.end(), visit);
}

void FileSource::visitReferencesOf(fc::EntityIndex index, std::size_t fileSlot,
                                   std::function<void(fc::EntityIndex)> const& visit) const
{
    m_parser.forEachReference(index, fileSlot, [this, &visit](step::InstanceId id) {
        step::RecordIndex const record = m_file->indexOf(id);
        if (record != step::StepFile::noRecord)
            visit(record);
    });
}

bool FileSource::isLong(fc::EntityIndex index) const
{
    constexpr std::size_t longRecord = 4096;
    bool const isLast = index + 1 == m_file->recordCount();
    std::size_t const end = isLast ? m_file->bytes().size() : m_file->positionOf(index + 1);
    return end - m_file->positionOf(index) > longRecord;
}

void FileSource::appendReferences(std::span<fc::EntityIndex const> records, unsigned int slot,
                                  References& references) const
{
    // Fewer are read before a thread has begun.
    constexpr std::size_t few = 4096;
    if (records.size() < few) {
        readReferences(records, slot, references);
        return;
    }
    // The records lie apart, and nearly all of the time goes into waiting for them to come from memory. Two
    // threads wait half as long.
    m_file->prepareReading();
    auto const half = records.subspan(records.size() / 2);
    References further;
    auto helper = platform::startHelper([&] { readReferences(half, slot, further); });
    readReferences(records.first(records.size() / 2), slot, references);
    if (helper.valid())
        helper.get();
    else
        readReferences(half, slot, further);
    references.insert(references.end(), further.begin(), further.end());
}

void FileSource::readReferences(std::span<fc::EntityIndex const> records, unsigned int slot,
                                References& references) const
{
    std::vector<step::InstanceId> ids;
    std::vector<fc::EntityIndex> referring;
    for (std::size_t i = 0; i < records.size(); ++i) {
        m_file->expectNext(records, i);
        int const fileSlot = fileSlotOf(records[i], slot);
        if (fileSlot < 0)
            continue;
        m_parser.forEachReference(records[i], static_cast<std::size_t>(fileSlot),
                                  [&](step::InstanceId id) { ids.push_back(id); });
        referring.resize(ids.size(), records[i]);
    }
    auto const targets = m_file->indicesOf(ids);
    references.reserve(references.size() + targets.size());
    for (std::size_t i = 0; i < targets.size(); ++i) {
        if (targets[i] != step::StepFile::noRecord)
            references.emplace_back(targets[i], referring[i]);
    }
}

void FileSource::appendReferring(std::span<fc::EntityIndex const> records, unsigned int slot,
                                 fc::EntityIndex target, std::vector<fc::EntityIndex>& referring) const
{
    // References lead to the first record of an id.
    if (m_file->isDuplicate(target))
        return;
    step::InstanceId const id = m_file->idOf(target);
    auto const search = step::RecordSearch::forReferencesTo(*m_file, id);
    for (std::size_t i = search.next(records, 0); i < records.size(); i = search.next(records, i + 1)) {
        int const fileSlot = fileSlotOf(records[i], slot);
        if (fileSlot < 0)
            continue;
        bool refers = false;
        m_parser.forEachReference(records[i], static_cast<std::size_t>(fileSlot),
                                  [&](step::InstanceId found) { refers = refers || found == id; });
        if (refers)
            referring.push_back(records[i]);
    }
}

bool FileSource::readText(fc::EntityIndex index, unsigned int slot, std::optional<std::string>& text) const
{
    int const fileSlot = fileSlotOf(index, slot);
    bool const isOtherVersion = &m_version.fileSchema() != &m_version.modelSchema();
    if (fileSlot < 0 || (isOtherVersion && mappingOf(index)->changesValueForm(slot)))
        return false;
    // Whatever else stands there is for the reading of the whole record, which tells what is wrong.
    auto const value = m_parser.parseArgument(index, static_cast<std::size_t>(fileSlot));
    if (!value || (!value->isUnset() && value->kind() != StepValue::Kind::Text))
        return false;
    text = value->isUnset() ? std::nullopt : std::optional(value->textValue());
    return true;
}

void FileSource::check(fc::EntityIndex index, fc::Data& data)
{
    Reader reader(*this, data, index);
    if (!mappingOf(index)) {
        if (!m_file->keywordOf(index).empty())
            reader.tell("expected a class of " + m_version.fileSchema().name() + ", found " +
                        std::string(m_file->keywordOf(index)));
        checkReferences(index);
        m_told[index] = true;
        return;
    }
    fc::EntityClass const* const entityClass = fc::entityClassFromNumber(classNumber(index));
    if (entityClass && entityClass->create && !m_told[index]) {
        readRecord(index, data, *entityClass->create());
    } else if (!m_told[index]) {
        m_parser.parse(index, m_arguments, &m_messages);
        checkReferences(index);
    }
    m_told[index] = true;
    if (containsItself(index) && m_toldCycles.insert(index).second)
        m_messages.add({StepMessage::Severity::Error, m_file->lineOfRecord(index), m_file->idOf(index),
                        "expected parts of its own, found a circle that leads back to the record"});
}

bool FileSource::containsItself(fc::EntityIndex index) const
{
    // Chains that are longer do not occur; a circle in one is found from one of its other records.
    constexpr std::size_t mostSteps = 1000;
    std::vector<fc::EntityIndex> found = {index};
    bool isCircle = false;
    for (std::size_t step = 0; step < found.size() && step < mostSteps && !isCircle; ++step) {
        auto const slot = slotOfParts(classNumber(found[step]));
        if (!slot)
            continue;
        forEachReference(found[step], *slot, [&](fc::EntityIndex part) {
            isCircle = isCircle || part == index;
            if (std::find(found.begin(), found.end(), part) == found.end())
                found.push_back(part);
        });
    }
    return isCircle;
}

def::schema::Entity const* FileSource::fileEntityOf(step::InstanceId id) const
{
    step::RecordIndex const record = m_file->indexOf(id);
    ClassMapping const* const mapping = record == step::StepFile::noRecord ? nullptr : mappingOf(record);
    return mapping ? &mapping->fileEntity() : nullptr;
}

void FileSource::checkReferences(fc::EntityIndex index)
{
    m_parser.forEachReference(index, [this, index](step::InstanceId id) {
        if (m_file->indexOf(id) != step::StepFile::noRecord || m_messages.full())
            return;
        m_messages.add({StepMessage::Severity::Error, m_file->lineOfRecord(index), m_file->idOf(index),
                        "expected a reference to an existing record, found #" + std::to_string(id)});
    });
}

} // namespace qev::ifc
