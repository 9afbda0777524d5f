#include "FoundationClasses/Resource/Quantity/FcQuantityLength.h"

#include "Core/Unit/QuantityPresentation.h"

namespace qev::fc::resource::quantity {

double FcQuantityLength::getValue() const { return LengthValue.get(); }

void FcQuantityLength::setValue(double value) { LengthValue = value; }

std::unique_ptr<unit::QuantityPresentationBase> FcQuantityLength::createQuantityPresentation() const
{
    return presentationOf("LengthMeasure");
}

} // namespace qev::fc::resource::quantity
