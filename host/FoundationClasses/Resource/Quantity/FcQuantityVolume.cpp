#include "FoundationClasses/Resource/Quantity/FcQuantityVolume.h"

#include "Core/Unit/QuantityPresentation.h"

namespace qev::fc::resource::quantity {

double FcQuantityVolume::getValue() const { return VolumeValue.get(); }

void FcQuantityVolume::setValue(double value) { VolumeValue = value; }

std::unique_ptr<unit::QuantityPresentationBase> FcQuantityVolume::createQuantityPresentation() const
{
    return presentationOf("VolumeMeasure");
}

} // namespace qev::fc::resource::quantity
