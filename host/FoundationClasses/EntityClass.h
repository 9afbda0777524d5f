#pragma once

#include "HostFoundationClassesExport.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

namespace qev::fc {

class AttributeBase;
class FcBase;
struct AttributeOperations;

/// The kind of the innermost element of an attribute.
enum class ValueKind : std::uint8_t
{
    Text,
    Real,
    Integer,
    Boolean,
    Logical,
    Binary,
    Enumeration, ///< `AttributeDescriptor::enumeration` names the items
    Reference,   ///< to an entity of `targetFirst` to `targetLast`
    Select,      ///< `AttributeDescriptor::select` names the members
    Value,       ///< an `FcValue`
};

struct EnumerationDescriptor
{
    std::string_view name;
    std::span<std::string_view const> items;
};

struct SelectDescriptor;

/// One member of a select. Exactly one of the three ways to read it applies.
struct SelectMember
{
    std::string_view name;
    /// An entity: its range of type numbers. Otherwise both 0.
    unsigned int first = 0;
    unsigned int last = 0;
    /// A select itself. Otherwise null.
    SelectDescriptor const* select = nullptr;
    /// A defined type: its base kind; for an aggregate `isAggregate` is set.
    ValueKind kind = ValueKind::Reference;
    bool isAggregate = false;
};

/// The members stand in alphabetical order by character code; a tag is a position in it,
/// and the number of members is the tag of no member.
struct SelectDescriptor
{
    std::string_view name;
    std::span<SelectMember const> members;
};

/// One explicit attribute as the class that declares it has it.
struct AttributeDescriptor
{
    std::string_view name;
    /// The declared element type, for example "IfcLengthMeasure", "IfcWallTypeEnum", "IfcOwnerHistory",
    /// "REAL".
    std::string_view typeName;
    ValueKind kind = ValueKind::Text;
    /// 0 for a plain attribute, 1 for a list, set or array, 2 for a list of lists.
    std::uint8_t depth = 0;
    bool isOptional = false;
    unsigned int targetFirst = 0;
    unsigned int targetLast = 0;
    EnumerationDescriptor const* enumeration = nullptr;
    SelectDescriptor const* select = nullptr;
    AttributeOperations const* operations = nullptr;
    AttributeBase& (*access)(FcBase&) = nullptr;
};

/// One inverse attribute: the entities of `relationFirst` to `relationLast` whose attribute
/// at `slot` refers to this one.
struct InverseDescriptor
{
    std::string_view name;
    unsigned int relationFirst = 0;
    unsigned int relationLast = 0;
    unsigned int slot = 0;
};

/// What is known of an entity class without an object of it.
struct EntityClass
{
    char const* name;           ///< "IfcProperty"
    char const* nameUpper;      ///< "IFCPROPERTY"
    char const* group;          ///< "Property"
    char const* qualifiedGroup; ///< "Resource.Property"
    unsigned int idFirst;
    unsigned int idLast; ///< last number of the class and its subclasses
    bool isAbstract;
    EntityClass const* supertype; ///< null for a root; `FcBase` itself has none
    /// All explicit attributes, inherited ones first: the slots of a record.
    std::span<AttributeDescriptor const* const> attributes;
    /// Bit n: slot n is redeclared as derived, `*` in a record.
    std::uint64_t derivedSlots;
    std::span<InverseDescriptor const> inverses; ///< declared by this class itself
    /// A new object; null for an abstract class.
    std::shared_ptr<FcBase> (*create)();
};

/// The class of a type number, null when there is none. Number 0 is `FcBase`.
/// \see generated `EntityClasses.cpp`
HOSTFOUNDATIONCLASSES_EXPORT EntityClass const* entityClassFromNumber(unsigned int number);

/// The slot of an attribute, or no value: `attributes.size()`.
HOSTFOUNDATIONCLASSES_EXPORT unsigned int slotFromName(EntityClass const& entityClass,
                                                       std::string_view attribute);

} // namespace qev::fc
