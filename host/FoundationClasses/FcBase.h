#pragma once

#include "FoundationClasses/Attribute.h"
#include "FoundationClasses/EntityClass.h"
#include "FoundationClasses/EntityIndex.h"
#include "FoundationClasses/Reference.h"
#include "HostFoundationClassesExport.h"
#include "Object/ObjectInterface.h"
#include "Object/PropertyId.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace qev::unit {
class QuantityPresentationBase;
}

namespace qev::fc {

class Data;
class FcVisitorBase;
class FcVisitorBaseNonConst;
struct LocalValue;
struct Property;

/// What a copy of an entity carries over. Only attributes are copied today: a copy is in no model,
/// has a new GlobalId where the class has one, and refers to the same entities as its original.
struct FcCopySettings
{
    bool keepGlobalId = false;
};

/// Root of all entities of the building model.
///
/// An entity is always held by `std::shared_ptr`. It may stand alone, or belong to one `Data`,
/// which then follows its changes and knows its inverse relations.
class HOSTFOUNDATIONCLASSES_EXPORT FcBase : public generate::ObjectInterface,
                                            public std::enable_shared_from_this<FcBase>
{
public:
    static constexpr unsigned int idFirst = 0;
    static constexpr unsigned int idLast = 872;

    /// A name together with its 32-bit FNV-1a hash.
    struct HashedName
    {
        std::string_view text;
        std::uint32_t hash;
    };

    ~FcBase() override;
    FcBase(FcBase const&) = delete;
    FcBase& operator=(FcBase const&) = delete;

    virtual char const* getEntityNameUpper() const;
    virtual char const* getEntityName() const;
    virtual HashedName getEntityNameUpperHashed() const;
    virtual HashedName getEntityNameHashed() const;
    virtual char const* getGroupName() const;
    virtual char const* getQualifiedGroupName() const;
    virtual unsigned int getIdFirst() const;
    virtual unsigned int getIdLast() const;

    /// Visits this entity as its exact class and then as each base class, for as long as the visits return
    /// true.
    virtual void accept(FcVisitorBaseNonConst& visitor);
    virtual void accept(FcVisitorBase& visitor) const;

protected:
    /// A new object of the same class, without values; null for an abstract class.
    virtual std::shared_ptr<FcBase> doAllocateCopy() const;
    virtual void doAssign(FcBase const& other, FcCopySettings& settings);

public:
    /// Stores an attribute from text; false, and no change, when the attribute is unknown, is a reference,
    /// or the text does not fit its type.
    virtual bool setAttributeFromString(std::string const& value, std::string const& attribute);
    /// The attribute as text; no value when it is unset, unknown or a reference.
    virtual std::optional<std::string> getAttributeAsString(std::string const& attribute) const;
    /// A numeric attribute in SI units; no value for others.
    virtual std::optional<double> getAttributeAsSiUnit(Data const& data, std::string const& attribute) const;

    /// Drops what is cached of the inverse relations of the model this entity is in.
    virtual void clearInverseAttributes();
    /// Calls \p visit for each entity that this one refers to, in the order of the attributes.
    virtual void forEachEntity(std::function<void(std::shared_ptr<FcBase> const&)> const& visit) const;
    virtual LocalValue getLocalValue(object::PropertyId const& id) const;
    virtual bool setLocalValue(LocalValue const& value, object::PropertyId const& id);
    virtual bool isOptional(object::PropertyId const& id) const;
    virtual bool hasQuantityPresentationLocal(object::PropertyId const& id) const;
    virtual std::unique_ptr<unit::QuantityPresentationBase>
    createQuantityPresentationLocal(object::PropertyId const& id) const;
    /// The localised label of an attribute.
    virtual std::string getPropertyName(object::PropertyId const& id) const;
    virtual std::string getPropertyDescription(object::PropertyId const& id) const;
    /// One leaf for each attribute with a simple value, in the order of the schema.
    virtual std::vector<std::shared_ptr<Property>> getLocalProperties() const;
    /// The items of an enumeration attribute; empty for others.
    virtual std::vector<std::string> getEnumeratedValuesLocal(object::PropertyId const& id) const;
    /// A strict order of entities of one class by their attributes; references by place.
    virtual bool isLessThanSkipAttributes(FcBase const& other, std::vector<std::string> const& skipped) const;

    virtual EntityClass const& getEntityClass() const;
    static EntityClass const& staticEntityClass();

    /// A copy that is in no model.
    [[nodiscard]] std::shared_ptr<FcBase> copy(FcCopySettings settings = {}) const;

    /// The attribute at a slot of the record.
    [[nodiscard]] AttributeBase& attribute(unsigned int slot);
    [[nodiscard]] AttributeBase const& attribute(unsigned int slot) const;

    /// The model this entity is in, null for none.
    [[nodiscard]] Data* getData() const { return m_data; }
    /// The place in the model, `noEntity` for none.
    [[nodiscard]] EntityIndex getIndex() const { return m_index; }
    /// The slots an edit changed since the entity was read, by bit. Meaningless for a created entity.
    [[nodiscard]] std::uint64_t changedSlots() const { return m_changedSlots; }

protected:
    FcBase();

    /// The entities of one inverse attribute, by their order in the model.
    [[nodiscard]] std::vector<std::shared_ptr<FcBase>> relating(InverseDescriptor const& inverse) const;
    template <class T>
    [[nodiscard]] std::vector<std::weak_ptr<T>> relatingAs(InverseDescriptor const& inverse) const
    {
        std::vector<std::weak_ptr<T>> result;
        for (auto const& entity : relating(inverse))
            result.push_back(std::static_pointer_cast<T>(entity));
        return result;
    }

private:
    friend class AttributeBase;
    friend class Data;
    friend class ChangeLog;

    Data* m_data = nullptr;
    EntityIndex m_index = noEntity;
    std::uint64_t m_changedSlots = 0;
};

/// The entity as \p T, tested by its type number; null when it is of another class or null.
template <class T, class Entity>
[[nodiscard]] auto entityCast(std::shared_ptr<Entity> const& entity)
{
    using Base = std::conditional_t<std::is_const_v<Entity>, FcBase const, FcBase>;
    using Target = std::conditional_t<std::is_const_v<Entity>, T const, T>;
    std::shared_ptr<Base> const base = entity;
    bool const isTarget = base && base->getIdFirst() >= T::idFirst && base->getIdFirst() <= T::idLast;
    return isTarget ? std::static_pointer_cast<Target>(base) : std::shared_ptr<Target>();
}

template <class T>
[[nodiscard]] bool isOfClass(FcBase const& entity)
{
    return entity.getIdFirst() >= T::idFirst && entity.getIdFirst() <= T::idLast;
}

} // namespace qev::fc
