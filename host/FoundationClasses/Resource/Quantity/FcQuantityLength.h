#pragma once

#include "FoundationClasses/Resource/Quantity/FcQuantityLengthAttributes.h"

namespace qev::fc::resource::quantity {

/// IfcQuantityLength: a length in metres.
class HOSTFOUNDATIONCLASSES_EXPORT FcQuantityLength : public FcQuantityLengthAttributes
{
public:
    [[nodiscard]] double getValue() const override;
    void setValue(double value) override;
    [[nodiscard]] std::unique_ptr<unit::QuantityPresentationBase> createQuantityPresentation() const override;
};

} // namespace qev::fc::resource::quantity
