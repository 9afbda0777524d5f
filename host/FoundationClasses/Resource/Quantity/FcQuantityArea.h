#pragma once

#include "FoundationClasses/Resource/Quantity/FcQuantityAreaAttributes.h"

namespace qev::fc::resource::quantity {

/// IfcQuantityArea: an area in square metres.
class HOSTFOUNDATIONCLASSES_EXPORT FcQuantityArea : public FcQuantityAreaAttributes
{
public:
    [[nodiscard]] double getValue() const override;
    void setValue(double value) override;
    [[nodiscard]] std::unique_ptr<unit::QuantityPresentationBase> createQuantityPresentation() const override;
};

} // namespace qev::fc::resource::quantity
