#pragma once

#include "Format/Ifc/Schema/Schema.h"
#include "Format/Ifc/Schema/TextError.h"
#include "Format/Ifc/Schema/TextScanner.h"

#include <unordered_map>

namespace qev::ifc::def::schema {

/// Builds one schema from its text: first all declarations by name, then what they refer to.
class SchemaTextReader
{
public:
    SchemaTextReader(std::string_view text, std::vector<TextError>& errors);

    /// Null when there was any error.
    std::unique_ptr<Schema> read();

private:
    struct Pending
    {
        std::size_t line;
        std::string_view text;
    };
    struct PendingType
    {
        Type* type;
        Pending definition;
    };
    struct PendingSelect
    {
        Select* select;
        Pending members;
    };
    struct PendingAttribute
    {
        std::string_view name;
        bool isOptional;
        Pending type;
    };
    struct PendingEntity
    {
        Entity* entity;
        Pending supertype;
        std::vector<PendingAttribute> attributes;
        std::vector<Pending> derived;
        std::vector<Pending> inverse;
    };

    void readDeclarations();
    void readDeclaration(std::string_view line);
    void readName(WordScanner& words);
    void readType(WordScanner& words);
    void readEnumeration(WordScanner& words);
    void readSelect(WordScanner& words);
    void readEntity(WordScanner& words, bool isAbstract);
    void readMember(std::string_view line);

    void resolveTypes();
    void resolveSelects();
    void resolveSupertypes();
    void resolveAttributes(PendingEntity const& pending);
    void resolveDerived(PendingEntity const& pending);
    void resolveInverse(PendingEntity const& pending);
    void resolveInverse(Entity& entity, Pending const& pending);

    DeclaredTypes declaredTypes(Pending const& pending);
    DeclaredType aggregateLevel(std::size_t line, std::string_view word);
    DeclaredType innermostLevel(Pending const& pending);
    ObjectBase const* objectOrBaseType(Pending const& pending);
    Type const* baseType(std::string_view text);
    Attribute const* attributeOf(Entity const& entity, std::string_view name) const;
    Entity* entityNamed(std::size_t line, std::string_view name);

    template <class Object>
    Object* declare(std::unique_ptr<Object> object);
    void fail(std::size_t line, std::string message);
    bool expect(bool condition, std::string_view message);

    LineScanner m_lines;
    std::vector<TextError>& m_errors;
    std::size_t m_errorsBefore;
    std::unique_ptr<Schema> m_schema;
    std::unordered_map<std::string_view, ObjectBase*> m_objects;
    std::unordered_map<std::string_view, Type const*> m_baseTypes;
    std::vector<PendingType> m_pendingTypes;
    std::vector<PendingSelect> m_pendingSelects;
    std::vector<PendingEntity> m_pendingEntities;
};

} // namespace qev::ifc::def::schema
