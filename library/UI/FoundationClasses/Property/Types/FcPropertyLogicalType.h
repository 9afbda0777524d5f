#pragma once

#include "UI/FoundationClasses/Property/PropertyInterface.h"

#include <memory>

namespace qev::fc::ui {

/// Marks a property as a logical, which is true, false or unknown; every operation is that of the property
/// it holds.
class QEVFOUNDATIONCLASSESUI_EXPORT FcPropertyLogicalType : public PropertyInterface
{
public:
    /// \p property must not be null.
    explicit FcPropertyLogicalType(std::unique_ptr<PropertyInterface> property);
    ~FcPropertyLogicalType() override;

    [[nodiscard]] PropertyInterface& getWrappedProperty() const { return *m_property; }

    [[nodiscard]] bool isAllowedToEdit() const override;
    [[nodiscard]] bool isValidValue() const override;
    bool updateValue(Data& data, PropertyOrQuantityValue const& value) override;
    [[nodiscard]] std::string getName() const override;
    [[nodiscard]] std::string getDescription() const override;
    [[nodiscard]] std::string getLocalizedName() const override;
    [[nodiscard]] std::string getLocalizedDescription() const override;
    [[nodiscard]] std::string getValue() const override;
    [[nodiscard]] std::string getPropertySetName() const override;
    void onPropertyCustomButtonClicked() override;

private:
    std::unique_ptr<PropertyInterface> m_property;
};

} // namespace qev::fc::ui
