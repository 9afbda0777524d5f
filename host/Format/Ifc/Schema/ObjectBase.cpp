#include "Format/Ifc/Schema/ObjectBase.h"

#include "Core/String/Ascii.h"
#include "Core/String/Hash.h"

namespace qev::ifc::def::schema {

ObjectBase::ObjectBase(std::string_view name)
    : m_name(name)
    , m_nameUpper(str::toUpper(name))
    , m_hash(str::fnv1a(m_nameUpper))
{
}

ObjectBase::~ObjectBase() = default;

} // namespace qev::ifc::def::schema
