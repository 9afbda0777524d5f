#pragma once

#include "FoundationClasses/Resource/Quantity/FcQuantityNumberAttributes.h"

namespace qev::fc::resource::quantity {

/// IfcQuantityNumber: a number.
class HOSTFOUNDATIONCLASSES_EXPORT FcQuantityNumber : public FcQuantityNumberAttributes
{
public:
    [[nodiscard]] double getValue() const override;
    void setValue(double value) override;
    [[nodiscard]] std::unique_ptr<unit::QuantityPresentationBase> createQuantityPresentation() const override;
};

} // namespace qev::fc::resource::quantity
