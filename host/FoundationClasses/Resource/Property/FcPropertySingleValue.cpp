#include "FoundationClasses/Resource/Property/FcPropertySingleValue.h"

#include "Object/PropertyValue.h"

namespace qev::fc::resource::property {

bool FcPropertySingleValue::setFromPropertyValue(object::PropertyValue const& value)
{
    return NominalValue.edit([&value](measure::FcValue& own) { return own.updateValueFromPropertyValue(value); });
}

} // namespace qev::fc::resource::property
