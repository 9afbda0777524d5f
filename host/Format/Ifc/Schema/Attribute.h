#pragma once

#include "Format/Ifc/Schema/DeclaredType.h"

#include "HostIfcSchemaExport.h"

#include <string>

namespace qev::ifc::def::schema {

class DataTypeEnum;
class Entity;

/// An explicit attribute: one parameter of an instance.
class HOSTIFCSCHEMA_EXPORT Attribute
{
public:
    [[nodiscard]] std::string const& name() const { return m_name; }
    /// The type as text: "IfcLabel", for aggregates with the structure, "list[1:?] of IfcLabel".
    [[nodiscard]] std::string const& typeName() const { return m_typeName; }
    /// The levels of the type, outermost first; never empty.
    [[nodiscard]] DeclaredTypes const& declaredTypes() const { return m_declaredTypes; }
    [[nodiscard]] bool isOptional() const { return m_isOptional; }
    /// The entity that declares the attribute.
    [[nodiscard]] Entity const& owner() const { return *m_owner; }

    /// True when the first declared type is of the simple kind.
    [[nodiscard]] bool isSimple() const { return m_declaredTypes.front().kind == DeclaredType::Kind::Simple; }
    /// The data type of the innermost level.
    [[nodiscard]] ObjectBase const& dataType() const { return *m_declaredTypes.back().dataType; }
    /// The enumeration that values are items of; null for all other types, aggregates included.
    [[nodiscard]] DataTypeEnum const* enumeration() const;

private:
    friend class SchemaTextReader;
    Attribute() = default;

    std::string m_name;
    std::string m_typeName;
    DeclaredTypes m_declaredTypes;
    bool m_isOptional = false;
    Entity const* m_owner = nullptr;
};

} // namespace qev::ifc::def::schema
