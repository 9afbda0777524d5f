#include "UI/FoundationClasses/Property/Types/FcPropertySingleValueWithBooleanToggle.h"

namespace qev::fc::ui {

FcPropertySingleValueWithBooleanToggle::FcPropertySingleValueWithBooleanToggle(
    ifc::def::pset::PropertyDef& valueDefinition, ifc::def::pset::PropertyDef& toggleDefinition,
    PropertySet& set, std::vector<std::string> const& contexts)
    : FcPropertyBooleanType(toggleDefinition, set, contexts)
    , m_valueDefinition(valueDefinition)
{
}

FcPropertySingleValueWithBooleanToggle::~FcPropertySingleValueWithBooleanToggle() = default;

std::string FcPropertySingleValueWithBooleanToggle::getBooleanValue() const
{
    auto const guard = workWithBooleanProperty();
    return getValue();
}

void FcPropertySingleValueWithBooleanToggle::updateBooleanValue(Data& data,
                                                                PropertyOrQuantityValue const& value)
{
    auto const guard = workWithBooleanProperty();
    updateValue(data, value);
}

std::string FcPropertySingleValueWithBooleanToggle::getBooleanName() const
{
    auto const guard = workWithBooleanProperty();
    return getName();
}

ifc::def::pset::PropertyDef const& FcPropertySingleValueWithBooleanToggle::getActivePropertyDefinition() const
{
    if (m_usesValueDefinition)
        return m_valueDefinition;
    return FcPropertyBooleanType::getActivePropertyDefinition();
}

bool FcPropertySingleValueWithBooleanToggle::setNewValue(PropertyOrQuantityValue const& value,
                                                         core::kernel::FcPropertySet& set,
                                                         core::kernel::FcObjectDefinition& object)
{
    return m_usesValueDefinition ? FcPropertySingleValue::setNewValue(value, set, object)
                                 : FcPropertyBooleanType::setNewValue(value, set, object);
}

std::optional<std::string>
FcPropertySingleValueWithBooleanToggle::getFcValueAsString(resource::measure::FcValue const& value) const
{
    return m_usesValueDefinition ? FcPropertySingleValue::getFcValueAsString(value)
                                 : FcPropertyBooleanType::getFcValueAsString(value);
}

} // namespace qev::fc::ui
