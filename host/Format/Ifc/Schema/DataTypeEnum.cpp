#include "Format/Ifc/Schema/DataTypeEnum.h"

#include <algorithm>

namespace qev::ifc::def::schema {

DataTypeEnum::DataTypeEnum(std::string_view name, std::vector<std::string> values)
    : ObjectBase(name)
    , m_values(std::move(values))
{
}

DataTypeEnum::~DataTypeEnum() = default;

bool DataTypeEnum::hasValue(std::string_view value) const
{
    return std::find(m_values.begin(), m_values.end(), value) != m_values.end();
}

} // namespace qev::ifc::def::schema
