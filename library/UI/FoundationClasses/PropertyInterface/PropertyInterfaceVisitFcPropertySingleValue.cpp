#include "Core/Localization/Localize.h"
#include "Core/Unit/QuantityPresentation.h"
#include "FoundationClasses/Resource/Property/FcPropertySingleValue.h"
#include "UI/FoundationClasses/PropertyInterface/CreateQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/GetEnumeratedValues.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/HasEnumeratedValues.h"
#include "UI/FoundationClasses/PropertyInterface/HasQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"

#include <array>

namespace qev::fc::ui::propertyinterface {

using object::PropertyValue;
using resource::measure::FcSimpleValue;
using resource::measure::FcValue;
using resource::property::FcPropertySingleValue;

namespace {

bool isSimple(FcValue const& value, FcSimpleValue::Types type)
{
    return value.discriminator() == FcValue::Simple && value.simpleValue().type() == type;
}

bool isNumber(FcValue const& value)
{
    return value.discriminator() == FcValue::DerivedMeasure || value.discriminator() == FcValue::Measure ||
           isSimple(value, FcSimpleValue::Types::Real);
}

bool isLogical(FcPropertySingleValue const& property)
{
    return isSimple(property.NominalValue, FcSimpleValue::Types::Logical);
}

PropertyValue valueOf(FcPropertySingleValue const& property)
{
    FcValue const& value = property.NominalValue;
    if (isNumber(value))
        return value.valueAsDoubleGet();
    if (isSimple(value, FcSimpleValue::Types::Boolean))
        return std::optional(value.simpleValue().get<bool>());
    return property.getAttributeAsString("NominalValue");
}

struct LogicalChoice
{
    char const* value;
    char const* textKey;
};

constexpr std::array<LogicalChoice, 3> logicalChoices = {
    {{"true", "LogicalValue_True"}, {"false", "LogicalValue_False"}, {"unknown", "LogicalValue_Unknown"}}};

} // namespace

bool GetValue::visit(FcPropertySingleValue const& property)
{
    if (id.text() == propertyNameId)
        value = valueOf(property);
    return false;
}

bool SetValue::visit(FcPropertySingleValue& property)
{
    if (id.text() != propertyNameId)
        return true;
    if (!property.setFromPropertyValue(*value))
        property.deleteProperty(data, true);
    return false;
}

bool HasEnumeratedValues::visit(FcPropertySingleValue const& property)
{
    if (id.text() != propertyNameId)
        return true;
    result = isLogical(property);
    return false;
}

bool GetEnumeratedValues::visit(FcPropertySingleValue const& property)
{
    if (id.text() != propertyNameId || !isLogical(property))
        return true;
    for (auto const& choice : logicalChoices)
        values.push_back({qev::localize(choice.textKey, "FoundationClassesUi"),
                          PropertyValue(std::optional<std::string>(choice.value))});
    return false;
}

bool HasQuantityPresentation::visit(FcPropertySingleValue const& property)
{
    if (id.text() != propertyNameId)
        return true;
    result = property.createQuantityPresentationFor(property.NominalValue, std::nullopt) != nullptr;
    return false;
}

bool CreateQuantityPresentation::visit(FcPropertySingleValue const& property)
{
    if (id.text() != propertyNameId)
        return true;
    presentation = property.createQuantityPresentationFor(property.NominalValue, setName);
    return false;
}

} // namespace qev::fc::ui::propertyinterface
