#pragma once

#include "Format/Ifc/Schema/Entity.h"

#include <memory>

namespace qev::ifc::def::schema {

class DataTypeEnum;
class Select;
class Type;

/// The declarations of one version of the standard. Made by `parseSchema`; does not change afterwards.
class HOSTIFCSCHEMA_EXPORT Schema
{
public:
    ~Schema();
    Schema(Schema const&) = delete;
    Schema& operator=(Schema const&) = delete;

    /// The name that files carry, for example "IFC4X3_TC1".
    [[nodiscard]] std::string const& name() const { return m_name; }

    /// The object whose name in capitals is \p nameUpper; null when there is none.
    [[nodiscard]] ObjectBase const* find(std::string_view nameUpper) const;
    /// The same with the hash of the name already known.
    [[nodiscard]] ObjectBase const* find(std::string_view nameUpper, std::uint32_t hash) const;
    /// As `find`; null also when the object is something else than an entity.
    [[nodiscard]] Entity const* findEntity(std::string_view nameUpper) const;
    /// The entity of a name in the schema's own spelling, "IfcWall".
    [[nodiscard]] Entity const* findEntityByName(std::string_view entityName) const;
    /// The entity of a class number; null for 0 and numbers beyond the last.
    [[nodiscard]] Entity const* entityFromNumber(unsigned int number) const;

    /// The declarations by kind, in the order of the schema.
    [[nodiscard]] std::vector<Entity const*> const& entities() const { return m_entities; }
    [[nodiscard]] std::vector<Type const*> const& types() const { return m_types; }
    [[nodiscard]] std::vector<DataTypeEnum const*> const& enumerations() const { return m_enumerations; }
    [[nodiscard]] std::vector<Select const*> const& selects() const { return m_selects; }
    /// The classes without a supertype, by character code of their names.
    [[nodiscard]] std::vector<Entity const*> const& roots() const { return m_roots; }

private:
    friend class SchemaTextReader;
    Schema();

    void sortNames();
    void numberEntities();

    std::string m_name;
    std::vector<std::unique_ptr<ObjectBase>> m_objects;
    // Base types have no name to be found by.
    std::vector<std::unique_ptr<Type>> m_baseTypes;
    std::vector<ObjectBase const*> m_sorted;
    std::vector<Entity const*> m_entities;
    std::vector<Type const*> m_types;
    std::vector<DataTypeEnum const*> m_enumerations;
    std::vector<Select const*> m_selects;
    std::vector<Entity const*> m_roots;
    std::vector<Entity const*> m_entitiesByNumber;
};

} // namespace qev::ifc::def::schema
