#include "SchemaCheck.h"

#include "Format/Ifc/Schema/DataTypeEnum.h"
#include "Format/Ifc/Schema/Select.h"
#include "Format/Ifc/Schema/Type.h"

#include <algorithm>
#include <set>

namespace qev::test::samples {

using namespace ifc::def::schema;
using reference::StepArgument;
using reference::StepRecord;
using Kind = StepArgument::Kind;

namespace {

bool isTruth(StepArgument const& argument, bool mayBeUnknown)
{
    return argument.kind == Kind::Enumeration &&
           (argument.text == "T" || argument.text == "F" || (mayBeUnknown && argument.text == "U"));
}

bool isOfBase(Type::BaseKind base, StepArgument const& argument)
{
    switch (base) {
    case Type::BaseKind::Real:
        return argument.kind == Kind::Real;
    case Type::BaseKind::Integer:
        return argument.kind == Kind::Integer;
    case Type::BaseKind::Number:
        return argument.isNumber();
    case Type::BaseKind::Boolean:
        return isTruth(argument, false);
    case Type::BaseKind::Logical:
        return isTruth(argument, true);
    case Type::BaseKind::String:
        return argument.kind == Kind::Text;
    case Type::BaseKind::Binary:
        return argument.kind == Kind::Binary;
    }
    return false;
}

/// Drafts of a version mix classes of several, so that it is the names that count.
bool isKindOf(Entity const& entity, Entity const& wanted)
{
    for (Entity const* candidate = &entity; candidate; candidate = candidate->supertype()) {
        if (candidate->name() == wanted.name())
            return true;
    }
    return false;
}

bool takesClass(ObjectBase const& target, Entity const& entity)
{
    if (auto const* const wanted = dynamic_cast<Entity const*>(&target))
        return isKindOf(entity, *wanted);
    auto const* const select = dynamic_cast<Select const*>(&target);
    return select && std::any_of(select->members().begin(), select->members().end(),
                                 [&entity](auto const* member) { return takesClass(*member, entity); });
}

} // namespace

SchemaCheck::SchemaCheck(reference::StepDocument const& document)
    : m_document(document)
    , m_version(*ifc::VersionMapping::curr().fromFileSchema(document.schemaName()).schema)
{
}

Entity const* SchemaCheck::classOf(std::string_view keyword) const
{
    auto const* const mapping = m_version.find(keyword);
    return mapping ? &mapping->fileEntity() : nullptr;
}

std::vector<std::string> SchemaCheck::check(StepRecord const& record) const
{
    std::string const place = '#' + std::to_string(record.id) + ' ' + record.keyword;
    Entity const* const entity = classOf(record.keyword);
    if (!entity || entity->isAbstract())
        return {place + " is no class of " + m_document.schemaName()};
    auto const& attributes = entity->attributes();
    if (record.arguments.size() != attributes.size())
        return {place + " has " + std::to_string(record.arguments.size()) + " arguments for " +
                std::to_string(attributes.size()) + " attributes"};
    std::vector<std::string> faults;
    for (std::size_t i = 0; i < attributes.size(); ++i) {
        auto const fault = checkAttribute(*entity, *attributes[i], record.arguments[i]);
        if (!fault.empty())
            faults.push_back(place + '.' + attributes[i]->name() + ' ' + fault);
    }
    return faults;
}

std::string SchemaCheck::checkAttribute(Entity const& entity, Attribute const& attribute,
                                        Argument const& argument) const
{
    if (entity.isDerived(attribute) != (argument.kind == Kind::Derived))
        return "is derived or not";
    if (argument.kind == Kind::Derived)
        return {};
    if (argument.kind == Kind::Unset)
        return attribute.isOptional() ? std::string() : "is mandatory";
    return checkLevel(attribute.declaredTypes(), 0, argument);
}

std::string SchemaCheck::checkLevel(DeclaredTypes const& types, std::size_t level,
                                    Argument const& argument) const
{
    DeclaredType const& type = types[level];
    if (!type.isAggregate()) {
        switch (type.kind) {
        case DeclaredType::Kind::Entity:
            return checkReference(*type.dataType, argument);
        case DeclaredType::Kind::Select:
            return checkSelect(static_cast<Select const&>(*type.dataType), argument);
        default:
            return checkSimple(*type.dataType, argument);
        }
    }
    if (argument.kind != Kind::List)
        return "is no list";
    auto const count = static_cast<std::int64_t>(argument.items.size());
    bool const isArray = type.kind == DeclaredType::Kind::Array;
    bool const isTooShort = !isArray && count < type.lower;
    if (isTooShort || (!isArray && type.upper && count > *type.upper))
        return "has " + std::to_string(count) + " items";
    std::set<std::uint64_t> references;
    for (Argument const& item : argument.items) {
        if (auto fault = checkLevel(types, level + 1, item); !fault.empty())
            return fault;
        bool const mayRepeat = type.kind != DeclaredType::Kind::Set && !type.unique;
        if (item.kind == Kind::Reference && !references.insert(item.reference).second && !mayRepeat)
            return "holds #" + std::to_string(item.reference) + " twice";
    }
    return {};
}

std::string SchemaCheck::checkSimple(ObjectBase const& type, Argument const& argument) const
{
    if (auto const* const items = dynamic_cast<DataTypeEnum const*>(&type)) {
        bool const isItem = argument.kind == Kind::Enumeration && items->hasValue(argument.text);
        return isItem ? std::string() : "is no item of " + items->name();
    }
    auto const* const defined = dynamic_cast<Type const*>(&type);
    if (!defined)
        return "is of no known type";
    if (defined->isAggregate() && !defined->definition().empty())
        return checkLevel(defined->definition(), 0, argument);
    return isOfBase(defined->baseKind(), argument) ? std::string() : "is no " + defined->name();
}

std::string SchemaCheck::checkReference(ObjectBase const& target, Argument const& argument) const
{
    if (argument.kind != Kind::Reference)
        return "is no reference";
    auto const* const record = m_document.find(argument.reference);
    std::string const id = '#' + std::to_string(argument.reference);
    if (!record)
        return "refers to " + id + ", which is not there";
    Entity const* const entity = classOf(record->keyword);
    return entity && takesClass(target, *entity)
               ? std::string()
               : "refers to " + id + ' ' + record->keyword + " in place of " + target.name();
}

std::string SchemaCheck::checkSelect(Select const& select, Argument const& argument) const
{
    if (argument.kind == Kind::Reference)
        return checkReference(select, argument);
    if (argument.kind != Kind::Typed || argument.items.size() != 1)
        return "has no type of " + select.name();
    for (auto const* const member : select.flattenedMembers()) {
        if (member->nameUpper() == argument.text)
            return checkSimple(*member, argument.items.front());
    }
    return argument.text + " is none of " + select.name();
}

} // namespace qev::test::samples
