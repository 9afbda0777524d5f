#pragma once

#include "FoundationClasses/Resource/Measure/FcLabel.h"
#include "FoundationClasses/Resource/Measure/TypedValue.h"
#include "FoundationClasses/Resource/Measure/ValueTypes.h"

namespace qev::fc::resource::measure {

/// A text, number, truth value, date or binary: the IfcSimpleValue of a value.
class FcSimpleValue : public TypedValue<FcSimpleValueTypes, simpleValueTypes>
{
public:
    using TypedValue::TypedValue;
    explicit FcSimpleValue(FcLabel&& label)
        : TypedValue(Types::Label, label.text())
    {
    }
    /// A label with this text.
    explicit FcSimpleValue(std::string text)
        : TypedValue(Types::Label, std::move(text))
    {
    }
};

} // namespace qev::fc::resource::measure
