#pragma once

#include "FoundationClasses/Resource/Quantity/FcQuantityVolumeAttributes.h"

namespace qev::fc::resource::quantity {

/// IfcQuantityVolume: a volume in cubic metres.
class HOSTFOUNDATIONCLASSES_EXPORT FcQuantityVolume : public FcQuantityVolumeAttributes
{
public:
    [[nodiscard]] double getValue() const override;
    void setValue(double value) override;
    [[nodiscard]] std::unique_ptr<unit::QuantityPresentationBase> createQuantityPresentation() const override;
};

} // namespace qev::fc::resource::quantity
