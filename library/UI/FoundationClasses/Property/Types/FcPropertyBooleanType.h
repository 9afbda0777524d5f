#pragma once

#include "UI/FoundationClasses/Property/Types/FcPropertySingleValue.h"

namespace qev::fc::ui {

/// A truth value: "1", "0", or empty when the objects have none or do not agree.
class QEVFOUNDATIONCLASSESUI_EXPORT FcPropertyBooleanType : public FcPropertySingleValue
{
public:
    FcPropertyBooleanType(ifc::def::pset::PropertyDef& definition, PropertySet& set,
                          std::vector<std::string> const& contexts);
    ~FcPropertyBooleanType() override;

    [[nodiscard]] virtual std::string getBooleanValue() const;
    /// The number 0 stands for false, any other for true; the empty text removes the property.
    /// \throws std::invalid_argument, std::out_of_range for a text that is no whole number, qev::exception
    /// where an object has a value of another type.
    virtual void updateBooleanValue(Data& data, PropertyOrQuantityValue const& value);
    [[nodiscard]] virtual std::string getBooleanName() const;

protected:
    /// \throws see `updateBooleanValue`
    bool setNewValue(PropertyOrQuantityValue const& value, core::kernel::FcPropertySet& set,
                     core::kernel::FcObjectDefinition& object) override;
    /// "1" or "0". A value that is no boolean is reported and has no text.
    [[nodiscard]] std::optional<std::string>
    getFcValueAsString(resource::measure::FcValue const& value) const override;
};

} // namespace qev::fc::ui
