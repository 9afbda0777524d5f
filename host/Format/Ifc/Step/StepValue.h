#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace qev::step {

/// The number behind `#` of a record. Files may use ids above 2^32.
using InstanceId = std::uint64_t;

/// One argument of a record, as ISO 10303-21 spells it and nothing more: texts are decoded
/// to UTF-8, enumeration items stand without their dots, numbers carry no unit.
class StepValue
{
public:
    enum class Kind : std::uint8_t
    {
        Unset,       ///< `$`
        Derived,     ///< `*`
        Integer,     ///< `7`
        Real,        ///< `7.`
        Text,        ///< `'wall'`
        Enumeration, ///< `.TRUE.`
        Binary,      ///< `"0F"`, the digits as they stand
        Reference,   ///< `#7`
        Typed,       ///< `IFCLABEL('wall')`: the keyword and one item
        List,        ///< `(1,2)`
    };

    StepValue() = default;
    [[nodiscard]] static StepValue derived() { return StepValue(Kind::Derived); }
    [[nodiscard]] static StepValue integer(std::int64_t number);
    [[nodiscard]] static StepValue real(double number);
    [[nodiscard]] static StepValue text(std::string text) { return {Kind::Text, std::move(text)}; }
    [[nodiscard]] static StepValue enumeration(std::string item)
    {
        return {Kind::Enumeration, std::move(item)};
    }
    [[nodiscard]] static StepValue binary(std::string digits) { return {Kind::Binary, std::move(digits)}; }
    [[nodiscard]] static StepValue reference(InstanceId id);
    [[nodiscard]] static StepValue typed(std::string keyword, StepValue item);
    [[nodiscard]] static StepValue list(std::vector<StepValue> items);

    [[nodiscard]] Kind kind() const { return m_kind; }
    [[nodiscard]] bool isUnset() const { return m_kind == Kind::Unset; }
    [[nodiscard]] bool isNumber() const { return m_kind == Kind::Integer || m_kind == Kind::Real; }

    /// The number of an Integer; of other kinds 0.
    [[nodiscard]] std::int64_t integerValue() const { return m_kind == Kind::Integer ? m_integer : 0; }
    /// The number of an Integer or a Real; of other kinds 0.
    [[nodiscard]] double realValue() const;
    /// The id of a Reference; of other kinds 0.
    [[nodiscard]] InstanceId referenceId() const;
    /// The text of a Text, item of an Enumeration, digits of a Binary, keyword of a Typed value.
    [[nodiscard]] std::string const& textValue() const { return m_text; }
    /// The items of a List, the one item of a Typed value.
    [[nodiscard]] std::vector<StepValue> const& items() const { return m_items; }

    friend bool operator==(StepValue const& a, StepValue const& b) = default;

private:
    explicit StepValue(Kind kind)
        : m_kind(kind)
    {
    }
    StepValue(Kind kind, std::string text)
        : m_kind(kind)
        , m_text(std::move(text))
    {
    }

    Kind m_kind = Kind::Unset;
    std::int64_t m_integer = 0;
    double m_real = 0.0;
    std::string m_text;
    std::vector<StepValue> m_items;
};

inline StepValue StepValue::integer(std::int64_t number)
{
    StepValue value(Kind::Integer);
    value.m_integer = number;
    return value;
}

inline StepValue StepValue::real(double number)
{
    StepValue value(Kind::Real);
    value.m_real = number;
    return value;
}

inline StepValue StepValue::reference(InstanceId id)
{
    StepValue value(Kind::Reference);
    value.m_integer = static_cast<std::int64_t>(id);
    return value;
}

inline StepValue StepValue::typed(std::string keyword, StepValue item)
{
    StepValue value(Kind::Typed, std::move(keyword));
    value.m_items.push_back(std::move(item));
    return value;
}

inline StepValue StepValue::list(std::vector<StepValue> items)
{
    StepValue value(Kind::List);
    value.m_items = std::move(items);
    return value;
}

inline double StepValue::realValue() const
{
    return m_kind == Kind::Integer ? static_cast<double>(m_integer) : m_real;
}

inline InstanceId StepValue::referenceId() const
{
    return m_kind == Kind::Reference ? static_cast<InstanceId>(m_integer) : 0;
}

} // namespace qev::step
