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
    /// Stores a value of the generic editor; false, and no change, when there is none or it does not fit the type.
    bool setFromPropertyValue(object::PropertyValue const& value);
};

} // namespace qev::fc::resource::property
