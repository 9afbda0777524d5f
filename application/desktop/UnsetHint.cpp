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
    // Beside a check box alone the hint would stay when the box is clicked.
    std::string value;
    if (property.getStringValue(value))
        property.setHint(m_text);
}

} // namespace qev::application
