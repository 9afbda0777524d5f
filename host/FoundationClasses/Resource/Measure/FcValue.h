#pragma once

#include "FoundationClasses/Resource/Measure/FcDerivedMeasureValue.h"
#include "FoundationClasses/Resource/Measure/FcMeasureValue.h"
#include "FoundationClasses/Resource/Measure/FcSimpleValue.h"
#include "HostFoundationClassesExport.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace qev::object {
class PropertyValue;
}
namespace qev::unit {
class QuantityPresentationBase;
}

namespace qev::fc::resource::measure {

/// The value of a property: a derived measure, a measure, a simple value, or nothing.
/// Numbers with a unit are in SI units.
class HOSTFOUNDATIONCLASSES_EXPORT FcValue
{
public:
    /// The alphabetical positions of the families among the members of IfcValue.
    enum Discriminator : unsigned int
    {
        DerivedMeasure,
        Measure,
        Simple,
        Empty
    };

    FcValue() = default;
    FcValue(FcSimpleValue&& value)
        : m_value(std::move(value))
    {
    }
    FcValue(FcMeasureValue&& value)
        : m_value(std::move(value))
    {
    }
    FcValue(FcDerivedMeasureValue&& value)
        : m_value(std::move(value))
    {
    }

    [[nodiscard]] unsigned int discriminator() const { return static_cast<unsigned int>(m_value.index()); }
    [[nodiscard]] bool isEmpty() const { return discriminator() == Empty; }

    /// The family held. Raises `qev::exception` "Not of correct type" for another one.
    [[nodiscard]] FcDerivedMeasureValue const& derivedMeasureValue() const;
    [[nodiscard]] FcMeasureValue const& measureValue() const;
    [[nodiscard]] FcSimpleValue const& simpleValue() const;
    [[nodiscard]] FcSimpleValue& simpleValue();

    /// What is known of the type, null for the empty value and for a family without a type.
    [[nodiscard]] ValueTypeInfo const* typeInfo() const;
    /// The payload; nothing for the empty value.
    [[nodiscard]] Payload const& payload() const;
    /// Gives the value the type named \p schemaName ("IfcLengthMeasure") and this payload; false for an
    /// unknown type.
    bool assign(std::string_view schemaName, Payload payload);

    /// A strict order: by family, type and payload. Two values are equal when neither is less.
    bool operator<(FcValue const& other) const { return m_value < other.m_value; }
    friend bool operator==(FcValue const&, FcValue const&) = default;

    /// Text for display: texts as they stand, numbers in the shortest form that reads back equal,
    /// "true", "false" and "unknown", lists in brackets. With \p withType the schema name of the
    /// type stands in front: `IfcLabel(F30)`. No text for the empty value.
    [[nodiscard]] std::optional<std::string> getAsString(bool withType) const;
    /// The number of a numeric value.
    [[nodiscard]] std::optional<double> valueAsDoubleGet() const;
    /// Stores a number in a value of a numeric type. An integer type takes whole numbers only.
    /// Returns false, and changes nothing, otherwise.
    bool setDoubleValue(double number);
    /// Parses \p text according to the present type; false, and no change, when it does not parse.
    bool setValueOnTypeFromString(std::string const& text);
    /// Gives the value the type \p name, without the "Ifc" prefix, and its default payload.
    /// False, and no change, for an unknown name.
    bool setTypeFromString(std::string const& name);
    /// A presentation by the type, with the value 0; null where the type has none.
    [[nodiscard]] std::unique_ptr<unit::QuantityPresentationBase> createQuantityPresentation() const;

    /// The value for the generic editor: a number, integer, truth value or text; nothing for the empty value.
    /// An integer that the editor's kind cannot hold is a text.
    [[nodiscard]] object::PropertyValue getAsPropertyValue() const;
    /// Stores a value of the generic editor; false when it does not fit the type.
    bool updateValueFromPropertyValue(object::PropertyValue const& value);

private:
    void setPayload(Payload payload);

    std::variant<FcDerivedMeasureValue, FcMeasureValue, FcSimpleValue, std::monostate> m_value{
        std::monostate{}};
};

} // namespace qev::fc::resource::measure
