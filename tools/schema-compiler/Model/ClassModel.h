#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace qev::schemacompiler {

/// What the innermost element of a type is; the names agree with `qev::fc::ValueKind`.
enum class Kind
{
    Text,
    Real,
    Integer,
    Boolean,
    Logical,
    Binary,
    Enumeration,
    Reference,
    Select,
    Value
};

/// A type as an attribute or the member of a select has it.
struct ElementType
{
    /// The declared name of the innermost element, for example "IfcLengthMeasure", "REAL", "IfcOwnerHistory".
    std::string name;
    Kind kind = Kind::Text;
    /// 0 for a plain type, 1 for an aggregate, 2 for an aggregate of aggregates.
    unsigned int depth = 0;
};

struct AttributeModel
{
    std::string name;
    ElementType type;
    bool isOptional = false;
    /// The position in the record, inherited attributes first.
    unsigned int slot = 0;
    /// A hand-written class that stands in for `Attribute<...>`, and its header; mostly empty.
    std::string memberClass;
    std::string memberHeader;
};

struct InverseModel
{
    std::string name;
    /// The entity that refers to this one.
    std::string relation;
    /// The attribute of the relation that is inverted.
    unsigned int slot = 0;
};

struct EntityModel
{
    std::string name;
    /// Empty for a root.
    std::string supertype;
    std::string group;
    bool isAbstract = false;
    /// A class written by hand derives from what is generated.
    bool isHandwritten = false;
    unsigned int first = 0;
    unsigned int last = 0;
    /// Bit n: slot n is redeclared as derived here or above.
    std::uint64_t derivedSlots = 0;
    unsigned int slotCount = 0;
    std::vector<AttributeModel> attributes; ///< own ones
    std::vector<InverseModel> inverses;     ///< own ones
};

struct EnumerationModel
{
    std::string name;
    std::vector<std::string> items;
};

struct SelectMemberModel
{
    enum class Role
    {
        Entity,
        Select,
        Type
    };

    std::string name;
    Role role = Role::Entity;
    ElementType type; ///< of a defined type
};

struct SelectModel
{
    std::string name;
    std::string group;
    /// False for the families of values, which are written by hand.
    bool hasClass = true;
    bool isHandwritten = false;
    std::vector<SelectMemberModel> members; ///< by character code
};

/// Everything the emitters need, checked and complete.
struct ClassModel
{
    /// The file name of the schema, for the first line of what is generated.
    std::string source;
    std::vector<EntityModel> entities; ///< by type number, from 1
    std::vector<EnumerationModel> enumerations;
    std::vector<SelectModel> selects; ///< a nested select stands before the one that has it as a member
    std::vector<std::string> groups;  ///< in the order of the table of groups, those that have entities
    std::map<std::string, std::size_t> entityPositions;
    std::map<std::string, std::size_t> selectPositions;

    [[nodiscard]] EntityModel const& entity(std::string const& name) const
    {
        return entities[entityPositions.at(name)];
    }
    [[nodiscard]] SelectModel const& select(std::string const& name) const
    {
        return selects[selectPositions.at(name)];
    }
    /// Tells whether \p descendant is \p ancestor or a subclass of it.
    [[nodiscard]] bool isOrDerives(EntityModel const& descendant, std::string const& ancestor) const
    {
        auto const found = entityPositions.find(ancestor);
        return found != entityPositions.end() && entities[found->second].first <= descendant.first &&
               descendant.first <= entities[found->second].last;
    }
};

} // namespace qev::schemacompiler
