#include "FoundationClasses/Resource/Quantity/FcQuantityArea.h"

#include "Core/Unit/QuantityPresentation.h"

namespace qev::fc::resource::quantity {

double FcQuantityArea::getValue() const { return AreaValue.get(); }

void FcQuantityArea::setValue(double value) { AreaValue = value; }

std::unique_ptr<unit::QuantityPresentationBase> FcQuantityArea::createQuantityPresentation() const
{
    return presentationOf("AreaMeasure");
}

} // namespace qev::fc::resource::quantity
