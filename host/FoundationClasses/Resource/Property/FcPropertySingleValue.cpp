#include "FoundationClasses/Resource/Property/FcPropertySingleValue.h"

#include "Object/PropertyValue.h"

namespace qev::fc::resource::property {

using measure::FcSimpleValue;
using measure::FcValue;
using object::PropertyValue;

namespace {

bool isEmptyText(PropertyValue const& value)
{
    return value.is<std::string>() && value.get<std::string>().empty();
}

/// Tells if \p current is read as that value that is not set, so that writing it back is no edit: there is no
/// value, or, for a number, one that is no number.
bool readsAsUnset(FcValue const& current, PropertyValue const& unset)
{
    bool const isNumber = unset.is<std::optional<double>>();
    return current.isEmpty() || (isNumber && !current.valueAsDoubleGet());
}

/// A value that takes those of the kind of \p value.
FcValue defaultFor(PropertyValue const& value)
{
    switch (value.kind()) {
    case PropertyValue::Kind::Boolean:
        return FcSimpleValue(FcSimpleValue::Types::Boolean);
    case PropertyValue::Kind::Double:
        return FcSimpleValue(FcSimpleValue::Types::Real);
    case PropertyValue::Kind::Integer:
    case PropertyValue::Kind::Unsigned:
        return FcSimpleValue(FcSimpleValue::Types::Integer);
    default:
        return FcSimpleValue(FcSimpleValue::Types::Label);
    }
}

} // namespace

bool FcPropertySingleValue::setFromPropertyValue(PropertyValue const& value)
{
    FcValue const& current = NominalValue;
    auto const plain = value.getUnwrappedOptionalValue();
    if (!plain || plain->kind() == PropertyValue::Kind::Nothing)
        return readsAsUnset(current, value);
    if (current.isEmpty() && isEmptyText(*plain))
        return true;
    FcValue changed = current.isEmpty() ? defaultFor(*plain) : current;
    if (!changed.updateValueFromPropertyValue(*plain))
        return !isEmptyText(*plain);
    NominalValue = std::move(changed);
    return true;
}

} // namespace qev::fc::resource::property
