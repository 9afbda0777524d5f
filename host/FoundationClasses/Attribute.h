#pragma once

#include "FoundationClasses/AttributeOperations.h"
#include "HostFoundationClassesExport.h"

#include <concepts>
#include <cstdint>
#include <functional>
#include <utility>

namespace qev::fc {

class FcBase;

/// What all attributes have in common: the way to the entity they belong to.
///
/// An attribute lives inside its entity and is never copied by itself.
class HOSTFOUNDATIONCLASSES_EXPORT AttributeBase
{
public:
    AttributeBase(AttributeBase const&) = delete;
    AttributeBase& operator=(AttributeBase const&) = delete;

    [[nodiscard]] FcBase& owner() const;
    /// The position in the record.
    [[nodiscard]] unsigned int slot() const { return m_slot; }

    /// Runs \p change, which alters this attribute through its operations, as one change of the model.
    void change(std::function<void()> const& change);

protected:
    AttributeBase(FcBase* owner, unsigned int slot);
    ~AttributeBase() = default;

    /// Brackets every change, so that the model can follow it.
    void willChange();
    void didChange();

private:
    std::uint16_t m_ownerOffset;
    std::uint16_t m_slot;
};

/// A value of an entity. Reading is direct; a change goes through assignment or `edit`,
/// so that the model knows it for saving, undo and inverse relations.
///
/// \code
/// wall.Name = "W1";
/// property.NominalValue.edit([](FcValue& value) { return value.setDoubleValue(2.5); });
/// \endcode
template <class T>
class Attribute : public AttributeBase
{
public:
    Attribute(FcBase* owner, unsigned int slot)
        : AttributeBase(owner, slot)
    {
    }

    [[nodiscard]] T const& get() const { return m_value; }
    operator T const&() const { return m_value; }
    T const& operator*() const { return m_value; }
    T const* operator->() const { return &m_value; }

    template <class U>
    requires std::assignable_from<T&, U&&> Attribute& operator=(U&& value)
    {
        willChange();
        m_value = std::forward<U>(value);
        didChange();
        return *this;
    }

    /// Calls \p change with the value to be changed in place, and returns its result.
    template <class Change>
    auto edit(Change&& change)
    {
        struct Bracket
        {
            Attribute& attribute;
            explicit Bracket(Attribute& a)
                : attribute(a)
            {
                attribute.willChange();
            }
            ~Bracket() { attribute.didChange(); }
        } bracket(*this);
        return std::forward<Change>(change)(m_value);
    }

    /// For the model itself, while it reads an entity or takes a change back: not a change.
    [[nodiscard]] T& raw() { return m_value; }

private:
    T m_value{};
};

} // namespace qev::fc
