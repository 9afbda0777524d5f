#include "FoundationClasses/Resource/Quantity/FcQuantityTime.h"

#include "Core/Unit/QuantityPresentation.h"

namespace qev::fc::resource::quantity {

double FcQuantityTime::getValue() const { return TimeValue.get(); }

void FcQuantityTime::setValue(double value) { TimeValue = value; }

std::unique_ptr<unit::QuantityPresentationBase> FcQuantityTime::createQuantityPresentation() const
{
    return presentationOf("TimeMeasure");
}

} // namespace qev::fc::resource::quantity
