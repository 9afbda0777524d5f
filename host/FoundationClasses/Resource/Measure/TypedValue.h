#pragma once

#include "Core/Exception.h"
#include "FoundationClasses/Payload.h"
#include "HostFoundationClassesExport.h"

#include <span>
#include <string_view>

namespace qev::fc::resource::measure {

/// What is known of one type of a value family.
struct ValueTypeInfo
{
    std::string_view name; ///< without the "Ifc" prefix
    std::string_view schemaName;
    ValueKind kind;
    bool isAggregate;
};

/// The types of each family, in alphabetical order: the position is the number of the type.
HOSTFOUNDATIONCLASSES_EXPORT std::span<ValueTypeInfo const> simpleValueTypes();
HOSTFOUNDATIONCLASSES_EXPORT std::span<ValueTypeInfo const> measureValueTypes();
HOSTFOUNDATIONCLASSES_EXPORT std::span<ValueTypeInfo const> derivedMeasureValueTypes();

/// The common part of the three families of values: a type of the family, and its payload.
/// The number of types stands for no type.
template <class TypesEnumeration, std::span<ValueTypeInfo const> (*typeTable)()>
class TypedValue
{
public:
    using Types = TypesEnumeration;

    TypedValue() = default;
    /// A value of \p type with its default payload.
    explicit TypedValue(Types type)
        : m_type(type)
    {
        if (ValueTypeInfo const* const found = info())
            m_payload = defaultPayload(found->kind, found->isAggregate);
    }
    TypedValue(Types type, Payload payload)
        : m_type(type)
        , m_payload(std::move(payload))
    {
    }

    [[nodiscard]] Types type() const { return m_type; }
    [[nodiscard]] static constexpr Types noType() { return Types::None; }
    /// The type's name without "Ifc"; empty for no type.
    [[nodiscard]] static std::string_view nameFromEnum(Types type)
    {
        auto const position = static_cast<std::size_t>(type);
        return position < typeTable().size() ? typeTable()[position].name : std::string_view();
    }
    /// What is known of the present type, null for no type.
    [[nodiscard]] ValueTypeInfo const* info() const
    {
        auto const position = static_cast<std::size_t>(m_type);
        return position < typeTable().size() ? &typeTable()[position] : nullptr;
    }

    [[nodiscard]] Payload const& payload() const { return m_payload; }
    void setPayload(Payload payload) { m_payload = std::move(payload); }

    /// The payload as \p T. Raises `qev::exception` "Not of correct type" when it is of another kind.
    template <class T>
    [[nodiscard]] T const& get() const
    {
        if (auto const* const value = std::get_if<T>(&m_payload))
            return *value;
        throw exception("Not of correct type");
    }
    template <class T>
    void set(T value)
    {
        if (!std::holds_alternative<T>(m_payload))
            throw exception("Not of correct type");
        m_payload = std::move(value);
    }

    friend bool operator==(TypedValue const&, TypedValue const&) = default;
    friend bool operator<(TypedValue const& a, TypedValue const& b)
    {
        return a.m_type != b.m_type ? a.m_type < b.m_type : a.m_payload < b.m_payload;
    }

private:
    Types m_type = Types::None;
    Payload m_payload;
};

} // namespace qev::fc::resource::measure
