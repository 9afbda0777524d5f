#include "FoundationClasses/Resource/Quantity/FcQuantityWeight.h"

#include "Core/Unit/QuantityPresentation.h"

namespace qev::fc::resource::quantity {

double FcQuantityWeight::getValue() const { return WeightValue.get(); }

void FcQuantityWeight::setValue(double value) { WeightValue = value; }

std::unique_ptr<unit::QuantityPresentationBase> FcQuantityWeight::createQuantityPresentation() const
{
    return presentationOf("MassMeasure");
}

} // namespace qev::fc::resource::quantity
