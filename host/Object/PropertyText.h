#pragma once

#include "Object/PropertyValue.h"

#include <optional>
#include <string>

namespace qev::unit {
class QuantityPresentationBase;
}

namespace qev::object {

/// How values of properties are written for people, and what a typed text means for a property.
class HOSTOBJECT_EXPORT PropertyText
{
public:
    /// True for nothing, and for an optional without a value: they look the same to people.
    [[nodiscard]] static bool isUnset(PropertyValue const& value);
    /// The text of \p value without regard to a unit; empty for one that is not set.
    [[nodiscard]] static std::string getText(PropertyValue const& value);

    /// A value of the kind that inputs are brought to where a property holds \p value: a number that has no
    /// value yet may read as nothing, and \p isNumber tells that it is one.
    [[nodiscard]] static PropertyValue getLike(PropertyValue const& value, bool isNumber);
    /// \p value as a property takes it that holds values like \p like: as an optional where those are.
    [[nodiscard]] static PropertyValue bringTo(PropertyValue const& like, PropertyValue const& value);
    /// The value that \p text means for a property that holds values like \p like. The empty text means that
    /// it is not set; numbers are read by \p presentation where there is one, and truth values may be
    /// true, yes or 1, and false, no or 0. Nothing when the text is not understood.
    [[nodiscard]] static std::optional<PropertyValue>
    read(std::string const& text, PropertyValue const& like,
         unit::QuantityPresentationBase const* presentation);
};

} // namespace qev::object
