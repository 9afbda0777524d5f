#pragma once

#include "FoundationClasses/Resource/Measure/TypedValue.h"
#include "FoundationClasses/Resource/Measure/ValueTypes.h"

namespace qev::fc::resource::measure {

/// A power, pressure, flow and so on: the IfcDerivedMeasureValue of a value.
class FcDerivedMeasureValue : public TypedValue<FcDerivedMeasureValueTypes, derivedMeasureValueTypes>
{
public:
    using TypedValue::TypedValue;
};

} // namespace qev::fc::resource::measure
