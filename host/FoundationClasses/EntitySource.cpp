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

void EntitySource::expect(EntityIndex) const {}

AttributeReader::~AttributeReader() = default;
AttributeWriter::~AttributeWriter() = default;

} // namespace qev::fc
