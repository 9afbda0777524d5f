#pragma once

#include "HostIfcSchemaExport.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace qev::ifc::def::schema {

/// Something that a schema declares under a name: an entity, a defined type, an enumeration or a select.
///
/// Objects belong to their `Schema` and stay where they are for as long as it lives.
class HOSTIFCSCHEMA_EXPORT ObjectBase
{
public:
    virtual ~ObjectBase();
    ObjectBase(ObjectBase const&) = delete;
    ObjectBase& operator=(ObjectBase const&) = delete;

    /// The name as the schema writes it, for example "IfcWall".
    [[nodiscard]] std::string const& name() const { return m_name; }
    /// The name in capitals; names are looked up in this form.
    [[nodiscard]] std::string const& nameUpper() const { return m_nameUpper; }
    /// `str::fnv1a` of `nameUpper`: the first key that a schema sorts its names by.
    [[nodiscard]] std::uint32_t hash() const { return m_hash; }

protected:
    explicit ObjectBase(std::string_view name);

private:
    std::string m_name;
    std::string m_nameUpper;
    std::uint32_t m_hash;
};

} // namespace qev::ifc::def::schema
