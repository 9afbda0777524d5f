#include "FoundationClasses/EntitySource.h"

#include "FoundationClasses/AttributeReader.h"
#include "FoundationClasses/AttributeWriter.h"

namespace qev::fc {

EntitySource::~EntitySource() = default;
AttributeReader::~AttributeReader() = default;
AttributeWriter::~AttributeWriter() = default;

} // namespace qev::fc
