#pragma once

#include "UI/FoundationClasses/Property/FcPropertyBase.h"

#include <optional>

namespace qev::fc::resource::property {
class FcPropertySingleValue;
}
namespace qev::unit {
class QuantityPresentationBase;
}

namespace qev::fc::ui {

/// A property with one value for each object.
class QEVFOUNDATIONCLASSESUI_EXPORT FcPropertySingleValue : public FcPropertyBase
{
public:
    FcPropertySingleValue(ifc::def::pset::PropertyDef& definition, PropertySet& set,
                          std::vector<std::string> const& contexts);
    ~FcPropertySingleValue() override;

    [[nodiscard]] bool isAllowedToEdit() const override;
    [[nodiscard]] bool isValidValue() const override;
    /// With a presentation the number as that writes it, 0 when the objects do not agree on one. Otherwise
    /// numbers have six decimals, and the text is empty when the objects do not agree.
    [[nodiscard]] std::string getValue() const override;

    /// The value of all objects. The empty value when there is no object, when one of them lacks the
    /// property, and when two values differ.
    ///
    /// The reference leads into the model and is good until that changes.
    [[nodiscard]] resource::measure::FcValue const& getFcValue() const override;

    /// Tells if `updateValue` would take \p value in all objects. Nothing is written.
    /// \throws what the number parsing of the standard library lets pass.
    [[nodiscard]] bool wouldTake(PropertyOrQuantityValue const& value) const;

    /// How numbers of this property are written, by the override of the set, by what is registered for the
    /// property, or by its type. Null when it is shown without a unit.
    [[nodiscard]] std::unique_ptr<unit::QuantityPresentationBase> quantityPresentation() const;

protected:
    /// Stores a number as it is, and a text as the value's type reads it. A value without a type gets the
    /// one of the definition first. A refused value changes nothing.
    bool setNewValue(PropertyOrQuantityValue const& value, core::kernel::FcPropertySet& set,
                     core::kernel::FcObjectDefinition& object) override;
    /// The display text of a value; nothing for one that has none.
    [[nodiscard]] virtual std::optional<std::string>
    getFcValueAsString(resource::measure::FcValue const& value) const;

    /// The property in \p set, made if need be, and with the type of the definition if it has no value yet.
    /// Null, with a report, when it cannot be made.
    [[nodiscard]] std::shared_ptr<resource::property::FcPropertySingleValue>
    getSingleValueProperty(core::kernel::FcPropertySet& set);

private:
    /// The value's type as the definition has it, without "Ifc"; empty when nothing is known of it.
    [[nodiscard]] virtual std::string getPropertyTypeName() const;

    /// \p value, with the type of the definition if it is empty.
    [[nodiscard]] resource::measure::FcValue withType(resource::measure::FcValue value) const;
    /// What \p present, the value of an object, becomes; nothing when it does not take \p value.
    [[nodiscard]] std::optional<resource::measure::FcValue>
    editedValue(PropertyOrQuantityValue const& value, resource::measure::FcValue const& present) const;
};

} // namespace qev::fc::ui
