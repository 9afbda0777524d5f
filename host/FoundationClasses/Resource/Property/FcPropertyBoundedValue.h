#pragma once

#include "FoundationClasses/Resource/Property/FcPropertyBoundedValueAttributes.h"

#include <optional>
#include <string>

namespace qev::fc::resource::property {

/// IfcPropertyBoundedValue: a property with a lower bound, an upper bound and a set point.
class HOSTFOUNDATIONCLASSES_EXPORT FcPropertyBoundedValue : public FcPropertyBoundedValueAttributes
{
public:
    /// The bounds and the set point in one line, with units: "[1 m, 3 m] 2 m". A missing one is left out;
    /// the empty text when there is none.
    [[nodiscard]] std::string getAsOneLineString(std::optional<std::string> const& setName) const;
};

} // namespace qev::fc::resource::property
