#pragma once

#include "FoundationClasses/Resource/Measure/TypedValue.h"
#include "FoundationClasses/Resource/Measure/ValueTypes.h"

namespace qev::fc::resource::measure {

/// A length, area, ratio, temperature and so on: the IfcMeasureValue of a value.
class FcMeasureValue : public TypedValue<FcMeasureValueTypes, measureValueTypes>
{
public:
    using TypedValue::TypedValue;
};

} // namespace qev::fc::resource::measure
