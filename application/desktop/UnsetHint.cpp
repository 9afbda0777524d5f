#include "UnsetHint.h"

#include "Ui/Window/Controls/PropertyGridControl/PropertyGridProperty.h"

#include <utility>

namespace qev::application {

UnsetHint::UnsetHint(std::string text)
    : m_text(std::move(text))
{
}

UnsetHint::~UnsetHint() = default;

void UnsetHint::onPropertyCreated(std::string const& /*setName*/, std::string const& /*propertyName*/,
                                  ui::PropertyGridProperty& property)
{
    // Attributes, which belong to no property, are empty too where they lead to other objects.
    auto const isAttribute = property.getUserData() == nullptr;
    // Beside a check box alone the hint would stay when the box is clicked.
    std::string value;
    auto const hasValue = property.getStringValue(value);
    if (hasValue && !isAttribute)
        property.setHint(m_text);
}

} // namespace qev::application
