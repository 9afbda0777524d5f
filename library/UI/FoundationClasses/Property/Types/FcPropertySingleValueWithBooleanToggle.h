#pragma once

#include "Core/Utilities/ScopeGuard.h"
#include "UI/FoundationClasses/Property/Types/FcPropertyBooleanType.h"

#include <utility>

namespace qev::fc::ui {

/// A value, and the boolean property of the same set that switches it on and off, in one row.
///
/// This is the value, but for the three operations of the boolean, which are about the toggle. Nothing links
/// the two in the model: a value may exist with its toggle off.
class QEVFOUNDATIONCLASSESUI_EXPORT FcPropertySingleValueWithBooleanToggle : public FcPropertyBooleanType
{
public:
    FcPropertySingleValueWithBooleanToggle(ifc::def::pset::PropertyDef& valueDefinition,
                                           ifc::def::pset::PropertyDef& toggleDefinition, PropertySet& set,
                                           std::vector<std::string> const& contexts);
    ~FcPropertySingleValueWithBooleanToggle() override;

    [[nodiscard]] std::string getBooleanValue() const override;
    void updateBooleanValue(Data& data, PropertyOrQuantityValue const& value) override;
    [[nodiscard]] std::string getBooleanName() const override;

    /// True but within an operation of the boolean.
    [[nodiscard]] bool usesValueDefinition() const { return m_usesValueDefinition; }

protected:
    [[nodiscard]] ifc::def::pset::PropertyDef const& getActivePropertyDefinition() const override;
    bool setNewValue(PropertyOrQuantityValue const& value, core::kernel::FcPropertySet& set,
                     core::kernel::FcObjectDefinition& object) override;
    [[nodiscard]] std::optional<std::string>
    getFcValueAsString(resource::measure::FcValue const& value) const override;

    /// Turns this object to the toggle until the guard ends.
    [[nodiscard]] auto workWithBooleanProperty() const
    {
        bool const before = std::exchange(m_usesValueDefinition, false);
        return ScopeGuard([this, before] { m_usesValueDefinition = before; });
    }

private:
    ifc::def::pset::PropertyDef& m_valueDefinition;
    mutable bool m_usesValueDefinition = true;
};

} // namespace qev::fc::ui
