#include "FoundationClasses/Resource/Quantity/FcPhysicalSimpleQuantity.h"

#include "Core/Unit/QuantityPresentation.h"
#include "Core/Unit/QuantityPresentationFactory.h"

namespace qev::fc::resource::quantity {

double FcPhysicalSimpleQuantity::getValue() const { return 0.0; }

void FcPhysicalSimpleQuantity::setValue(double) {}

std::unique_ptr<unit::QuantityPresentationBase> FcPhysicalSimpleQuantity::createQuantityPresentation() const
{
    return nullptr;
}

std::unique_ptr<unit::QuantityPresentationBase>
FcPhysicalSimpleQuantity::presentationOf(char const* measure) const
{
    auto presentation = unit::createPresentationForMeasure(measure);
    if (presentation)
        presentation->setValue(getValue());
    return presentation;
}

} // namespace qev::fc::resource::quantity
