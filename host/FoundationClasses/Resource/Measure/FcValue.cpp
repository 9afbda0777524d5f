#include "FoundationClasses/Resource/Measure/FcValue.h"

#include "Core/Unit/QuantityPresentation.h"
#include "Core/Unit/QuantityPresentationFactory.h"
#include "Object/PropertyValue.h"

#include <cmath>
#include <utility>

namespace qev::fc::resource::measure {

namespace {

template <class Family>
Family const& familyOf(auto const& value)
{
    if (auto const* const family = std::get_if<Family>(&value))
        return *family;
    throw exception("Not of correct type");
}

template <class Family>
std::optional<typename Family::Types> typeFromName(std::span<ValueTypeInfo const> table,
                                                   std::string_view ValueTypeInfo::*field,
                                                   std::string_view name)
{
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (table[i].*field == name)
            return static_cast<typename Family::Types>(i);
    }
    return std::nullopt;
}

/// An empty value of the type of this name, or the empty value.
FcValue valueOfType(std::string_view ValueTypeInfo::*field, std::string_view name)
{
    if (auto const type = typeFromName<FcSimpleValue>(simpleValueTypes(), field, name))
        return FcSimpleValue(*type);
    if (auto const type = typeFromName<FcMeasureValue>(measureValueTypes(), field, name))
        return FcMeasureValue(*type);
    if (auto const type = typeFromName<FcDerivedMeasureValue>(derivedMeasureValueTypes(), field, name))
        return FcDerivedMeasureValue(*type);
    return {};
}

bool isTruth(ValueTypeInfo const* info)
{
    return info && (info->kind == ValueKind::Boolean || info->kind == ValueKind::Logical);
}

bool isWhole(double number) { return number == std::floor(number) && std::abs(number) < 9.0e15; }

std::optional<object::PropertyValue> plainValue(object::PropertyValue const& value)
{
    return value.getUnwrappedOptionalValue();
}

} // namespace

FcDerivedMeasureValue const& FcValue::derivedMeasureValue() const
{
    return familyOf<FcDerivedMeasureValue>(m_value);
}

FcMeasureValue const& FcValue::measureValue() const { return familyOf<FcMeasureValue>(m_value); }

FcSimpleValue const& FcValue::simpleValue() const { return familyOf<FcSimpleValue>(m_value); }

FcSimpleValue& FcValue::simpleValue()
{
    return const_cast<FcSimpleValue&>(std::as_const(*this).simpleValue());
}

ValueTypeInfo const* FcValue::typeInfo() const
{
    return std::visit(
        [](auto const& value) -> ValueTypeInfo const* {
            if constexpr (requires { value.info(); })
                return value.info();
            else
                return nullptr;
        },
        m_value);
}

Payload const& FcValue::payload() const
{
    static Payload const none;
    return std::visit(
        [](auto const& value) -> Payload const& {
            if constexpr (requires { value.payload(); })
                return value.payload();
            else
                return none;
        },
        m_value);
}

void FcValue::setPayload(Payload payload)
{
    std::visit(
        [&payload](auto& value) {
            if constexpr (requires { value.setPayload(payload); })
                value.setPayload(std::move(payload));
        },
        m_value);
}

bool FcValue::assign(std::string_view schemaName, Payload payload)
{
    FcValue value = valueOfType(&ValueTypeInfo::schemaName, schemaName);
    if (value.isEmpty())
        return false;
    value.setPayload(std::move(payload));
    *this = std::move(value);
    return true;
}

std::optional<std::string> FcValue::getAsString(bool withType) const
{
    auto text = payloadText(payload());
    ValueTypeInfo const* const info = typeInfo();
    if (!text || !withType || !info)
        return text;
    return std::string(info->schemaName) + "(" + *text + ")";
}

std::optional<double> FcValue::valueAsDoubleGet() const { return payloadNumber(payload()); }

bool FcValue::setDoubleValue(double number)
{
    ValueTypeInfo const* const info = typeInfo();
    if (!info || info->isAggregate || !std::isfinite(number))
        return false;
    if (info->kind == ValueKind::Real) {
        setPayload(number);
        return true;
    }
    if (info->kind != ValueKind::Integer || !isWhole(number))
        return false;
    setPayload(static_cast<std::int64_t>(number));
    return true;
}

bool FcValue::setValueOnTypeFromString(std::string const& text)
{
    ValueTypeInfo const* const info = typeInfo();
    auto parsed = info ? parsePayload(info->kind, info->isAggregate, text) : std::nullopt;
    if (!parsed)
        return false;
    setPayload(std::move(*parsed));
    return true;
}

bool FcValue::setTypeFromString(std::string const& name)
{
    FcValue value = valueOfType(&ValueTypeInfo::name, name);
    if (value.isEmpty())
        return false;
    *this = std::move(value);
    return true;
}

std::unique_ptr<unit::QuantityPresentationBase> FcValue::createQuantityPresentation() const
{
    ValueTypeInfo const* const info = typeInfo();
    return info ? unit::createPresentationForMeasure(info->name) : nullptr;
}

object::PropertyValue FcValue::getAsPropertyValue() const
{
    Payload const& content = payload();
    if (auto const* const truth = std::get_if<bool>(&content))
        return object::PropertyValue(*truth);
    if (auto const* const integer = std::get_if<std::int64_t>(&content);
        integer && std::in_range<int>(*integer))
        return object::PropertyValue(static_cast<int>(*integer));
    if (auto const* const real = std::get_if<double>(&content))
        return object::PropertyValue(*real);
    if (auto text = payloadText(content))
        return object::PropertyValue(std::move(*text));
    return {};
}

bool FcValue::updateValueFromPropertyValue(object::PropertyValue const& value)
{
    auto const plain = plainValue(value);
    if (!plain)
        return false;
    if (plain->is<double>())
        return setDoubleValue(plain->get<double>());
    if (plain->is<int>())
        return setDoubleValue(plain->get<int>());
    if (plain->is<std::uint32_t>())
        return setDoubleValue(plain->get<std::uint32_t>());
    if (plain->is<bool>())
        return isTruth(typeInfo()) && setValueOnTypeFromString(plain->get<bool>() ? "true" : "false");
    return plain->is<std::string>() && setValueOnTypeFromString(plain->get<std::string>());
}

} // namespace qev::fc::resource::measure
