#include "Format/Ifc/Schema/AttributeBase.h"

#include "Format/Ifc/Schema/Type.h"

namespace qev::ifc {

using def::schema::DeclaredType;
using def::schema::Type;

// The base kinds have the same numbers in both.
static_assert(static_cast<int>(AttributeType::Real) == static_cast<int>(Type::BaseKind::Real));
static_assert(static_cast<int>(AttributeType::Logical) == static_cast<int>(Type::BaseKind::Logical));

AttributeType AttributeBase::TypeFromSchemaAttribute(def::schema::Attribute const& attribute)
{
    DeclaredType const& first = attribute.declaredTypes().front();
    if (first.isAggregate())
        return AttributeType::Aggregate;
    if (first.kind == DeclaredType::Kind::Entity)
        return AttributeType::Entity;
    if (first.kind == DeclaredType::Kind::Select)
        return AttributeType::Select;
    auto const* const type = dynamic_cast<Type const*>(first.dataType);
    if (!type)
        return AttributeType::Enumeration;
    return type->isAggregate() ? AttributeType::Aggregate : static_cast<AttributeType>(type->baseKind());
}

} // namespace qev::ifc
