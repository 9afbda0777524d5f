#include "Format/Ifc/Schema/SchemaTextReader.h"

#include "Format/Ifc/Schema/DataTypeEnum.h"
#include "Format/Ifc/Schema/Select.h"
#include "Format/Ifc/Schema/Type.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace qev::ifc::def::schema {

namespace {

struct BaseTypeName
{
    std::string_view name;
    Type::BaseKind kind;
};

constexpr std::array<BaseTypeName, 7> baseTypeNames{{{"REAL", Type::BaseKind::Real},
                                                     {"BOOLEAN", Type::BaseKind::Boolean},
                                                     {"INTEGER", Type::BaseKind::Integer},
                                                     {"NUMBER", Type::BaseKind::Number},
                                                     {"STRING", Type::BaseKind::String},
                                                     {"BINARY", Type::BaseKind::Binary},
                                                     {"LOGICAL", Type::BaseKind::Logical}}};

struct AggregateName
{
    std::string_view name;
    DeclaredType::Kind kind;
};

constexpr std::array<AggregateName, 4> aggregateNames{{{"list[", DeclaredType::Kind::List},
                                                       {"set[", DeclaredType::Kind::Set},
                                                       {"bag[", DeclaredType::Kind::Bag},
                                                       {"array[", DeclaredType::Kind::Array}}};

AggregateName const* aggregateNamed(std::string_view text)
{
    for (AggregateName const& aggregate : aggregateNames) {
        if (text.starts_with(aggregate.name))
            return &aggregate;
    }
    return nullptr;
}

template <class Number>
bool parseNumber(std::string_view text, Number& number)
{
    auto const [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size();
}

// "[1:?]" without its first bracket: both bounds, the upper one absent for "?".
bool parseBounds(std::string_view text, DeclaredType& level)
{
    std::size_t const colon = text.find(':');
    if (colon == std::string_view::npos || !text.ends_with(']') ||
        !parseNumber(text.substr(0, colon), level.lower))
        return false;
    std::string_view const upper = text.substr(colon + 1, text.size() - colon - 2);
    if (upper == "?")
        return true;
    std::int64_t number = 0;
    if (!parseNumber(upper, number))
        return false;
    level.upper = number;
    return true;
}

std::string quoted(std::string_view text) { return "\"" + std::string(text) + "\""; }

} // namespace

SchemaTextReader::SchemaTextReader(std::string_view text, std::vector<TextError>& errors)
    : m_lines(text)
    , m_errors(errors)
    , m_errorsBefore(errors.size())
    , m_schema(new Schema)
{
}

std::unique_ptr<Schema> SchemaTextReader::read()
{
    readDeclarations();
    resolveTypes();
    resolveSelects();
    resolveSupertypes();
    if (m_errors.size() != m_errorsBefore)
        return nullptr;
    for (PendingEntity const& pending : m_pendingEntities)
        resolveAttributes(pending);
    for (PendingEntity const& pending : m_pendingEntities) {
        resolveDerived(pending);
        resolveInverse(pending);
    }
    if (m_errors.size() != m_errorsBefore)
        return nullptr;
    m_schema->sortNames();
    return std::move(m_schema);
}

void SchemaTextReader::readDeclarations()
{
    while (m_lines.next()) {
        if (m_lines.isIndented())
            readMember(m_lines.line());
        else
            readDeclaration(m_lines.line());
    }
    if (m_schema->m_name.empty())
        fail(m_lines.number(), "The name of the schema is missing.");
}

void SchemaTextReader::readDeclaration(std::string_view line)
{
    WordScanner words(line);
    std::string_view const keyword = words.next();
    if (keyword == "schema")
        readName(words);
    else if (keyword == "type")
        readType(words);
    else if (keyword == "enumeration")
        readEnumeration(words);
    else if (keyword == "select")
        readSelect(words);
    else if (keyword == "entity")
        readEntity(words, false);
    else if (keyword == "abstract" && words.next() == "entity")
        readEntity(words, true);
    else
        fail(m_lines.number(), "A declaration is expected instead of " + quoted(line) + ".");
}

void SchemaTextReader::readName(WordScanner& words)
{
    m_schema->m_name = words.next();
    expect(!m_schema->m_name.empty() && words.atEnd(), "One name of the schema is expected.");
}

void SchemaTextReader::readType(WordScanner& words)
{
    std::string_view const name = words.next();
    if (!expect(!name.empty() && words.next() == "=" && !words.atEnd(),
                "A name, \"=\" and a type are expected."))
        return;
    if (Type* const type = declare(std::unique_ptr<Type>(new Type(name)))) {
        m_schema->m_types.push_back(type);
        m_pendingTypes.push_back({type, {m_lines.number(), words.rest()}});
    }
}

void SchemaTextReader::readEnumeration(WordScanner& words)
{
    std::string_view const name = words.next();
    if (!expect(!name.empty() && words.next() == "=" && !words.atEnd(),
                "A name, \"=\" and items are expected."))
        return;
    std::vector<std::string> items;
    while (!words.atEnd())
        items.emplace_back(words.next());
    std::unique_ptr<DataTypeEnum> enumeration(new DataTypeEnum(name, std::move(items)));
    if (DataTypeEnum* const declared = declare(std::move(enumeration)))
        m_schema->m_enumerations.push_back(declared);
}

void SchemaTextReader::readSelect(WordScanner& words)
{
    std::string_view const name = words.next();
    if (!expect(!name.empty() && words.next() == "=" && !words.atEnd(),
                "A name, \"=\" and members are expected."))
        return;
    if (Select* const select = declare(std::unique_ptr<Select>(new Select(name)))) {
        m_schema->m_selects.push_back(select);
        m_pendingSelects.push_back({select, {m_lines.number(), words.rest()}});
    }
}

void SchemaTextReader::readEntity(WordScanner& words, bool isAbstract)
{
    std::string_view const name = words.next();
    std::string_view supertype;
    bool isComplete = !name.empty();
    if (!words.atEnd()) {
        isComplete = isComplete && words.next() == ":";
        supertype = words.next();
    }
    if (!expect(isComplete && words.atEnd(), "A name, or a name, \":\" and a supertype are expected."))
        return;
    Entity* const entity = declare(std::unique_ptr<Entity>(new Entity(name)));
    if (!entity)
        return;
    entity->m_isAbstract = isAbstract;
    m_schema->m_entities.push_back(entity);
    m_pendingEntities.push_back({entity, {m_lines.number(), supertype}, {}, {}, {}});
}

void SchemaTextReader::readMember(std::string_view line)
{
    if (!expect(!m_pendingEntities.empty(), "An entity is expected before its attributes."))
        return;
    PendingEntity& entity = m_pendingEntities.back();
    WordScanner words(line);
    std::string_view const first = words.next();
    std::string_view const remaining = words.rest();
    std::string_view const second = words.next();
    if (second == ":" || second == "?")
        entity.attributes.push_back({first, second == "?", {m_lines.number(), words.rest()}});
    else if (first == "derived")
        entity.derived.push_back({m_lines.number(), remaining});
    else if (first == "inverse")
        entity.inverse.push_back({m_lines.number(), remaining});
    else
        fail(m_lines.number(), "An attribute is expected instead of " + quoted(line) + ".");
}

void SchemaTextReader::resolveTypes()
{
    for (PendingType const& pending : m_pendingTypes)
        pending.type->m_definition = declaredTypes(pending.definition);
    for (PendingType const& pending : m_pendingTypes) {
        // A chain longer than the number of types comes back to itself.
        Type const* type = pending.type;
        for (std::size_t step = 0; type; ++step) {
            if (step > m_pendingTypes.size()) {
                fail(pending.definition.line, pending.type->name() + " is defined by itself.");
                break;
            }
            type = type->underlying();
        }
    }
}

void SchemaTextReader::resolveSelects()
{
    for (PendingSelect const& pending : m_pendingSelects) {
        WordScanner words(pending.members.text);
        while (!words.atEnd()) {
            std::string_view const member = words.next();
            auto const found = m_objects.find(member);
            if (found == m_objects.end())
                fail(pending.members.line, quoted(member) + " is not declared.");
            else
                pending.select->m_members.push_back(found->second);
        }
    }
}

void SchemaTextReader::resolveSupertypes()
{
    for (PendingEntity const& pending : m_pendingEntities) {
        if (pending.supertype.text.empty()) {
            m_schema->m_roots.push_back(pending.entity);
            continue;
        }
        if (Entity* const supertype = entityNamed(pending.supertype.line, pending.supertype.text)) {
            pending.entity->m_supertype = supertype;
            supertype->m_subtypes.push_back(pending.entity);
        }
    }
    m_schema->numberEntities();
    for (PendingEntity const& pending : m_pendingEntities) {
        // The walk starts at the roots, so a class that has no number descends from none of them.
        if (pending.entity->m_supertype && pending.entity->m_firstNumber == 0)
            fail(pending.supertype.line, pending.entity->name() + " is a subtype of itself.");
    }
}

void SchemaTextReader::resolveAttributes(PendingEntity const& pending)
{
    for (PendingAttribute const& attribute : pending.attributes) {
        Attribute resolved;
        resolved.m_name = attribute.name;
        resolved.m_typeName = attribute.type.text;
        resolved.m_declaredTypes = declaredTypes(attribute.type);
        resolved.m_isOptional = attribute.isOptional;
        resolved.m_owner = pending.entity;
        if (attributeOf(*pending.entity, attribute.name))
            fail(attribute.type.line, quoted(attribute.name) + " is declared twice.");
        pending.entity->m_ownAttributes.push_back(std::move(resolved));
    }
}

void SchemaTextReader::resolveDerived(PendingEntity const& pending)
{
    for (Pending const& derived : pending.derived) {
        std::size_t const dot = derived.text.find('.');
        Attribute const* attribute = nullptr;
        if (dot != std::string_view::npos) {
            Entity const* const owner = entityNamed(derived.line, derived.text.substr(0, dot));
            attribute = owner ? attributeOf(*owner, derived.text.substr(dot + 1)) : nullptr;
        }
        if (attribute)
            pending.entity->m_derivedAttributes.push_back(attribute);
        else
            fail(derived.line, "An inherited attribute is expected instead of " + quoted(derived.text) + ".");
    }
}

void SchemaTextReader::resolveInverse(PendingEntity const& pending)
{
    for (Pending const& inverse : pending.inverse)
        resolveInverse(*pending.entity, inverse);
}

void SchemaTextReader::resolveInverse(Entity& entity, Pending const& pending)
{
    WordScanner words(pending.text);
    InverseAttribute inverse;
    inverse.name = words.next();
    bool const hasSign = words.next() == "=";
    std::string_view const bounds = words.next();
    std::string_view const target = words.next();
    std::size_t const dot = target.find('.');
    if (!hasSign || dot == std::string_view::npos) {
        fail(pending.line, "A name, \"=\", bounds and the referring attribute are expected.");
        return;
    }
    inverse.isSingle = bounds == "one";
    if (!inverse.isSingle)
        inverse.bounds = aggregateLevel(pending.line, bounds);
    inverse.referrer = entityNamed(pending.line, target.substr(0, dot));
    inverse.referringAttribute = target.substr(dot + 1);
    if (inverse.referrer && !attributeOf(*inverse.referrer, inverse.referringAttribute))
        fail(pending.line, quoted(target) + " is not declared.");
    entity.m_inverseAttributes.push_back(std::move(inverse));
}

DeclaredTypes SchemaTextReader::declaredTypes(Pending const& pending)
{
    DeclaredTypes levels;
    WordScanner words(pending.text);
    std::string_view rest = words.rest();
    while (aggregateNamed(rest)) {
        DeclaredType level = aggregateLevel(pending.line, words.next());
        if (words.next() != "of")
            fail(pending.line,
                 "\"of\" and the type of the elements are expected in " + quoted(pending.text) + ".");
        rest = words.rest();
        if (rest.starts_with("unique ")) {
            level.unique = true;
            words.next();
            rest = words.rest();
        }
        levels.push_back(level);
    }
    levels.push_back(innermostLevel({pending.line, rest}));
    return levels;
}

DeclaredType SchemaTextReader::aggregateLevel(std::size_t line, std::string_view word)
{
    DeclaredType level;
    AggregateName const* const aggregate = aggregateNamed(word);
    if (!aggregate || !parseBounds(word.substr(aggregate->name.size()), level))
        fail(line, "Bounds such as \"list[1:?]\" are expected instead of " + quoted(word) + ".");
    level.kind = aggregate ? aggregate->kind : DeclaredType::Kind::List;
    return level;
}

DeclaredType SchemaTextReader::innermostLevel(Pending const& pending)
{
    DeclaredType level;
    level.dataType = objectOrBaseType(pending);
    if (!level.dataType)
        fail(pending.line, quoted(pending.text) + " is not declared.");
    else if (dynamic_cast<Entity const*>(level.dataType))
        level.kind = DeclaredType::Kind::Entity;
    else if (dynamic_cast<Select const*>(level.dataType))
        level.kind = DeclaredType::Kind::Select;
    return level;
}

ObjectBase const* SchemaTextReader::objectOrBaseType(Pending const& pending)
{
    auto const found = m_objects.find(pending.text);
    return found != m_objects.end() ? found->second : baseType(pending.text);
}

Type const* SchemaTextReader::baseType(std::string_view text)
{
    auto const known = m_baseTypes.find(text);
    if (known != m_baseTypes.end())
        return known->second;
    auto const named = std::find_if(baseTypeNames.begin(), baseTypeNames.end(),
                                    [text](BaseTypeName const& base) { return text.starts_with(base.name); });
    if (named == baseTypeNames.end())
        return nullptr;
    std::unique_ptr<Type> type(new Type(text));
    type->m_baseKind = named->kind;
    std::string_view width = text.substr(named->name.size());
    if (width.ends_with(" fixed")) {
        type->m_isFixedWidth = true;
        width.remove_suffix(std::string_view(" fixed").size());
    }
    if (!width.empty()) {
        std::uint32_t number = 0;
        bool const isNumber = width.size() > 2 && width.front() == '(' && width.back() == ')' &&
                              parseNumber(width.substr(1, width.size() - 2), number);
        if (!isNumber)
            return nullptr;
        type->m_width = number;
    }
    Type const* const result = type.get();
    m_baseTypes.emplace(text, result);
    m_schema->m_baseTypes.push_back(std::move(type));
    return result;
}

Attribute const* SchemaTextReader::attributeOf(Entity const& entity, std::string_view name) const
{
    // Entity::attributes() would keep the list before it is complete.
    for (Entity const* owner = &entity; owner; owner = owner->m_supertype) {
        for (Attribute const& attribute : owner->m_ownAttributes) {
            if (attribute.name() == name)
                return &attribute;
        }
    }
    return nullptr;
}

Entity* SchemaTextReader::entityNamed(std::size_t line, std::string_view name)
{
    auto const found = m_objects.find(name);
    auto* const entity = found == m_objects.end() ? nullptr : dynamic_cast<Entity*>(found->second);
    if (!entity)
        fail(line, quoted(name) + " is no entity.");
    return entity;
}

template <class Object>
Object* SchemaTextReader::declare(std::unique_ptr<Object> object)
{
    Object* const declared = object.get();
    if (!m_objects.emplace(declared->name(), declared).second) {
        fail(m_lines.number(), quoted(declared->name()) + " is declared twice.");
        return nullptr;
    }
    m_schema->m_objects.push_back(std::move(object));
    return declared;
}

void SchemaTextReader::fail(std::size_t line, std::string message)
{
    m_errors.push_back({line, std::move(message)});
}

bool SchemaTextReader::expect(bool condition, std::string_view message)
{
    if (!condition)
        fail(m_lines.number(), std::string(message));
    return condition;
}

} // namespace qev::ifc::def::schema
