#pragma once

#include "HostObjectExport.h"

#include <cstdint>
#include <optional>
#include <string>
#include <variant>

namespace qev::object {

namespace details {

HOSTOBJECT_EXPORT void reportWrongKind();

} // namespace details

/// The value of a property: one of eleven kinds.
///
/// Nothing is the first kind and the default. Each of the five plain kinds that follow has an optional
/// kind five places behind it, whose empty state means a value that is not set.
class HOSTOBJECT_EXPORT PropertyValue
{
public:
    using Variant = std::variant<std::monostate, int, std::uint32_t, bool, double, std::string,
                                 std::optional<int>, std::optional<std::uint32_t>, std::optional<bool>,
                                 std::optional<double>, std::optional<std::string>>;

    enum class Kind
    {
        Nothing,
        Integer,
        Unsigned,
        Boolean,
        Double,
        String,
        OptionalInteger,
        OptionalUnsigned,
        OptionalBoolean,
        OptionalDouble,
        OptionalString
    };

    PropertyValue() = default;
    PropertyValue(int value);
    PropertyValue(std::uint32_t value);
    PropertyValue(bool value);
    PropertyValue(double value);
    PropertyValue(std::string value);
    PropertyValue(char const* value);
    PropertyValue(std::optional<int> value);
    PropertyValue(std::optional<std::uint32_t> value);
    PropertyValue(std::optional<bool> value);
    PropertyValue(std::optional<double> value);
    PropertyValue(std::optional<std::string> value);

    [[nodiscard]] Kind kind() const { return static_cast<Kind>(m_value.index()); }
    [[nodiscard]] Variant const& variant() const { return m_value; }

    template <class T>
    [[nodiscard]] bool is() const
    {
        return std::holds_alternative<T>(m_value);
    }

    /// The value, when it is of exactly the kind \p T. Otherwise the mistake is reported, and
    /// the result is a default \p T; an optional kind is not looked into.
    template <class T>
    [[nodiscard]] T get() const
    {
        if (auto const* const value = std::get_if<T>(&m_value))
            return *value;
        details::reportWrongKind();
        return T();
    }

    /// True for a value of an optional kind that is not set; false for nothing.
    [[nodiscard]] bool isNullopt() const;

    /// For an optional kind the plain value, or no result when it is not set; for a plain kind
    /// the value itself.
    [[nodiscard]] std::optional<PropertyValue> getUnwrappedOptionalValue() const;

    /// Brings \p value to the optional kind that belongs to the kind of this value.
    ///
    /// A value of that kind, plain or optional, keeps what it holds. A number becomes the other kind of
    /// number. What cannot be brought there, and nothing, gives the optional that is not set. The result is
    /// nothing when this value is nothing.
    [[nodiscard]] PropertyValue getWrappedOptionalValue(PropertyValue const& value) const;

    friend bool operator==(PropertyValue const&, PropertyValue const&) = default;

private:
    Variant m_value;
};

} // namespace qev::object
