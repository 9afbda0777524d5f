#pragma once

#include "Format/Ifc/Schema/ObjectBase.h"

#include <vector>

namespace qev::ifc::def::schema {

/// An enumeration with its items in the order of the schema.
class HOSTIFCSCHEMA_EXPORT DataTypeEnum final : public ObjectBase
{
public:
    ~DataTypeEnum() override;

    [[nodiscard]] std::vector<std::string> const& values() const { return m_values; }
    [[nodiscard]] bool hasValue(std::string_view value) const;

private:
    friend class SchemaTextReader;
    DataTypeEnum(std::string_view name, std::vector<std::string> values);

    std::vector<std::string> m_values;
};

} // namespace qev::ifc::def::schema
