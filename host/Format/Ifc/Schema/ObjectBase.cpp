#include "Format/Ifc/Schema/ObjectBase.h"

#include "Format/Ifc/Schema/NameHash.h"

namespace qev::ifc::def::schema {

std::string toUpperName(std::string_view name)
{
    std::string upper(name);
    for (char& character : upper) {
        if (character >= 'a' && character <= 'z')
            character = static_cast<char>(character - 'a' + 'A');
    }
    return upper;
}

ObjectBase::ObjectBase(std::string_view name)
    : m_name(name)
    , m_nameUpper(toUpperName(name))
    , m_hash(nameHash(m_nameUpper))
{
}

ObjectBase::~ObjectBase() = default;

} // namespace qev::ifc::def::schema
