#pragma once

#include "UI/FoundationClasses/Property/PropertyInterface.h"

#include <memory>
#include <optional>
#include <vector>

namespace qev::ifc::def::schema {
class Attribute;
}
namespace qev::fc {
class FcBase;
}
namespace qev::fc::resource::measure {
class FcValue;
}
namespace qev::unit {
class QuantityPresentationBase;
}

namespace qev::fc::ui {

/// A schema attribute of one entity, for display alone.
///
/// Attribute and entity are not owned. Made for the time in which a row is built.
class QEVFOUNDATIONCLASSESUI_EXPORT FcValueBase : public PropertyInterface
{
public:
    FcValueBase(ifc::def::schema::Attribute const& attribute, FcBase const& object,
                std::vector<std::string> contexts);
    ~FcValueBase() override;

    [[nodiscard]] bool isAllowedToEdit() const override;
    [[nodiscard]] bool isValidValue() const override;
    /// Attributes are not written here: false, and nothing changes.
    bool updateValue(Data& data, PropertyOrQuantityValue const& value) override;
    [[nodiscard]] std::string getName() const override;
    /// The name of the attribute's type, which is all that is told of it.
    [[nodiscard]] std::string getDescription() const override;
    [[nodiscard]] std::string getLocalizedName() const override;
    [[nodiscard]] std::string getLocalizedDescription() const override;
    /// The text of a simple attribute; empty for others and without a value.
    [[nodiscard]] std::string getValue() const override;
    /// The name of the entity's class.
    [[nodiscard]] std::string getPropertySetName() const override;
    void onPropertyCustomButtonClicked() override;

    [[nodiscard]] virtual std::string getPropertyTypeName() const;
    [[nodiscard]] virtual ifc::def::schema::Attribute const& getActiveValueDefinition() const;
    [[nodiscard]] virtual resource::measure::FcValue const& getFcValue() const;

    /// The number at the start of the text; nothing when there is none.
    [[nodiscard]] std::optional<double> valueAsDoubleGet() const;
    /// The value of a simple attribute in SI units; nothing for others and for what is no number.
    [[nodiscard]] std::optional<double> getAsSiUnit(Data const& data) const;
    /// Null when the attribute's type has none.
    [[nodiscard]] std::unique_ptr<unit::QuantityPresentationBase> quantityPresentation() const;
    /// The items of an enumeration; nothing for an attribute of another type.
    [[nodiscard]] std::optional<std::vector<std::string>> enumValues() const;

private:
    ifc::def::schema::Attribute const& m_attribute;
    FcBase const& m_object;
    std::vector<std::string> m_contexts;
};

} // namespace qev::fc::ui
