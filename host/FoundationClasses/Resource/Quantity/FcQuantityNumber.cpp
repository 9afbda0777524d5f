#include "FoundationClasses/Resource/Quantity/FcQuantityNumber.h"

#include "Core/Unit/QuantityPresentation.h"

namespace qev::fc::resource::quantity {

double FcQuantityNumber::getValue() const { return NumberValue.get(); }

void FcQuantityNumber::setValue(double value) { NumberValue = value; }

std::unique_ptr<unit::QuantityPresentationBase> FcQuantityNumber::createQuantityPresentation() const
{
    return presentationOf("NumericMeasure");
}

} // namespace qev::fc::resource::quantity
