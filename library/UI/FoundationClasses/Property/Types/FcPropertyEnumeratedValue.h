#pragma once

#include "UI/FoundationClasses/Property/FcPropertyBase.h"

#include <optional>

namespace qev::fc::ui {

/// A property with values from a list. One value can be chosen in place.
class QEVFOUNDATIONCLASSESUI_EXPORT FcPropertyEnumeratedValue : public FcPropertyBase
{
public:
    FcPropertyEnumeratedValue(ifc::def::pset::PropertyDef& definition, PropertySet& set,
                              std::vector<std::string> const& contexts);
    ~FcPropertyEnumeratedValue() override;

    [[nodiscard]] bool isAllowedToEdit() const override;
    [[nodiscard]] bool isValidValue() const override;
    /// The values in the present language, several of them in brackets.
    [[nodiscard]] std::string getValue() const override;

    /// What the definition offers, as the model stores it.
    [[nodiscard]] std::vector<std::string> getEnumeratedValues() const;
    /// The same in the present language, in the same order.
    [[nodiscard]] std::vector<std::string> getLocalizedEnumeratedValues() const;

protected:
    /// Stores the offered value whose localised text is given, or the text itself when it is none of them.
    /// A present value that is no label stays as it is, and so do all but the first of several.
    bool setNewValue(PropertyOrQuantityValue const& value, core::kernel::FcPropertySet& set,
                     core::kernel::FcObjectDefinition& object) override;

private:
    [[nodiscard]] std::string localizedValue(std::string const& value) const;
    [[nodiscard]] std::string storedForm(std::string const& text) const;
    [[nodiscard]] std::optional<std::string> textOf(core::kernel::FcObjectDefinition& object) const;
};

} // namespace qev::fc::ui
