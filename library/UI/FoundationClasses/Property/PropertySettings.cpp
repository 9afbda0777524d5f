#include "UI/FoundationClasses/Property/PropertySettings.h"

#include <utility>

namespace qev::fc::ui {

PropertySettings::~PropertySettings() = default;

bool PropertySettings::showGlobalId() const { return false; }

bool PropertySettings::isUserEditableEnumeration(std::string_view /*setName*/,
                                                 std::string_view /*propertyName*/) const
{
    return false;
}

std::shared_ptr<PropertySettingsInterface>& PropertySettings::getInstance()
{
    static std::shared_ptr<PropertySettingsInterface> instance;
    if (!instance)
        instance = std::make_shared<PropertySettings>();
    return instance;
}

std::shared_ptr<PropertySettingsInterface>
PropertySettings::setInstance(std::shared_ptr<PropertySettingsInterface> settings)
{
    return std::exchange(getInstance(), std::move(settings));
}

} // namespace qev::fc::ui
