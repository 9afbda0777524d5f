#pragma once

#include "UI/FoundationClasses/Property/FcPropertyBase.h"

namespace qev::fc::ui {

/// A property with a lower and an upper bound, for display alone.
class QEVFOUNDATIONCLASSESUI_EXPORT FcPropertyBoundedValue : public FcPropertyBase
{
public:
    FcPropertyBoundedValue(ifc::def::pset::PropertyDef& definition, PropertySet& set,
                           std::vector<std::string> const& contexts);
    ~FcPropertyBoundedValue() override;

    [[nodiscard]] bool isAllowedToEdit() const override;
    [[nodiscard]] bool isValidValue() const override;
    /// The bounds in brackets, in SI units with six decimals, and the set point behind them.
    [[nodiscard]] std::string getValue() const override;
};

} // namespace qev::fc::ui
