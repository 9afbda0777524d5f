#include "Object/PropertyValue.h"

#include "Core/Assert/Assert.h"

#include <type_traits>
#include <utility>

namespace qev::object {

namespace {

template <class T>
constexpr bool isOptional = false;
template <class T>
constexpr bool isOptional<std::optional<T>> = true;

template <class T>
struct PlainKind
{
    using Type = T;
};
template <class T>
struct PlainKind<std::optional<T>>
{
    using Type = T;
};

/// The number, truth value or text in \p value as a \p Wanted, where that keeps its meaning.
template <class Wanted>
std::optional<Wanted> converted(PropertyValue const& value)
{
    return std::visit(
        [](auto const& held) -> std::optional<Wanted> {
            using Held = std::decay_t<decltype(held)>;
            if constexpr (std::is_same_v<Held, Wanted>)
                return held;
            else if constexpr (std::is_same_v<Wanted, double> && std::is_integral_v<Held> &&
                               !std::is_same_v<Held, bool>)
                return static_cast<double>(held);
            else if constexpr (std::is_integral_v<Wanted> && !std::is_same_v<Wanted, bool> &&
                               std::is_integral_v<Held> && !std::is_same_v<Held, bool>)
                return std::in_range<Wanted>(held) ? std::optional(static_cast<Wanted>(held)) : std::nullopt;
            else
                return std::nullopt;
        },
        value.variant());
}

} // namespace

namespace details {

void reportWrongKind()
{
    assert::report("Property value doesn't hold the given type.", "qev::object::PropertyValue::get",
                   "Object/PropertyValue");
}

} // namespace details

PropertyValue::PropertyValue(int value)
    : m_value(value)
{
}

PropertyValue::PropertyValue(std::uint32_t value)
    : m_value(value)
{
}

PropertyValue::PropertyValue(bool value)
    : m_value(value)
{
}

PropertyValue::PropertyValue(double value)
    : m_value(value)
{
}

PropertyValue::PropertyValue(std::string value)
    : m_value(std::move(value))
{
}

PropertyValue::PropertyValue(char const* value)
    : m_value(std::string(value))
{
}

PropertyValue::PropertyValue(std::optional<int> value)
    : m_value(value)
{
}

PropertyValue::PropertyValue(std::optional<std::uint32_t> value)
    : m_value(value)
{
}

PropertyValue::PropertyValue(std::optional<bool> value)
    : m_value(value)
{
}

PropertyValue::PropertyValue(std::optional<double> value)
    : m_value(value)
{
}

PropertyValue::PropertyValue(std::optional<std::string> value)
    : m_value(std::move(value))
{
}

bool PropertyValue::isNullopt() const
{
    return std::visit(
        [](auto const& held) {
            if constexpr (isOptional<std::decay_t<decltype(held)>>)
                return !held.has_value();
            else
                return false;
        },
        m_value);
}

std::optional<PropertyValue> PropertyValue::getUnwrappedOptionalValue() const
{
    return std::visit(
        [this](auto const& held) -> std::optional<PropertyValue> {
            if constexpr (isOptional<std::decay_t<decltype(held)>>)
                return held ? std::optional(PropertyValue(*held)) : std::nullopt;
            else
                return *this;
        },
        m_value);
}

PropertyValue PropertyValue::getWrappedOptionalValue(PropertyValue const& value) const
{
    return std::visit(
        [&value](auto const& receiver) -> PropertyValue {
            using Plain = typename PlainKind<std::decay_t<decltype(receiver)>>::Type;
            if constexpr (std::is_same_v<Plain, std::monostate>) {
                return {};
            } else {
                auto const unwrapped = value.getUnwrappedOptionalValue();
                return unwrapped ? converted<Plain>(*unwrapped) : std::optional<Plain>();
            }
        },
        m_value);
}

} // namespace qev::object
