#pragma once

#include "FoundationClasses/Resource/Quantity/FcQuantityTimeAttributes.h"

namespace qev::fc::resource::quantity {

/// IfcQuantityTime: a duration in seconds.
class HOSTFOUNDATIONCLASSES_EXPORT FcQuantityTime : public FcQuantityTimeAttributes
{
public:
    [[nodiscard]] double getValue() const override;
    void setValue(double value) override;
    [[nodiscard]] std::unique_ptr<unit::QuantityPresentationBase> createQuantityPresentation() const override;
};

} // namespace qev::fc::resource::quantity
