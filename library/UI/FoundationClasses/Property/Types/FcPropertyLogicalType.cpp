#include "UI/FoundationClasses/Property/Types/FcPropertyLogicalType.h"

#include <utility>

namespace qev::fc::ui {

FcPropertyLogicalType::FcPropertyLogicalType(std::unique_ptr<PropertyInterface> property)
    : m_property(std::move(property))
{
}

FcPropertyLogicalType::~FcPropertyLogicalType() = default;

bool FcPropertyLogicalType::isAllowedToEdit() const { return m_property->isAllowedToEdit(); }

bool FcPropertyLogicalType::isValidValue() const { return m_property->isValidValue(); }

bool FcPropertyLogicalType::updateValue(Data& data, PropertyOrQuantityValue const& value)
{
    return m_property->updateValue(data, value);
}

std::string FcPropertyLogicalType::getName() const { return m_property->getName(); }

std::string FcPropertyLogicalType::getDescription() const { return m_property->getDescription(); }

std::string FcPropertyLogicalType::getLocalizedName() const { return m_property->getLocalizedName(); }

std::string FcPropertyLogicalType::getLocalizedDescription() const
{
    return m_property->getLocalizedDescription();
}

std::string FcPropertyLogicalType::getValue() const { return m_property->getValue(); }

std::string FcPropertyLogicalType::getPropertySetName() const { return m_property->getPropertySetName(); }

void FcPropertyLogicalType::onPropertyCustomButtonClicked() { m_property->onPropertyCustomButtonClicked(); }

} // namespace qev::fc::ui
