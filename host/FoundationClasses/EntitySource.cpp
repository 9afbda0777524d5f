#include "FoundationClasses/EntitySource.h"

#include "FoundationClasses/AttributeReader.h"
#include "FoundationClasses/AttributeWriter.h"

namespace qev::fc {

EntitySource::~EntitySource() = default;

void EntitySource::appendRecordsOfClass(std::uint16_t number, std::vector<EntityIndex>& records) const
{
    auto const end = static_cast<EntityIndex>(count());
    for (EntityIndex index = 0; index < end; ++index) {
        if (classNumber(index) == number)
            records.push_back(index);
    }
}

void EntitySource::appendReferences(std::span<EntityIndex const> records, unsigned int slot,
                                    std::vector<std::pair<EntityIndex, EntityIndex>>& references) const
{
    for (EntityIndex const record : records)
        forEachReference(record, slot, [&](EntityIndex target) { references.emplace_back(target, record); });
}

void EntitySource::appendReferring(std::span<EntityIndex const> records, unsigned int slot,
                                   EntityIndex target, std::vector<EntityIndex>& referring) const
{
    for (EntityIndex const record : records) {
        bool refers = false;
        forEachReference(record, slot, [&](EntityIndex found) { refers = refers || found == target; });
        if (refers)
            referring.push_back(record);
    }
}

bool EntitySource::readText(EntityIndex, unsigned int, std::optional<std::string>&) const { return false; }

AttributeReader::~AttributeReader() = default;
AttributeWriter::~AttributeWriter() = default;

} // namespace qev::fc
