#include "Model/ModelBuilder.h"

#include "Core/String/Ascii.h"
#include "Format/Ifc/Schema/DataTypeEnum.h"
#include "Format/Ifc/Schema/Entity.h"
#include "Format/Ifc/Schema/Select.h"
#include "Format/Ifc/Schema/Type.h"
#include "Model/CppNames.h"
#include "Model/InputError.h"

#include <algorithm>
#include <array>

namespace qev::schemacompiler {

namespace {

namespace schema = ifc::def::schema;

/// The value of a property and its families, which are written by hand.
constexpr std::array<std::string_view, 4> valueSelects = {"IfcValue", "IfcSimpleValue", "IfcMeasureValue",
                                                          "IfcDerivedMeasureValue"};
constexpr unsigned int maximumSlots = 64;

bool isValueSelect(std::string const& name)
{
    return std::find(valueSelects.begin(), valueSelects.end(), name) != valueSelects.end();
}

Kind kindOfBase(schema::Type::BaseKind kind)
{
    using Base = schema::Type::BaseKind;
    switch (kind) {
    case Base::Real:
        return Kind::Real;
    case Base::Number:
        return Kind::Real;
    case Base::Boolean:
        return Kind::Boolean;
    case Base::Integer:
        return Kind::Integer;
    case Base::String:
        return Kind::Text;
    case Base::Binary:
        return Kind::Binary;
    case Base::Logical:
        return Kind::Logical;
    }
    return Kind::Text;
}

unsigned int aggregateLevels(schema::DeclaredTypes const& levels)
{
    return static_cast<unsigned int>(
        std::count_if(levels.begin(), levels.end(), [](auto const& level) { return level.isAggregate(); }));
}

/// A defined type is followed to what its values are made of; it keeps its own name.
void followDefinedType(schema::Type const& type, ElementType& result)
{
    if (type.isBaseType()) {
        result.kind = kindOfBase(type.baseKind());
        return;
    }
    result.depth += aggregateLevels(type.definition());
    schema::ObjectBase const* const underlying = type.definition().back().dataType;
    if (auto const* const next = dynamic_cast<schema::Type const*>(underlying))
        followDefinedType(*next, result);
    else
        result.kind = Kind::Reference;
}

ElementType elementType(schema::ObjectBase const& type)
{
    ElementType result;
    result.name = type.name();
    if (dynamic_cast<schema::Entity const*>(&type))
        result.kind = Kind::Reference;
    else if (dynamic_cast<schema::DataTypeEnum const*>(&type))
        result.kind = Kind::Enumeration;
    else if (dynamic_cast<schema::Select const*>(&type))
        result.kind = isValueSelect(type.name()) ? Kind::Value : Kind::Select;
    else
        followDefinedType(dynamic_cast<schema::Type const&>(type), result);
    return result;
}

class Builder
{
public:
    Builder(schema::Schema const& declarations, GroupTable const& groups, std::string const& groupFile,
            HandwrittenClasses const& handwritten)
        : m_schema(declarations)
        , m_groups(groups)
        , m_groupFile(groupFile)
        , m_handwritten(handwritten)
    {
    }

    ClassModel build(std::string const& source)
    {
        checkTables();
        m_model.source = source;
        addEntities();
        addEnumerations();
        for (schema::Select const* const select : m_schema.selects())
            addSelect(*select);
        for (std::string const& group : m_groups.groups) {
            if (std::any_of(m_model.entities.begin(), m_model.entities.end(),
                            [&](EntityModel const& entity) { return entity.group == group; }))
                m_model.groups.push_back(group);
        }
        return std::move(m_model);
    }

private:
    void checkTables() const
    {
        for (auto const& [name, entry] : m_groups.entries) {
            auto const* const object = m_schema.find(str::toUpper(name));
            if (!dynamic_cast<schema::Entity const*>(object) && !dynamic_cast<schema::Select const*>(object))
                throw InputError(m_groupFile, entry.line,
                                 name + " is no entity or select of " + m_schema.name());
        }
        for (auto const& [name, line] : m_handwritten.classes)
            checkHandwritten<schema::Entity>(name, line, "entity");
        for (auto const& [name, line] : m_handwritten.selects)
            checkHandwritten<schema::Select>(name, line, "select");
        for (auto const& [name, member] : m_handwritten.members)
            checkMember(name, member.line);
    }

    schema::ObjectBase const* findClass(std::string const& cppName) const
    {
        return cppName.starts_with("Fc") ? m_schema.find(str::toUpper("Ifc" + cppName.substr(2))) : nullptr;
    }

    template <class T>
    void checkHandwritten(std::string const& name, unsigned int line, std::string const& what) const
    {
        if (!dynamic_cast<T const*>(findClass(name)))
            throw InputError(m_handwritten.file, line, name + " is no " + what + " of " + m_schema.name());
    }

    void checkMember(std::string const& name, unsigned int line) const
    {
        auto const dot = name.find('.');
        auto const* const entity = dynamic_cast<schema::Entity const*>(findClass(name.substr(0, dot)));
        bool const isKnown = entity && dot != std::string::npos &&
                             std::any_of(entity->ownAttributes().begin(), entity->ownAttributes().end(),
                                         [&](auto const& own) { return own.name() == name.substr(dot + 1); });
        if (!isKnown)
            throw InputError(m_handwritten.file, line, name + " is no attribute of " + m_schema.name());
    }

    std::string groupOf(std::string const& name) const
    {
        auto const found = m_groups.entries.find(name);
        return found == m_groups.entries.end() ? std::string() : found->second.group;
    }

    static unsigned int slotOf(schema::Entity const& entity, std::string const& attribute)
    {
        auto const& all = entity.attributes();
        auto const found = std::find_if(all.begin(), all.end(),
                                        [&](auto const* other) { return other->name() == attribute; });
        return static_cast<unsigned int>(found - all.begin());
    }

    void addEntities()
    {
        for (unsigned int number = 1; schema::Entity const* entity = m_schema.entityFromNumber(number);
             ++number) {
            m_model.entityPositions[entity->name()] = m_model.entities.size();
            m_model.entities.push_back(entityModel(*entity));
        }
    }

    EntityModel entityModel(schema::Entity const& entity) const
    {
        EntityModel result;
        result.name = entity.name();
        if (entity.supertype())
            result.supertype = entity.supertype()->name();
        result.group = groupOf(entity.name());
        if (result.group.empty())
            throw InputError(m_groupFile, 0, entity.name() + " has no group");
        result.isAbstract = entity.isAbstract();
        result.isHandwritten = m_handwritten.classes.contains(className(entity.name()));
        result.first = entity.firstNumber();
        result.last = entity.lastNumber();
        result.slotCount = static_cast<unsigned int>(entity.attributes().size());
        if (result.slotCount > maximumSlots)
            throw InputError(m_schema.name(), 0, entity.name() + " has more than 64 attributes");
        for (unsigned int slot = 0; slot < result.slotCount; ++slot) {
            if (entity.isDerived(*entity.attributes()[slot]))
                result.derivedSlots |= std::uint64_t(1) << slot;
        }
        unsigned int slot = result.slotCount - static_cast<unsigned int>(entity.ownAttributes().size());
        for (schema::Attribute const& attribute : entity.ownAttributes())
            result.attributes.push_back(attributeModel(attribute, className(entity.name()), slot++));
        for (schema::InverseAttribute const& inverse : entity.inverseAttributes())
            result.inverses.push_back({inverse.name, inverse.referrer->name(),
                                       slotOf(*inverse.referrer, inverse.referringAttribute)});
        return result;
    }

    AttributeModel attributeModel(schema::Attribute const& attribute, std::string const& owner,
                                  unsigned int slot) const
    {
        AttributeModel result;
        result.name = attribute.name();
        result.type = elementType(attribute.dataType());
        result.type.depth += aggregateLevels(attribute.declaredTypes());
        result.isOptional = attribute.isOptional();
        result.slot = slot;
        if (auto const found = m_handwritten.members.find(owner + "." + attribute.name());
            found != m_handwritten.members.end()) {
            result.memberClass = found->second.className;
            result.memberHeader = found->second.header;
        }
        return result;
    }

    void addEnumerations()
    {
        for (schema::DataTypeEnum const* const enumeration : m_schema.enumerations())
            m_model.enumerations.push_back({enumeration->name(), enumeration->values()});
    }

    /// A nested select goes first, so that its table can be named by the table of the outer one.
    void addSelect(schema::Select const& select)
    {
        if (m_model.selectPositions.contains(select.name()))
            return;
        SelectModel result;
        result.name = select.name();
        result.group = groupOf(select.name());
        result.hasClass = !isValueSelect(select.name());
        result.isHandwritten = m_handwritten.selects.contains(className(select.name()));
        for (schema::ObjectBase const* const member : select.members()) {
            if (auto const* const nested = dynamic_cast<schema::Select const*>(member))
                addSelect(*nested);
            result.members.push_back(memberModel(*member));
        }
        std::sort(result.members.begin(), result.members.end(),
                  [](auto const& a, auto const& b) { return a.name < b.name; });
        m_model.selectPositions[result.name] = m_model.selects.size();
        m_model.selects.push_back(std::move(result));
    }

    static SelectMemberModel memberModel(schema::ObjectBase const& member)
    {
        using Role = SelectMemberModel::Role;
        if (dynamic_cast<schema::Entity const*>(&member))
            return {member.name(), Role::Entity, {}};
        if (dynamic_cast<schema::Select const*>(&member))
            return {member.name(), Role::Select, {}};
        return {member.name(), Role::Type, elementType(member)};
    }

    schema::Schema const& m_schema;
    GroupTable const& m_groups;
    std::string const& m_groupFile;
    HandwrittenClasses const& m_handwritten;
    ClassModel m_model;
};

} // namespace

ClassModel buildModel(ifc::def::schema::Schema const& schema, GroupTable const& groups,
                      std::string const& groupFile, HandwrittenClasses const& handwritten,
                      std::string const& source)
{
    return Builder(schema, groups, groupFile, handwritten).build(source);
}

} // namespace qev::schemacompiler
