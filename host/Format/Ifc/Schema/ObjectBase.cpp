#include "Format/Ifc/Schema/ObjectBase.h"

#include "Core/String/Ascii.h"
#include "Format/Ifc/Schema/NameHash.h"

namespace qev::ifc::def::schema {

std::string toUpperName(std::string_view name) { return str::toUpper(name); }

ObjectBase::ObjectBase(std::string_view name)
    : m_name(name)
    , m_nameUpper(toUpperName(name))
    , m_hash(nameHash(m_nameUpper))
{
}

ObjectBase::~ObjectBase() = default;

} // namespace qev::ifc::def::schema
