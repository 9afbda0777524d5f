#include "Format/Ifc/Schema/Type.h"

namespace qev::ifc::def::schema {

Type::Type(std::string_view name)
    : ObjectBase(name)
{
}

Type::~Type() = default;

Type const* Type::underlying() const
{
    return isBaseType() ? nullptr : dynamic_cast<Type const*>(m_definition.back().dataType);
}

Type::BaseKind Type::baseKind() const
{
    Type const* type = this;
    while (Type const* next = type->underlying())
        type = next;
    return type->m_baseKind;
}

bool Type::isAggregate() const
{
    for (Type const* type = this; type; type = type->underlying()) {
        if (!type->isBaseType() && type->m_definition.front().isAggregate())
            return true;
    }
    return false;
}

} // namespace qev::ifc::def::schema
