#pragma once

#include "UI/FoundationClasses/Property/PropertySettingsInterface.h"

#include <memory>

namespace qev::fc::ui {

/// The settings without a host: nothing is shown or edited beyond the usual. And the door to those of the
/// program.
class QEVFOUNDATIONCLASSESUI_EXPORT PropertySettings : public PropertySettingsInterface
{
public:
    ~PropertySettings() override;

    [[nodiscard]] bool showGlobalId() const override;
    [[nodiscard]] bool isUserEditableEnumeration(std::string_view setName,
                                                 std::string_view propertyName) const override;

    /// The settings of the program; never null.
    [[nodiscard]] static std::shared_ptr<PropertySettingsInterface>& getInstance();
    /// Installs \p settings; null stands for the usual ones. \returns the previous settings.
    static std::shared_ptr<PropertySettingsInterface>
    setInstance(std::shared_ptr<PropertySettingsInterface> settings);
};

} // namespace qev::fc::ui
