#pragma once

#include "UI/FoundationClasses/Property/FcPropertyBase.h"

namespace qev::fc::ui {

/// A property with any number of values, for display alone.
class QEVFOUNDATIONCLASSESUI_EXPORT FcPropertyListValue : public FcPropertyBase
{
public:
    FcPropertyListValue(ifc::def::pset::PropertyDef& definition, PropertySet& set,
                        std::vector<std::string> const& contexts);
    ~FcPropertyListValue() override;

    [[nodiscard]] bool isAllowedToEdit() const override;
    [[nodiscard]] bool isValidValue() const override;
    /// The values, kept apart by "; ".
    [[nodiscard]] std::string getValue() const override;
};

} // namespace qev::fc::ui
