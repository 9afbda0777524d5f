#pragma once

#include "FoundationClasses/EntityIndex.h"
#include "HostFoundationClassesExport.h"

#include <concepts>
#include <memory>
#include <utility>
#include <vector>

namespace qev::fc {

class Data;
class FcBase;

/// A reference from one entity to another, without its type.
///
/// A reference into a model is a place there and becomes an object when asked for; the model keeps the entity
/// alive, and has to outlive whatever refers into it from outside. A reference to an entity that is not in
/// any model holds the entity itself. At the end of a model its own references let go.
class HOSTFOUNDATIONCLASSES_EXPORT ReferenceBase
{
public:
    ReferenceBase() = default;
    ReferenceBase(Data& data, EntityIndex index)
        : m_data(&data)
        , m_index(index)
    {
    }
    explicit ReferenceBase(std::shared_ptr<FcBase> entity);

    /// Tells whether the reference leads anywhere; a reference to a deleted entity does not.
    [[nodiscard]] bool isSet() const;
    explicit operator bool() const { return isSet(); }
    /// The entity; null when unset or deleted.
    [[nodiscard]] std::shared_ptr<FcBase> entity() const;
    /// The place of the entity in its model, `noEntity` when it is in none.
    [[nodiscard]] EntityIndex index() const;

    /// Lets go of the model, which is about to end.
    void leaveModel();

    friend HOSTFOUNDATIONCLASSES_EXPORT bool operator==(ReferenceBase const& a, ReferenceBase const& b);

private:
    std::shared_ptr<FcBase> m_entity;
    Data* m_data = nullptr;
    EntityIndex m_index = noEntity;
};

/// A reference to an entity of class \p T.
template <class T>
class Reference : public ReferenceBase
{
public:
    Reference() = default;
    template <class U>
    requires std::derived_from<U, T> Reference(std::shared_ptr<U> entity)
        : ReferenceBase(std::move(entity))
    {
    }
    Reference(std::nullptr_t) {}

    [[nodiscard]] std::shared_ptr<T> get() const { return std::static_pointer_cast<T>(entity()); }
};

/// References in stored order, without their type.
class HOSTFOUNDATIONCLASSES_EXPORT ReferenceListBase
{
public:
    [[nodiscard]] std::vector<ReferenceBase> const& references() const { return m_references; }
    void setReferences(std::vector<ReferenceBase> references);
    [[nodiscard]] bool empty() const { return m_references.empty(); }
    [[nodiscard]] std::size_t size() const { return m_references.size(); }
    void leaveModel();

    friend bool operator==(ReferenceListBase const& a, ReferenceListBase const& b)
    {
        return a.m_references == b.m_references;
    }

protected:
    void append(ReferenceBase reference);
    void removeAt(std::size_t position);
    [[nodiscard]] bool isResolved() const { return m_isResolved; }
    void setResolved() const { m_isResolved = true; }

private:
    std::vector<ReferenceBase> m_references;
    mutable bool m_isResolved = false;
};

/// References to entities of class \p T, in stored order.
template <class T>
class ReferenceList : public ReferenceListBase
{
public:
    ReferenceList() = default;
    explicit ReferenceList(std::vector<std::shared_ptr<T>> const& entities)
    {
        for (auto const& entity : entities)
            push_back(entity);
    }

    /// The entities; those that were deleted are left out. Valid until the list changes.
    [[nodiscard]] std::vector<std::shared_ptr<T>> const& get() const
    {
        if (!isResolved()) {
            m_entities.clear();
            m_entities.reserve(size());
            for (auto const& reference : references()) {
                if (auto entity = reference.entity())
                    m_entities.push_back(std::static_pointer_cast<T>(std::move(entity)));
            }
            setResolved();
        }
        return m_entities;
    }

    void leaveModel()
    {
        // Entities may hold each other by these lists.
        m_entities.clear();
        ReferenceListBase::leaveModel();
    }
    void push_back(std::shared_ptr<T> const& entity) { append(ReferenceBase(entity)); }
    /// Takes out the reference to \p entity; false when there is none.
    bool erase(std::shared_ptr<T> const& entity)
    {
        ReferenceBase const sought(entity);
        for (std::size_t i = 0; i < size(); ++i) {
            if (references()[i] == sought) {
                removeAt(i);
                return true;
            }
        }
        return false;
    }

private:
    mutable std::vector<std::shared_ptr<T>> m_entities;
};

} // namespace qev::fc
