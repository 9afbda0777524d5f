#include "Format/Ifc/Model/FileSource.h"

#include "Format/Ifc/Model/OwnUnits.h"
#include "Format/Ifc/Model/ValueConversion.h"
#include "FoundationClasses/AttributeOperations.h"
#include "FoundationClasses/AttributeReader.h"
#include "FoundationClasses/Data.h"

#include <utility>

namespace qev::ifc {

namespace {

using step::StepMessage;
using step::StepValue;

std::string describe(StepValue const& value)
{
    switch (value.kind()) {
    case StepValue::Kind::Unset: return "$";
    case StepValue::Kind::Derived: return "*";
    case StepValue::Kind::Integer:
    case StepValue::Kind::Real: return "a number";
    case StepValue::Kind::Text: return "a text";
    case StepValue::Kind::Enumeration: return "." + value.textValue() + ".";
    case StepValue::Kind::Binary: return "a binary";
    case StepValue::Kind::Reference: return "#" + std::to_string(value.referenceId());
    case StepValue::Kind::Typed: return value.textValue() + "(...)";
    case StepValue::Kind::List: return "a list";
    }
    return {};
}

std::optional<step::RecordIndex> projectOf(step::StepFile const& file, VersionSchema const& version)
{
    auto const projects = file.recordsOf(FileSource::keywordTable(version).find("IFCPROJECT"));
    return projects.empty() ? std::nullopt : std::optional(projects.front());
}

} // namespace

/// Knows the record being read: its units, and where messages about it belong.
class FileSource::Reader final : public fc::AttributeReader
{
public:
    Reader(FileSource& source, fc::Data& data, fc::EntityIndex index)
        : m_source(source), m_data(data), m_index(index)
    {}

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

    void mismatch(fc::AttributeDescriptor const& attribute, std::string_view expected, StepValue const& found) override
    {
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
};

FileSource::FileSource(std::unique_ptr<step::StepFile> file, VersionSchema const& version)
    : m_file(std::move(file))
    , m_version(version)
    , m_parser(*m_file)
    , m_units(*m_file, projectOf(*m_file, version))
    , m_told(m_file->recordCount())
{}

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
    ClassMapping const* const mapping = mappingOf(index);
    return mapping ? mapping->classNumber() : std::uint16_t{0};
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
    auto const argumentOf = [&](unsigned int slot) -> StepValue const* {
        int const fileSlot = mapping.fileSlot(slot);
        return fileSlot >= 0 && static_cast<std::size_t>(fileSlot) < arguments.size()
                   ? &arguments[static_cast<std::size_t>(fileSlot)]
                   : nullptr;
    };
    for (unsigned int slot = 0; slot < entityClass.attributes.size(); ++slot) {
        StepValue const* const argument = argumentOf(slot);
        if (!argument || argument->isUnset() || argument->kind() == StepValue::Kind::Derived)
            continue;
        auto const unitSlot = ownUnitSlot(entityClass, slot);
        StepValue const* const unit = unitSlot ? argumentOf(*unitSlot) : nullptr;
        reader.setOwnUnit(unit ? unit->referenceId() : 0);
        fc::AttributeDescriptor const& attribute = *entityClass.attributes[slot];
        auto const& operations = *attribute.operations;
        if (!mapping.changesValueForm(slot))
            operations.read(entity.attribute(slot), attribute, *argument, reader);
        else
            operations.read(entity.attribute(slot), attribute,
                            toModelForm(*argument, *mapping.fileAttribute(slot), attribute, *m_file), reader);
    }
    m_arguments = std::move(arguments);
}

void FileSource::forEachReference(fc::EntityIndex index, unsigned int slot,
                                  std::function<void(fc::EntityIndex)> const& visit) const
{
    ClassMapping const* const mapping = mappingOf(index);
    int const fileSlot = mapping ? mapping->fileSlot(slot) : ClassMapping::noSlot;
    if (fileSlot < 0)
        return;
    m_parser.forEachReference(index, static_cast<std::size_t>(fileSlot), [this, &visit](step::InstanceId id) {
        step::RecordIndex const record = m_file->indexOf(id);
        if (record != step::StepFile::noRecord)
            visit(record);
    });
}

void FileSource::check(fc::EntityIndex index, fc::Data& data)
{
    Reader reader(*this, data, index);
    if (!mappingOf(index)) {
        if (!m_file->keywordOf(index).empty())
            reader.tell("expected a class of " + m_version.fileSchema().name() + ", found " + std::string(m_file->keywordOf(index)));
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
