#pragma once

#include "FoundationClasses/Resource/Quantity/FcQuantityWeightAttributes.h"

namespace qev::fc::resource::quantity {

/// IfcQuantityWeight: a mass in kilograms.
class HOSTFOUNDATIONCLASSES_EXPORT FcQuantityWeight : public FcQuantityWeightAttributes
{
public:
    [[nodiscard]] double getValue() const override;
    void setValue(double value) override;
    [[nodiscard]] std::unique_ptr<unit::QuantityPresentationBase> createQuantityPresentation() const override;
};

} // namespace qev::fc::resource::quantity
