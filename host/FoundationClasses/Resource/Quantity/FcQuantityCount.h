#pragma once

#include "FoundationClasses/Resource/Quantity/FcQuantityCountAttributes.h"

namespace qev::fc::resource::quantity {

/// IfcQuantityCount: a count.
class HOSTFOUNDATIONCLASSES_EXPORT FcQuantityCount : public FcQuantityCountAttributes
{
public:
    [[nodiscard]] double getValue() const override;
    /// The number is cut towards zero. One that is not finite or too large for a count changes nothing.
    void setValue(double value) override;
    [[nodiscard]] std::unique_ptr<unit::QuantityPresentationBase> createQuantityPresentation() const override;
};

} // namespace qev::fc::resource::quantity
