#pragma once

#include "FoundationClasses/Resource/Measure/FcValue.h"
#include "FoundationClasses/Resource/Property/FcPropertyAttributes.h"

#include <memory>
#include <optional>
#include <string>

namespace qev::fc::resource::property {

/// IfcProperty: a named property of a set or of a complex property.
class HOSTFOUNDATIONCLASSES_EXPORT FcProperty : public FcPropertyAttributes
{
public:
    /// Takes the property out of its sets and complex properties, and out of the model.
    /// \param deleteEmptySets a set that loses its last property goes too
    void deleteProperty(Data& data, bool deleteEmptySets);

    /// The model's own choice of a presentation for a value of this property, carrying the value;
    /// null when it has none. \p setName picks a presentation that is set for the property of that set.
    [[nodiscard]] std::unique_ptr<unit::QuantityPresentationBase>
    createQuantityPresentationFor(measure::FcValue const& value,
                                  std::optional<std::string> const& setName) const;
};

} // namespace qev::fc::resource::property
