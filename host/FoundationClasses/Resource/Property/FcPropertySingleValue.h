#pragma once

#include "FoundationClasses/Resource/Property/FcPropertySingleValueAttributes.h"

namespace qev::object {
class PropertyValue;
}

namespace qev::fc::resource::property {

/// IfcPropertySingleValue: a property with one value.
class HOSTFOUNDATIONCLASSES_EXPORT FcPropertySingleValue : public FcPropertySingleValueAttributes
{
public:
    /// Stores a value of the generic editor. One that does not fit the type changes nothing; a property
    /// without a value takes the simple type of that kind.
    ///
    /// \returns false, and changes nothing, when \p value empties the property: it is not set, nothing at
    /// all, or the empty text where the type is not one of texts, and the property has a value.
    bool setFromPropertyValue(object::PropertyValue const& value);
};

} // namespace qev::fc::resource::property
