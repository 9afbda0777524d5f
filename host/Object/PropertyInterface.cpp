#include "Object/PropertyInterface.h"

#include "Core/Unit/QuantityPresentation.h"

namespace qev::object {

PropertyInterface::~PropertyInterface() = default;

std::vector<PropertyId> PropertyInterface::getDependentProperties(PropertyId const&) const { return {}; }

std::vector<std::string> PropertyInterface::getSearchWords(PropertyId const&) const { return {}; }

std::vector<PropertyValue> PropertyInterface::getSuggestedValues(PropertyId const&) const { return {}; }

std::optional<PropertyValue> PropertyInterface::getDefaultValue(PropertyId const&) const
{
    return std::nullopt;
}

std::vector<std::string> PropertyInterface::getMessages(PropertyId const&) const { return {}; }

bool PropertyInterface::isEditableWithOthers() const { return true; }

} // namespace qev::object
