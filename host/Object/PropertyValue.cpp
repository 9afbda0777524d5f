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

template <class T>
constexpr bool isInteger = std::is_integral_v<T> && !std::is_same_v<T, bool>;

/// What is held as a \p Wanted, where that keeps its meaning.
template <class Wanted, class Held>
std::optional<Wanted> convertedTo(Held const& held)
{
    if constexpr (std::is_same_v<Held, Wanted>)
        return held;
    else if constexpr (std::is_same_v<Wanted, double> && isInteger<Held>)
        return static_cast<double>(held);
    else if constexpr (isInteger<Wanted> && isInteger<Held>)
        return std::in_range<Wanted>(held) ? std::optional(static_cast<Wanted>(held)) : std::nullopt;
    else
        return std::nullopt;
}

template <class Wanted>
std::optional<Wanted> converted(PropertyValue const& value)
{
    return std::visit([](auto const& held) { return convertedTo<Wanted>(held); }, value.variant());
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
